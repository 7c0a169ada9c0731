#include "generation/command_check.h"

#include "platform/paths.h"

#include <QFile>
#include <QFileInfo>

namespace {

bool opens(const QString &candidate)
{
    // Opening a pipe would wait for its other end.
    const QString path = platform::hostPath(candidate);
    return QFileInfo(path).isFile() && QFile(path).open(QIODevice::ReadOnly);
}

} // namespace

QString commandWord(const QString &commandLine)
{
    const QLatin1Char quote('"');
    const bool quoted = commandLine.startsWith(quote);
    const QString line = quoted ? commandLine.mid(1) : commandLine;
    return line.section(quoted ? quote : QLatin1Char(' '), 0, 0);
}

QStringList commandCandidates(const QString &word, const QString &searchPath)
{
    QStringList candidates {QLatin1String(".\\") + word + QLatin1String(".exe")};
    if (searchPath.isNull())
        return candidates;
    for (const QString &directory : searchPath.split(QLatin1Char(';'))) {
        for (const char *suffix : {"", ".exe", ".com", ".bat"})
            candidates << directory + QLatin1Char('\\') + word + QLatin1String(suffix);
    }
    return candidates;
}

bool commandIsFound(const QString &word, const QString &searchPath)
{
    if (word.contains(QLatin1Char('\\')))
        return QFileInfo::exists(platform::hostPath(word));
    const QStringList candidates = commandCandidates(word, searchPath);
    return std::any_of(candidates.begin(), candidates.end(), opens);
}
