#include "catalogue/compiler_catalogue.h"

#include <algorithm>

namespace {

struct Tag
{
    QString opens;
    QString closes;

    explicit Tag(const char *name)
        : opens(QLatin1Char('<') + QLatin1String(name) + QLatin1Char('>')),
          closes(QLatin1String("</") + QLatin1String(name) + QLatin1Char('>'))
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
    for (const QStringView &rawLine : QStringView(text).split(QLatin1Char('\n'))) {
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

QString catalogueText(const CompilerCatalogue &catalogue)
{
    QString text;
    for (const QString &family : catalogue.families)
        text += familyTag.opens + family + familyTag.closes + QLatin1Char('\n');
    text += QLatin1Char('\n');
    for (const CompilerRecord &record : catalogue.compilers) {
        text += QLatin1Char(' ') + recordTag.opens + QLatin1Char('\n');
        for (const Field &field : fields) {
            text += QLatin1String("  ") + field.tag.opens + record.*field.value + field.tag.closes
                  + QLatin1Char('\n');
        }
        text += QLatin1Char(' ') + recordTag.closes + QLatin1String("\n\n");
    }
    return text;
}
