#include "request.h"

#include "argument_reader.h"

using namespace Qt::StringLiterals;

namespace {

Request parseAgain(ArgumentReader &reader)
{
    AgainRequest request;
    request.personality = reader.path();
    request.verifiesOnly = reader.flag("--verify"_L1);
    return reader.isComplete() ? Request(request) : reader.error();
}

Request parseCheck(ArgumentReader &reader)
{
    CheckRequest request;
    request.personality = reader.path();
    request.preprocess = u"-E"_s;
    do {
        if (reader.flag("--json"_L1))
            request.jsonFile = reader.path();
        else if (reader.flag("--preprocess"_L1))
            request.preprocess = reader.value();
        else
            request.sources << reader.path();
    } while (!reader.isAtEnd());
    if (request.sources.isEmpty())
        request.sources << reader.path(); // which is missing
    return reader.isComplete() ? Request(request) : reader.error();
}

template <typename Wanted>
Request parseAlone(ArgumentReader &reader)
{
    return reader.isComplete() ? Request(Wanted()) : reader.error();
}

/// A first argument that is no product, and what takes apart what stands behind it.
const struct CommandWord
{
    QLatin1StringView word;
    Request (*parse)(ArgumentReader &reader);
} commandWords[] = {
    {"again"_L1, &parseAgain},
    {"check"_L1, &parseCheck},
    {"--help"_L1, &parseAlone<HelpRequest>},
    {"--version"_L1, &parseAlone<VersionRequest>},
};

} // namespace

bool CheckRequest::isDatabase() const
{
    return sources.size() == 1 && sources.first().endsWith(".json"_L1);
}

QString usage()
{
    return u"usage: Bexlor.exe kov|kovpp cmp|ccmp COMMAND OUTPUT-FLAG OBJECT-FLAG DEFINE-FLAG "
           "OBJECT-EXTENSION ORDER {-i DIRECTORY} -op PERSONALITY [-xd DEFINES] [-xs SWITCHES] "
           "[-tpl FILE] [-fi FILE] [-sub DIRECTORY] [-rfs]\n"
           "       Bexlor.exe again PERSONALITY [--verify]\n"
           "       Bexlor.exe check PERSONALITY FILE...|DATABASE.json [--preprocess FLAG] "
           "[--json FILE]\n"
           "       Bexlor.exe --help|--version"_s;
}

QString help()
{
    return u"Asks a compiler about itself and writes its personality: a file of options, by which "
           "clang\nsees code as that compiler does.\n\n"_s
         + usage()
         + u"\n\n"
           "  kov, kovpp        the code is C, or C++\n"
           "  cmp, ccmp         the compiler's programs run on this machine, or on another\n"
           "  COMMAND           starts the compiler, with the options that it always gets\n"
           "  ...-FLAG          each may be empty, and so may the extension\n"
           "  ORDER             of a compile command: %c the command, %o the output flag, %e the\n"
           "                    output, %d each define behind its flag, %j the object flag, %s "
           "the\n"
           "                    source; for example \"%c %o %e %d%j %s \"\n"
           "  -i DIRECTORY      that holds the compiler's headers or programs\n"
           "  -op PERSONALITY   the file to write\n"
           "  -xd DEFINES       NAME or NAME=VALUE, separated by commas\n"
           "  -xs SWITCHES      added to the command, separated by commas\n"
           "  -tpl FILE         of options that come first\n"
           "  -fi FILE          that is included before every source\n"
           "  -sub DIRECTORY    of headers that take the place of the compiler's\n"
           "  -rfs              for a compiler with small buffers\n\n"
           "again generates PERSONALITY once more, from the answers that it holds. With --verify "
           "it "
           "writes\nnothing, and lists what has changed since.\n\n"
           "check tells whether clang, with PERSONALITY, accepts what the compiler accepts and "
           "sees "
           "the same\ncode. DATABASE.json is a compilation database; FLAG makes the compiler "
           "preprocess, as -E does."_s;
}

Request parseRequest(const QStringList &list)
{
    ArgumentReader reader(list);
    for (const CommandWord &row : commandWords) {
        if (reader.flag(row.word))
            return row.parse(reader);
    }
    return std::visit([](const auto &parsed) { return Request(parsed); }, parseArguments(list));
}
