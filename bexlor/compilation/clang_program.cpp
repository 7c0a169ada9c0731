#include "clang_program.h"

#include "clang.h"
#include "program_search.h"
#include "text_file.h"

#include <QDir>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

const int answerTimeLimit = 30'000; // milliseconds

} // namespace

std::optional<Clang> findClang(const QString &word)
{
    Clang clang {platform::findCommand(word, platform::searchPathVariable()), {}, {}};
    if (clang.program.isEmpty())
        return {};
    clang.program = QFileInfo(clang.program).absoluteFilePath();
    const platform::ProgramRun run =
        platform::runProgram({clang.program, u"--version"_s}, QDir::tempPath(), answerTimeLimit);
    static const QRegularExpression version(u"clang version (\\d+)"_s);
    const QRegularExpressionMatch found = version.match(platform::decodedText(run.output));
    if (!run.succeeded() || !found.hasMatch())
        return {};
    clang.version = "clang "_L1 + found.captured(1);
    const platform::ProgramRun folder = platform::runProgram(
        {clang.program, u"-print-resource-dir"_s}, QDir::tempPath(), answerTimeLimit);
    if (!folder.succeeded())
        return {};
    clang.headers = QDir::cleanPath(platform::decodedText(folder.output.trimmed()) + "/include"_L1);
    return clang;
}

platform::ProgramRun runClang(const Clang &clang, const QString &personality,
                              const QStringList &arguments, const QString &directory, int timeLimit,
                              qsizetype outputLimit)
{
    const QStringList command {clang.program};
    return platform::runProgram(command + personalityOption(personality) + arguments, directory,
                                timeLimit, outputLimit);
}
