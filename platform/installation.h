#pragma once

#include <QString>
#include <QStringList>
#include <optional>

/// How the wizard is installed for its users.
namespace platform {

struct Installation
{
    QString wizard;  ///< its program file
    QString shipped; ///< the folder of what comes with it, which nobody may be able to write
    QString folder;  ///< the user's own program folder; the wizard works in "bin" there
};

/// Where everything is, seen from the running program, which starts the wizard. Debian has the
/// programs in lib/calyx and the rest in share/calyx, and keeps the user's data where the XDG base
/// directories are. On Windows all is one folder, in which the user may write.
Installation installation();

/// Tells the user of a program that no console may belong to what has gone wrong.
void complain(const QString &text);

/// Goes on as \a program, whose exit status is returned unless it takes this process's place.
/// Nothing when it cannot be started in \a workingDirectory.
std::optional<int> continueAs(const QString &program, const QStringList &arguments,
                              const QString &workingDirectory);

} // namespace platform
