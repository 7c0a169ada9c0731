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

enum class Topic { Macros, SearchPath, Version };

/// A question that compilers of some family understand. How one about the search path is answered:
/// with directories behind a heading; without one, with the folder of cc65's target systems.
struct DialectQuestion
{
    Topic topic;
    QStringList options;
    bool takesSource;
    bool isAskedAlone; ///< without the other options of the command
    QByteArray heading;
};

const QByteArray gnuHeading = "#include <...> search starts here:";
const QByteArray headingForQuotedNames = "#include \"...\" search starts here:";

const DialectQuestion questions[] = {
    {Topic::Macros, {u"-dM"_s, u"-E"_s}, true, false, {}},
    // The GNU compilers and clang; sdcc, whose preprocessor is a GNU one; tcc; sdcc again; cc65.
    {Topic::SearchPath, {u"-v"_s, u"-E"_s}, true, false, gnuHeading},
    {Topic::SearchPath, {u"-Wp-v"_s, u"-E"_s}, true, false, gnuHeading},
    {Topic::SearchPath, {u"-print-search-dirs"_s}, false, true, "include:"},
    {Topic::SearchPath, {u"--print-search-dirs"_s}, false, false, "includedir:"},
    {Topic::SearchPath, {u"--print-target-path"_s}, false, false, {}},
    {Topic::Version, {u"--version"_s}, false, false, {}},
};

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

/// The folder of headers beside that of cc65's target systems, \a targets.
QStringList directoryBeside(const QByteArray &targets)
{
    const QString headers = platform::decodedText(targets.trimmed()) + "/../include"_L1;
    return QDir(headers).exists() ? QStringList {QDir(headers).canonicalPath()} : QStringList();
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

std::optional<SearchPath> searchPathIn(const ProgramRun &answer, const DialectQuestion &question,
                                       const QStringList &command)
{
    if (question.takesSource) {
        // Clang leaves a heading out that nothing stands behind.
        if (!answer.errors.contains(question.heading)
            && !answer.errors.contains(headingForQuotedNames))
            return {};
        return SearchPath {directoriesBehind(question.heading, answer.errors),
                           directoriesBehind(headingForQuotedNames, answer.errors)};
    }
    // These are the compiler's own, whatever options of the command add or take away.
    QStringList own = question.heading.isEmpty()
                        ? directoryBeside(answer.output)
                        : directoriesBehind(question.heading, answer.output);
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

/// The answer to \a words. One who fails is asked once more: that may have been a disturbance, and
/// what is not listed is learned less completely.
ProgramRun askUntilAnswered(const RunCommand &run, const QStringList &words)
{
    const ProgramRun answer = run(words);
    return answer.succeeded() || answer.ending == ProgramRun::TimedOut ? answer : run(words);
}

void read(const ProgramRun &answer, const DialectQuestion &question, const QStringList &command,
          DialectAnswers &answers)
{
    switch (question.topic) {
    case Topic::Macros:
        answers.macros = macrosIn(answer.output);
        answers.macros.removeIf(
            [](const Macro &macro) { return isBuiltIntoThePreprocessor(macro.name); });
        break;
    case Topic::SearchPath:
        answers.searchPath = searchPathIn(answer, question, command);
        break;
    case Topic::Version:
        answers.versionLine = versionLineIn(answer.output + '\n' + answer.errors);
        break;
    }
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
        if (isAnswered(question.topic, answers))
            continue;
        QStringList words = question.isAskedAlone ? command.first(1) : command;
        words << question.options;
        if (question.takesSource)
            words << source;
        const ProgramRun answer = askUntilAnswered(run, words);
        if (answer.succeeded() || question.topic == Topic::Version)
            read(answer, question, command, answers);
    }
    return answers;
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
