#include "platform/web_address.h"

#include <QProcess>

namespace platform {

void openWebAddress(const QString &address)
{
    QProcess::startDetached(QStringLiteral("cmd"),
                            {QStringLiteral("/c"), QStringLiteral("start"), address});
}

} // namespace platform
