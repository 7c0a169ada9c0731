#include "typed_command.h"

#include "program_search.h"
#include "quoting.h"

#include <QFileInfo>

namespace {

/// What stands between the quotes around the whole of \a passed; nothing when there are none.
QString insideQuotes(const QString &passed)
{
    const QChar quote(u'"');
    const bool isQuoted = passed.size() > 1 && passed.startsWith(quote) && passed.endsWith(quote);
    return isQuoted ? passed.mid(1, passed.size() - 2) : QString();
}

} // namespace

QString programPath(const QString &word)
{
    const QString found = platform::findCommand(word, platform::searchPathVariable());
    return found.isEmpty() ? QString() : QFileInfo(found).absoluteFilePath();
}

bool isProgram(const QString &word)
{
    return !programPath(word).isEmpty();
}

QString typedCommand(const QString &passed, bool (*names)(const QString &word))
{
    const QString inside = insideQuotes(passed);
    const bool isTyped = inside.isEmpty() || names(inside) || names(splitCommand(passed).value(0));
    return isTyped ? passed : inside;
}

QStringList commandWords(const QString &passed, bool (*names)(const QString &word))
{
    const QString inside = insideQuotes(passed);
    return !inside.isEmpty() && names(inside) ? QStringList {inside}
                                              : splitCommand(typedCommand(passed, names));
}
