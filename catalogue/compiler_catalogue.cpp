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

void CompilerCatalogue::append(const CompilerCatalogue &other)
{
    families << other.families;
    compilers << other.compilers;
}

CompilerRecord *findRecord(QList<CompilerRecord> &compilers, const QString &family,
                           const QString &name)
{
    const auto matches = [&](const CompilerRecord &record) {
        return record.Family == family && record.Name == name;
    };
    const auto found = std::find_if(compilers.begin(), compilers.end(), matches);
    return found == compilers.end() ? nullptr : &*found;
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

CompilerCatalogue parseCatalogue(const QString &text)
{
    CompilerCatalogue catalogue;
    CompilerRecord record;
    bool insideRecord = false;
    for (const QStringView &rawLine : QStringView(text).split(u'\n')) {
        const QString line = rawLine.toString().simplified();
        if (insideRecord && line == recordTag.closes) {
            catalogue.compilers << record;
            insideRecord = false;
        } else if (insideRecord) {
            readField(record, line);
        } else if (line.startsWith(familyTag.opens)) {
            catalogue.families << familyTag.strip(line);
        } else if (line.startsWith(recordTag.opens)) {
            record = CompilerRecord();
            insideRecord = true;
        }
    }
    if (insideRecord)
        catalogue.compilers << record;
    return catalogue;
}

void writeCompilerBlock(QTextStream &stream, const CompilerRecord &record)
{
    stream << ' ' << recordTag.opens << '\n';
    for (const Field &field : fields)
        stream << "  " << field.tag.opens << record.*field.value << field.tag.closes << '\n';
    stream << ' ' << recordTag.closes << "\n\n";
}

QString catalogueText(const CompilerCatalogue &catalogue)
{
    QString text;
    QTextStream stream(&text);
    for (const QString &family : catalogue.families)
        stream << familyTag.opens << family << familyTag.closes << '\n';
    stream << '\n';
    for (const CompilerRecord &record : catalogue.compilers)
        writeCompilerBlock(stream, record);
    return text;
}
