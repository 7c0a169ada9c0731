#include "web_address.h"

#include <QProcess>

using namespace Qt::StringLiterals;

namespace platform {

void openWebAddress(const QString &address)
{
    // An ampersand would end the command.
    const QString escaped = QString(address).replace(u'&', "^&"_L1);
    QProcess::startDetached(u"cmd"_s, {u"/c"_s, u"start"_s, escaped});
}

} // namespace platform
