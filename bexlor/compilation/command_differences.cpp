#include "command_differences.h"

#include "clang.h"
#include "dialects.h"
#include "macro_options.h"
#include "path_options.h"
#include "probe_options.h"
#include "program_run.h"
#include "quoting.h"
#include "template_options.h"

#include <QFileInfo>
#include <QMap>
#include <QRegularExpression>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// How many words, from \a index on, change no predefined macro: 0, 1 or 2. These are about
/// headers, messages, and what is made.
qsizetype wordsWithoutEffect(const QStringList &words, qsizetype index, const QString &objectFlag)
{
    static const QRegularExpression apart(
        u"^(?:-I|-isystem|-iquote|-idirafter|-iprefix|-iwithprefix(?:before)?|"
        "--include-directory(?:-after)?|-X(?:preprocessor|assembler|clang))$"_s);
    static const QRegularExpression joined(
        u"^(?:(?:-I|-isystem|-iquote|-idirafter|-iprefix|-iwithprefix|--include-directory|-W).*|"
        "-w|-pedantic|-c|--)$"_s);
    const QString &word = words[index];
    if (const auto included = includedFileAt(words, index))
        return included->words.size();
    if (word.contains(apart))
        return std::min<qsizetype>(2, words.size() - index);
    return word == objectFlag || word.contains(joined) ? 1 : 0;
}

/// The words of a command, or only its options, that decide predefined macros.
QStringList decidingWords(const QStringList &words, const QString &objectFlag)
{
    QStringList deciding;
    for (qsizetype i = 0; i < words.size();) {
        const std::optional<MacroOption> macro = macroOptionAt(words, i);
        const qsizetype left = macro ? macro->words : wordsWithoutEffect(words, i, objectFlag);
        if (left == 0)
            deciding << words[i];
        i += std::max<qsizetype>(left, 1);
    }
    return deciding;
}

/// The first option in \a words; what stands before it starts the compiler.
qsizetype firstOption(const QStringList &words)
{
    return std::find_if(words.begin(), words.end(),
                        [](const QString &word) { return word.startsWith(u'-'); })
         - words.begin();
}

/// Whether \a word of \a command, which is about no header, names a file beside its source, such
/// as an object.
bool isOtherInput(const QString &word, const CompileCommand &command)
{
    return !word.startsWith(u'-') && word.contains(u'.')
        && QFileInfo(QDir(command.directory), word).isFile();
}

/// The same of \a command, its paths made absolute, without its files.
QStringList decidingWords(const CompileCommand &command, const CommandLayout &layout)
{
    QStringList words = withoutOutput(command.compilingWords(), layout.outputFlag);
    words.removeIf([&command](const QString &word) { return command.isNamedBy(word); });
    const QStringList program = words.first(firstOption(words));
    QStringList deciding = decidingWords(words.sliced(program.size()), layout.objectFlag);
    deciding.removeIf([&command](const QString &word) { return isOtherInput(word, command); });
    return withAbsolutePaths(program + deciding, layout, command.directory);
}

/// The options of \a words, which start the compiler here, that decide macros.
QStringList decidingOptions(const QStringList &words, const CommandLayout &layout)
{
    const QStringList deciding = decidingWords({QDir::currentPath(), {}, words}, layout);
    return deciding.sliced(firstOption(deciding));
}

/// The words by which \a compiler is told of macros.
QStringList definesOf(const Compiler &compiler)
{
    const QStringList command = commandWithDefines(compiler);
    QStringList words;
    for (qsizetype i = 1; i < command.size();) {
        const std::optional<MacroOption> macro = macroOptionAt(command, i);
        const qsizetype count = macro ? macro->words : 0;
        words << command.mid(i, count);
        i += std::max<qsizetype>(count, 1);
    }
    return words;
}

/// A macro that is defined in another way than \a before, or that only one of two sides has.
struct MacroDifference
{
    QByteArray name;
    std::optional<Macro> before, after;
};

/// The names of the macros that stay as \a personality has them.
QList<QByteArray> settledNames(const Personality &personality)
{
    QList<QByteArray> names = personality.facts.macros.undetermined;
    for (const MacroChange &change : macroChanges(personality.templateText))
        names << bareName(change.name);
    return names;
}

/// In what \a macros differ from those of \a personality, by their names.
QList<MacroDifference> differingMacros(const Personality &personality, const QList<Macro> &macros)
{
    QMap<QByteArray, MacroDifference> named;
    for (const Macro &macro : personality.facts.macros.known)
        named[bareName(macro.name)].before = macro;
    for (const Macro &macro : macros)
        named[bareName(macro.name)].after = macro;
    for (const QByteArray &name : settledNames(personality))
        named.remove(name);
    QList<MacroDifference> differing;
    for (auto [name, macro] : named.asKeyValueRange()) {
        if (macro.before != macro.after)
            differing.append({name, macro.before, macro.after});
    }
    return differing;
}

