#include "macro_options.h"

#include <QFileInfo>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

std::optional<MacroOption> macroOptionAt(const QStringList &words, qsizetype index,
                                         const QString &defineFlag)
{
    static const QRegularExpression apart(
        u"^(?:[-/][DU]|--?define(?:-macro)?|--undef(?:ine-macro)?)$"_s);
    // "/DNAME", but no path such as "/Users/x".
    static const QRegularExpression joined(
        u"^(?:-[DU]|/[DU](?=[A-Za-z_$][\\w$]*(?:$|[=#(]))|--?define(?:-macro)?=|"
        "--undef(?:ine-macro)?=|-Wp,-[DU])(.+)$"_s);
    const QString &word = words[index];
    if (word.contains(apart) || (!defineFlag.isEmpty() && word == defineFlag))
        return index + 1 < words.size() ? MacroOption {words[index + 1], 2} : MacroOption();
    const QRegularExpressionMatch match = joined.match(word);
    if (match.hasMatch() && !(word.startsWith(u'/') && QFileInfo::exists(word)))
        return MacroOption {match.captured(1)};
    if (!defineFlag.isEmpty() && word.startsWith(defineFlag))
        return MacroOption {word.mid(defineFlag.size())};
    return {};
}
