#include "template_options.h"

#include "command_line.h"

QList<QByteArray> templateWords(const QByteArray &templateText)
{
    QByteArray text = templateText;
    text.replace("\r\n", "\n").replace("\\\n", "");
    QList<QByteArray> words;
    for (const QByteArray &line : text.split('\n')) {
        if (line.trimmed().startsWith('#'))
            continue;
        for (const QString &word : platform::shellWords(QString::fromUtf8(line)))
            words << word.toUtf8();
    }
    return words;
}

bool MacroChange::concerns(const Macro &macro) const
{
    return bareName(macro.name) == bareName(name);
}

QList<MacroChange> macroChanges(const QByteArray &templateText)
{
    QList<MacroChange> changes;
    const QList<QByteArray> words = templateWords(templateText);
    for (qsizetype i = 0; i < words.size(); ++i) {
        const bool isDefined = words[i].startsWith("-D");
        if (!isDefined && !words[i].startsWith("-U"))
            continue;
        QByteArray definition = words[i].sliced(2);
        if (definition.isEmpty() && i + 1 < words.size())
            definition = words[++i];
        const qsizetype equals = definition.indexOf('=');
        if (!isDefined)
            changes.append({definition, {}});
        else if (equals < 0)
            changes.append({definition, "1"});
        else
            changes.append({definition.first(equals), definition.sliced(equals + 1)});
    }
    return changes;
}

QList<Macro> changedMacros(const QList<Macro> &macros, const QByteArray &templateText)
{
    QList<Macro> changed = macros;
    for (const MacroChange &change : macroChanges(templateText)) {
        changed.removeIf([&change](const Macro &macro) { return change.concerns(macro); });
        if (change.value)
            changed.append({change.name, *change.value});
    }
    return changed;
}
