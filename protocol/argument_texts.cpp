#include "argument_texts.h"

using namespace Qt::StringLiterals;

namespace {

// What the local encoding lacks does not survive in a file name that other programs must open.
QString inLocalEncoding(const QString &text)
{
    return QString::fromLocal8Bit(text.toLocal8Bit());
}

} // namespace

QString quotedCommand(const QString &command)
{
    const QChar quote(u'"');
    const bool needsQuotes =
        command.contains(u' ') && !command.startsWith(quote) && !command.endsWith(quote);
    return needsQuotes ? quote + command + quote : command;
}

QString withDot(const QString &extension)
{
    const bool lacksDot = !extension.isEmpty() && !extension.startsWith(u'.');
    return inLocalEncoding(lacksDot ? u'.' + extension : extension);
}

QString personalityPath(const QString &destination, const QString &name)
{
    const QLatin1StringView extension(".p_c");
    return destination + u'\\'
         + inLocalEncoding(name.endsWith(extension) ? name : name + extension);
}

QString inFolder(QLatin1StringView folder, const QString &file)
{
    return file.isEmpty() || file.contains(u'\\') ? file : "..\\"_L1 + folder + u'\\' + file;
}

QStringList option(QLatin1StringView flag, const QString &value)
{
    return value.isEmpty() ? QStringList() : QStringList {flag, value};
}
