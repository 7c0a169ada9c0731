#include "generation/command_check.h"

QString commandWord(const QString &commandLine)
{
    const QLatin1Char quote('"');
    const bool quoted = commandLine.startsWith(quote);
    const QString line = quoted ? commandLine.mid(1) : commandLine;
    return line.section(quoted ? quote : QLatin1Char(' '), 0, 0);
}
