#include "fact_forms.h"

#include "clang.h"
#include "template_options.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QXmlStreamWriter>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// cppcheck's manual, "Platform".
const struct
{
    QLatin1StringView element;
    const char *type;
} cppcheckTypes[] = {
    {"bool"_L1, "_Bool"},
    {"short"_L1, "short"},
    {"int"_L1, "int"},
    {"long"_L1, "long"},
    {"long-long"_L1, "long long"},
    {"float"_L1, "float"},
    {"double"_L1, "double"},
    {"long-double"_L1, "long double"},
    {"pointer"_L1, "void *"},
};

// How a target of clang begins, and what VS Code calls its mode.
const struct
{
    QLatin1StringView target;
    QLatin1StringView mode;
} intelliSenseModes[] = {
    {"x86_64"_L1, "gcc-x64"_L1},
    {"aarch64"_L1, "gcc-arm64"_L1},
    {"arm"_L1, "gcc-arm"_L1},
    {""_L1, "gcc-x86"_L1},
};

/// The macros that the code sees: those of the compiler, and what a template has changed.
QList<Macro> macrosSeen(const Personality &personality)
{
    return changedMacros(personality.facts.macros.known, personality.templateText);
}

/// Adds what those of \a options that have one name behind them, such as "-isystem", name.
void addPaths(const QList<Option> &options, QJsonArray &paths)
{
    for (const Option &option : options) {
        if (option.size() == 2)
            paths << QString::fromUtf8(option.last());
    }
}

} // namespace

QByteArray cppcheckPlatform(const Facts &facts)
{
    const TypeFacts &types = facts.types;
    QList<std::pair<QLatin1StringView, int>> sizes;
    for (const auto &row : cppcheckTypes)
        sizes.append({row.element, sizeOf(types, row.type)});
    sizes.append({"size_t"_L1, sizeOfLike(types, types.sizeType)});
    sizes.append({"wchar_t"_L1, sizeOfLike(types, types.wideCharacterType)});
    sizes.removeIf([](const auto &size) { return size.second == 0; });
    if (sizes.isEmpty())
        return {};
    QByteArray file;
    QXmlStreamWriter xml(&file);
    xml.setAutoFormatting(true);
    xml.writeStartDocument();
    xml.writeStartElement(u"platform"_s);
    xml.writeTextElement(u"char_bit"_s, u"8"_s);
    if (types.charIsUnsigned) {
        xml.writeTextElement(u"default-sign"_s,
                             *types.charIsUnsigned ? u"unsigned"_s : u"signed"_s);
    }
    xml.writeStartElement(u"sizeof"_s);
    for (const auto &[element, size] : sizes)
        xml.writeTextElement(element, QString::number(size));
    xml.writeEndDocument();
    return file;
}

QByteArray macroHeader(const Personality &personality)
{
    const QList<QByteArray> ofLanguage = macrosOfClang();
    QByteArray header;
    for (const Macro &macro : macrosSeen(personality)) {
        // An analyser has those of the language itself by its own choice of the standard.
        if (!ofLanguage.contains(macro.name))
            header += "#define " + macro.name + ' ' + macro.value + '\n';
    }
    return header;
}

QByteArray vscodeProperties(const Personality &personality, bool isCpp, const QString &name)
{
    QJsonArray directories {u"${workspaceFolder}/**"_s};
    addPaths(personality.searchPath, directories);
    QJsonArray includedFirst;
    addPaths(personality.includedFirst, includedFirst);
    QJsonArray defines;
    for (const Macro &macro : macrosSeen(personality))
        defines << QString::fromUtf8(macro.name + '=' + macro.value);
    const QByteArray target = languageOption(personality, "--target=");
    const auto *mode =
        std::find_if(std::begin(intelliSenseModes), std::end(intelliSenseModes),
                     [&target](const auto &row) { return target.startsWith(row.target); });
    // Without a compiler's path, and the empty one is none, it would mix in what it asks of the
    // compiler that it finds.
    QJsonObject configuration {{"name"_L1, name},
                               {"compilerPath"_L1, QString()},
                               {"includePath"_L1, directories},
                               {"forcedInclude"_L1, includedFirst},
                               {"defines"_L1, defines},
                               {"intelliSenseMode"_L1, mode->mode}};
    QString standard = QString::fromUtf8(languageOption(personality, "-std="));
    // The drafts are called otherwise there, and the amendment to C90 is not known.
    standard.replace("2x"_L1, "23"_L1).replace("2b"_L1, "23"_L1);
    if (!standard.isEmpty() && !standard.contains(u':'))
        configuration[isCpp ? "cppStandard"_L1 : "cStandard"_L1] = standard;
    return QJsonDocument(
               QJsonObject {{"version"_L1, 4}, {"configurations"_L1, QJsonArray {configuration}}})
        .toJson();
}
