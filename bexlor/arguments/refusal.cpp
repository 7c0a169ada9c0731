#include "refusal.h"

#include "order_tokens.h"
#include "quoting.h"
#include "typed_command.h"
#include "unseen_files.h"
#include "visible_text.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const struct Part
{
    QLatin1StringView name;
    QString CommandLayout::*text;
} parts[] = {
    {"output flag"_L1, &CommandLayout::outputFlag},
    {"object flag"_L1, &CommandLayout::objectFlag},
    {"define flag"_L1, &CommandLayout::defineFlag},
    {"object file extension"_L1, &CommandLayout::objectExtension},
};

QString problemWithCommand(const Arguments &arguments)
{
    if (QString(arguments.command).remove(u'"').trimmed().isEmpty())
        return u"There is no compiler command."_s;
    // Whatever stands first in a compile command is started.
    const QList<OrderToken> &tokens = arguments.layout.order;
    if (tokens.isEmpty() || tokens.first().part != CommandPart::Command) {
        return u"The order of the compile command does not begin with the command: %1"_s.arg(
            arguments.order);
    }
    return QString();
}

/// Whether \a text, which is joined with the name of a probe's file, names a file, a folder or a
/// drive of its own. A separator marks an option only where it is the first character, and a colon
/// behind the names of some options, "/Fo:", is a sign.
bool holdsPath(const QString &text)
{
    static const QRegularExpression drive(
        u"^(?![-/]F[A-Za-z]:$)([-/]([A-Za-z]|F[A-Za-z])|.*[ =:])?[A-Za-z]:"_s);
    static const QRegularExpression separator(u"^.+[/\\\\]"_s,
                                              QRegularExpression::DotMatchesEverythingOption);
    return text.contains(separator) || text.contains(drive)
        || (QDir::isAbsolutePath(text) && QFileInfo::exists(text));
}

QString problemWithParts(const CommandLayout &layout)
{
    for (const Part &part : parts) {
        const QString &text = layout.*part.text;
        if (hasControlCharacter(text)) {
            return u"The %1 holds a control character: %2"_s.arg(part.name, text);
        }
        if (holdsPath(text)) {
            return u"The %1 holds a path, but the output of a probe belongs in the run's own "
                   "folder: %2"_s.arg(part.name, text);
        }
    }
    return QString();
}

/// Whether \a path, which begins with the \a folder beside the working directory, leaves it again.
bool leavesFolder(const QString &path, QLatin1StringView folder)
{
    static const QRegularExpression separators(u"[/\\\\]+"_s);
    const QStringList steps = path.split(separators);
    return steps.value(0) == ".."_L1 && steps.value(1) == folder && steps.mid(2).contains(".."_L1);
}

QString problemWithFiles(const Arguments &arguments)
{
    for (const UnseenFile &file : unseenFiles) {
        const QString &path = arguments.*file.path;
        if (leavesFolder(path, file.home)) {
            return u"The %1 does not lie in the folder %2: %3"_s.arg(file.name, file.home, path);
        }
        if (!path.isEmpty() && !mayStandInPersonality(path)) {
            return u"The name of the %1 holds a control character: %2"_s.arg(file.name, path);
        }
    }
    return QString();
}

/// Why the first of \a texts that cannot be read cannot; \a name is what each of them is.
QString problemWithQuoting(QLatin1StringView name, const QStringList &texts)
{
    for (const QString &text : texts) {
        const QString reason = quotingProblem(text);
        if (!reason.isEmpty()) {
            return u"The %1 cannot be read, since %2: %3"_s.arg(name, reason, text);
        }
    }
    return QString();
}

/// What stands behind the define flag must be a define: the flag could be one that names a file to
/// be written. Without a flag the define may bring its own.
QString problemWithDefines(const Arguments &arguments)
{
    static const QRegularExpression named(u"^[\\p{L}_$][\\w$]*($|[=(#\\s])"_s,
                                          QRegularExpression::UseUnicodePropertiesOption);
    for (const QString &define : arguments.defines) {
        const bool isWhole = arguments.layout.defineFlag.isEmpty() && bringsOwnFlag(define);
        if (!define.mid(isWhole ? 1 : 0).contains(named))
            return u"The define does not begin with a name: %1"_s.arg(define);
    }
    return QString();
}

QString problemWithTexts(const Arguments &arguments)
{
    const QStringList texts = QStringList {arguments.command, arguments.personality}
                            + arguments.defines + arguments.switches;
    for (const QString &text : texts) {
        if (hasControlCharacter(text))
            return u"There is a control character in: %1"_s.arg(text);
    }
    return QString();
}

} // namespace

QString refusalReason(const Arguments &arguments)
{
    const QStringList problems {problemWithCommand(arguments),
                                problemWithParts(arguments.layout),
                                problemWithFiles(arguments),
                                problemWithTexts(arguments),
                                problemWithQuoting("command"_L1, {typedCommand(arguments.command)}),
                                problemWithQuoting("define"_L1, arguments.defines),
                                problemWithDefines(arguments),
                                problemWithQuoting("switch"_L1, arguments.switches)};
    const auto problem = std::find_if(problems.begin(), problems.end(),
                                      [](const QString &text) { return !text.isEmpty(); });
    return problem == problems.end() ? QString() : *problem;
}

bool mayStandInPersonality(const QString &path)
{
    return !hasControlCharacter(QDir::current().absoluteFilePath(path));
}
