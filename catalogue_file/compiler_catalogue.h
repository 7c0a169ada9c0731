#pragma once

#include <QList>
#include <QString>
#include <QStringList>

class QTextStream;

/// A known compiler: what the wizard fills in when it is chosen. No field holds a line break.
struct CompilerRecord
{
    QString Name; ///< by custom ends with " - C" or " - C++", or is "C" or "C++"
    QString Family;
    QString ExeCommand;
    QString CrossCompiler; ///< see isYes(), as in ReduceFileSize
    QString OutputFlag;
    QString DefineFlag;
    QString ObjectFlag;
    QString ObjectFileExtension;
    QString Order; ///< order token string
    QString ReduceFileSize;
    QString CompilerDefines; ///< comma list, like the next
    QString CompilerSwitches;
    QString Template;         ///< file of the generator, or an integration package to download
    QString ForceIncludeFile; ///< files of the generator, like the next
    QString SubHeaders;

    bool operator==(const CompilerRecord &) const = default;
};

/// The words of a field that says yes or no; whatever else stands there is no.
QLatin1StringView yesOrNo(bool value);
bool isYes(const QString &text);

/// How what each user has to fill in begins: "<specify device>".
inline constexpr QLatin1StringView placeholder("<specify");

/// The known compilers and their families, both in the order of the file. Nothing keeps the two
/// lists in step: a record may have a family that is not listed, a family may have no record.
struct CompilerCatalogue
{
    QStringList families;
    QList<CompilerRecord> compilers;

    /// Puts both lists of \a other behind these. What is in both is there twice.
    void append(const CompilerCatalogue &other);

    bool operator==(const CompilerCatalogue &) const = default;
};

/// The first of \a compilers with that family and name, or null.
const CompilerRecord *findRecord(const QList<CompilerRecord> &compilers, const QString &family,
                                 const QString &name);
/// The same, to be changed.
CompilerRecord *findRecord(QList<CompilerRecord> &compilers, const QString &family,
                           const QString &name);

/// The fields of \a record that hold \a text, each as "Field: value".
QStringList fieldsWith(const CompilerRecord &record, const QString &text);

/// The names of those of \a compilers that are of that family, in their order.
QStringList namesOf(const QList<CompilerRecord> &compilers, const QString &family);

/// A family or a record of a catalogue file, and the bytes of its lines, line ends included.
struct CatalogueEntry
{
    enum Kind { Family, Record };
    Kind kind;
    QString family;
    CompilerRecord record;
    qsizetype begin;
    qsizetype end;
    bool isCutShort = false; ///< a record that the end of the file ends
};

/// Reads a catalogue file, which is text in the local encoding: lines with tags, of which only the
/// start counts, each with its white space simplified. What is not understood is passed over; a
/// record that is cut short is kept with what was read of it.
QList<CatalogueEntry> parseEntries(const QByteArray &file);
/// The same as two lists.
CompilerCatalogue parseCatalogue(const QByteArray &file);

/// Writes the line of a family.
void writeFamilyLine(QTextStream &stream, const QString &family);

/// Writes one record as lines of a catalogue file, with the empty line that follows it.
void writeCompilerBlock(QTextStream &stream, const CompilerRecord &record);

/// A whole catalogue file. parseCatalogue() gives the same catalogue back unless a value holds
/// white space other than single spaces, its own tag, or what the local encoding lacks.
QByteArray catalogueText(const CompilerCatalogue &catalogue);
