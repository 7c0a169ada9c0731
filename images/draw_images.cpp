// Draws every picture of the wizard and writes it where the program expects it:
// forms/images (compiled into the program), images (loaded from the program folder), and
// packaging (the icons of the installed program).
//
// Usage: draw_images SOURCE_ROOT
//
// The one idea behind all of them: five sepals that open from one stem, one for each of the five
// steps, in ink and greys with a single green. A side-bar picture is drawn once and written both
// as XPM and as bitmap, so that a button looks the same whichever of the two it shows.
//
// Every picture is drawn a second time, twice as large, for screens with more pixels. That one lies
// beside the first as NAME@2x.png, in all its colours.
//
// The captions are set in Liberation Sans; the pictures are committed, so that a build needs
// neither that face nor this program.

#include <QBuffer>
#include <QDataStream>
#include <QFile>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QHashSeed>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QTextStream>
#include <algorithm>
#include <array>
#include <map>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

const QColor ink(0x22, 0x27, 0x2b);
const QColor slate(0x4a, 0x53, 0x5b);
const QColor grey(0x9a, 0xa1, 0xa6);
const QColor mist(0xd3, 0xd7, 0xda);
const QColor ground(0xf5, 0xf6, 0xf6);
const QColor green(0x3f, 0x8f, 0x6b);

const int steps = 5;

/// An empty picture, \a width and \a height in pixels of the forms, with \a scale pixels of its own
/// for each of them in both directions. What is painted on it counts as the forms do.
QImage blank(int scale, int width, int height, const QColor &background = Qt::white)
{
    QImage image(width * scale, height * scale, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(background);
    return image;
}

QFont capitals(int pixelSize, qreal spacing)
{
    QFont font(u"Liberation Sans"_s);
    font.setPixelSize(pixelSize);
    font.setBold(true);
    font.setLetterSpacing(QFont::AbsoluteSpacing, spacing);
    font.setHintingPreference(QFont::PreferFullHinting);
    return font;
}

/// One sepal: a leaf that starts at \a foot, \a length pixels long and leaning by \a degrees from
/// the vertical.
QPainterPath sepal(const QPointF &foot, qreal length, qreal degrees)
{
    QPainterPath leaf;
    const qreal width = length * 0.27;
    leaf.cubicTo(-width, -length * 0.30, -width * 0.9, -length * 0.68, 0, -length);
    leaf.cubicTo(width * 0.9, -length * 0.68, width, -length * 0.30, 0, 0);
    return QTransform().translate(foot.x(), foot.y()).rotate(degrees).map(leaf);
}

struct Sepal
{
    QPainterPath path;
    QColor colour;
};

/// The five sepals on their foot; the outermost come first, so that the middle one lies on top.
/// \a outerToMiddle are the colours from the outside in.
std::vector<Sepal> sepals(const QPointF &foot, qreal length,
                          const std::array<QColor, 3> &outerToMiddle)
{
    const qreal spread[] = {68, 34, 0};
    const qreal share[] = {0.80, 0.92, 1.0};
    std::vector<Sepal> list;
    for (std::size_t ring = 0; ring < 3; ++ring) {
        for (const qreal side : {-1.0, 1.0})
            list.push_back(
                {sepal(foot, length * share[ring], side * spread[ring]), outerToMiddle[ring]});
    }
    return list;
}

void drawSepals(QPainter &painter, const QPointF &foot, qreal length,
                const std::array<QColor, 3> &outerToMiddle)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    for (const Sepal &leaf : sepals(foot, length, outerToMiddle)) {
        painter.setBrush(leaf.colour);
        painter.drawPath(leaf.path);
    }
}

