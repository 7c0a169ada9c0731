#include "dialects.h"

#include "text_file.h"
#include "visible_text.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

using platform::ProgramRun;

/// What is asked for; of each topic the first answer counts.
enum class Topic { Macros, SearchPath, Version };

/// Takes what \a answer to \a command tells over to \a answers, if it does.
using Reader = void (*)(const ProgramRun &answer, const QStringList &command,
                        DialectAnswers &answers);

bool isAnswered(Topic topic, const DialectAnswers &answers)
{
    switch (topic) {
    case Topic::Macros:
        return !answers.macros.isEmpty();
    case Topic::SearchPath:
        return answers.searchPath.has_value();
    case Topic::Version:
        break;
    }
    return !answers.versionLine.isEmpty();
}

/// The directories behind \a option in \a command, where its first parentheses match nothing in the
/// next word; links in them are followed.
QStringList directoriesNamedBy(const QRegularExpression &option, const QStringList &command)
{
    QStringList directories;
    for (qsizetype i = 1; i < command.size(); ++i) {
        const QRegularExpressionMatch match = option.match(command[i]);
        if (!match.hasMatch())
            continue;
        const QString joined = match.captured(1);
        const QString named = joined.isEmpty() ? command.value(i + 1) : joined;
        if (QFileInfo(named).isDir())
            directories << QDir(named).canonicalPath();
    }
    return directories;
}

void readMacros(const ProgramRun &answer, const QStringList & /*command*/, DialectAnswers &answers)
{
    answers.macros = macrosIn(answer.output);
    answers.macros.removeIf(
        [](const Macro &macro) { return isBuiltIntoThePreprocessor(macro.name); });
}

/// What the preprocessors of the GNU compilers and clang print among their messages.
void readGnuSearchPath(const ProgramRun &answer, const QStringList & /*command*/,
                       DialectAnswers &answers)
{
    const QByteArray heading = "#include <...> search starts here:";
    const QByteArray headingForQuotedNames = "#include \"...\" search starts here:";
    // Clang leaves a heading out that nothing stands behind.
    if (answer.errors.contains(heading) || answer.errors.contains(headingForQuotedNames)) {
        answers.searchPath = {directoriesBehind(heading, answer.errors),
                              directoriesBehind(headingForQuotedNames, answer.errors)};
    }
}

/// The search path of one who names only \a own directories, whatever options of \a command add or
/// take away.
std::optional<SearchPath> searchPathWith(QStringList own, const QStringList &command)
{
    if (own.isEmpty())
        return {};
    if (command.contains(u"-nostdinc"_s))
        own.clear();
    static const QRegularExpression system(u"^-isystem(.*)$"_s);
    QStringList directories =
        includeDirectories(command) + directoriesNamedBy(system, command) + own;
    directories.removeDuplicates();
    return SearchPath {directories, {}};
}

void readTccSearchPath(const ProgramRun &answer, const QStringList &command,
                       DialectAnswers &answers)
{
    answers.searchPath = searchPathWith(directoriesBehind("include:", answer.output), command);
}

void readSdccSearchPath(const ProgramRun &answer, const QStringList &command,
                        DialectAnswers &answers)
{
    answers.searchPath = searchPathWith(directoriesBehind("includedir:", answer.output), command);
}

/// cc65 has its headers beside the folder of its target systems, which it tells.
void readCc65SearchPath(const ProgramRun &answer, const QStringList &command,
                        DialectAnswers &answers)
{
    const QDir headers(platform::decodedText(answer.output.trimmed()) + "/../include"_L1);
    if (headers.exists())
        answers.searchPath = searchPathWith({headers.canonicalPath()}, command);
}

void readVersion(const ProgramRun &answer, const QStringList & /*command*/, DialectAnswers &answers)
{
    answers.versionLine = versionLineIn(answer.output + '\n' + answer.errors);
}

/// A question that compilers of some family understand, and what reads their answer.
const struct DialectQuestion
{
    Topic topic;
    QStringList options;
    Reader read;
    bool takesSource;
    bool isAskedAlone = false; ///< without the other options of the command
} questions[] = {
    {Topic::Macros, {u"-dM"_s, u"-E"_s}, &readMacros, true},
    // The GNU compilers and clang; sdcc, whose preprocessor is a GNU one; tcc; sdcc again; cc65.
    {Topic::SearchPath, {u"-v"_s, u"-E"_s}, &readGnuSearchPath, true},
    {Topic::SearchPath, {u"-Wp-v"_s, u"-E"_s}, &readGnuSearchPath, true},
    {Topic::SearchPath, {u"-print-search-dirs"_s}, &readTccSearchPath, false, true},
    {Topic::SearchPath, {u"--print-search-dirs"_s}, &readSdccSearchPath, false},
    {Topic::SearchPath, {u"--print-target-path"_s}, &readCc65SearchPath, false},
    {Topic::Version, {u"--version"_s}, &readVersion, false},
};

