#include "personality.h"

#include "clang.h"

#include <algorithm>

namespace {

using Lines = QList<QByteArray>;
using P = Personality;

/// \a text as one word of an option file: in double quotes, in which a backslash makes the
/// character after it literal.
QByteArray quoted(QByteArray text)
{
    text.replace('\\', "\\\\").replace('"', "\\\"");
    return '"' + text + '"';
}

/// A line for \a option. Definitions and paths may hold any character, the rest never needs quotes.
QByteArray optionLine(const Option &option)
{
    QByteArray line = option.first().startsWith("-D") ? quoted(option.first()) : option.first();
    for (const QByteArray &path : option.sliced(1))
        line += ' ' + quoted(path);
    return line;
}

Option parseOption(const QByteArray &line)
{
    Option words {QByteArray()};
    bool isQuoted = false;
    for (qsizetype i = 0; i < line.size(); ++i) {
        if (line[i] == '"')
            isQuoted = !isQuoted;
        else if (line[i] == ' ' && !isQuoted)
            words << QByteArray();
        else if (line[i] == '\\' && isQuoted && i + 1 < line.size())
            words.last() += line[++i];
        else
            words.last() += line[i];
    }
    return words;
}

/// A kind of fact that no option carries: its word, what stands behind it in each of its lines, and
/// how that is read.
struct FactKind
{
    QByteArray word;
    Lines (*write)(const P &personality);
    void (*read)(const QByteArray &rest, P &personality);
};

Lines unlessEmpty(const QByteArray &text)
{
    return text.isEmpty() ? Lines() : Lines {text};
}

Lines utf8(const QStringList &texts)
{
    Lines lines;
    for (const QString &text : texts)
        lines << text.toUtf8();
    return lines;
}

/// A standard name for a basic type.
template <QByteArray TypeFacts::*Type>
FactKind typeName(const char *word)
{
    return {word, [](const P &p) { return unlessEmpty(p.facts.types.*Type); },
            [](const QByteArray &rest, P &p) { p.facts.types.*Type = rest; }};
}

template <QStringList SearchPath::*Directories>
FactKind directories(const char *word)
{
    return {word, [](const P &p) { return utf8(p.facts.searchPath.*Directories); },
            [](const QByteArray &rest, P &p) {
                (p.facts.searchPath.*Directories) << QString::fromUtf8(rest);
            }};
}

Lines writeTypes(const P &personality)
{
    Lines lines;
    for (const Type &type : personality.facts.types.basic) {
        lines << type.name + ", size " + QByteArray::number(type.size) + ", alignment "
                     + QByteArray::number(type.alignment);
    }
    return lines;
}

void readType(const QByteArray &rest, P &personality)
{
    const QList<QByteArray> parts = rest.split(',');
    const auto number = [&parts](qsizetype part) {
        return parts.value(part).split(' ').last().toInt();
    };
    personality.facts.types.basic.append({parts.first(), number(1), number(2)});
}

const char *const keywordForms[] = {"undetermined", "qualifier", "qualifier-with-argument", "type"};
const QByteArray noStandIn = "unknown";

Lines writeKeywords(const P &personality)
{
    Lines lines;
    for (const Keyword &keyword : personality.facts.keywords) {
        QByteArray line = keyword.name + ' ' + keywordForms[keyword.form];
        if (keyword.form == Keyword::TypeName)
            line += ' ' + (keyword.standIn.isEmpty() ? noStandIn : keyword.standIn);
        lines << line;
    }
    return lines;
}

/// Reads for example "__sfr type unsigned char".
void readKeyword(const QByteArray &rest, P &personality)
{
    const QList<QByteArray> words = rest.split(' ');
    const auto form = std::find(std::begin(keywordForms), std::end(keywordForms), words.value(1));
    const QByteArray standIn = words.mid(2).join(' ');
    if (form != std::end(keywordForms)) {
        personality.facts.keywords.append({words.first(), Keyword::Form(form - keywordForms),
                                           standIn == noStandIn ? QByteArray() : standIn});
    }
}

Lines writeByteOrder(const P &personality)
{
    if (personality.facts.types.byteOrder == ByteOrder::Unknown)
        return {};
    const bool isLittle = personality.facts.types.byteOrder == ByteOrder::LittleEndian;
    return {isLittle ? "little" : "big"};
}

void readByteOrder(const QByteArray &rest, P &personality)
{
    personality.facts.types.byteOrder =
        rest == "little" ? ByteOrder::LittleEndian : ByteOrder::BigEndian;
}

Lines writeUndetermined(const P &personality)
{
    Lines lines;
    for (const QByteArray &name : personality.facts.macros.undetermined)
        lines << name + " undetermined";
    return lines;
}

const FactKind factKinds[] = {
    {"command", [](const P &p) { return Lines {p.command.toUtf8()}; },
     [](const QByteArray &rest, P &p) { p.command = QString::fromUtf8(rest); }},
    {"switch", [](const P &p) { return utf8(p.switches); },
     [](const QByteArray &rest, P &p) { p.switches << QString::fromUtf8(rest); }},
    {"version", [](const P &p) { return unlessEmpty(p.facts.versionLine); },
     [](const QByteArray &rest, P &p) { p.facts.versionLine = rest; }},
    {"type", &writeTypes, &readType},
    {"char",
     [](const P &p) {
         const char *kind = p.facts.types.charIsUnsigned ? "unsigned" : "signed";
         return p.facts.types.basic.isEmpty() ? Lines() : Lines {kind};
     },
     [](const QByteArray &rest, P &p) { p.facts.types.charIsUnsigned = rest == "unsigned"; }},
    {"byte-order", &writeByteOrder, &readByteOrder},
    {"small-enum",
     [](const P &p) {
         const int size = p.facts.types.smallEnumSize;
         return size == 0 ? Lines() : Lines {QByteArray::number(size)};
     },
     [](const QByteArray &rest, P &p) { p.facts.types.smallEnumSize = rest.toInt(); }},
    typeName<&TypeFacts::sizeType>("size_t"),
    typeName<&TypeFacts::pointerDifferenceType>("ptrdiff_t"),
    typeName<&TypeFacts::wideCharacterType>("wchar_t"),
    directories<&SearchPath::forQuotedNames>("quoted-search-path"),
    directories<&SearchPath::directories>("search-path"),
    {"keyword", &writeKeywords, &readKeyword},
    {"macro", &writeUndetermined,
     [](const QByteArray &rest, P &p) { p.facts.macros.undetermined << rest.split(' ').first(); }},
};

const char *const firstLine = "# Compiler personality generated by Bexlor\n";
const QByteArray templateHeading = "\n# Template\n";

/// The parts of the file behind the template, each with the options below its heading; none for the
/// predefined macros, which are facts.
const struct Section
{
    QByteArray heading;
    QList<Option> Personality::*options;
} sections[] = {
    {"# Language", &Personality::language},
    {"# Predefined macros", nullptr},
    {"# Keywords", &Personality::keywordDefinitions},
    {"# Search path", &Personality::searchPath},
    {"# Included first", &Personality::includedFirst},
};

QList<Option> optionsOf(const Section &section, const P &personality)
{
    if (section.options)
        return personality.*section.options;
    QList<Option> options {{"-undef"}};
    for (const QByteArray &name : macrosOfClang())
        options.append({"-U" + name});
    for (const Macro &macro : personality.facts.macros.known)
        options.append({"-D" + macro.name + '=' + macro.value});
    return options;
}

void readOption(const QByteArray &line, const Section &section, P &personality)
{
    const Option option = parseOption(line);
    const qsizetype equals = option.first().indexOf('=');
    if (section.options)
        (personality.*section.options) << option;
    else if (option.first().startsWith("-D") && equals > 0)
        personality.facts.macros.known.append(
            {option.first().sliced(2, equals - 2), option.first().sliced(equals + 1)});
}

void readFacts(const QByteArray &text, P &personality)
{
    for (const QByteArray &line : text.split('\n')) {
        for (const FactKind &kind : factKinds) {
            const QByteArray start = "#: " + kind.word + ' ';
            if (line.startsWith(start))
                kind.read(line.sliced(start.size()), personality);
        }
    }
}

void readSections(const QByteArray &text, P &personality)
{
    const Section *current = nullptr;
    for (const QByteArray &line : text.split('\n')) {
        const auto *heading =
            std::find_if(std::begin(sections), std::end(sections),
                         [&line](const Section &section) { return section.heading == line; });
        if (heading != std::end(sections))
            current = heading;
        else if (current && !line.isEmpty())
            readOption(line, *current, personality);
    }
}

} // namespace

