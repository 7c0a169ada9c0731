#include "personality.h"

#include "clang.h"
#include "file_names.h"
#include "template_options.h"
#include "typed_command.h"
#include "visible_text.h"

#include <QDir>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

Option pathOption(const QByteArray &option, const QString &path)
{
    return {option, QDir::current().absoluteFilePath(path).toUtf8()};
}

bool hasHeaders(const QString &directory, bool isCpp)
{
    const QStringList files = QDir(directory).entryList(QDir::Files);
    return std::any_of(files.begin(), files.end(),
                       [isCpp](const QString &file) { return isHeader(file, isCpp); });
}

/// How many of the directories that are searched come first and are named by -I. One that stands
/// behind others has been found by the compiler in its own search path, and kept there.
qsizetype projectDirectories(const QStringList &searched, const QStringList &named)
{
    const auto first =
        std::find_if(searched.begin(), searched.end(),
                     [&named](const QString &directory) { return !named.contains(directory); });
    return first - searched.begin();
}

QList<Option> searchOptions(const Arguments &arguments, const Facts &facts,
                            const QStringList &includeDirectories)
{
    QList<Option> options;
    const QStringList &searched = facts.searchPath.directories;
    const qsizetype ofProject = projectDirectories(searched, includeDirectories);
    // Clang searches what -isystem names behind what -I names.
    if (!arguments.substituteHeaders.isEmpty())
        options << pathOption(ofProject > 0 ? "-I" : "-isystem", arguments.substituteHeaders);
    for (const QString &directory : facts.searchPath.forQuotedNames)
        options << pathOption("-iquote", directory);
    for (const QString &directory : searched.first(ofProject))
        options << pathOption("-I", directory);
    // Where the compiler searches its own headers clang searches those that are made for itself,
    // and what the compiler searches behind them comes behind those, too.
    const bool isClang = findMacro(facts.macros, "__clang__");
    bool usesClangsOwn = false;
    for (const QString &directory : searched.sliced(ofProject)) {
        usesClangsOwn |= !isClang && holdsIntrinsics(directory);
        options << pathOption(usesClangsOwn ? "-idirafter" : "-isystem", directory);
    }
    for (const QString &directory : arguments.headerDirectories) {
        // What the user has given and the compiler does not search must not hide anything.
        if (!searched.contains(QDir(directory).canonicalPath())
            && hasHeaders(directory, arguments.isCpp))
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

/// Those of \a macros that \a templateText defines anew.
QList<Macro> overridden(const QList<Macro> &macros, const QByteArray &templateText)
{
    const QList<MacroChange> changes = macroChanges(templateText);
    QList<Macro> chosen = macros;
    chosen.removeIf([&changes](const Macro &macro) {
        return std::none_of(changes.begin(), changes.end(), [&macro](const MacroChange &change) {
            return change.value && change.concerns(macro);
        });
    });
    return chosen;
}

} // namespace

Personality composePersonality(const Arguments &arguments, const Facts &facts,
                               const CommandParts &parts, const QByteArray &templateText)
{
    const PassedOptions passed = passedOptions(parts.command, arguments.isCpp);
    const Language language = languageOf(facts, passed.forClang, arguments.isCpp);
    Personality personality;
    personality.command = typedCommand(arguments.command);
    personality.switches = arguments.switches;
    personality.answers = arguments.answers;
    personality.lacking = passed.lacking;
    personality.facts = facts;
    personality.typesOfClang = language.differingTypes;
    personality.templateText = templateText;
    if (!templateText.isEmpty() && !templateText.endsWith('\n'))
        personality.templateText += '\n';
    MacroFacts &macros = personality.facts.macros;
    macros.known.removeIf([](const Macro &macro) { return hasControlCharacter(macro.name); });
    for (const Macro &macro : macros.known) {
        if (!fitsOnLine(macro))
            macros.undetermined << macro.name;
    }
    macros.known.removeIf([](const Macro &macro) { return !fitsOnLine(macro); });
    for (const QByteArray &option : language.options)
        personality.language << option.split(' ');
    for (const Macro &macro : language.redefinitions)
        personality.keywordDefinitions.append({undefiningOption(macro.name)});
    const QList<Macro> forKeywords = keywordDefinitions(facts) + language.redefinitions;
    for (const Macro &macro : forKeywords)
        personality.keywordDefinitions.append({definingOption(macro)});
    // Else clang would warn of them in every file.
    for (const Macro &macro : overridden(macros.known + forKeywords, templateText))
        personality.keywordDefinitions.append({undefiningOption(bareName(macro.name))});
    personality.searchPath = searchOptions(arguments, facts, parts.includeDirectories);
    if (!arguments.forceIncludeFile.isEmpty())
        personality.includedFirst << pathOption("-include", arguments.forceIncludeFile);
    personality.includedFirst << parts.includedFirst;
    return personality;
}
