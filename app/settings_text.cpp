#include "app/settings_text.h"

QList<SettingsEntry>
parseSettings(const QString &text,
              const std::function<std::optional<SettingsKind>(const QString &key)> &kindOf)
{
    QStringList lines = QString(text)
                            .replace(QLatin1String("\r\n"), QLatin1String("\n"))
                            .replace(QLatin1Char('\r'), QLatin1Char('\n'))
                            .split(QLatin1Char('\n'));
    QList<SettingsEntry> entries;
    for (qsizetype next = 0; next < lines.size();) {
        const QString &key = lines[next++];
        const std::optional<SettingsKind> kind = kindOf(key);
        if (!kind)
            continue;
        SettingsEntry entry {key, {}};
        if (*kind == SettingsKind::Single) {
            entry.values << lines.value(next++);
        } else {
            while (next < lines.size() && !lines[next].isEmpty())
                entry.values << lines[next++];
        }
        entries << entry;
    }
    return entries;
}