/// The answer to \a words. One who fails is asked once more: that may have been a disturbance, and
/// what is not listed is learned less completely.
ProgramRun askUntilAnswered(const RunCommand &run, const QStringList &words)
{
    const ProgramRun answer = run(words);
    return answer.succeeded() || answer.ending == ProgramRun::TimedOut ? answer : run(words);
}

/// Asks \a question of the compiler that \a command starts, and reads what it answers.
void ask(const DialectQuestion &question, const RunCommand &run, const QStringList &command,
         const QString &source, DialectAnswers &answers)
{
    QStringList words = question.isAskedAlone ? command.first(1) : command;
    words << question.options;
    if (question.takesSource)
        words << source;
    const ProgramRun answer = askUntilAnswered(run, words);
    if (answer.succeeded() || question.topic == Topic::Version)
        question.read(answer, command, answers);
}

/// The macro of a \a definition, "NAME VALUE" or "NAME(PARAMETERS) VALUE".
Macro macroDefinedBy(const QByteArray &definition)
{
    const qsizetype firstSpace = definition.indexOf(' ');
    const qsizetype parenthesis = definition.indexOf('(');
    const bool hasParameters = parenthesis >= 0 && (firstSpace < 0 || parenthesis < firstSpace);
    qsizetype end = firstSpace;
    if (hasParameters)
        end = definition.indexOf(')', parenthesis) + 1;
    if (end < 0)
        end = definition.size();
    return {definition.left(end), definition.mid(end).trimmed()};
}

} // namespace

DialectAnswers askInDialects(const RunCommand &run, const QStringList &command,
                             const QString &source, const DialectAnswers &known)
{
    DialectAnswers answers = known;
    for (const DialectQuestion &question : questions) {
        if (!isAnswered(question.topic, answers))
            ask(question, run, command, source, answers);
    }
    return answers;
}

QList<Macro> askForMacros(const RunCommand &run, const QStringList &command, const QString &source)
{
    DialectAnswers answers;
    for (const DialectQuestion &question : questions) {
        if (question.topic == Topic::Macros && answers.macros.isEmpty())
            ask(question, run, command, source, answers);
    }
    return answers.macros;
}

QStringList includeDirectories(const QStringList &command)
{
    static const QRegularExpression option(u"^(?:[-/]I|--include-dir(?:ectory)?(?:=|$))(.*)$"_s);
    return directoriesNamedBy(option, command);
}

QList<Macro> macrosIn(const QByteArray &listing)
{
    const QByteArray directive = "#define ", undoing = "#undef ";
    QList<Macro> macros;
    QSet<QByteArray> names; // of which a later line tells, so that earlier ones do not count
    QList<QByteArray> lines = listing.split('\n');
    std::reverse(lines.begin(), lines.end());
    for (const QByteArray &text : lines) {
        const QByteArray line = text.trimmed();
        const bool isUndone = line.startsWith(undoing);
        if (!isUndone && !line.startsWith(directive))
            continue;
        const Macro macro = isUndone ? Macro {line.mid(undoing.size()), {}}
                                     : macroDefinedBy(line.mid(directive.size()));
        const QByteArray name = bareName(macro.name);
        if (!isUndone && !names.contains(name))
            macros.prepend(macro);
        names << name;
    }
    return macros;
}

QStringList directoriesBehind(const QByteArray &heading, const QByteArray &listing)
{
    QStringList directories;
    bool isBehind = false;
    for (const QByteArray &rawLine : listing.split('\n')) {
        const QByteArray line = rawLine.trimmed();
        if (line.endsWith(':') || line.startsWith("End of"))
            isBehind = line == heading;
        else if (isBehind && !line.isEmpty())
            directories << platform::decodedText(line);
    }
    const auto exists = [](const QString &directory) { return QDir(directory).exists(); };
    if (std::any_of(directories.begin(), directories.end(), exists)) {
        directories.removeIf([](const QString &directory) { return !QDir(directory).exists(); });
        for (QString &directory : directories)
            directory = QDir(directory).canonicalPath();
    }
    directories.removeDuplicates();
    return directories;
}

QByteArray versionLineIn(const QByteArray &banner)
{
    static const QRegularExpression version(u"[A-Za-z].*[0-9]\\.[0-9]"_s);
    for (QByteArray line : banner.split('\n')) {
        line = line.simplified();
        // Such as what colours the text of a terminal.
        line.removeIf([](char character) { return hasControlCharacter(QByteArray(1, character)); });
        if (version.match(platform::decodedText(line)).hasMatch())
            return line;
    }
    return {};
}