/// A horizontal bar with a colour that runs from \a left to \a right.
void drawBar(QPainter &painter, const QRectF &bar, const QColor &left, const QColor &right)
{
    // Column by column, since the toolkit's gradient goes back by a step now and then.
    const qreal column = 1 / painter.device()->devicePixelRatioF();
    for (qreal x = 0; x < bar.width(); x += column) {
        const qreal share = x / (bar.width() - column);
        const auto between = [share](int from, int to) {
            return qRound(from + share * (to - from));
        };
        painter.fillRect(QRectF(bar.x() + x, bar.y(), column, bar.height()),
                         QColor(between(left.red(), right.red()),
                                between(left.green(), right.green()),
                                between(left.blue(), right.blue())));
    }
}

// The icon, which is drawn on a square of 32 by 32.
const qreal iconSide = 32;
const qreal iconCorner = 6;
const QPointF iconFoot(16, 26);
const qreal iconSepal = 21;
const std::array<QColor, 3> iconColours {slate, mist, green};

QImage icon(int size)
{
    QImage image = blank(1, size, size, Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size / iconSide, size / iconSide);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ink);
    painter.drawRoundedRect(QRectF(0, 0, iconSide, iconSide), iconCorner, iconCorner);
    drawSepals(painter, iconFoot, iconSepal, iconColours);
    return image.convertToFormat(QImage::Format_RGBA8888);
}

/// The icon as a scalable picture. The curves of a path come as a control point each, and two more
/// points.
QByteArray scalableIcon()
{
    QString text;
    QTextStream stream(&text);
    stream << "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 " << iconSide << ' '
           << iconSide << "\">\n<rect width=\"" << iconSide << "\" height=\"" << iconSide
           << "\" rx=\"" << iconCorner << "\" fill=\"" << ink.name() << "\"/>\n";
    stream << Qt::fixed << qSetRealNumberPrecision(3);
    for (const Sepal &leaf : sepals(iconFoot, iconSepal, iconColours)) {
        stream << "<path fill=\"" << leaf.colour.name() << "\" d=\"";
        for (int i = 0; i < leaf.path.elementCount(); ++i) {
            const QPainterPath::Element point = leaf.path.elementAt(i);
            const bool isCurve = point.type == QPainterPath::CurveToElement;
            stream << (i == 0 ? "M" : isCurve ? " C" : " ") << point.x << ',' << point.y;
        }
        stream << "Z\"/>\n";
    }
    stream << "</svg>\n";
    return text.toLatin1();
}

/// The icon in several sizes as one file in Windows' format: a header of 6 bytes, 16 bytes for each
/// picture, and the pictures as PNG files, which that format may hold since Windows Vista.
QByteArray windowsIcon()
{
    const quint8 sizes[] = {16, 32, 48, 0}; // 0 stands for 256
    QByteArray file, pictures;
    QDataStream stream(&file, QIODevice::WriteOnly);
    stream.setByteOrder(QDataStream::LittleEndian);
    stream << quint16(0) << quint16(1) << quint16(std::size(sizes));
    for (const quint8 size : sizes) {
        QByteArray picture;
        QBuffer buffer(&picture);
        icon(size == 0 ? 256 : size).save(&buffer, "PNG");
        const qsizetype start = 6 + 16 * qsizetype(std::size(sizes)) + pictures.size();
        stream << size << size << quint8(0) << quint8(0) << quint16(1) << quint16(32)
               << quint32(picture.size()) << quint32(start);
        pictures += picture;
    }
    return file + pictures;
}

/// The banner: an ink bar with a thin grey one under it. \a height is that of the whole picture.
QImage bannerLeft(int scale, int width, int height)
{
    QImage image = blank(scale, width, height);
    QPainter painter(&image);
    drawBar(painter, QRectF(0, 0, width, 25), ink, slate);
    drawBar(painter, QRectF(0, 28, width, height - 28), grey, mist);
    drawSepals(painter, QPointF(20, 20), 14, {slate, mist, green});
    painter.setPen(Qt::white);
    painter.setFont(capitals(13, 4));
    painter.drawText(QRect(38, 0, 200, 25), Qt::AlignVCenter | Qt::AlignLeft, "CALYX");
    return image;
}

