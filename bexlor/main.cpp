// The generator: asks a compiler about itself and writes its personality.
//
// Progress goes to the standard output, one line for each step, which grows while the step goes on.
// The command attempted, and what it wrote, are left as compile.bat, stdout.log and stderr.log in
// the working directory; "again" enters that of the earlier run. Behind a command word it does
// other things with a personality; help() lists them, ExitStatus says what the program returns.

#include "again.h"
#include "catalogue_answers.h"
#include "check_steps.h"
#include "console.h"
#include "export_steps.h"
#include "make_personality.h"
#include "personality_steps.h"
#include "probe_steps.h"
#include "process_tree.h"
#include "request.h"
#include "visible_text.h"

#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>
#include <functional>

using namespace Qt::StringLiterals;

namespace {

void print(const QString &text)
{
    platform::print(stdout, text);
}

/// Prints \a lines, which may hold what anybody has written.
void printOn(std::FILE *stream, const QString &lines)
{
    for (const QString &line : lines.split(u'\n'))
        platform::print(stream, printableText(line) + u'\n');
}

ExitStatus generate(Progress &progress, const Arguments &arguments, const QString &folder)
{
    removeLogs();
    const std::optional<Arguments> usable = checkArguments(progress, arguments);
    if (!usable || !checkDestination(progress, usable->personality))
        return ExitStatus::Failed;
    const std::optional<MadePersonality> made = makePersonality(progress, *usable, folder, u"."_s);
    if (!made || !writePersonality(progress, arguments.personality, made->text))
        return ExitStatus::Failed;
    checkHeaders(progress, made->compiler, arguments.personality, made->text, folder);
    return arguments.checksTypes
             ? checkTypes(progress, made->compiler, arguments.personality, made->text, folder)
             : ExitStatus::Done;
}

/// Says what has changed since a personality was written.
ExitStatus verify(Progress &progress, const EarlierPersonality &earlier, const QString &folder)
{
    const std::optional<Arguments> usable = checkArguments(progress, earlier.arguments);
    const std::optional<MadePersonality> made =
        usable ? makePersonality(progress, *usable, folder, folder) : std::nullopt;
    if (!made)
        return ExitStatus::Failed;
    const QStringList changes = changesBetween(earlier.text, made->text);
    for (const QString &change : changes)
        progress.say(change);
    if (!changes.isEmpty())
        return ExitStatus::Missing;
    progress.say(u"Nothing has changed."_s);
    return ExitStatus::Done;
}

using Work = std::function<ExitStatus(Progress &progress, const QString &folder)>;

/// Does \a work, which is given a folder for temporary files.
ExitStatus inWorkshop(const Work &work)
{
    Progress progress(&print);
    // Not after the program's name: sdcc breaks down at a path with ".exe" in it.
    QTemporaryDir workshop(QDir::temp().filePath(u"Bexlor-XXXXXX"_s));
    if (!workshop.isValid()) {
        progress.say(u"No temporary folder can be made: %1"_s.arg(workshop.errorString()));
        return ExitStatus::Failed;
    }
    const platform::ProgramGuard guard(workshop.path());
    const ProgressClock clock(progress);
    return work(progress, workshop.path());
}

/// The same with the personality \a path; \a otherwise is the status when that cannot be read.
ExitStatus withPersonality(
    const QString &path, ExitStatus otherwise,
    const std::function<ExitStatus(Progress &progress, const EarlierPersonality &earlier,
                                   const QString &folder)> &work)
{
    const auto read = readEarlierPersonality(path);
    if (const auto *problem = std::get_if<QString>(&read)) {
        printOn(stdout, *problem);
        return otherwise;
    }
    return inWorkshop([&](Progress &progress, const QString &folder) {
        return work(progress, std::get<EarlierPersonality>(read), folder);
    });
}

/// Goes to the folder that \a earlier was generated in.
void enterFolder(Progress &progress, const EarlierPersonality &earlier)
{
    if (const std::optional<QString> remark = enterFolderOf(earlier))
        progress.say(*remark);
}

// run() does what a command line asks for.

ExitStatus run(const Arguments &arguments)
{
    return inWorkshop([&arguments](Progress &progress, const QString &folder) {
        return generate(progress, arguments, folder);
    });
}

ExitStatus run(const AgainRequest &request)
{
    return withPersonality(
        request.personality, ExitStatus::Failed,
        [&request](Progress &progress, const EarlierPersonality &earlier, const QString &folder) {
            enterFolder(progress, earlier);
            return request.verifiesOnly ? verify(progress, earlier, folder)
                                        : generate(progress, earlier.arguments, folder);
        });
}

ExitStatus run(const EntryRequest &request)
{
    const auto answers = answersOfEntry(request.name, request.catalogue, request.personality);
    if (const auto *problem = std::get_if<QString>(&answers)) {
        printOn(stdout, *problem);
        return ExitStatus::Failed;
    }
    return run(std::get<Arguments>(answers));
}

ExitStatus run(const CheckRequest &request)
{
    return withPersonality(
        request.personality, ExitStatus::Missing,
        [&request](Progress &progress, const EarlierPersonality &earlier, const QString &folder) {
            enterFolder(progress, earlier);
            return checkWithPersonality(progress, request, earlier.arguments, earlier.content,
                                        folder);
        });
}

ExitStatus run(const ExportRequest &request)
{
    return withPersonality(
        request.personality, ExitStatus::Missing,
        [&request](Progress &progress, const EarlierPersonality &earlier, const QString &folder) {
            // Nothing is said, since the export may go to the standard output.
            enterFolderOf(earlier);
            return exportPersonality(progress, request, earlier.arguments, earlier.content, folder);
        });
}

ExitStatus run(const HelpRequest &)
{
    print(help() + u'\n');
    return ExitStatus::Done;
}

ExitStatus run(const VersionRequest &)
{
    print(u"Bexlor " BEXLOR_VERSION "\n"_s);
    return ExitStatus::Done;
}

ExitStatus run(const UsageError &error)
{
    printOn(stderr, error.sentence + u'\n' + usage());
    return ExitStatus::Usage;
}

/// Does the one of several things that \a request asks for. Unlike std::visit() it throws nothing.
template <typename... Wanted>
ExitStatus runRequest(const std::variant<Wanted...> &request)
{
    ExitStatus status = ExitStatus::Usage;
    const auto runIf = [&status](const auto *wanted) {
        if (wanted)
            status = run(*wanted);
    };
    (runIf(std::get_if<Wanted>(&request)), ...);
    return status;
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    return int(runRequest(parseRequest(application.arguments().mid(1))));
}
