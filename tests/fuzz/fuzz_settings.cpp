// Settings of any bytes are read; no value holds a line end.

#include "app/settings_text.h"

extern "C" int LLVMFuzzerTestOneInput(const char *data, std::size_t size)
{
    const auto kindOf = [](const QString &key) -> std::optional<SettingsKind> {
        if (key == QLatin1String("Product:"))
            return SettingsKind::Single;
        if (key == QLatin1String("Compiler Defines:"))
            return SettingsKind::List;
        return {};
    };
    const QString text = QString::fromLocal8Bit(QByteArray(data, qsizetype(size)));
    for (const SettingsEntry &entry : parseSettings(text, kindOf)) {
        const bool isList = kindOf(entry.key) == SettingsKind::List;
        if (!isList && entry.values.size() != 1)
            __builtin_trap();
        for (const QString &value : entry.values) {
            if (value.contains('\n') || value.contains('\r') || (isList && value.isEmpty()))
                __builtin_trap();
        }
    }
    return 0;
}
