#include "command_check.h"

#include "compiler_catalogue.h"
#include "program_search.h"
#include "quoting.h"

using namespace Qt::StringLiterals;

QString commandWord(const QString &commandLine)
{
    if (!commandLine.startsWith(u'"'))
        return commandLine.section(u' ', 0, 0);
    const qsizetype end = commandLine.indexOf(u'"', 1);
    // What follows the quotes without a space is a part of the program's name.
    if (end >= 0 && end + 1 < commandLine.size() && commandLine[end + 1] != u' ')
        return splitCommand(commandLine).value(0);
    return commandLine.mid(1, end < 0 ? -1 : end - 1);
}

CommandState checkCommand(const QString &commandLine)
{
    const QString word = commandWord(commandLine);
    if (platform::findCommand(word, platform::searchPathVariable()).isEmpty())
        return CommandState::NotOnPath;
    return commandLine.contains(placeholder) ? CommandState::Incomplete : CommandState::Valid;
}
