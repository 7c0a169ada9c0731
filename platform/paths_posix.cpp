#include "platform/paths.h"

namespace platform {

QString hostPath(const QString &path)
{
    const qsizetype absolute = path.lastIndexOf(QLatin1String("\\/"));
    return path.mid(absolute + 1).replace(QLatin1Char('\\'), QLatin1Char('/'));
}

} // namespace platform