QImage bannerRight(int scale, int width, int height)
{
    QImage image = blank(scale, width, height);
    QPainter painter(&image);
    drawBar(painter, QRectF(0, 0, width, 25), slate, ink);
    drawBar(painter, QRectF(0, 28, width, height - 28), mist, grey);
    painter.setClipRect(0, 0, width, 25);
    const std::array<QColor, 3> faint {QColor(255, 255, 255, 22), QColor(255, 255, 255, 40),
                                       QColor(63, 143, 107, 190)};
    for (int step = 0; step < steps; ++step)
        drawSepals(painter, QPointF(28 + step * 40, 27), 22, faint);
    return image;
}

/// The band along the bottom mirrors the banner: grey above, ink below.
QImage band(int scale, int width, int height, const QColor &left, const QColor &right,
            const QColor &greyLeft, const QColor &greyRight)
{
    QImage image = blank(scale, width, height);
    QPainter painter(&image);
    drawBar(painter, QRectF(0, 0, width, 5), greyLeft, greyRight);
    drawBar(painter, QRectF(0, 8, width, height - 8), left, right);
    return image;
}

QImage makersLogo(int scale)
{
    QImage image = blank(scale, 169, 54);
    QPainter painter(&image);
    drawSepals(painter, QPointF(28, 44), 33, {mist, grey, green});
    painter.setFont(capitals(19, 4));
    QLinearGradient text(60, 0, 165, 0);
    text.setColorAt(0, ink);
    text.setColorAt(1, slate);
    painter.setPen(QPen(QBrush(text), 1));
    painter.drawText(QRect(58, 8, 111, 24), Qt::AlignVCenter | Qt::AlignLeft, "VANTOR");
    drawBar(painter, QRectF(59, 34, 100, 2), green, mist);
    painter.setFont(capitals(8, 2.2));
    painter.setPen(slate);
    painter.drawText(QRect(59, 38, 110, 11), Qt::AlignVCenter | Qt::AlignLeft, "CODE ANALYSIS");
    return image;
}

QImage productLogo(int scale, int width, int height, const QString &name, const QString &language)
{
    QImage image = blank(scale, width, height);
    QPainter painter(&image);
    painter.setFont(capitals(29, 2));
    QLinearGradient text(0, 10, 0, 42);
    text.setColorAt(0, slate);
    text.setColorAt(1, ink);
    painter.setPen(QPen(QBrush(text), 1));
    painter.drawText(QRect(46, 8, width - 46, 34), Qt::AlignVCenter | Qt::AlignLeft, name);
    drawSepals(painter, QPointF(22, 52), 27, {mist, grey, green});
    drawBar(painter, QRectF(48, 43, width - 56, 2), green, mist);
    painter.setFont(capitals(8, 2));
    painter.setPen(slate);
    painter.drawText(QRect(48, 47, width - 48, 12), Qt::AlignVCenter | Qt::AlignLeft, language);
    return image;
}

QImage arrow(int scale, bool up)
{
    QImage image = blank(scale, 18, 18);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(slate);
    painter.drawPolygon(QPolygonF({QPointF(9, 4), QPointF(15, 13), QPointF(3, 13)}));
    return up ? image : image.mirrored(false, true);
}

QImage sideBarButton(int scale, const QString &caption, bool highlighted)
{
    QImage image = blank(scale, 175, 23, ground);
    QPainter painter(&image);
    if (highlighted) {
        drawBar(painter, QRectF(0, 0, 175, 23), ink, slate);
        painter.fillRect(0, 0, 5, 23, green);
    } else {
        painter.setPen(grey);
        painter.drawRect(QRectF(0.5, 0.5, 174, 22));
        painter.fillRect(0, 0, 5, 23, grey);
    }
    painter.setPen(highlighted ? QColor(Qt::white) : ink);
    painter.setFont(capitals(10, 1.4));
    painter.drawText(QRect(14, 0, 161, 23), Qt::AlignVCenter | Qt::AlignLeft, caption);
    return image;
}

