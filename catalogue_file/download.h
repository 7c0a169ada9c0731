#pragma once

#include <QString>

/// Where integration packages are downloaded from, as the build has been told.
extern const QLatin1StringView downloadBaseAddress;

/// Whether a record's Template stands for an integration package that must be downloaded.
bool isDownload(const QString &templateValue);

/// The name of that package.
QString packageName(const QString &templateValue);

/// The address of the package \a name, which may end in a query ("x.exe?version=2"). What does not
/// belong in an address is percent-encoded, so that no command interpreter finds anything in it but
/// the ampersands of a query; what is encoded already ("%20") stays as it is.
QString downloadAddress(const QString &name);
