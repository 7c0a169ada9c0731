#include "picture.h"

#include <QGuiApplication>

using namespace Qt::StringLiterals;

QPixmap picture(const QString &path)
{
    QPixmap image(path);
    if (image.isNull() || qGuiApp->devicePixelRatio() <= 1)
        return image;
    // The toolkit counts the pixels of a file with this name double.
    QPixmap larger(path.chopped(4) + "@2x.png"_L1);
    return larger.isNull() ? image : larger;
}
