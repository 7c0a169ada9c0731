#include "probe_options.h"

#include <QRegularExpression>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// What matches a whole word. Kept, since all words of large projects are looked at.
struct WholeWord : QRegularExpression
{
    WholeWord(const QString &pattern) : QRegularExpression(anchoredPattern(pattern)) { }
};

/// Whose options are meant, where several makers have given one name to different things.
enum class Maker { Any, Microsoft, Others };

/// Options, as what matches a whole word, and the words that follow them.
struct OtherPurpose
{
    WholeWord pattern;
    int following;
    Maker maker = Maker::Any;
};

const OtherPurpose otherPurposes[] = {
    // Files beside the object file, named in the next word or in the same. -MT and -MD choose a
    // library for Microsoft's compilers, and with it macros.
    {u"-o|--output|-MF|-MQ|-MJ|-aux-info|-Map|-dumpbase|-dumpbase-ext|-dumpdir|-Xlinker|"
     "-serialize-diagnostics|--serialize-diagnostics|-l|--listing|-m|--mapfile|-Ln|--create-dep|"
     "--create-full-dep|--depend|--depend_target|--predef_macros"_s,
     1},
    {u"-MT"_s, 1, Maker::Others},
    {u"-MT.+|-M|-MM|-M?MD|-MG|-MP|-MV"_s, 0, Maker::Others},
    {u"-o.*[./\\\\:].*|--output(_file)?=.*|-M[FQJ].+|-Wl,.*|-aux-info=.*|-save-temps.*|"
     "--save-temps.*|-save-stats.*|-stats-file=.*|-time=.*|-fdump-.*|-dumpdir.+|-fopt-info.*|"
     "-f(no-)?save-optimization-record.*|-foptimization-record-file=.*|-fprofile-.*|--coverage|"
     "-ftest-coverage|-fcallgraph-info.*|-fstack-usage|-fdiagnostics-add-output=.*|"
     "-ftime-trace.*|-fcrash-diagnostics-dir=.*|-fmodules-cache-path=.*|-fmodule-output.*|"
     "-gsplit-dwarf|--dependencies=.*|--preprocess=.*|--list(_dir)?(=.*)?|--map=.*|--depend=.*|"
     "--depend_dir=.*|--predef_macros=.*|--(asm|list|obj|pp|temp)_directory=.*|"
     "--preproc_(dependency|includes|macros).*"_s,
     0},
    {u"[-/]F[adeimoprR].*|[-/]FR.*|[-/]showIncludes|[-/]sourceDependencies.*|[-/]ifcOutput.*|"
     "[-/]doc.*|[-/]analyze:log.*"_s,
     0, Maker::Microsoft},
    // What makes rejections of remarks.
    {u"-Werror(=.*)?|--Werror|-pedantic-errors|[-/]WX"_s, 0},
    // What makes fewer messages of a rejection, or messages of another form.
    {u"-Wfatal-errors|-fmax-errors=.*|-ferror-limit=.*|-fdiagnostics-.*|-fmessage-length=.*"_s, 0},
    {u"-ferror-limit"_s, 1},
    // Code that is made when programs are linked.
    {u"-flto(=.*)?|-fuse-linker-plugin|-fwhole-program|[-/]GL"_s, 0},
};

// The same of options that a driver hands on to the GNU preprocessor and assembler and to clang's
// own compiler, which name the file in the next word.
const OtherPurpose handedOn[] = {
    {u"-M?MD|--MD|-(dependency|serialize-diagnostic|header-include|opt-record)-file|"
     "-dependency-dot|-split-dwarf-(file|output)|-module-dependency-dir"_s,
     1},
    {u"-a[cdghlmns]*(=.*)?"_s, 0},
};

/// Whether the command of \a words starts a compiler that takes Microsoft's options.
bool takesMicrosoftOptions(const QStringList &words)
{
    static const WholeWord program(u"(.*[-_/\\\\])?i?cl([-_.][0-9.]+)?(\\.exe)?"_s);
    static const QRegularExpression option =
        WholeWord(u"[-/]nologo|/c|[-/]F[adeo].*|/showIncludes"_s);
    return program.match(words.value(0).toLower()).hasMatch() || words.indexOf(option, 1) >= 0;
}