using Histogram = std::vector<std::pair<QRgb, int>>;

Histogram histogram(const QImage &image)
{
    std::map<QRgb, int> counts;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            ++counts[image.pixel(x, y) | 0xff000000];
    return {counts.begin(), counts.end()};
}

int channel(QRgb colour, int index)
{
    return int((colour >> (8 * index)) & 0xff);
}

int brightness(QRgb colour)
{
    return channel(colour, 0) + channel(colour, 1) + channel(colour, 2);
}

/// The colour that stands for all of \a box: the one that most of its pixels have, so that a ground
/// stays what it is, or else their mean.
QRgb representative(const Histogram &box)
{
    qint64 pixels = 0;
    std::array<qint64, 3> sums {};
    for (const auto &[colour, count] : box) {
        pixels += count;
        for (int c = 0; c < 3; ++c)
            sums[c] += qint64(count) * channel(colour, c);
    }
    const auto byCount = [](const auto &a, const auto &b) { return a.second < b.second; };
    const auto &[commonest, count] = *std::max_element(box.begin(), box.end(), byCount);
    if (count > pixels / 2)
        return commonest;
    return qRgb(int(sums[2] / pixels), int(sums[1] / pixels), int(sums[0] / pixels));
}

/// The colours of an image in boxes that are cut until there are enough of them.
using Boxes = std::vector<Histogram>;

/// How far the colours of \a box lie apart in the channel \a index.
int range(const Histogram &box, int index)
{
    const auto byChannel = [index](const auto &a, const auto &b) {
        return channel(a.first, index) < channel(b.first, index);
    };
    const auto [low, high] = std::minmax_element(box.begin(), box.end(), byChannel);
    return channel(high->first, index) - channel(low->first, index);
}

/// Cuts the box whose colours lie farthest apart in one channel, in its middle. False when every
/// box has a single colour.
bool cutWidest(Boxes &boxes)
{
    int widest = 0, axis = 0;
    std::size_t chosen = 0;
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        for (int c = 0; c < 3; ++c) {
            if (range(boxes[i], c) > widest) {
                widest = range(boxes[i], c);
                axis = c;
                chosen = i;
            }
        }
    }
    if (widest == 0)
        return false;
    Histogram &box = boxes[chosen];
    // Those alike in this channel are cut by their brightness, so that the steps of a gradient stay
    // in their order.
    std::sort(box.begin(), box.end(), [axis](const auto &a, const auto &b) {
        const int difference = channel(a.first, axis) - channel(b.first, axis);
        return difference ? difference < 0 : brightness(a.first) < brightness(b.first);
    });
    const auto middle = box.begin() + std::ptrdiff_t(box.size() / 2);
    Histogram upper(middle, box.end());
    box.erase(middle, box.end());
    boxes.push_back(std::move(upper));
    return true;
}

/// The median cut: splits the colours of \a image until there are \a limit boxes, and returns the
/// image with every colour replaced by the one that stands for its box. An image with no more than
/// \a limit colours comes back as it is.
QImage withColours(QImage image, std::size_t limit)
{
    image = image.convertToFormat(QImage::Format_RGB32);
    Boxes boxes {histogram(image)};
    while (boxes.size() < limit && cutWidest(boxes)) { }
    std::map<QRgb, QRgb> replacement;
    for (const Histogram &box : boxes) {
        const QRgb colour = representative(box);
        for (const auto &entry : box)
            replacement[entry.first] = colour;
    }
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, replacement.at(image.pixel(x, y)));
    return image;
}

struct SideBarStep
{
    const char *builtIn; ///< first word of the built-in images' names
    const char *bitmap;  ///< file name of the plain bitmap without its extension
    const char *caption;
};

