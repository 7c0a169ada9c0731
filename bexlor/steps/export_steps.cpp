#include "export_steps.h"

#include "clang_forms.h"
#include "command_line.h"
#include "console.h"
#include "fact_forms.h"
#include "file_names.h"
#include "refusal.h"
#include "text_file.h"
#include "tools_and_files.h"

#include <QFileInfo>
#include <QJsonDocument>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

ExitStatus write(Progress &progress, const QString &file, const QByteArray &content)
{
    if (file.isEmpty()) {
        // As it is: another encoding than that of the file would be no JSON.
        const auto size = std::size_t(content.size());
        const bool isWritten = std::fwrite(content.constData(), 1, size, stdout) == size;
        if (std::fflush(stdout) == 0 && isWritten)
            return ExitStatus::Done;
        platform::print(stderr, u"The standard output cannot be written.\n"_s);
        return ExitStatus::Failed;
    }
    if (!platform::writeFile(file, content)) {
        progress.say(notWritten(u"file"_s, file));
        return ExitStatus::Failed;
    }
    progress.say(u"Wrote %1"_s.arg(file));
    return ExitStatus::Done;
}

/// What clang is to be asked about: the compile commands in the language of the personality, and
/// the compiler with its own.
struct Project
{
    Clang clang;
    QList<CompileCommand> commands;
    Compiler compiler;
};

/// The project of \a request; nothing, which is then said, when it cannot be read.
std::optional<Project> projectOf(Progress &progress, const ExportRequest &request,
                                 const Arguments &arguments)
{
    const std::optional<Clang> clang = findClang(progress, request.clang);
    if (!clang)
        return {};
    Project project {*clang, {}, findCompiler(arguments)};
    if (request.database.isEmpty())
        return project;
    const auto read = readDatabase(request.database);
    if (const auto *problem = std::get_if<QString>(&read)) {
        progress.say(*problem);
        return {};
    }
    for (const CompileCommand &command : std::get<QList<CompileCommand>>(read)) {
        if (isInLanguage(command.file, arguments.isCpp))
            project.commands << command;
    }
    return project;
}

ExitStatus writeForClang(Progress &progress, const ExportRequest &request,
                         const Arguments &arguments, const Personality &content,
                         const QString &folder)
{
    // The answers may be somebody else's, and have options for what is started.
    if (const QString reason = refusalReason(arguments); !reason.isEmpty()) {
        progress.say(reason);
        return ExitStatus::Missing;
    }
    const std::optional<Project> project = projectOf(progress, request, arguments);
    if (!project)
        return ExitStatus::Missing;
    const std::optional<QString> source = writeEmptySource(progress, folder, arguments.isCpp);
    if (!source)
        return ExitStatus::Failed;
    AcceptedOptions accepted(project->clang, request.personality, *source);
    if (request.format == ExportRequest::CompileCommands) {
        OptionsForClang forClang({content, project->compiler, *source}, accepted);
        const QByteArray database = compileCommands(project->commands, project->clang.program,
                                                    request.personality, forClang);
        const ExitStatus status = write(progress, request.output, database);
        const QString remark = forClang.remarkOnTypes();
        // The standard output may be the database itself.
        if (!remark.isEmpty() && !request.output.isEmpty())
            progress.say(remark);
        return status;
    }
    const CompileCommand ownCommand {folder, {}, project->compiler.command};
    for (const CompileCommand &command : project->commands + QList {ownCommand})
        accepted.of(command);
    return write(progress, request.output,
                 clangdConfiguration(request.personality, accepted.refused()));
}

/// Writes the platform, and beside it the header of the macros.
ExitStatus writeForCppcheck(Progress &progress, const QString &file, const Personality &personality)
{
    const QByteArray types = cppcheckPlatform(personality.facts);
    if (types.isEmpty()) {
        progress.say(u"The personality holds no type that cppcheck can express."_s);
        return ExitStatus::Missing;
    }
    const QString header = file + ".h"_L1;
    const bool isWritten = write(progress, file, types) == ExitStatus::Done
                        && write(progress, header, macroHeader(personality)) == ExitStatus::Done;
    if (!isWritten)
        return ExitStatus::Failed;
    QStringList command {u"cppcheck"_s, "--platform="_L1 + file, "--include="_L1 + header};
    for (const Option &option : personality.includedFirst)
        command << "--include="_L1 + QString::fromUtf8(option.last());
    progress.say("  "_L1 + platform::commandLine(command) + " FILE"_L1);
    return ExitStatus::Done;
}

} // namespace

ExitStatus exportPersonality(Progress &progress, const ExportRequest &request,
                             const Arguments &arguments, const Personality &content,
                             const QString &folder)
{
    switch (request.format) {
    case ExportRequest::CompileCommands:
    case ExportRequest::Clangd:
        return writeForClang(progress, request, arguments, content, folder);
    case ExportRequest::Cppcheck:
        return writeForCppcheck(progress, request.output, content);
    case ExportRequest::VsCode:
        return write(progress, request.output,
                     vscodeProperties(content, arguments.isCpp,
                                      QFileInfo(request.personality).completeBaseName()));
    case ExportRequest::Json:
        break;
    }
    return write(progress, request.output, QJsonDocument(personalityFacts(content)).toJson());
}
