#include "command_check.h"

#include "program_search.h"

using namespace Qt::StringLiterals;

QString commandWord(const QString &commandLine)
{
    const bool quoted = commandLine.startsWith(u'"');
    const QString line = quoted ? commandLine.mid(1) : commandLine;
    return line.section(quoted ? u'"' : u' ', 0, 0);
}

CommandState checkCommand(const QString &commandLine)
{
    const QString word = commandWord(commandLine);
    if (platform::findCommand(word, platform::searchPathVariable()).isEmpty())
        return CommandState::NotOnPath;
    return commandLine.contains("<specify"_L1) ? CommandState::Incomplete : CommandState::Valid;
}
