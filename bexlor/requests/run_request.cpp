#include "run_request.h"

#include "again.h"
#include "catalogue_answers.h"
#include "check_steps.h"
#include "console.h"
#include "export_steps.h"
#include "generate.h"
#include "printing.h"
#include "workshop.h"

using namespace Qt::StringLiterals;

namespace {

using WorkOnEarlier = std::function<ExitStatus(
    Progress &progress, const EarlierPersonality &earlier, const QString &folder)>;

/// Does \a work with the personality \a path; \a otherwise is the status when that cannot be read.
ExitStatus withPersonality(const QString &path, ExitStatus otherwise, const WorkOnEarlier &work)
{
    const auto read = readEarlierPersonality(path);
    if (const auto *problem = std::get_if<QString>(&read)) {
        printLines(stdout, *problem);
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

// run() does the one thing that it is given.

ExitStatus run(const Arguments &arguments)
{
    return inWorkshop([&arguments](Progress &progress, const QString &folder) {
        return generate(progress, arguments, folder);
    });
}

ExitStatus run(const EntryRequest &request)
{
    const auto answers = answersOfEntry(request.name, request.catalogue, request.personality);
    if (const auto *problem = std::get_if<QString>(&answers)) {
        printLines(stdout, *problem);
        return ExitStatus::Failed;
    }
    return run(std::get<Arguments>(answers));
}

ExitStatus run(const AgainRequest &request)
{
    return withPersonality(
        request.personality, ExitStatus::Failed,
        [&request](Progress &progress, const EarlierPersonality &earlier, const QString &folder) {
            enterFolder(progress, earlier);
            return request.verifiesOnly ? verify(progress, earlier.arguments, earlier.text, folder)
                                        : generate(progress, earlier.arguments, folder);
        });
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
    platform::print(stdout, help() + u'\n');
    return ExitStatus::Done;
}

ExitStatus run(const VersionRequest &)
{
    platform::print(stdout, u"Bexlor " BEXLOR_VERSION "\n"_s);
    return ExitStatus::Done;
}

ExitStatus run(const UsageError &error)
{
    printLines(stderr, error.sentence + u'\n' + usage());
    return ExitStatus::Usage;
}

/// Unlike std::visit() this throws nothing.
template <typename... Wanted>
ExitStatus runOneOf(const std::variant<Wanted...> &request)
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

ExitStatus runRequest(const Request &request)
{
    return runOneOf(request);
}
