#include "catalogue_file.h"

#include "text_file.h"

#include <QTextStream>
#include <algorithm>
#include <map>

namespace {

/// Whether \a content is there to its end and can be changed line by line: a text in UTF-16, and
/// what is no text, has zeros in it.
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

/// Where the last family of \a entries ends; 0 where there is none.
qsizetype endOfFamilies(const QList<CatalogueEntry> &entries)
{
    qsizetype end = 0;
    for (const CatalogueEntry &entry : entries) {
        if (entry.kind == CatalogueEntry::Family)
            end = entry.end;
    }
    return end;
}

/// The lines of those of \a families that are not among \a entries.
QByteArray newFamilies(const QList<CatalogueEntry> &entries, const QStringList &families)
{
    QStringList known;
    for (const CatalogueEntry &entry : entries) {
        if (entry.kind == CatalogueEntry::Family)
            known << entry.family;
    }
    QByteArray lines;
    for (const QString &family : families) {
        if (known.contains(family))
            continue;
        known << family;
        lines += written(&writeFamilyLine, family);
    }
    return lines;
}

/// Bytes that take the place of those of a file from \a begin to \a end.
struct Replacement
{
    qsizetype begin;
    qsizetype end;
    QByteArray bytes;
};

/// \a file with all of \a replacements, which are in its order.
QByteArray spliced(const QByteArray &file, const QList<Replacement> &replacements)
{
    QByteArray made;
    qsizetype taken = 0;
    for (const Replacement &replacement : replacements) {
        made += QByteArrayView(file).sliced(taken, replacement.begin - taken);
        made += replacement.bytes;
        taken = replacement.end;
    }
    return made + file.sliced(taken);
}

/// Blocks of records by the indexes of entries. Those of new records come behind, in their order.
using Blocks = std::map<qsizetype, QByteArray>;

/// The blocks of \a records, each at the first of \a entries with its family and name. Of records
/// that have the same the last counts.
Blocks blocksByEntry(const QList<CatalogueEntry> &entries, const QList<CompilerRecord> &records)
{
    std::map<std::pair<QString, QString>, qsizetype> indexes;
    for (qsizetype i = 0; i < entries.size(); ++i) {
        const CompilerRecord &record = entries[i].record;
        if (entries[i].kind == CatalogueEntry::Record)
            indexes.try_emplace({record.Family, record.Name}, i);
    }
    Blocks blocks;
    for (qsizetype i = 0; i < records.size(); ++i) {
        const auto index =
            indexes.try_emplace({records[i].Family, records[i].Name}, entries.size() + i);
        blocks[index.first->second] = written(&writeCompilerBlock, records[i]);
    }
    return blocks;
}

bool endsWithinLine(QByteArrayView text)
{
    return !text.isEmpty() && !text.endsWith('\n');
}

/// \a file with \a blocks of records behind it, which may end in a record that is cut short.
QByteArray withBlocks(QByteArray file, bool isCutShort, const QByteArray &blocks)
{
    if (endsWithinLine(file))
        file += '\n';
    if (isCutShort)
        file += " </Compiler>\n\n";
    return file + blocks;
}

/// \a file with those of \a families that it lacks behind its own, and with each of \a records in
/// the place of its entry, or at the end.
QByteArray withEntries(const QByteArray &file, const QStringList &families,
                       const QList<CompilerRecord> &records)
{
    // Read once, however many come: a user may have thousands.
    const QList<CatalogueEntry> entries = parseEntries(file);
    QList<Replacement> replacements;
    if (QByteArray lines = newFamilies(entries, families); !lines.isEmpty()) {
        const qsizetype place = endOfFamilies(entries);
        if (endsWithinLine(QByteArrayView(file).first(place)))
            lines.prepend('\n');
        replacements.append({place, place, lines});
    }
    QByteArray newBlocks;
    bool isCutShort = !entries.isEmpty() && entries.last().isCutShort;
    for (const auto &[index, block] : blocksByEntry(entries, records)) {
        if (index >= entries.size()) {
            newBlocks += block;
            continue;
        }
        // Its empty line stays.
        replacements.append({entries[index].begin, entries[index].end, block.chopped(1)});
        isCutShort = isCutShort && index + 1 < entries.size();
    }
    std::stable_sort(replacements.begin(), replacements.end(),
                     [](const Replacement &a, const Replacement &b) { return a.begin < b.begin; });
    const QByteArray made = spliced(file, replacements);
    return newBlocks.isEmpty() ? made : withBlocks(made, isCutShort, newBlocks);
}

} // namespace

QByteArray withChanges(const QByteArray &file, const CompilerCatalogue &before,
                       const CompilerCatalogue &now)
{
    QStringList families;
    for (const QString &family : now.families) {
        if (!before.families.contains(family))
            families << family;
    }
    QList<CompilerRecord> records;
    for (qsizetype i = 0; i < now.compilers.size(); ++i) {
        if (i >= before.compilers.size() || now.compilers[i] != before.compilers[i])
            records << now.compilers[i];
    }
    return withEntries(file, families, records);
}

QByteArray withShipped(const QByteArray &file, const CompilerCatalogue &before,
                       const CompilerCatalogue &shipped)
{
    QStringList families;
    QList<CompilerRecord> records;
    const QList<CompilerRecord> own = parseCatalogue(file).compilers;
    for (const CompilerRecord &record : shipped.compilers) {
        const CompilerRecord *const mine = findRecord(own, record.Family, record.Name);
        const CompilerRecord *const old = findRecord(before.compilers, record.Family, record.Name);
        const bool isNew = !mine && !old;
        const bool isUntouched = mine && old && *mine == *old && *mine != record;
        if (!isNew && !isUntouched)
            continue;
        families << record.Family;
        records << record;
    }
    return withEntries(file, families, records);
}

CatalogueFile::CatalogueFile(const QString &path) : m_path(path) { }

CompilerCatalogue CatalogueFile::load()
{
    if (!reload())
        m_loaded = CompilerCatalogue();
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
