// The generator: asks a compiler about itself and writes its personality.
//
// Progress goes to the standard output, one line for each step, which grows while the step goes on.
// The command attempted, and what it wrote, are left as compile.bat, stdout.log and stderr.log in
// the working directory. Behind a command word it does other things with a personality, most of
// them in the folder that this was generated in; help() lists them, ExitStatus says what the
// program returns.

#include "run_request.h"

#include <QCoreApplication>

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    return int(runRequest(parseRequest(application.arguments().mid(1))));
}
