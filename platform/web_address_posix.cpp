#include "platform/web_address.h"

#include <QProcess>

namespace platform {

void openWebAddress(const QString &address)
{
    QProcess::startDetached(QStringLiteral("xdg-open"), {address});
}

} // namespace platform
