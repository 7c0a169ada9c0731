// The generator: asks a compiler about itself and writes its personality.
//
// Progress goes to the standard output, one line for each step, which grows while the step goes on.
// The command attempted, and what it wrote, are left as compile.bat, stdout.log and stderr.log in
// the working directory; "again" enters that of the earlier run. Behind a command word it does
// other things with a personality; help() lists them, ExitStatus says what the program returns.

#include "console.h"
#include "printing.h"
#include "requests.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

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
