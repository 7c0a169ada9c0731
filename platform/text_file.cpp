#include "text_file.h"

#include <QFile>
#include <QSaveFile>

namespace platform {

std::optional<QString> readTextFile(const QString &path)
{
    QFile file(path);
    if (path.isEmpty() || !file.open(QIODevice::ReadOnly))
        return {};
    return QString::fromLocal8Bit(file.readAll());
}

bool writeTextFile(const QString &path, const QString &text)
{
    return writeFile(path, text.toLocal8Bit());
}

bool writeFile(const QString &path, const QByteArray &content)
{
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size()
        && file.commit();
}

} // namespace platform
