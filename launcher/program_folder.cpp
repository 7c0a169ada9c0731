#include "program_folder.h"

#include "catalogue_file.h"
#include "generator_interface.h"
#include "text_file.h"

#include <QDir>
#include <QDirIterator>

using namespace Qt::StringLiterals;

namespace {

/// A folder that is shipped. Users put files of their own beside the shipped ones.
struct Part
{
    QString name;
    bool isReplaced; ///< by a newer version; otherwise the user may have changed it
};

const Part parts[] = {
    {u"images"_s, true},
    {generator::templateFolder, false},
    {generator::forceIncludeFolder, false},
    {generator::substituteHeadersFolder, false},
};

/// The catalogue that the wizard works with.
QString catalogueOf(const QDir &folder)
{
    return folder.filePath("bin/"_L1 + generator::catalogue);
}

/// Whether \a to holds what is shipped as \a from, or what the user has made of it.
bool bringFile(const QString &from, const QString &to, bool isReplaced)
{
    if (QFileInfo::exists(to) && !isReplaced)
        return true;
    const platform::FileContent content = platform::readFile(from);
    if (content.state != platform::FileContent::Whole)
        return false;
    return platform::readFile(to).bytes == content.bytes
        || (QDir().mkpath(QFileInfo(to).path()) && platform::writeFile(to, content.bytes));
}

/// Brings the files of \a part, those of its folders too. Returns those that failed.
QStringList bringPart(const Part &part, const QDir &shipped, const QDir &folder)
{
    QStringList failed;
    if (!folder.mkpath(part.name))
        failed << folder.filePath(part.name);
    QDirIterator files(shipped.filePath(part.name), QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString from = files.next();
        const QString to = folder.filePath(shipped.relativeFilePath(from));
        if (!bringFile(from, to, part.isReplaced))
            failed << to;
    }
    return failed;
}

/// Brings what is new in the shipped catalogue into that of \a folder.
bool bringCatalogue(const QDir &shipped, const QDir &folder)
{
    const QString known = folder.filePath(u"bin/compilers_shipped.txt"_s); // by the last version
    const platform::FileContent now = platform::readFile(shipped.filePath(generator::catalogue));
    const QByteArray before = platform::readFile(known).bytes;
    if (now.state != platform::FileContent::Whole)
        return false;
    const QString path = catalogueOf(folder);
    if (now.bytes == before && QFileInfo::exists(path))
        return true;
    return CatalogueFile(path).bringShipped(now.bytes, before) == CatalogueFile::Result::Saved
        && platform::writeFile(known, now.bytes);
}

} // namespace

QStringList bringUpToDate(const QString &shipped, const QString &folder)
{
    const QDir from(shipped), to(folder);
    QStringList failed;
    if (!to.mkpath(u"bin"_s))
        failed << to.filePath(u"bin"_s);
    if (from.canonicalPath() != to.canonicalPath()) {
        for (const Part &part : parts)
            failed << bringPart(part, from, to);
    }
    if (!bringCatalogue(from, to))
        failed << catalogueOf(to);
    return failed;
}
