#include "catalogue_answers.h"

#include "compiler_catalogue.h"
#include "download.h"
#include "generator_interface.h"
#include "product_language.h"
#include "record_arguments.h"
#include "text_file.h"

using namespace Qt::StringLiterals;

namespace {

/// \a sentence with \a lines below it, which may be anyone's.
QString withLines(const QString &sentence, const QStringList &lines)
{
    QString text = sentence;
    for (const QString &line : lines)
        text += "\n  "_L1 + line;
    return text;
}

/// Why \a record cannot be used as it stands, or an empty text.
QString problemWith(const CompilerRecord &record)
{
    const QStringList open = fieldsWith(record, placeholder);
    if (!open.isEmpty())
        return withLines(u"Copy the entry in the catalogue and fill in what it asks for:"_s, open);
    if (isDownload(record.Template)) {
        return withLines(u"The entry needs an integration package:"_s,
                         {packageName(record.Template)});
    }
    return QString();
}

QStringList wholeNames(const QList<CompilerRecord> &records)
{
    QStringList names;
    for (const CompilerRecord &record : records)
        names << record.Family + u'/' + record.Name;
    return names;
}

} // namespace

QStringList argumentsFor(const CompilerRecord &record, const QString &personality)
{
    const bool isForC = isOffered(record.Name, generator::productC);
    return recordArguments(tidied(record), isForC ? generator::productC : generator::productCpp, {},
                           personality);
}

std::variant<QString, Arguments> answersOfEntry(const QString &name, const QString &catalogue,
                                                const QString &personality)
{
    const platform::FileContent file = platform::readFile(catalogue);
    if (file.state != platform::FileContent::Whole)
        return u"The catalogue cannot be read: %1"_s.arg(catalogue);
    const QList<CompilerRecord> records = parseCatalogue(file.bytes).compilers;
    QList<CompilerRecord> found;
    for (const CompilerRecord &record : records) {
        if (record.Name == name || record.Family + u'/' + record.Name == name)
            found << record;
    }
    if (found.isEmpty())
        return withLines(u"The catalogue has no entry %1. It has:"_s.arg(name),
                         wholeNames(records));
    if (found.size() > 1) {
        return withLines(
            u"The catalogue has several entries %1. Name one with its family:"_s.arg(name),
            wholeNames(found));
    }
    if (const QString problem = problemWith(found.first()); !problem.isEmpty())
        return problem;
    const auto parsed = parseArguments(argumentsFor(found.first(), personality));
    if (const auto *error = std::get_if<UsageError>(&parsed))
        return error->sentence;
    return std::get<Arguments>(parsed);
}
