#include "files.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTest>

void writeTestFile(const QString &path, const QByteArray &content)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s", qPrintable(path));
}

QByteArray readTestFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool hasStopped(const QString &path)
{
    const qint64 size = QFileInfo(path).size();
    QTest::qWait(200);
    return QFileInfo(path).size() == size;
}
