#pragma once

#include <QString>

/// Where integration packages are downloaded from.
inline const QLatin1String downloadBaseAddress("https://www.vantor.example/downloads/Windows/");

/// Whether a record's Template stands for an integration package that must be downloaded.
bool isDownload(const QString &templateValue);

/// The name of that package.
QString packageName(const QString &templateValue);

/// The address of the package \a name, with everything that does not belong in an address
/// percent-encoded, so that no command interpreter finds anything in it.
QString downloadAddress(const QString &name);