QStringList optionsFor(const MacroDifference &difference)
{
    QStringList options;
    // Else clang would warn of the second definition.
    if (difference.before)
        options << QString::fromUtf8(undefiningOption(difference.name));
    if (const auto &macro = difference.after)
        options << QString::fromUtf8(definingOption(*macro));
    return options;
}

/// Whether a macro called \a name tells of types.
bool isAboutTypes(const QByteArray &name)
{
    return name.startsWith("__SIZEOF_") || name == "__BYTE_ORDER__";
}

QByteArray targetOf(const QList<Macro> &macros)
{
    Facts facts;
    facts.macros.known = macros;
    return chooseTarget(facts, {}).name;
}

/// What GNU compilers and clang name themselves by, up to the first dot.
QByteArray majorVersion(const MacroFacts &macros)
{
    const Macro *version = findMacro(macros, "__VERSION__");
    return version ? version->value.split('.').first() : QByteArray();
}

/// The \a words of a command, without options that change neither types nor the target.
QString shownCommand(QStringList words)
{
    static const QRegularExpression harmless(u"^-(?:[gO].*|-?std=.*|-?ansi|pthread|pipe)$"_s);
    words.removeIf([](const QString &word) { return word.contains(harmless); });
    words.first() = QFileInfo(words.first()).fileName();
    return words.join(u' ');
}

} // namespace

CommandDifferences::CommandDifferences(const Personality &personality, const Compiler &compiler,
                                       const QString &source)
    : m_personality(personality), m_compiler(compiler), m_source(source)
{
    QStringList switches = compiler.command.first(std::min<qsizetype>(compiler.command.size(), 1));
    for (const QString &item : personality.switches)
        switches << splitCommand(item);
    m_switches = decidingOptions(switches, compiler.layout);
    // They stand behind the command's own, the last of which may have taken one for its value.
    m_ownOptions = decidingOptions(compiler.command, compiler.layout);
    m_ownOptions.resize(std::max<qsizetype>(m_ownOptions.size() - m_switches.size(), 0));
}

QList<Macro> CommandDifferences::macrosUnder(const QStringList &command)
{
    const QFileInfo source(m_source);
    const RunCommand run = [this, &source](const QStringList &question) {
        const platform::ProgramRun answer =
            platform::runProgram(question, source.path(), listingTimeLimit);
        m_isTooSlow |= answer.ending == platform::ProgramRun::TimedOut;
        return answer;
    };
    return askForMacros(run, command, source.fileName());
}

bool CommandDifferences::isLikeOwn(const QStringList &program)
{
    const auto known = m_areLikeOwn.constFind(program);
    if (known != m_areLikeOwn.constEnd())
        return *known;
    const QStringList &own = m_compiler.command;
    const QList<Macro> macros = macrosUnder(program + own.sliced(firstOption(own)));
    const MacroFacts &ofOwn = m_personality.facts.macros;
    return m_areLikeOwn[program] = targetOf(macros) == targetOf(ofOwn.known)
                                && majorVersion({macros, {}}) == majorVersion(ofOwn);
}

CommandDifference CommandDifferences::differenceUnder(const QStringList &words)
{
    const QStringList program = words.first(firstOption(words));
    const QList<Macro> macros =
        macrosUnder(program + definesOf(m_compiler) + m_switches + words.sliced(program.size()));
    if (macros.isEmpty())
        return {};
    const MacroFacts &before = m_personality.facts.macros;
    const QList<MacroDifference> differing = differingMacros(m_personality, macros);
    CommandDifference difference;
    const bool changesTypes =
        targetOf(before.known) != targetOf(macros)
        || std::any_of(differing.begin(), differing.end(),
                       [](const MacroDifference &macro) { return isAboutTypes(macro.name); });
    if (changesTypes)
        difference.otherTypes = shownCommand(words);
    if (!isLikeOwn(program))
        return difference;
    const QByteArray target = languageOption(m_personality, "--target=");
    for (const QByteArray &option : changedOptions(before, {macros, {}}, target, m_compiler.isCpp))
        difference.options << QString::fromUtf8(option);
    for (const MacroDifference &macro : differing)
        difference.options << optionsFor(macro);
    return difference;
}

CommandDifference CommandDifferences::of(const CompileCommand &command)
{
    const QStringList words = decidingWords(command, m_compiler.layout);
    if (words.sliced(firstOption(words)) == m_ownOptions)
        return {};
    const auto known = m_known.constFind(words);
    if (known != m_known.constEnd())
        return *known;
    // There may be thousands of sets of options.
    return m_isTooSlow ? CommandDifference() : m_known[words] = differenceUnder(words);
}
