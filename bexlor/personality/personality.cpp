#include "personality.h"

#include "clang.h"
#include "template_options.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>
#include <cstring>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

/// \a text as one word of an option file: in double quotes, in which a backslash makes the
/// character after it literal.
QByteArray quoted(QByteArray text)
{
    text.replace('\\', "\\\\").replace('"', "\\\"");
    return '"' + text + '"';
}

/// A line for \a option. Definitions and paths may hold any character, and the rest does not but in
/// a file that somebody has written.
QByteArray optionLine(const Option &option)
{
    QByteArray line = option.first();
    if (line.startsWith("-D") || line.contains(' ') || line.contains('"') || line.contains('\\'))
        line = quoted(line);
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

// How a fact is written behind its word, and read from there.

QByteArray written(const QString &text)
{
    return text.toUtf8();
}

void read(const QByteArray &text, QString &value)
{
    value = QString::fromUtf8(text);
}

QByteArray written(const QByteArray &text)
{
    return text;
}

void read(const QByteArray &text, QByteArray &value)
{
    value = text;
}

QByteArray written(int number)
{
    return QByteArray::number(number);
}

void read(const QByteArray &text, int &value)
{
    value = text.toInt();
}

QByteArray written(std::optional<bool> isUnsigned)
{
    return *isUnsigned ? "unsigned" : "signed";
}

void read(const QByteArray &text, std::optional<bool> &isUnsigned)
{
    isUnsigned = text == "unsigned";
}

QByteArray written(ByteOrder order)
{
    return order == ByteOrder::LittleEndian ? "little" : "big";
}

void read(const QByteArray &text, ByteOrder &order)
{
    order = text == "little" ? ByteOrder::LittleEndian : ByteOrder::BigEndian;
}

/// For example "void *, size 2, alignment 1".
QByteArray written(const Type &type)
{
    return type.name + ", size " + written(type.size) + ", alignment " + written(type.alignment);
}

void read(const QByteArray &text, Type &type)
{
    const QList<QByteArray> parts = text.split(',');
    type.name = parts.first();
    read(parts.value(1).split(' ').last(), type.size);
    read(parts.value(2).split(' ').last(), type.alignment);
}

const struct KeywordForm
{
    Keyword::Form form;
    const char *word;
} keywordForms[] = {
    {Keyword::Undetermined, "undetermined"},
    {Keyword::Qualifier, "qualifier"},
    {Keyword::QualifierWithArgument, "qualifier-with-argument"},
    {Keyword::TypeName, "type"},
    {Keyword::QualifierWithBareArgument, "qualifier-with-bare-argument"},
    {Keyword::AssemblerBlock, "assembler-until"},
    {Keyword::OrdinaryName, "ordinary-name"},
};

const char *wordOf(Keyword::Form form)
{
    return std::find_if(std::begin(keywordForms), std::end(keywordForms),
                        [form](const KeywordForm &row) { return row.form == form; })
        ->word;
}

const QByteArray noStandIn = "unknown";

/// For example "__sfr type unsigned char".
QByteArray written(const Keyword &keyword)
{
    const QByteArray text = keyword.name + ' ' + wordOf(keyword.form);
    if (keyword.form != Keyword::TypeName && keyword.standIn.isEmpty())
        return text;
    return text + ' ' + (keyword.standIn.isEmpty() ? noStandIn : keyword.standIn);
}

void read(const QByteArray &text, Keyword &keyword)
{
    const QList<QByteArray> words = text.split(' ');
    const auto *form =
        std::find_if(std::begin(keywordForms), std::end(keywordForms),
                     [&words](const KeywordForm &row) { return words.value(1) == row.word; });
    const QByteArray standIn = words.mid(2).join(' ');
    keyword.name = words.first();
    if (form != std::end(keywordForms))
        keyword.form = form->form;
    if (standIn != noStandIn)
        keyword.standIn = standIn;
}

// The keys are those of a compilation database, in which a command line is kept the same way.
const QLatin1StringView directoryKey("directory"), argumentsKey("arguments");

QJsonObject object(const CommandLine &line)
{
    return {{directoryKey, line.directory},
            {argumentsKey, QJsonArray::fromStringList(line.arguments)}};
}

QByteArray written(const CommandLine &line)
{
    return QJsonDocument(object(line)).toJson(QJsonDocument::Compact);
}

void read(const QByteArray &text, CommandLine &line)
{
    const QJsonObject written = QJsonDocument::fromJson(text).object();
    line.directory = written[directoryKey].toString();
    line.arguments = written[argumentsKey].toVariant().toStringList();
}

/// Writes a line for each fact that is known.
struct FactWriter
{
    QByteArray text;

    template <typename Value>
    void one(const QByteArray &word, const Value &value)
    {
        if (value != Value())
            text += "#: " + word + ' ' + written(value) + '\n';
    }

    template <typename Value>
    void each(const QByteArray &word, const QList<Value> &values, const char *end = "")
    {
        for (const Value &value : values)
            text += "#: " + word + ' ' + written(value) + end + '\n';
    }
};

/// Reads the fact that a line tells.
struct FactReader
{
    QByteArray line;

    std::optional<QByteArray> behind(const QByteArray &word, const char *end = "") const
    {
        const QByteArray start = "#: " + word + ' ';
        if (!line.startsWith(start) || !line.endsWith(end))
            return {};
        return line.sliced(start.size()).chopped(qsizetype(std::strlen(end)));
    }

    template <typename Value>
    void one(const QByteArray &word, Value &value) const
    {
        if (const std::optional<QByteArray> text = behind(word))
            read(*text, value);
    }

    template <typename Value>
    void each(const QByteArray &word, QList<Value> &values, const char *end = "") const
    {
        if (const std::optional<QByteArray> text = behind(word, end))
            read(*text, values.emplaceBack());
    }
};

// What is more than a text or a number has keys in JSON.

QJsonValue asJson(int number)
{
    return number;
}

QJsonValue asJson(const Type &type)
{
    return QJsonObject {{"name"_L1, QString::fromUtf8(type.name)},
                        {"size"_L1, type.size},
                        {"alignment"_L1, type.alignment}};
}

QJsonValue asJson(const Keyword &keyword)
{
    const bool isBlock = keyword.form == Keyword::AssemblerBlock;
    return QJsonObject {{"name"_L1, QString::fromUtf8(keyword.name)},
                        {"form"_L1, QLatin1StringView(wordOf(keyword.form))},
                        {isBlock ? "end"_L1 : "type"_L1, QString::fromUtf8(keyword.standIn)}};
}

QJsonValue asJson(const CommandLine &line)
{
    return object(line);
}

template <typename Value>
QJsonValue asJson(const Value &value)
{
    return QString::fromUtf8(written(value));
}

/// Collects the facts that are known.
struct FactCollector
{
    QJsonObject facts;

    template <typename Value>
    void one(const QByteArray &word, const Value &value)
    {
        if (value != Value())
            facts[QLatin1StringView(word)] = asJson(value);
    }

    template <typename Value>
    void each(const QByteArray &word, const QList<Value> &values, const char * = "")
    {
        QJsonArray list;
        for (const Value &value : values)
            list << asJson(value);
        facts[QLatin1StringView(word)] = list;
    }
};

/// Takes \a visitor, see visitFacts(), through facts about types, whose words begin with \a prefix.
template <typename Visitor, typename Types>
void visitTypes(Visitor &visitor, Types &types, const QByteArray &prefix)
{
    visitor.each(prefix + "type", types.basic);
    visitor.one(prefix + "char", types.charIsUnsigned);
    visitor.one(prefix + "byte-order", types.byteOrder);
    visitor.one(prefix + "small-enum", types.smallEnumSize);
    visitor.one(prefix + "bit-field", types.bitFieldSize);
    for (const NamedType &row : namedTypes)
        visitor.one(prefix + row.name, types.*row.type);
}

/// Takes \a visitor, which writes, reads or collects, through the facts that no option carries.
template <typename Visitor, typename Visited>
void visitFacts(Visitor &visitor, Visited &personality)
{
    auto &facts = personality.facts;
    visitor.one("command", personality.command);
    visitor.each("switch", personality.switches);
    visitor.one("answers", personality.answers);
    visitor.each("option", personality.lacking);
    visitor.one("version", facts.versionLine);
    visitTypes(visitor, facts.types, "");
    visitTypes(visitor, personality.typesOfClang, "clang-");
    visitor.each("quoted-search-path", facts.searchPath.forQuotedNames);
    visitor.each("search-path", facts.searchPath.directories);
    visitor.each("keyword", facts.keywords);
    visitor.each("attribute", facts.attributes);
    visitor.each("accepts", facts.leniencies);
    visitor.each("macro", facts.macros.undetermined, " undetermined");
}

const char *const firstLine = "# Compiler personality generated by Bexlor\n";
const QByteArray templateHeading = "\n# Template\n";

/// The parts of the file, each with the options below its heading; none for the predefined macros,
/// which are facts.
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

// The template stands before this one: of definitions and of choices of the language the last one
// counts, and of directories and of files that are included the first.
const Section &behindTemplate = sections[3];

QList<Option> optionsOf(const Section &section, const Personality &personality)
{
    if (section.options)
        return personality.*section.options;
    // From version 19 on, clang warns of every macro of its own that is taken back.
    QList<Option> options {{"-undef"}, {"-Wno-builtin-macro-redefined"}};
    for (const QByteArray &name : macrosOfClang())
        options.append({undefiningOption(name)});
    for (const Macro &macro : personality.facts.macros.known)
        options.append({definingOption(macro)});
    return options;
}

void addWords(const QList<QByteArray> &more, QJsonArray &words)
{
    for (const QByteArray &word : more)
        words << QString::fromUtf8(word);
}

void readOption(const QByteArray &line, const Section &section, Personality &personality)
{
    const Option option = parseOption(line);
    const qsizetype equals = option.first().indexOf('=');
    if (section.options)
        (personality.*section.options) << option;
    else if (option.first().startsWith("-D") && equals > 0)
        personality.facts.macros.known.append(
            {option.first().sliced(2, equals - 2), option.first().sliced(equals + 1)});
}

void readSections(const QByteArray &text, Personality &personality)
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

QByteArray languageOption(const Personality &personality, const QByteArray &start)
{
    for (const Option &option : personality.language) {
        if (option.first().startsWith(start))
            return option.first().sliced(start.size());
    }
    return {};
}

QByteArray personalityText(const Personality &personality)
{
    FactWriter writer {firstLine};
    visitFacts(writer, personality);
    QByteArray text = writer.text;
    for (const Section &section : sections) {
        const QList<Option> options = optionsOf(section, personality);
        const bool isBehindTemplate = &section == &behindTemplate;
        if (isBehindTemplate && !personality.templateText.isEmpty())
            text += templateHeading + personality.templateText;
        // That one shows where a template ends.
        if (!options.isEmpty() || isBehindTemplate)
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
    const qsizetype end =
        std::max<qsizetype>(text.lastIndexOf('\n' + behindTemplate.heading + '\n'), 0);
    QByteArray before = text.first(end);
    const qsizetype start = before.indexOf(templateHeading);
    if (start >= 0) {
        personality.templateText = before.sliced(start + templateHeading.size());
        before.truncate(start);
    }
    for (const QByteArray &line : before.split('\n')) {
        FactReader reader {line};
        visitFacts(reader, personality);
    }
    readSections(before + text.sliced(end), personality);
    return personality;
}

QJsonObject personalityFacts(const Personality &personality)
{
    FactCollector collector;
    visitFacts(collector, personality);
    QJsonObject macros;
    for (const Macro &macro : personality.facts.macros.known)
        macros[QString::fromUtf8(macro.name)] = QString::fromUtf8(macro.value);
    collector.facts["predefined"_L1] = macros;
    QJsonArray options;
    for (const Section &section : sections) {
        if (&section == &behindTemplate)
            addWords(templateWords(personality.templateText), options);
        for (const Option &option : optionsOf(section, personality))
            addWords(option, options);
    }
    collector.facts["options"_L1] = options;
    return collector.facts;
}
