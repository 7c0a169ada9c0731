#include "arguments.h"

#include "argument_reader.h"
#include "comma_list.h"
#include "generator_interface.h"
#include "quoting.h"

#include <QDir>

namespace {

/// The defines of a comma list. What stands in quotation marks is a literal of the language, so
/// that these stay; marks as a command needs them are taken, too.
QStringList definesIn(const QString &list)
{
    QStringList defines;
    for (const QString &item : splitCommaList(list)) {
        defines << QString();
        for (const QuotedPiece &piece : quotedPieces(item))
            defines.last() +=
                piece.kind == QuotedPiece::Marked ? withoutMarks(piece.text) : piece.text;
    }
    return defines;
}

} // namespace

bool bringsOwnFlag(const QString &define)
{
    return define.startsWith(u'-') || define.startsWith(u'/');
}

std::variant<UsageError, Arguments> parseArguments(const QStringList &list)
{
    ArgumentReader reader(list);
    Arguments arguments;
    arguments.isCpp = reader.either(generator::productC, generator::productCpp);
    arguments.crossCompiler = reader.either(generator::nativeCompiler, generator::crossCompiler);
    arguments.command = reader.value();
    arguments.layout.outputFlag = reader.value();
    arguments.layout.objectFlag = reader.value();
    arguments.layout.defineFlag = reader.value();
    arguments.layout.objectExtension = reader.value();
    arguments.order = reader.value();
    arguments.layout.order = parseOrderString(arguments.order);
    while (reader.flag(generator::headerDirectory))
        arguments.headerDirectories << reader.path();
    reader.expect(generator::personality);
    arguments.personality = reader.path();
    const qsizetype pathIndex = reader.taken() - 1;
    if (reader.flag(generator::defines))
        arguments.defines = definesIn(reader.value());
    if (reader.flag(generator::switches))
        arguments.switches = splitCommaList(reader.value());
    if (reader.flag(generator::templateFile))
        arguments.templateFile = reader.path();
    if (reader.flag(generator::forceIncludeFile))
        arguments.forceIncludeFile = reader.path();
    if (reader.flag(generator::substituteHeaders))
        arguments.substituteHeaders = reader.path();
    arguments.reduceFileSize = reader.flag(generator::reduceFileSize);
    arguments.checksTypes = reader.flag(generator::checkTypes);
    if (!reader.isComplete())
        return reader.error();
    arguments.answers = {QDir::currentPath(), list};
    arguments.answers.arguments[pathIndex].clear();
    return arguments;
}
