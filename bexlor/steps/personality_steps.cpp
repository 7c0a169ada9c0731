#include "personality_steps.h"

#include "clang.h"
#include "command_line.h"
#include "dialects.h"
#include "personality.h"
#include "refusal.h"
#include "text_file.h"
#include "tools_and_files.h"
#include "unseen_files.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

/// The template of \a arguments, empty if they name none; nothing when it cannot be read.
std::optional<QByteArray> readTemplate(const Arguments &arguments)
{
    if (arguments.templateFile.isEmpty())
        return QByteArray();
    const platform::FileContent file = platform::readFile(arguments.templateFile);
    if (file.state != platform::FileContent::Whole)
        return {};
    // Clang reads it in UTF-8.
    return platform::decodedText(file.bytes).toUtf8();
}

QString templateUnreadable(const Arguments &arguments)
{
    return u"The template cannot be read: %1"_s.arg(arguments.templateFile);
}

/// Why \a arguments are refused, or the files that they name cannot be used, or an empty text.
QString problemWith(const Arguments &arguments)
{
    if (const QString reason = refusalReason(arguments); !reason.isEmpty())
        return reason;
    for (const UnseenFile &file : unseenFiles) {
        const QString &path = arguments.*file.path;
        const QFileInfo info(path);
        if (path.isEmpty() || (file.isFolder ? info.isDir() : info.isFile()))
            continue;
        if (!info.exists())
            return u"The %1 does not exist: %2"_s.arg(file.name, path);
        return u"The %1 is no %2: %3"_s.arg(file.name, file.isFolder ? u"folder"_s : u"file"_s,
                                            path);
    }
    return readTemplate(arguments) ? QString() : templateUnreadable(arguments);
}

} // namespace

std::optional<Arguments> checkArguments(Progress &progress, const Arguments &arguments)
{
    const QString problem = problemWith(arguments);
    if (!problem.isEmpty()) {
        progress.say(problem);
        return {};
    }
    for (const UnseenFile &file : unseenFiles) {
        if (const QString &path = arguments.*file.path; !path.isEmpty())
            progress.say(u"Uses the %1: %2"_s.arg(file.name, path));
    }
    if (const QStringList unnamed = unnamedDefines(arguments); !unnamed.isEmpty()) {
        progress.say(u"Without a define flag the compiler cannot be told of: %1"_s.arg(
            unnamed.join(u", "_s)));
    }
    Arguments usable = arguments;
    leaveOutOddDirectories(progress, usable.headerDirectories);
    return usable;
}

bool checkDestination(Progress &progress, const QString &path)
{
    const QFileInfo personality(path);
    const QString folder = personality.absolutePath();
    if (!QFileInfo::exists(folder) || (personality.exists() && !personality.isWritable())) {
        progress.say(notWritten(u"personality"_s, path));
        return false;
    }
    if (platform::canCreateFileIn(folder))
        return true;
    progress.say(u"The folder of the personality is not writable: %1"_s.arg(folder));
    return false;
}

std::optional<QByteArray> textOfPersonality(Progress &progress, const Arguments &arguments,
                                            const Compiler &compiler, const Facts &facts)
{
    const std::optional<QByteArray> templateText = readTemplate(arguments);
    if (!templateText) {
        progress.say(templateUnreadable(arguments));
        return {};
    }
    CommandParts parts {compiler.command, includeDirectories(compiler.command), {}};
    for (const IncludedFile &included : compiler.includedFirst)
        parts.includedFirst.append({included.option.toUtf8(), included.file.toUtf8()});
    const Personality personality = composePersonality(arguments, facts, parts, *templateText);
    for (const QString &option : personality.lacking)
        progress.say(u"Clang has no option like the compiler's %1."_s.arg(option));
    for (const QString &line : differenceSentences(facts.types, personality.typesOfClang))
        progress.say(line);
    return personalityText(personality);
}

bool writePersonality(Progress &progress, const QString &path, const QByteArray &text)
{
    const bool isThere = QFileInfo::exists(path);
    if (!platform::writeFile(path, text)) {
        progress.say(notWritten(u"personality"_s, path));
        return false;
    }
    progress.say((isThere ? u"Replaced %1"_s : u"Wrote %1"_s).arg(path));
    const QStringList option = personalityOption(QDir::current().absoluteFilePath(path));
    progress.say("  "_L1 + platform::commandLine(QStringList {u"clang"_s} + option)
                 + " -fsyntax-only FILE"_L1);
    progress.say("  clang-tidy FILE -- "_L1 + platform::commandLine(option));
    return true;
}
