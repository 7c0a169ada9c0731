#include "app/calyx.h"
#include "forms/colours.h"
#include "generation/command_check.h"
#include "platform/program_search.h"

#include <QLabel>
#include <QLineEdit>

bool Calyx::checkExeCommand()
{
    const QString commandLine = CmpExeEdit->text();
    if (commandLine.isEmpty())
        return false;
    const bool found =
        !platform::findCommand(commandWord(commandLine), platform::searchPathVariable()).isEmpty();
    const bool valid = found && !commandLine.contains(QLatin1String("<specify"));
    const QString problem = found ? cmdSpecifyText : cmdNotOnPathText;
    setForegroundColour(CmpExeEdit, valid ? Qt::black : Qt::red);
    CmpExeEdit->setToolTip(valid ? cmdToolTip : problem);
    CmpPathErrorLabel->setText(valid ? QString() : problem);
    return valid;
}