const SideBarStep sideBar[steps] = {
    {"product", "product_output", "PRODUCT & OUTPUT"},
    {"compiler", "compiler_command", "COMPILER COMMAND"},
    {"search", "search_directories", "SEARCH DIRECTORIES"},
    {"defines", "defines_switches", "DEFINES & SWITCHES"},
    {"review", "review", "REVIEW"},
};

struct Picture
{
    QString path;        ///< in the source tree; its extension tells the format
    std::size_t colours; ///< at most, where it is not enlarged
    QImage image;
};

std::vector<Picture> pictures(int scale)
{
    const QString compiledIn = "forms/images/", loaded = "images/";
    std::vector<Picture> list {
        {compiledIn + "logo.xpm", 893, makersLogo(scale)},
        {compiledIn + "bannerLeft.xpm", 80, bannerLeft(scale, 532, 36)},
        {compiledIn + "bannerRight.xpm", 301, bannerRight(scale, 217, 32)},
        {compiledIn + "bandLeft.xpm", 77, band(scale, 532, 19, ink, slate, grey, mist)},
        {compiledIn + "bandRight.xpm", 126, band(scale, 220, 19, slate, ink, mist, grey)},
        {compiledIn + "kovLogo.xpm", 517, productLogo(scale, 134, 66, "KOV", "FOR C")},
        {compiledIn + "kovppLogo.xpm", 511, productLogo(scale, 165, 65, "KOV++", "FOR C++")},
        {compiledIn + "upArrow.xpm", 11, arrow(scale, true)},
        {compiledIn + "downArrow.xpm", 11, arrow(scale, false)},
    };
    for (const SideBarStep &step : sideBar) {
        for (const bool highlighted : {false, true}) {
            const std::size_t colours = highlighted ? 89 : 4;
            const QImage image = sideBarButton(scale, step.caption, highlighted);
            list.push_back(
                {compiledIn + step.builtIn + (highlighted ? "On.xpm" : "Off.xpm"), colours, image});
            list.push_back(
                {loaded + step.bitmap + (highlighted ? "_shd.bmp" : ".bmp"), colours, image});
        }
    }
    return list;
}

bool write(const QImage &image, const QString &path)
{
    if (image.save(path))
        return true;
    QTextStream(stderr) << "draw_images: cannot write " << path << '\n';
    return false;
}

bool write(const QByteArray &content, const QString &path)
{
    QFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(content) == content.size())
        return true;
    QTextStream(stderr) << "draw_images: cannot write " << path << '\n';
    return false;
}

bool drawAll(const QString &root)
{
    bool written = true;
    for (const Picture &picture : pictures(1))
        written &= write(withColours(picture.image, picture.colours), root + picture.path);
    for (const Picture &picture : pictures(2))
        written &= write(picture.image, root + picture.path.chopped(4) + "@2x.png");
    written &= write(icon(32), root + "forms/images/icon.png");
    written &= write(icon(64), root + "forms/images/icon@2x.png");
    for (const int size : {16, 22, 24, 32, 48, 64, 128, 256, 512})
        written &= write(icon(size), u"%1packaging/debian/icons/%2.png"_s.arg(root).arg(size));
    written &= write(scalableIcon(), root + "packaging/debian/icons/scalable.svg");
    written &= write(windowsIcon(), root + "packaging/windows/calyx.ico");
    return written;
}

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // The XPM writer lists the colours in the order of a hash table.
    QHashSeed::setDeterministicGlobalSeed();
    QGuiApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.size() != 2) {
        QTextStream(stderr) << "usage: draw_images SOURCE_ROOT\n";
        return 2;
    }
    if (!QFontDatabase::families().contains("Liberation Sans")) {
        QTextStream(stderr) << "draw_images: the face Liberation Sans is not installed\n";
        return 1;
    }
    return drawAll(arguments[1] + '/') ? 0 : 1;
}
