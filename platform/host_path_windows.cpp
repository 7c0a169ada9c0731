#include "host_path.h"

namespace platform {

QString hostPath(const QString &path)
{
    return path;
}

QString hostPath(const QString &directory, const QString &name)
{
    return directory + u'\\' + name;
}

} // namespace platform
