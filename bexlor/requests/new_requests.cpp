#include "catalogue_answers.h"
#include "generate.h"
#include "printing.h"
#include "requests.h"
#include "workshop.h"

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
