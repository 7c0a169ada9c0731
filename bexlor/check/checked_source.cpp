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

/// An option that decides which code is seen.
struct ReadingOption
{
    QLatin1StringView flag;
    bool takesWord; ///< what belongs to it may stand in the next word
    bool isJoined;  ///< or in the same
};

// The GNU compilers' manual, "Preprocessor Options", "Directory Options" and "C Dialect Options".
const ReadingOption readingOptions[] = {
    {"-I"_L1, true, true},         {"-isystem"_L1, true, true}, {"-iquote"_L1, true, true},
    {"-idirafter"_L1, true, true}, {"-D"_L1, true, true},       {"-U"_L1, true, true},
    {"-x"_L1, true, true},         {"-std="_L1, false, true},   {"-ansi"_L1, false, false},
};

/// How many of \a words, from \a index on, are an option of the table: 0, 1 or 2.
qsizetype wordsOfOption(const QStringList &words, qsizetype index)
{
    const QString &word = words[index];
    for (const ReadingOption &option : readingOptions) {
        if (word == option.flag)
            return option.takesWord && index + 1 < words.size() ? 2 : 1;
        if (option.isJoined && word.startsWith(option.flag))
            return 1;
    }
    return 0;
}

/// How many words name the output.
qsizetype wordsOfOutput(const QStringList &words, qsizetype index, const QString &flag)
{
    if (flag.isEmpty() || index == 0 || !words[index].startsWith(flag))
        return 0;
    return words[index] == flag && index + 1 < words.size() ? 2 : 1;
}

/// Takes the words of a command over into \a source, but for those that name its output.
void takeApart(const QStringList &words, const QString &outputFlag, CheckedSource &source)
{
    for (qsizetype i = 0, count = 0; i < words.size(); i += count) {
        if (const auto included = i > 0 ? includedFileAt(words, i) : std::nullopt) {
            source.command << included->words;
            source.clangOptions << included->option << included->file;
            count = included->words.size();
            continue;
        }
        const qsizetype ofOption = wordsOfOption(words, i);
        const qsizetype ofOutput = ofOption == 0 ? wordsOfOutput(words, i, outputFlag) : 0;
        count = std::max<qsizetype>({1, ofOption, ofOutput});
        if (ofOutput == 0)
            source.command << words.mid(i, count);
        if (ofOption != 0)
            source.clangOptions << words.mid(i, count);
    }
}

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
    QStringList words {layout.outputFlag + source.output};
    if (layout.order.contains("%o "_L1))
        words = {layout.outputFlag, source.output};
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
                            const QString &folder, qsizetype number)
{
    const QString path = entry.absoluteFile();
    CheckedSource source {entry.file, entry.directory, {}, {}, {}, path, path};
    QStringList words = withoutOtherPurposes(withoutResponseFiles(entry.words, entry.directory));
    if (words.isEmpty())
        words = entry.words; // a response file in which there is nothing
    if (QDir::fromNativeSeparators(words.first()).contains(u'/'))
        words.first() = QDir(entry.directory).absoluteFilePath(words.first());
    const CommandLayout &layout = compiler.layout;
    const QString own = numbered(folder, number);
    QString file = sourceWord(words, entry);
    const bool isNamed = compiler.namesObjects && !layout.outputFlag.isEmpty();
    if (!isNamed) {
        source.directory = own;
        source.compiled = includingFile(path, own);
        words = withAbsolutePaths(words, layout, entry.directory);
        std::replace(words.begin(), words.end(), sourceWord(words, entry), source.compiled);
        file = path;
    }
    takeApart(words, layout.outputFlag, source);
    source.clangOptions << file;
    if (isNamed) {
        source.output = own + layout.objectExtension;
        nameOutput(layout, file, source);
    }
    return source;
}
