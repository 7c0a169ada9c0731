#include "clang.h"

#include <QRegularExpression>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// Options of compilers, by what matches the whole word, and what clang takes for them, in which \1
/// is what the first parentheses have matched; empty where it has nothing like them.
struct PassedOption
{
    QRegularExpression pattern;
    QString forClang;
    bool isForCOnly;

    PassedOption(const QString &words, const QString &taken, bool forCOnly = false)
        : pattern(QRegularExpression::anchoredPattern(words)), forClang(taken), isForCOnly(forCOnly)
    { }
};

// Names: the manuals of the GNU compilers ("C Dialect Options", "C++ Dialect Options", "Code Gen
// Options" and those of the processors), of sdcc, of Arm's compiler 5 and of Microsoft's, and
// clang's "Command Line Argument Reference". What other options change shows in the predefined
// macros, or has been measured.
const PassedOption passedOptionTable[] = {
    {u"(-f(no-)?(ms-extensions|asm|builtin(-\\w+)?|lax-vector-conversions|pack-struct|wrapv|trapv|"
     "strict-overflow|delete-null-pointer-checks|access-control|operator-names|gnu-keywords|"
     "dollars-in-identifiers|openmp|blocks|declspec|borland-extensions|asm-blocks|"
     "ms-compatibility|delayed-template-parsing))"_s,
     u"\\1"_s},
    {u"(-ffreestanding|-fhosted|-fpack-struct=\\d+|-f(template|constexpr)-depth=\\d+|"
     "-W(no-)?write-strings|-m(no-)?ms-bitfields|-malign-double|-mcmse|-mzvector)"_s,
     u"\\1"_s},
    {u"(-f(no-)?gnu89-inline)"_s, u"\\1"_s, true},
    {u"-trigraphs|--trigraphs|[-/]Zc:trigraphs"_s, u"-ftrigraphs"_s},
    {u"--no_trigraphs|[-/]Zc:trigraphs-"_s, u"-fno-trigraphs"_s},
    {u"-fplan9-extensions"_s, u"-fms-extensions"_s},
    {u"-fsingle-precision-constant"_s, u"-cl-single-precision-constant"_s},
    {u"-fconstexpr-ops-limit=(\\d+)"_s, u"-fconstexpr-steps=\\1"_s},
    {u"-ftemplate-depth-(\\d+)"_s, u"-ftemplate-depth=\\1"_s},
    {u"--fdollars-in-identifiers|--dollar"_s, u"-fdollars-in-identifiers"_s},
    {u"--no_dollar"_s, u"-fno-dollars-in-identifiers"_s},
    {u"[-/]Zp"_s, u"-fpack-struct=1"_s},
    {u"[-/]Zp(\\d+)"_s, u"-fpack-struct=\\1"_s},
    {u"[-/]Zc:wchar_t-"_s, u"-Xclang -fno-wchar"_s},
    {u"[-/]Zc:twoPhase-"_s, u"-fdelayed-template-parsing"_s},
    {u"[-/]permissive-"_s, u"-fno-delayed-template-parsing"_s},
    {u"[-/]Za"_s, u"-fno-ms-extensions"_s},
    {u"/J"_s, u"-funsigned-char"_s},
    {u"/openmp(:.+)?"_s, u"-fopenmp"_s},
    // Clang takes -fpermissive without obeying it, and reads and writes UTF-8 alone.
    {u"-fcond-mismatch|-fgnu-tm|-fgimple|-fsso-struct=.+|-fpermissive|-fconcepts-ts|"
     "-fimplicit-constexpr|-fno-ext-numeric-literals|"
     "-fnew-ttp-matching|-fno-for-scope|-traditional(-cpp)?|-f(unsigned|no-signed)-bitfields|"
     "--unsigned_bitfields|-mstructure-size-boundary=.+|[-/]vm[gbsmv]|/G[rvz]|"
     "(-f(input|exec|wide-exec)-charset=|/(source|execution)-charset:)(?!(?i)utf-?(8|32)).+"_s,
     QString()},
};

const PassedOption *rowOf(const QString &word)
{
    const auto *row = std::find_if(
        std::begin(passedOptionTable), std::end(passedOptionTable),
        [&word](const PassedOption &option) { return option.pattern.match(word).hasMatch(); });
    return row == std::end(passedOptionTable) ? nullptr : row;
}

} // namespace

PassedOptions passedOptions(const QStringList &command, bool isCpp)
{
    PassedOptions options;
    for (QString word : command.mid(1)) {
        const PassedOption *row = rowOf(word);
        if (!row || (isCpp && row->isForCOnly))
            continue;
        if (row->forClang.isEmpty())
            options.lacking << word;
        else
            options.forClang << word.replace(row->pattern, row->forClang).toUtf8();
    }
    options.lacking.removeDuplicates();
    return options;
}
