#include "web_address.h"

#include <QProcess>

using namespace Qt::StringLiterals;

namespace platform {

void openWebAddress(const QString &address)
{
    QProcess::startDetached(u"cmd"_s, {u"/c"_s, u"start"_s, address});
}

} // namespace platform