QByteArray personalityText(const Personality &personality)
{
    QByteArray text = firstLine;
    for (const FactKind &kind : factKinds) {
        for (const QByteArray &rest : kind.write(personality))
            text += "#: " + kind.word + ' ' + rest + '\n';
    }
    if (!personality.templateText.isEmpty())
        text += templateHeading + personality.templateText;
    for (const Section &section : sections) {
        const QList<Option> options = optionsOf(section, personality);
        // The first one shows where a template ends.
        if (!options.isEmpty() || &section == sections)
            text += '\n' + section.heading + '\n';
        for (const Option &option : options)
            text += optionLine(option) + '\n';
    }
    return text;
}

Personality parsePersonality(const QByteArray &text)
{
    Personality personality;
    // A template that has been a personality itself has headings, too, so the last one counts.
    const QByteArray behindTemplate = '\n' + sections[0].heading + '\n';
    const qsizetype options = std::max<qsizetype>(text.lastIndexOf(behindTemplate), 0);
    QByteArray facts = text.first(options);
    const qsizetype ofTemplate = facts.indexOf(templateHeading);
    if (ofTemplate >= 0) {
        personality.templateText = facts.sliced(ofTemplate + templateHeading.size());
        facts.truncate(ofTemplate);
    }
    readFacts(facts, personality);
    readSections(text.sliced(options), personality);
    return personality;
}
