#include "check.h"

#include "probe_runner.h"
#include "program_run.h"
#include "program_search.h"
#include "text_file.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QRegularExpression>
#include <QThreadPool>

using namespace Qt::StringLiterals;

namespace {

const int patience = 600'000; // milliseconds for one source
const qsizetype largestSource = 500'000'000;

const QLatin1StringView syntaxOnly("-fsyntax-only");

platform::ProgramRun runClang(const Checking &checking, const CheckedSource &source,
                              const QStringList &options)
{
    const QStringList command {checking.clang.program, u"--config"_s, checking.personality, u"-w"_s,
                               u"-ferror-limit=1"_s};
    return platform::runProgram(command + options + source.clangOptions, source.directory, patience,
                                largestSource);
}

/// \a source's command with \a option behind the program's name.
QStringList withOption(const CheckedSource &source, const QString &option)
{
    QStringList command = source.bareCommand;
    command.insert(1, option);
    return command;
}

/// Lets clang leave the keywords in the code that it would otherwise not understand.
QStringList undefinedKeywords(const Personality &personality)
{
    QStringList options;
    for (const Option &option : personality.keywordDefinitions) {
        const QByteArray name = option.first().sliced(2);
        options << u"-U"_s + QString::fromUtf8(name.first(name.indexOf('=')).split('(').first());
    }
    return options;
}

/// Compares the code that both see in a source that both accept.
void compare(const Checking &checking, const CheckedSource &source, Verdict &verdict)
{
    verdict.result = Verdict::NotCompared;
    if (checking.preprocess.isEmpty())
        return;
    const platform::ProgramRun own = platform::runProgram(
        withOption(source, checking.preprocess), source.directory, patience, largestSource);
    const platform::ProgramRun clang =
        runClang(checking, source, QStringList {u"-E"_s} + undefinedKeywords(checking.content));
    if (!own.succeeded() || own.output.isEmpty() || !clang.succeeded())
        return;
    const QStringList ownHeaders = ownHeadersOf(checking.content);
    const std::optional<TokenDifference> difference =
        firstDifference({own.output, ownHeaders}, {clang.output, {checking.clang.headers}});
    verdict.result = difference ? Verdict::Different : Verdict::Same;
    verdict.difference = difference.value_or(TokenDifference());
}

Verdict checkSource(const Checking &checking, const CheckedSource &source)
{
    Verdict verdict;
    verdict.file = source.file;
    const QStringList command =
        checking.checksSyntaxOnly ? withOption(source, syntaxOnly) : source.command;
    const platform::ProgramRun own = platform::runProgram(command, source.directory, patience);
    QFile::remove(source.output);
    if (!own.succeeded()) {
        verdict.message = QString::fromLocal8Bit(own.errors + own.output).section(u'\n', 0, 0);
        return verdict;
    }
    const platform::ProgramRun clang = runClang(checking, source, {syntaxOnly});
    if (clang.succeeded()) {
        compare(checking, source, verdict);
    } else {
        verdict.result = Verdict::RejectedByClang;
        verdict.rejection = rejectionIn(clang.errors);
    }
    return verdict;
}

} // namespace

std::optional<Clang> findClang()
{
    Clang clang {platform::findCommand(u"clang"_s, platform::searchPathVariable()), {}, {}};
    if (clang.program.isEmpty())
        return {};
    clang.program = QFileInfo(clang.program).absoluteFilePath();
    static const QRegularExpression version(u"clang version (\\d+)"_s);
    const auto ask = [&clang](const QString &question) {
        return QString::fromLocal8Bit(
            platform::runProgram({clang.program, question}, QDir::tempPath(), patience).output);
    };
    const QRegularExpressionMatch found = version.match(ask(u"--version"_s));
    clang.version = "clang "_L1 + found.captured(1);
    clang.headers = QDir::cleanPath(ask(u"-print-resource-dir"_s).trimmed() + "/include"_L1);
    if (!found.hasMatch())
        return {};
    return clang;
}

QStringList ownHeadersOf(const Personality &personality)
{
    QStringList folders;
    for (const QString &directory : personality.facts.searchPath.directories) {
        if (personality.searchPath.contains(Option {"-idirafter", directory.toUtf8()}))
            folders << directory;
    }
    return folders;
}

bool canCheckSyntaxOnly(const Compiler &compiler, const QString &folder)
{
    const auto accepts = [&](const QString &name, const QByteArray &code) {
        const QString file = folder + u'/' + name + probeName(compiler.isCpp);
        if (!platform::writeScratchFile(file, code))
            return false;
        const QStringList command = withOption(sourceOfFile(compiler, file, folder), syntaxOnly);
        return platform::runProgram(command, folder, patience).succeeded();
    };
    return accepts(u"right_"_s, "int right;\n") && !accepts(u"wrong_"_s, "int wrong wrong;\n");
}

QList<Verdict> checkSources(const Checking &checking, const QList<CheckedSource> &sources,
                            std::atomic<int> &done, std::optional<int> timeLimit)
{
    const QDeadlineTimer deadline =
        timeLimit ? QDeadlineTimer(*timeLimit) : QDeadlineTimer(QDeadlineTimer::Forever);
    QList<Verdict> verdicts(sources.size());
    Verdict *const places = verdicts.data(); // not detached by the threads
    std::atomic<int> next = 0;
    QThreadPool pool;
    for (int thread = 0; thread < pool.maxThreadCount(); ++thread) {
        pool.start([&] {
            while (next < sources.size() && !deadline.hasExpired()) {
                const int index = next++;
                if (index >= sources.size())
                    break;
                places[index] = checkSource(checking, sources[index]);
                ++done;
            }
        });
    }
    pool.waitForDone();
    verdicts.resize(done);
    return verdicts;
}
