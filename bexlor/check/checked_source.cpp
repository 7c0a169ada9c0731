#include "checked_source.h"

#include "file_system.h"
#include "path_options.h"
#include "probe_options.h"
#include "text_file.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// The word of a command that names the source, since what it is called may be part of the code.
QString sourceWord(const QStringList &words, const CompileCommand &entry)
{
    const auto found = std::find_if(words.begin() + 1, words.end(), [&entry](const QString &word) {
        return entry.isNamedBy(word);
    });
    return found == words.end() ? entry.file : *found;
}

QString numbered(const QString &folder, qsizetype number)
{
    return folder + u"/%1"_s.arg(number);
}

/// \a options of clang with the relative paths in \a directory made absolute.
QStringList pathsMadeAbsolute(const QStringList &options, const QString &directory)
{
    const QStringList command = QStringList {u"clang"_s} + options;
    return withAbsolutePaths(command, {}, directory).sliced(1);
}

/// A file in the new folder \a folder that includes \a path and is called like it. The one who
/// compiles it finds out when it could not be written.
QString includingFile(const QString &path, const QString &folder)
{
    const QString file = folder + u'/' + QFileInfo(path).fileName();
    QDir().mkdir(folder);
    platform::writeScratchFile(file,
                               "#include \"" + platform::asciiPath(path).toLocal8Bit() + "\"\n");
    return file;
}

/// Adds what names the output of \a source to its command, before \a file, which a compiler may
/// compile as soon as it comes to it.
void nameOutput(const CommandLayout &layout, const QString &file, CheckedSource &source)
{
    const OrderToken *flag = findPart(layout.order, CommandPart::OutputFlag);
    const bool isApart = flag && flag->spaceFollows;
    const QStringList words = isApart ? QStringList {layout.outputFlag, source.output}
                                      : QStringList {layout.outputFlag + source.output};
    const qsizetype last = source.command.lastIndexOf(file);
    const qsizetype ofFile = last < 0 ? source.command.size() : last;
    // Behind this word there are files only.
    const qsizetype files = source.command.indexOf(u"--"_s);
    const qsizetype place = files < 0 ? ofFile : std::min(files, ofFile);
    source.command = source.command.first(place) + words + source.command.sliced(place);
}

} // namespace

CheckedSource sourceOfFile(const Compiler &compiler, const QString &file, const QString &folder,
                           qsizetype number)
{
    const Compiler whole = withIncludedFiles(compiler);
    const QString own = numbered(folder, number);
    if (namesOutput(compiler)) {
        const QString output = own + compiler.layout.objectExtension;
        return {file, folder, probeCommand(whole, file, output), output, {file}, file, file};
    }
    const QString compiled = includingFile(file, own);
    return {file, own, probeCommand(whole, compiled, {}), {}, {file}, file, compiled};
}

CheckedSource sourceOfEntry(const CompileCommand &entry, const Compiler &compiler,
                            const QStringList &clangOptions, const QString &folder,
                            qsizetype number)
{
    const QString path = entry.absoluteFile();
    CheckedSource source {entry.file, entry.directory, {}, {}, clangOptions, path, path};
    QStringList words = entry.compilingWords();
    const CommandLayout &layout = compiler.layout;
    const QString own = numbered(folder, number);
    QString file = sourceWord(words, entry);
    const bool isNamed = compiler.namesObjects && !layout.outputFlag.isEmpty();
    if (!isNamed) {
        source.directory = own;
        source.compiled = includingFile(path, own);
        words = withAbsolutePaths(words, layout, entry.directory);
        source.clangOptions = pathsMadeAbsolute(clangOptions, entry.directory);
        std::replace(words.begin(), words.end(), sourceWord(words, entry), source.compiled);
        file = path;
    }
    source.command = withoutOutput(words, layout.outputFlag);
    source.clangOptions << file;
    if (isNamed) {
        source.output = own + layout.objectExtension;
        nameOutput(layout, file, source);
    }
    return source;
}
