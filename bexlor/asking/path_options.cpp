#include "path_options.h"

#include "command_line.h"
#include "macro_options.h"
#include "quoting.h"
#include "text_file.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const int mostResponseFiles = 200; // those that name themselves have no end

/// Options that name what the compiler reads, be it in the same word, there perhaps behind a sign,
/// or in the next. From the manuals of the GNU compilers, clang, cc65, sdcc, Open Watcom, and of
/// the compilers of Arm, IAR, Microsoft, Renesas, TASKING and Texas Instruments.
const QRegularExpression &readingOption()
{
    static const QRegularExpression option(
        u"^((?:-include-pch|-include|--?imacros|-iprefix|-isystem|"
        "-iquote|-idirafter|-isysroot|-iframework|-imsvc|/imsvc|-ivfsoverlay|-cxx-isystem|"
        "[-/]external:I|[-/]winsysroot|[-/]vctoolsdir|[-/]FI|[-/]FU|[-/]AI|-fi(?==)|"
        "-fplugin(?==)|-fmodule-map-file(?==)|--?sysroot|--?sp\\wcs|--?gcc-toolchain|--config|"
        "-resource-dir|--include-directory|--include-file|--include-dir|--include_path|--include|"
        "--asm-include-dir|--bin-include-dir|--lib-path|--cfg-path|--peep-file|--dlib_config|"
        "--?preinclude|--system_include_dir|--option-file|--cmd_file|-?-via|-subcommand|"
        "[-/]I|-[BCFHJLTi]|-f$)[=:]?)(.*)$"_s);
    return option;
}

bool isOption(const QString &word)
{
    return word.startsWith(u'-') || (word.startsWith(u'/') && !QFileInfo::exists(word));
}

/// \a path in \a folder made absolute, if there is such a file or directory.
QString absolutePath(const QString &path, const QDir &folder)
{
    const QFileInfo file(folder, path);
    const bool isRelative = !path.isEmpty() && QDir::isRelativePath(path) && file.exists();
    return isRelative ? file.absoluteFilePath() : path;
}

/// Whether the word \a index of \a words is, or follows, an option about a macro or an output.
bool namesNoInput(const QStringList &words, qsizetype index, const CommandLayout &layout)
{
    const QString &flag = layout.outputFlag;
    const auto macroBefore = macroOptionAt(words, index - 1, layout.defineFlag);
    return (!flag.isEmpty() && (words[index - 1] == flag || words[index].startsWith(flag)))
        || (macroBefore && macroBefore->words == 2)
        || macroOptionAt(words, index, layout.defineFlag).has_value();
}

/// The word \a index of \a words, which is not the first, with what it reads made absolute.
QString absoluteWord(const QStringList &words, qsizetype index, const CommandLayout &layout,
                     const QDir &folder)
{
    const QString &word = words[index], &before = words[index - 1];
    if (namesNoInput(words, index, layout))
        return word;
    const QRegularExpressionMatch option = readingOption().match(word);
    if (option.hasMatch())
        return option.captured(1) + absolutePath(option.captured(2), folder);
    if (word.startsWith(u'@'))
        return u'@' + absolutePath(word.mid(1), folder);
    const QRegularExpressionMatch optionBefore = readingOption().match(before);
    const bool isRead =
        optionBefore.hasMatch() ? optionBefore.captured(2).isEmpty() : !isOption(before);
    return isRead && !isOption(word) ? absolutePath(word, folder) : word;
}

/// The words of the response file \a path. Only the GNU compilers' have apostrophes, and
/// backslashes before spaces.
std::optional<QStringList> wordsOfResponseFile(const QString &path)
{
    const std::optional<QString> text = platform::readTextFile(path);
    if (text && (text->contains(u'\'') || text->contains("\\ "_L1)))
        return platform::shellWords(*text);
    if (!text || !quotingProblem(*text).isEmpty())
        return {};
    return splitCommand(*text);
}

/// The same as below for at most \a left files, from which those that are read are taken away.
QStringList withoutResponseFiles(const QStringList &words, const QDir &folder, int &left)
{
    QStringList expanded;
    for (const QString &word : words) {
        const QString path = folder.filePath(word.mid(1));
        const bool isNamed = word.startsWith(u'@') && left > 0 && QFileInfo(path).isFile();
        left -= isNamed ? 1 : 0;
        const auto inside = isNamed ? wordsOfResponseFile(path) : std::nullopt;
        if (inside)
            expanded << withoutResponseFiles(*inside, folder, left);
        else
            expanded << word;
    }
    return expanded;
}

} // namespace

QStringList withoutResponseFiles(const QStringList &words, const QDir &folder)
{
    int left = mostResponseFiles;
    return withoutResponseFiles(words, folder, left);
}

QStringList withAbsolutePaths(const QStringList &words, const CommandLayout &layout,
                              const QDir &folder)
{
    QStringList made = words.first(std::min<qsizetype>(words.size(), 1));
    for (qsizetype i = 1; i < words.size(); ++i)
        made << absoluteWord(words, i, layout, folder);
    return made;
}
