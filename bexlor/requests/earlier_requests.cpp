#include "again.h"
#include "check_steps.h"
#include "export_steps.h"
#include "generate.h"
#include "printing.h"
#include "requests.h"
#include "workshop.h"

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

} // namespace

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
