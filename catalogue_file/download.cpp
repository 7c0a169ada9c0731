#include "download.h"

#include <QRegularExpression>
#include <QUrl>

using namespace Qt::StringLiterals;

const QLatin1StringView downloadBaseAddress(CALYX_DOWNLOAD_ADDRESS);

namespace {

const QLatin1StringView downloadMark("Integration - ");

/// \a text with everything encoded but letters, digits, "-._~", the characters \a kept, and what is
/// encoded already.
QString encoded(const QString &text, const QByteArray &kept)
{
    static const QRegularExpression encodedTwice(u"%25([0-9A-Fa-f]{2})"_s);
    return QString::fromLatin1(QUrl::toPercentEncoding(text, kept))
        .replace(encodedTwice, u"%\\1"_s);
}

} // namespace

bool isDownload(const QString &templateValue)
{
    return templateValue.contains(downloadMark);
}

QString packageName(const QString &templateValue)
{
    return templateValue.mid(downloadMark.size());
}

QString downloadAddress(const QString &name)
{
    const qsizetype query = name.indexOf(u'?');
    const QString path = encoded(query < 0 ? name : name.left(query), "/");
    return downloadBaseAddress + path
         + (query < 0 ? QString() : encoded(name.mid(query), "/?&=+:@"));
}
