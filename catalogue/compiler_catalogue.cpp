#include "catalogue/compiler_catalogue.h"

#include <algorithm>

namespace {

struct Field
{
    QLatin1String name;
    QString CompilerRecord::*value;

    QString openingTag() const { return QLatin1Char('<') + name + QLatin1Char('>'); }
    QString closingTag() const { return QLatin1String("</") + name + QLatin1Char('>'); }
};

#define FIELD(name)                                                                                \
    Field                                                                                          \
    {                                                                                              \
        QLatin1String(#name), &CompilerRecord::name                                                \
    }

// In the order in which the file lists them.
const Field fields[] = {
    FIELD(Name),       FIELD(Family),           FIELD(ExeCommand),      FIELD(CrossCompiler),
    FIELD(OutputFlag), FIELD(DefineFlag),       FIELD(ObjectFlag),      FIELD(ObjectFileExtension),
    FIELD(Order),      FIELD(ReduceFileSize),   FIELD(CompilerDefines), FIELD(CompilerSwitches),
    FIELD(Template),   FIELD(ForceIncludeFile), FIELD(SubHeaders),
};

const QLatin1String familyOpens("<CompilerFamily>");
const QLatin1String familyCloses("</CompilerFamily>");
const QLatin1String recordOpens("<Compiler>");
const QLatin1String recordCloses("</Compiler>");

QString without(QString line, const QString &openingTag, const QString &closingTag)
{
    return line.remove(openingTag).remove(closingTag);
}

void readField(CompilerRecord &record, const QString &line)
{
    for (const Field &field : fields) {
        const QString openingTag = field.openingTag();
        if (line.startsWith(openingTag)) {
            record.*field.value = without(line, openingTag, field.closingTag());
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
        if (insideRecord && line == recordCloses) {
            catalogue.compilers << record;
            insideRecord = false;
        } else if (insideRecord) {
            readField(record, line);
        } else if (line.startsWith(familyOpens)) {
            catalogue.families << without(line, familyOpens, familyCloses);
        } else if (line.startsWith(recordOpens)) {
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
        text += familyOpens + family + familyCloses + QLatin1Char('\n');
    text += QLatin1Char('\n');
    for (const CompilerRecord &record : catalogue.compilers) {
        text += QLatin1Char(' ') + recordOpens + QLatin1Char('\n');
        for (const Field &field : fields) {
            text += QLatin1String("  ") + field.openingTag() + record.*field.value
                  + field.closingTag() + QLatin1Char('\n');
        }
        text += QLatin1Char(' ') + recordCloses + QLatin1String("\n\n");
    }
    return text;
}
