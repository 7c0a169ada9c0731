#include "installation.h"

#include "console.h"

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>
#include <algorithm>
#include <unistd.h>
#include <vector>

using namespace Qt::StringLiterals;

namespace platform {

Installation installation()
{
    const QString prefix = QDir::cleanPath(QCoreApplication::applicationDirPath() + "/.."_L1);
    const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    return {prefix + "/lib/calyx/calyx"_L1, prefix + "/share/calyx"_L1, data + "/calyx"_L1};
}

void complain(const QString &text)
{
    print(stderr, "calyx: "_L1 + text + u'\n');
}

std::optional<int> continueAs(const QString &program, const QStringList &arguments,
                              const QString &workingDirectory)
{
    QList<QByteArray> words {QFile::encodeName(program)};
    for (const QString &argument : arguments)
        words << argument.toLocal8Bit();
    std::vector<char *> pointers(words.size() + 1); // the last one is null
    std::transform(words.begin(), words.end(), pointers.begin(),
                   [](QByteArray &word) { return word.data(); });
    // The same process, so that signals, the session and the exit status are the wizard's.
    if (QDir::setCurrent(workingDirectory))
        execv(pointers.front(), pointers.data());
    return {};
}

} // namespace platform
