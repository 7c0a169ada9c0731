#pragma once

#include <QByteArray>
#include <QString>

/// Writes the file \a path, and the folders that it lies in. The test ends when that fails.
void writeTestFile(const QString &path, const QByteArray &content = {});

/// The content of the file \a path; empty when there is none.
QByteArray readTestFile(const QString &path);

/// Whether whoever makes the file \a path grow, the stand-in's "beat", has come to an end.
bool hasStopped(const QString &path);
