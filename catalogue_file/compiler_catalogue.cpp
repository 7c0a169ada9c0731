#include "compiler_catalogue.h"

#include <QTextStream>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

struct Tag
{
    QString opens;
    QString closes;

    explicit Tag(const char *name)
        : opens(u'<' + QLatin1String(name) + u'>'), closes("</"_L1 + QLatin1String(name) + u'>')
    { }

    /// \a line without any of the tags.
    QString strip(QString line) const { return line.remove(opens).remove(closes); }
};

struct Field
{
    Tag tag;
    QString CompilerRecord::*value;
};

#define FIELD(name)                                                                                \
    Field                                                                                          \
    {                                                                                              \
        Tag(#name), &CompilerRecord::name                                                          \
    }

// In the order in which the file lists them.
const Field fields[] = {
    FIELD(Name),       FIELD(Family),           FIELD(ExeCommand),      FIELD(CrossCompiler),
    FIELD(OutputFlag), FIELD(DefineFlag),       FIELD(ObjectFlag),      FIELD(ObjectFileExtension),
    FIELD(Order),      FIELD(ReduceFileSize),   FIELD(CompilerDefines), FIELD(CompilerSwitches),
    FIELD(Template),   FIELD(ForceIncludeFile), FIELD(SubHeaders),
};

const Tag familyTag("CompilerFamily");
const Tag recordTag("Compiler");

void readField(CompilerRecord &record, const QString &line)
{
    for (const Field &field : fields) {
        if (line.startsWith(field.tag.opens)) {
            record.*field.value = field.tag.strip(line);
            return;
        }
    }
}

} // namespace

QLatin1StringView yesOrNo(bool value)
{
    return value ? "yes"_L1 : "no"_L1;
}

bool isYes(const QString &text)
{
    return text == yesOrNo(true);
}

void CompilerCatalogue::append(const CompilerCatalogue &other)
{
    families << other.families;
    compilers << other.compilers;
}

const CompilerRecord *findRecord(const QList<CompilerRecord> &compilers, const QString &family,
                                 const QString &name)
{
    const auto matches = [&](const CompilerRecord &record) {
        return record.Family == family && record.Name == name;
    };
    const auto found = std::find_if(compilers.begin(), compilers.end(), matches);
    return found == compilers.end() ? nullptr : &*found;
}

CompilerRecord *findRecord(QList<CompilerRecord> &compilers, const QString &family,
                           const QString &name)
{
    const CompilerRecord *found = findRecord(std::as_const(compilers), family, name);
    return found ? &compilers[found - compilers.constData()] : nullptr;
}

QStringList fieldsWith(const CompilerRecord &record, const QString &text)
{
    QStringList lines;
    for (const Field &field : fields) {
        const QString &value = record.*field.value;
        if (value.contains(text))
            lines << field.tag.opens.sliced(1).chopped(1) + ": "_L1 + value;
    }
    return lines;
}

QStringList namesOf(const QList<CompilerRecord> &compilers, const QString &family)
{
    QStringList names;
    for (const CompilerRecord &record : compilers) {
        if (record.Family == family)
            names << record.Name;
    }
    return names;
}

QList<CatalogueEntry> parseEntries(const QByteArray &file)
{
    QList<CatalogueEntry> entries;
    bool insideRecord = false;
    for (qsizetype begin = 0, end; begin < file.size(); begin = end) {
        const qsizetype lineFeed = file.indexOf('\n', begin);
        end = lineFeed < 0 ? file.size() : lineFeed + 1;
        const QString line =
            QString::fromLocal8Bit(QByteArrayView(file).sliced(begin, end - begin)).simplified();
        if (insideRecord) {
            entries.last().end = end;
            insideRecord = line != recordTag.closes;
            entries.last().isCutShort = insideRecord;
            if (insideRecord)
                readField(entries.last().record, line);
        } else if (line.startsWith(familyTag.opens)) {
            entries.append({CatalogueEntry::Family, familyTag.strip(line), {}, begin, end});
        } else if (line.startsWith(recordTag.opens)) {
            entries.append({CatalogueEntry::Record, {}, {}, begin, end, true});
            insideRecord = true;
        }
    }
    return entries;
}

CompilerCatalogue parseCatalogue(const QByteArray &file)
{
    CompilerCatalogue catalogue;
    for (const CatalogueEntry &entry : parseEntries(file)) {
        if (entry.kind == CatalogueEntry::Family)
            catalogue.families << entry.family;
        else
            catalogue.compilers << entry.record;
    }
    return catalogue;
}

void writeFamilyLine(QTextStream &stream, const QString &family)
{
    stream << familyTag.opens << family << familyTag.closes << '\n';
}

void writeCompilerBlock(QTextStream &stream, const CompilerRecord &record)
{
    stream << ' ' << recordTag.opens << '\n';
    for (const Field &field : fields)
        stream << "  " << field.tag.opens << record.*field.value << field.tag.closes << '\n';
    stream << ' ' << recordTag.closes << "\n\n";
}

QByteArray catalogueText(const CompilerCatalogue &catalogue)
{
    QString text;
    QTextStream stream(&text);
    for (const QString &family : catalogue.families)
        writeFamilyLine(stream, family);
    stream << '\n';
    for (const CompilerRecord &record : catalogue.compilers)
        writeCompilerBlock(stream, record);
    return text.toLocal8Bit();
}
