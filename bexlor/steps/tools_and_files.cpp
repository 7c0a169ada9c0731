#include "tools_and_files.h"

#include "probe_runner.h"
#include "refusal.h"
#include "text_file.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

const qint64 largestDatabase = 1'000'000'000;

} // namespace

std::optional<Clang> findClang(Progress &progress, const QString &word)
{
    const std::optional<Clang> clang = findClang(word);
    if (!clang)
        progress.say(u"There is no clang that can be started: %1"_s.arg(word));
    return clang;
}

QString notWritten(const QString &noun, const QString &path)
{
    const QString folder = QFileInfo(path).absolutePath();
    return QFileInfo::exists(folder)
             ? u"The %1 cannot be written: %2"_s.arg(noun, path)
             : u"The folder of the %1 does not exist: %2"_s.arg(noun, folder);
}

std::variant<QList<CompileCommand>, QString> readDatabase(const QString &path)
{
    const platform::FileContent file = platform::readFile(path, largestDatabase);
    if (file.state != platform::FileContent::Whole)
        return u"The compilation database cannot be read: %1"_s.arg(path);
    const auto commands = parseDatabase(file.bytes, QFileInfo(path).absolutePath());
    if (!commands)
        return u"This is no compilation database: %1"_s.arg(path);
    return *commands;
}

std::optional<QString> writeEmptySource(Progress &progress, const QString &folder, bool isCpp)
{
    const QString source = folder + u'/' + probeName(isCpp);
    if (platform::writeScratchFile(source, "\n"))
        return source;
    progress.say(u"No source can be written to the temporary folder: %1"_s.arg(folder));
    return {};
}

void leaveOutOddDirectories(Progress &progress, QStringList &directories)
{
    directories.removeIf([&progress](const QString &directory) {
        const bool isOdd = !mayStandInPersonality(directory);
        if (isOdd)
            progress.say(
                u"Passed over, since it has a control character in its name: %1"_s.arg(directory));
        return isOdd;
    });
}
