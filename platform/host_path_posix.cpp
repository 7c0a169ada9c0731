#include "host_path.h"

namespace platform {

QString hostPath(const QString &path)
{
    return literalPath(QString(path).replace(u'\\', u'/'));
}

QString hostPath(const QString &directory, const QString &name)
{
    return hostPath(name.startsWith(u'/') ? name : directory + u'/' + name);
}

} // namespace platform
