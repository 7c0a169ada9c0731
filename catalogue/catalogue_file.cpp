#include "catalogue_file.h"

#include "text_file.h"

#include <QTextStream>
#include <algorithm>

namespace {

/// Whether \a content is a text in the local encoding from its start to its end: what is in another
/// encoding, or is no text, has zeros in it.
bool isWholeText(const platform::FileContent &content)
{
    return content.state == platform::FileContent::Whole && !content.bytes.contains('\0');
}

template <typename Write, typename Value>
QByteArray written(Write write, const Value &value)
{
    QString text;
    QTextStream stream(&text);
    write(stream, value);
    return text.toLocal8Bit();
}

/// Puts \a record in the place of its entry in \a file, or at the end.
void putRecord(QByteArray &file, const CompilerRecord &record)
{
    const QByteArray block = written(&writeCompilerBlock, record);
    const QList<CatalogueEntry> entries = parseEntries(file);
    const auto same = std::find_if(entries.begin(), entries.end(), [&](const auto &entry) {
        return entry.kind == CatalogueEntry::Record && entry.record.Family == record.Family
            && entry.record.Name == record.Name;
    });
    if (same != entries.end()) {
        file.replace(same->begin, same->end - same->begin,
                     block.chopped(1)); // its empty line stays
        return;
    }
    if (!file.isEmpty() && !file.endsWith('\n'))
        file += '\n';
    if (!entries.isEmpty() && entries.last().isCutShort)
        file += " </Compiler>\n\n";
    file += block;
}

/// Puts \a family behind the families of \a file, if it is not among them.
void putFamily(QByteArray &file, const QString &family)
{
    qsizetype end = 0;
    for (const CatalogueEntry &entry : parseEntries(file)) {
        if (entry.kind != CatalogueEntry::Family)
            continue;
        if (entry.family == family)
            return;
        end = entry.end;
    }
    if (end > 0 && file[end - 1] != '\n')
        file.insert(end++, '\n');
    file.insert(end, written(&writeFamilyLine, family));
}

} // namespace

QByteArray withChanges(QByteArray file, const CompilerCatalogue &before,
                       const CompilerCatalogue &now)
{
    for (const QString &family : now.families) {
        if (!before.families.contains(family))
            putFamily(file, family);
    }
    for (qsizetype i = 0; i < now.compilers.size(); ++i) {
        if (i >= before.compilers.size() || now.compilers[i] != before.compilers[i])
            putRecord(file, now.compilers[i]);
    }
    return file;
}

QByteArray withShipped(QByteArray file, CompilerCatalogue before, const CompilerCatalogue &shipped)
{
    QList<CompilerRecord> own = parseCatalogue(file).compilers;
    for (const CompilerRecord &record : shipped.compilers) {
        const CompilerRecord *const mine = findRecord(own, record.Family, record.Name);
        const CompilerRecord *const old = findRecord(before.compilers, record.Family, record.Name);
        const bool isNew = !mine && !old;
        const bool isUntouched = mine && old && *mine == *old && *mine != record;
        if (!isNew && !isUntouched)
            continue;
        putFamily(file, record.Family);
        putRecord(file, record);
    }
    return file;
}

CatalogueFile::CatalogueFile(const QString &path) : m_path(path) { }

CompilerCatalogue CatalogueFile::load()
{
    m_loaded = parseCatalogue(platform::readFile(m_path).bytes);
    return m_loaded;
}

std::optional<CompilerCatalogue> CatalogueFile::reload()
{
    const platform::FileContent content = platform::readFile(m_path);
    if (content.state != platform::FileContent::Whole)
        return {};
    m_loaded = parseCatalogue(content.bytes);
    return m_loaded;
}

CatalogueFile::Result CatalogueFile::update(const QByteArray &whole,
                                            const std::function<QByteArray(QByteArray)> &change)
{
    platform::FileReplacement replacement(m_path);
    const platform::FileContent content = replacement.read();
    QByteArray file;
    if (content.state == platform::FileContent::Missing)
        file = whole;
    else if (isWholeText(content))
        file = change(content.bytes);
    else
        return Result::NotWhole;
    return replacement.write(file) ? Result::Saved : Result::NotWritten;
}

CatalogueFile::Result CatalogueFile::save(const CompilerCatalogue &catalogue)
{
    return update(catalogueText(catalogue), [this, &catalogue](const QByteArray &file) {
        return withChanges(file, m_loaded, catalogue);
    });
}

CatalogueFile::Result CatalogueFile::bringShipped(const QByteArray &shipped,
                                                  const QByteArray &before)
{
    return update(shipped, [&shipped, &before](const QByteArray &file) {
        return withShipped(file, parseCatalogue(before), parseCatalogue(shipped));
    });
}
