#include "process_tree.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace platform {

ProgramGuard::ProgramGuard()
{
    begin(QString());
}

ProgramGuard::ProgramGuard(const QString &folder)
{
    begin(folder); // before anything is in it that would be left by a program killed here
    const QString temporary = folder + "/temporary"_L1;
    QDir().mkdir(temporary);
    // One system or the other, or a compiler from elsewhere, looks at each of these.
    for (const char *variable : {"TMPDIR", "TMP", "TEMP"})
        setVariable(variable, temporary);
}

} // namespace platform
