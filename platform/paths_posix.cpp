#include "platform/paths.h"

namespace platform {

QString hostPath(const QString &path)
{
    return QString(path).replace(QLatin1Char('\\'), QLatin1Char('/'));
}

QString hostPath(const QString &directory, const QString &name)
{
    return hostPath(name.startsWith(QLatin1Char('/')) ? name : directory + QLatin1Char('/') + name);
}

} // namespace platform