template <std::size_t Size>
int wordsLeftOut(const OtherPurpose (&table)[Size], const QString &word, Maker maker)
{
    for (const OtherPurpose &row : table) {
        const bool isMeant = row.maker == Maker::Any || row.maker == maker;
        if (isMeant && row.pattern.match(word).hasMatch())
            return 1 + row.following;
    }
    return 0;
}

/// How many words, from \a word on, are left out with it.
int wordsLeftOut(const QString &word, const QString &next, Maker maker)
{
    if (word == "-W"_L1 && next == "error"_L1) // cc65's is made of two words
        return 2;
    return wordsLeftOut(otherPurposes, word, maker);
}

/// Those of \a words, which a driver hands on, that are questions.
QStringList withoutHandedOn(const QStringList &words)
{
    QStringList kept;
    for (qsizetype i = 0; i < words.size();) {
        int leftOut = wordsLeftOut(handedOn, words[i], Maker::Any);
        if (leftOut == 0)
            leftOut = wordsLeftOut(otherPurposes, words[i], Maker::Others);
        if (leftOut == 0)
            kept << words[i];
        i += std::max(leftOut, 1);
    }
    return kept;
}

/// Takes what a driver hands on over from \a words to \a kept: "-Wp,-DA,-MD,x", or the words behind
/// "-Xclang", each of which stands behind another one. Returns how many words, from \a index on,
/// that are; 0 when nothing is handed on there.
qsizetype takeHandedOn(const QStringList &words, qsizetype index, QStringList &kept)
{
    static const WholeWord joined(u"-W[ap],.*"_s), apart(u"-X(preprocessor|assembler|clang)"_s);
    const QString &word = words[index];
    if (joined.match(word).hasMatch()) {
        const QStringList rest = withoutHandedOn(word.mid(4).split(u','));
        if (!rest.isEmpty())
            kept << word.first(4) + rest.join(u',');
        return 1;
    }
    if (!apart.match(word).hasMatch())
        return 0;
    QStringList inside;
    qsizetype end = index;
    for (; end + 1 < words.size() && words[end] == word; end += 2)
        inside << words[end + 1];
    for (const QString &rest : withoutHandedOn(inside))
        kept << word << rest;
    return std::max<qsizetype>(end - index, 1);
}

} // namespace

QStringList withoutOtherPurposes(const QStringList &words)
{
    const Maker maker = takesMicrosoftOptions(words) ? Maker::Microsoft : Maker::Others;
    QStringList kept = words.first(std::min<qsizetype>(words.size(), 1));
    for (qsizetype i = 1; i < words.size();) {
        const qsizetype handed = takeHandedOn(words, i, kept);
        const int leftOut = handed > 0 ? 0 : wordsLeftOut(words[i], words.value(i + 1), maker);
        if (handed == 0 && leftOut == 0)
            kept << words[i];
        i += std::max<qsizetype>({handed, leftOut, 1});
    }
    return kept;
}

QStringList withoutOutput(const QStringList &words, const QString &outputFlag)
{
    if (outputFlag.isEmpty())
        return words;
    QStringList kept = words.first(std::min<qsizetype>(words.size(), 1));
    for (qsizetype i = 1; i < words.size(); ++i) {
        if (!words[i].startsWith(outputFlag))
            kept << words[i];
        else if (words[i] == outputFlag)
            ++i;
    }
    return kept;
}

QString optionAgainstObjects(const QStringList &words)
{
    static const QRegularExpression option =
        WholeWord(u"-E|-S|-fsyntax-only|--preprocess-only|[-/]EP|[-/]Zs|/E|/P"_s);
    const qsizetype index = words.indexOf(option, 1);
    return index < 0 ? QString() : words[index];
}
