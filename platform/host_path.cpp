#include "host_path.h"

using namespace Qt::StringLiterals;

namespace platform {

QString literalPath(const QString &path)
{
    return path.startsWith(u':') ? "./"_L1 + path : path;
}

} // namespace platform
