#include "generation/generator_arguments.h"

namespace {

const QLatin1Char backslash('\\');

// What the local encoding lacks does not survive in a file name that other programs must open.
QString inLocalEncoding(const QString &text)
{
    return QString::fromLocal8Bit(text.toLocal8Bit());
}

QString quoted(const QString &command)
{
    const QLatin1Char quote('"');
    if (!command.contains(QLatin1Char(' ')) || command.startsWith(quote) || command.endsWith(quote))
        return command;
    return quote + command + quote;
}

QString withDot(const QString &extension)
{
    return extension.isEmpty() || extension.startsWith(QLatin1Char('.'))
             ? extension
             : QLatin1Char('.') + extension;
}

QString withExtension(const QString &name, QLatin1String extension)
{
    return name.endsWith(extension) ? name : name + extension;
}

QStringList option(const char *flag, const QString &value)
{
    return value.isEmpty() ? QStringList() : QStringList {QLatin1String(flag), value};
}

QString inFolder(const char *folder, const QString &file)
{
    if (file.isEmpty() || file.contains(backslash))
        return file;
    return QLatin1String("..\\") + QLatin1String(folder) + backslash + file;
}

} // namespace

QStringList generatorArguments(const Answers &answers)
{
    const CompileCommand &compile = answers.compile;
    QStringList arguments {QStringLiteral("Bexlor.exe"),
                           answers.productCode,
                           answers.crossCompiler ? QStringLiteral("ccmp") : QStringLiteral("cmp"),
                           quoted(compile.command),
                           compile.outputFlag,
                           compile.objectFlag,
                           compile.defineFlag,
                           inLocalEncoding(withDot(answers.objectExtension)),
                           commandOrderString(compile)};
    for (const QString &directory : answers.headerDirectories)
        arguments << QStringLiteral("-i") << directory;
    arguments << QStringLiteral("-op")
              << answers.destination + backslash
                     + inLocalEncoding(withExtension(answers.name, QLatin1String(".p_c")));
    arguments << option("-xd", toCommaList(answers.defines))
              << option("-xs", toCommaList(answers.switches))
              << option("-tpl", inFolder("TemplatePersonalities", answers.templatePersonalityFile))
              << option("-fi", inFolder("ForceIncludeFiles", answers.forceIncludeFile))
              << option("-sub", inFolder("SubstituteHeaders", answers.substituteHeaders));
    if (answers.reduceFileSize)
        arguments << QStringLiteral("-rfs");
    return arguments;
}
