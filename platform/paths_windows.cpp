#include "platform/paths.h"

namespace platform {

QString hostPath(const QString &path)
{
    return path;
}

} // namespace platform
