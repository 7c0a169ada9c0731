#include "probe_options.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

/// What matches a whole word. Kept, since all words of large projects are looked at.
struct WholeWord : QRegularExpression
{
    WholeWord(const QString &pattern) : QRegularExpression(anchoredPattern(pattern)) { }
};

/// Options, as what matches a whole word, and the words that follow them.
const struct
{
    WholeWord pattern;
    int following;
} otherPurposes[] = {
    // Files beside the object file, named in the next word or in the same.
    {u"-o|--output|-MF|-MT|-MQ|-MJ|-aux-info|-Map|-dumpbase|-dumpbase-ext|-dumpdir|-Xlinker|"
     "-serialize-diagnostics|--serialize-diagnostics|-l|--listing|-m|--mapfile|-Ln|--create-dep|"
     "--create-full-dep|--depend|--depend_target"_s,
     1},
    {u"-o.*[./\\\\].*|--output=.*|-M[FTQJ].+|-M|-MM|-M?MD|-MG|-MP|-MV|-Wl,.*|-Wp,-M.*|-Wa,-a.*|"
     "-aux-info=.*|-save-temps.*|--save-temps.*|-fdump-.*|-dumpdir.+|-fopt-info.*|"
     "-f(no-)?save-optimization-record.*|-foptimization-record-file=.*|-fprofile-.*|--coverage|"
     "-ftest-coverage|-fcallgraph-info.*|-fstack-usage|-fdiagnostics-add-output=.*|"
     "-gsplit-dwarf|[-/]F[adeimoprR].*|[-/]FR.*|[-/]showIncludes|[-/]sourceDependencies.*|"
     "--dependencies=.*|--preprocess=.*|--list(_dir)?(=.*)?|--map=.*|--depend=.*|"
     "--depend_dir=.*"_s,
     0},
    // What makes rejections of remarks.
    {u"-Werror(=.*)?|--Werror|-pedantic-errors|[-/]WX"_s, 0},
    // What makes fewer messages of a rejection, or messages of another form.
    {u"-Wfatal-errors|-fmax-errors=.*|-ferror-limit=.*|-fdiagnostics-.*|-fmessage-length=.*"_s, 0},
    {u"-ferror-limit"_s, 1},
    // Code that is made when programs are linked.
    {u"-flto(=.*)?|-fuse-linker-plugin|-fwhole-program|[-/]GL"_s, 0},
};

/// How many words, from \a word on, are left out with it.
int wordsLeftOut(const QString &word, const QString &next)
{
    if (word == "-W"_L1 && next == "error"_L1) // cc65's is made of two words
        return 2;
    for (const auto &row : otherPurposes) {
        if (row.pattern.match(word).hasMatch())
            return 1 + row.following;
    }
    return 0;
}

} // namespace

QStringList withoutOtherPurposes(const QStringList &words)
{
    QStringList kept = words.first(std::min<qsizetype>(words.size(), 1));
    for (qsizetype i = 1; i < words.size();) {
        const int leftOut = wordsLeftOut(words[i], words.value(i + 1));
        if (leftOut == 0)
            kept << words[i];
        i += std::max(leftOut, 1);
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
