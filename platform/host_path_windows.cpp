#include "host_path.h"

namespace platform {

QString hostPath(const QString &path)
{
    return literalPath(path);
}

QString hostPath(const QString &directory, const QString &name)
{
    return literalPath(directory + u'\\' + name);
}

} // namespace platform
