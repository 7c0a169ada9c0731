#include "personality.h"

#include "clang.h"
#include "visible_text.h"

#include <QDir>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

Option pathOption(const QByteArray &option, const QString &path)
{
    return {option, QDir::current().absoluteFilePath(path).toUtf8()};
}

bool hasHeaders(const QString &directory)
{
    return !QDir(directory).entryList({u"*.h"_s}, QDir::Files).isEmpty();
}

QList<Option> searchOptions(const Arguments &arguments, const Facts &facts)
{
    QList<Option> options;
    if (!arguments.substituteHeaders.isEmpty())
        options << pathOption("-isystem", arguments.substituteHeaders);
    for (const QString &directory : facts.searchPath.forQuotedNames)
        options << pathOption("-iquote", directory);
    // Where the compiler searches its own headers clang searches those that are made for itself,
    // and what the compiler searches behind them comes behind those, too.
    const QStringList &searched = facts.searchPath.directories;
    const bool isClang = findMacro(facts.macros, "__clang__");
    bool usesClangsOwn = false;
    for (const QString &directory : searched) {
        usesClangsOwn |= !isClang && holdsIntrinsics(directory);
        options << pathOption(usesClangsOwn ? "-idirafter" : "-isystem", directory);
    }
    for (const QString &directory : arguments.headerDirectories) {
        // What the user has given and the compiler does not search must not hide anything.
        if (!searched.contains(QDir(directory).canonicalPath()) && hasHeaders(directory))
            options << pathOption("-idirafter", directory);
    }
    // Clang's <limits.h> marks GCC's as included before it goes on to it, which passes on to the C
    // library's only if this says that there is one.
    if (usesClangsOwn)
        options.prepend({"-D_GCC_NEXT_LIMITS_H="});
    options.prepend({usesClangsOwn ? "-nostdlibinc" : "-nostdinc"});
    return options;
}

/// Whether \a macro can be defined by a line of the file.
bool fitsOnLine(const Macro &macro)
{
    return canBeDefined(macro) && !hasControlCharacter(macro.value);
}

} // namespace

Personality composePersonality(const Arguments &arguments, const Facts &facts,
                               const QStringList &includedByCommand, const QByteArray &templateText)
{
    Personality personality {arguments.command,
                             arguments.switches,
                             arguments.answers,
                             facts,
                             templateText,
                             {},
                             {},
                             {},
                             {}};
    if (!templateText.isEmpty() && !templateText.endsWith('\n'))
        personality.templateText += '\n';
    MacroFacts &macros = personality.facts.macros;
    macros.known.removeIf([](const Macro &macro) { return hasControlCharacter(macro.name); });
    for (const Macro &macro : macros.known) {
        if (!fitsOnLine(macro))
            macros.undetermined << macro.name;
    }
    macros.known.removeIf([](const Macro &macro) { return !fitsOnLine(macro); });
    for (const QByteArray &option : languageOptions(facts, arguments.isCpp))
        personality.language.append({option});
    for (const Macro &macro : keywordDefinitions(facts))
        personality.keywordDefinitions.append({"-D" + macro.name + '=' + macro.value});
    personality.searchPath = searchOptions(arguments, facts);
    if (!arguments.forceIncludeFile.isEmpty())
        personality.includedFirst << pathOption("-include", arguments.forceIncludeFile);
    // A name that is no path is searched for, so these stay as they are.
    for (qsizetype i = 0; i + 1 < includedByCommand.size(); i += 2)
        personality.includedFirst.append(
            {includedByCommand[i].toUtf8(), includedByCommand[i + 1].toUtf8()});
    return personality;
}
