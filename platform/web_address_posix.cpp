#include "web_address.h"

#include <QProcess>

using namespace Qt::StringLiterals;

namespace platform {

void openWebAddress(const QString &address)
{
    QProcess::startDetached(u"xdg-open"_s, {address});
}

} // namespace platform
