#include "download.h"

#include <QUrl>

namespace {

const QLatin1String downloadMark("Integration - ");

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
    return downloadBaseAddress + QString::fromLatin1(QUrl::toPercentEncoding(name, "/"));
}
