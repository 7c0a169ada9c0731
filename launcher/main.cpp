// Starts the wizard in the user's own program folder, which is laid out at the first start and
// gains what a newer version brings. The exit status is the wizard's.

#include "installation.h"
#include "program_folder.h"

#include <QCoreApplication>
#include <QDir>

using namespace Qt::StringLiterals;

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const platform::Installation installation = platform::installation();
    const QStringList left = bringUpToDate(installation.shipped, installation.folder);
    if (!left.isEmpty()) {
        platform::complain(
            u"cannot bring %1 up to date"_s.arg(QDir::toNativeSeparators(left.join(", "_L1))));
    }
    const QString workingDirectory = QDir(installation.folder).filePath(u"bin"_s);
    const std::optional<int> status = platform::continueAs(
        installation.wizard, QCoreApplication::arguments().mid(1), workingDirectory);
    if (!status) {
        platform::complain(u"cannot start %1 in %2"_s.arg(installation.wizard, workingDirectory));
        return 1;
    }
    return *status;
}
