#include "command_line.h"

#include <QRegularExpression>
#include <qt_windows.h>
#include <shellapi.h>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

/// \a word in quotation marks, as programs read it.
QString quoted(QString word)
{
    static const QRegularExpression beforeMark(u"(\\\\*)\""_s);
    static const QRegularExpression atEnd(u"(\\\\+)\\z"_s);
    word.replace(beforeMark, u"\\1\\1\\\""_s);
    word.replace(atEnd, u"\\1\\1"_s);
    return u'"' + word + u'"';
}

/// \a text so that the command interpreter finds nothing in it. A quotation mark it would take for
/// the beginning or the end of what it leaves alone, whether there is a backslash before it or not.
QString escaped(QString text)
{
    static const QRegularExpression special(u"([\"&|<>^()])"_s);
    return text.replace(special, u"^\\1"_s);
}

} // namespace

QString commandLine(const QStringList &command)
{
    // All that a command is split at, or that the command interpreter finds something in.
    static const QRegularExpression special(u"[\\s&|<>^()\"']"_s,
                                            QRegularExpression::UseUnicodePropertiesOption);
    QStringList words = command;
    for (QString &word : words) {
        if (word.contains(u'"'))
            word = escaped(quoted(word));
        else if (word.isEmpty() || word.contains(special))
            word = quoted(word);
    }
    return words.join(u' ');
}

QString commandFileLine(const QStringList &command)
{
    return commandLine(command).replace(u'%', "%%"_L1);
}

QStringList splitCommandLine(const QString &line)
{
    if (line.trimmed().isEmpty())
        return {}; // which the system takes for the name of the running program
    int count = 0;
    wchar_t **words = CommandLineToArgvW(line.trimmed().toStdWString().c_str(), &count);
    QStringList list;
    for (int i = 0; words && i < count; ++i)
        list << QString::fromWCharArray(words[i]);
    LocalFree(words);
    return list;
}

} // namespace platform
