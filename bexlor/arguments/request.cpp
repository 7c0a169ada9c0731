#include "request.h"

#include "argument_reader.h"
#include "generator_interface.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QLatin1StringView clangFlag("--clang"), outputFlag("-o");

template <typename Wanted>
Request whole(const ArgumentReader &reader, const Wanted &wanted)
{
    return reader.isComplete() ? Request(wanted) : reader.error();
}

Request parseAgain(ArgumentReader &reader)
{
    AgainRequest request;
    request.personality = reader.wholePath();
    request.verifiesOnly = reader.flag("--verify"_L1);
    return whole(reader, request);
}

Request parseEntry(ArgumentReader &reader)
{
    EntryRequest request {reader.value(), generator::catalogue, {}};
    if (reader.flag("--catalogue"_L1))
        request.catalogue = reader.path();
    reader.expect(generator::personality);
    request.personality = reader.path();
    return whole(reader, request);
}

Request parseCheck(ArgumentReader &reader)
{
    CheckRequest request {reader.wholePath(), {}, u"-E"_s, usualClang, {}};
    do {
        if (reader.flag("--json"_L1))
            request.jsonFile = reader.wholePath();
        else if (reader.flag("--preprocess"_L1))
            request.preprocess = reader.value();
        else if (reader.flag(clangFlag))
            request.clang = reader.program();
        else
            request.sources << reader.wholePath();
    } while (!reader.isAtEnd());
    if (request.sources.isEmpty())
        request.sources << reader.wholePath(); // so that it is the argument told of
    return whole(reader, request);
}

/// What a form of export needs.
const struct FormatWord
{
    QLatin1StringView word;
    ExportRequest::Format format;
    bool needsDatabase = false;
    bool mayHaveDatabase = false;
    bool needsOutput = false;
} formatWords[] = {
    {"compile-commands"_L1, ExportRequest::CompileCommands, true},
    {"clangd"_L1, ExportRequest::Clangd, false, true},
    {"cppcheck"_L1, ExportRequest::Cppcheck, false, false, true},
    {"vscode"_L1, ExportRequest::VsCode},
    {"json"_L1, ExportRequest::Json},
};

Request parseExport(ArgumentReader &reader)
{
    ExportRequest request;
    request.personality = reader.wholePath();
    request.clang = usualClang;
    const FormatWord *format =
        std::find_if(std::begin(formatWords), std::end(formatWords),
                     [&reader](const FormatWord &row) { return reader.flag(row.word); });
    if (format == std::end(formatWords))
        return reader.error();
    request.format = format->format;
    while (!reader.isAtEnd()) {
        if (reader.flag(outputFlag))
            request.output = reader.wholePath();
        else if (reader.flag(clangFlag))
            request.clang = reader.program();
        else if (request.database.isEmpty() && (format->needsDatabase || format->mayHaveDatabase))
            request.database = reader.wholePath();
        else
            return reader.error();
    }
    if (format->needsOutput && request.output.isEmpty())
        return UsageError {u"%1 needs -o FILE, since it is two files."_s.arg(format->word)};
    if (format->needsDatabase && request.database.isEmpty())
        request.database = reader.wholePath(); // so that it is the argument told of
    return whole(reader, request);
}

template <typename Wanted>
Request parseAlone(ArgumentReader &reader)
{
    return whole(reader, Wanted());
}

/// A first argument that is no product, what stands behind it, and what takes that apart.
const struct RequestWord
{
    QLatin1StringView word;
    Request (*parse)(ArgumentReader &reader);
    QLatin1StringView usage;
} requestWords[] = {
    {"again"_L1, &parseAgain, "PERSONALITY [--verify]"_L1},
    {"entry"_L1, &parseEntry, "NAME [--catalogue FILE] -op PERSONALITY"_L1},
    {"check"_L1, &parseCheck,
     "PERSONALITY FILE|DATABASE.json... [--preprocess FLAG] [--clang CLANG] [--json FILE]"_L1},
    {"export"_L1, &parseExport,
     "PERSONALITY compile-commands DATABASE.json|clangd [DATABASE.json]|cppcheck|vscode|json "
     "[-o FILE] [--clang CLANG]"_L1},
    {"--help"_L1, &parseAlone<HelpRequest>, {}},
    {"--version"_L1, &parseAlone<VersionRequest>, {}},
};

} // namespace

QString usage()
{
    QString lines =
        u"usage: Bexlor.exe kov|kovpp cmp|ccmp COMMAND OUTPUT-FLAG OBJECT-FLAG DEFINE-FLAG "
        "OBJECT-EXTENSION ORDER {-i DIRECTORY} -op PERSONALITY [-xd DEFINES] [-xs SWITCHES] "
        "[-tpl FILE] [-fi FILE] [-sub DIRECTORY] [-rfs] [-check]"_s;
    for (const RequestWord &row : requestWords)
        lines += "\n       "_L1 + u"Bexlor.exe %1 %2"_s.arg(row.word, row.usage).trimmed();
    return lines;
}

QString help()
{
    return u"Asks a compiler about itself and writes its personality: a file of options, by which "
           "clang\nsees code as that compiler does.\n\n"_s
         + usage() + QLatin1StringView(R"(

  kov, kovpp        the code is C, or C++
  cmp, ccmp         the compiler's programs run on this machine, or on another
  COMMAND           starts the compiler, with the options that it always gets
  ...-FLAG          each may be empty, and so may the extension
  ORDER             of a compile command: %c the command, %o the output flag, %e the
                    output, %d each define behind its flag, %j the object flag, %s the
                    source; for example "%c %o %e %d%j %s "
  -i DIRECTORY      that holds the compiler's headers or programs
  -op PERSONALITY   the file to write
  -xd DEFINES       NAME or NAME=VALUE, separated by commas; where there is no define flag,
                    those that bring their own, such as -DNAME
  -xs SWITCHES      added to the command, separated by commas
  -tpl FILE         of options that override what is learned
  -fi FILE          that is included before every source
  -sub DIRECTORY    of headers that take the place of the compiler's
  -rfs              for a compiler with small buffers
  -check            writes PERSONALITY's types as assertions, into a source beside it that
                    is called .check.c or .check.cpp, and has the compiler and clang try it

again generates PERSONALITY once more, from the answers that it holds. With --verify it
writes nothing, and lists what has changed since.

entry generates the personality of the compiler NAME of the catalogue, compilers.txt.

check tells whether clang, with PERSONALITY, accepts what the compiler accepts and sees the
same code. DATABASE.json is a compilation database; FLAG makes the compiler preprocess, as
-E does.

export writes PERSONALITY in the form that another program reads: a compilation database for
clang's tools, clangd's configuration, a platform and a header for cppcheck, properties for
VS Code, or all facts as JSON.

The exit status is 0 when it is done; 1 when a step failed or clang rejects what the compiler
accepts; 2 for a wrong command line; 3 when a check or an export lacks something that it
needs, the compiler accepts nothing that was to be checked, or what was to be verified has
changed.)");
}

Request parseRequest(const QStringList &list)
{
    ArgumentReader reader(list);
    for (const RequestWord &row : requestWords) {
        if (reader.flag(row.word))
            return row.parse(reader);
    }
    return std::visit([](const auto &parsed) { return Request(parsed); }, parseArguments(list));
}
