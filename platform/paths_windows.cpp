#include "platform/paths.h"

namespace platform {

QString hostPath(const QString &path)
{
    return path;
}

QString hostPath(const QString &directory, const QString &name)
{
    return directory + QLatin1Char('\\') + name;
}

} // namespace platform
