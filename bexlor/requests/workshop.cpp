#include "workshop.h"

#include "console.h"
#include "process_tree.h"

#include <QDir>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

ExitStatus inWorkshop(const Work &work)
{
    Progress progress([](const QString &text) { platform::print(stdout, text); });
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
