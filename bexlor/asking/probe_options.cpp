#include "probe_options.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// Options behind which a word of its own names a file, and the GNU ones that mean something else
// to Microsoft's compiler.
const QStringList withNextWord {
    u"-o"_s,
    u"--output"_s,
    u"-aux-info"_s,
    u"-dumpbase"_s,
    u"-dumpbase-ext"_s,
    u"-dumpdir"_s,
    u"-auxbase"_s,
    u"-auxbase-strip"_s,
    u"-Map"_s,
    u"--Map"_s,
    u"--serialize-diagnostics"_s,
    u"-serialize-diagnostics"_s,
    u"-index-store-path"_s,
    u"--create-dep"_s,
    u"--create-full-dep"_s,
    u"--mapfile"_s,
    u"--listing"_s,
};
const QStringList dependenciesWithNextWord {u"-MF"_s, u"-MT"_s, u"-MQ"_s, u"-MJ"_s};
const char *const dependencies = "^-(M(F|T|Q|J).+|MM?D|MP|MG)$";

// The same in one word, and options that make files or change messages without naming any.
const char *const wholeWords =
    "^("
    "--output=.*|-aux-info=.*|-dump(base|base-ext|dir)=.*|-fdump-.*|--?save-temps(=.*)?"
    "|--(write-)?(user-)?dependencies.*|--?coverage|-ftest-coverage"
    "|-fprofile-(arcs|generate|dir|instr-generate|note).*|-fstack-usage|-fcallgraph-info(=.*)?"
    "|-fopt-info.*|-fsave-optimization-record.*|-foptimization-record-.*|-ftime-trace.*"
    "|-gsplit-dwarf|-fmodule-output.*|-fmodules-cache-path=.*|--?Map=.*"
    "|--serialize-diagnostics=.*"
    "|-Wl,(.*,)?--?(Map|M|o|out-implib|dependency-file)\\b.*|-Wp,-(M|d|o).*"
    "|-Wa,(.*,)?-(a|o|-MD|-listing).*"
    "|-flto(=.*)?|-fuse-linker-plugin|-fwhole-program"
    "|-Wfatal-errors|-fmax-errors=.*|-ferror-limit=.*|-fdiagnostics-.*|-f(no-)?color-diagnostics"
    ")$";

// Microsoft's options for outputs, in which a file follows. On other systems the word may as well
// be a path.
const char *const slashedOption = "^/(F[AadeimoprRx]|doc|sourceDependencies|ifcOutput).*$";

const char *const againstCompiling = "^(-E|--preprocess|-fsyntax-only|-M|-MM|/E|/EP|/P|/Zs)$";

QRegularExpression expression(const char *pattern)
{
    return QRegularExpression(QString::fromLatin1(pattern));
}

/// Finds the output options of one compiler.
class OutputOptions
{
public:
    explicit OutputOptions(const QString &program, const CommandLayout &layout)
        : m_flag(layout.outputFlag)
    {
        static const QRegularExpression microsofts = expression("(^|[\\\\/])(clang-)?cl(\\.exe)?$");
        m_isMicrosofts = microsofts.match(program).hasMatch() || m_flag.startsWith("/F"_L1);
    }

    bool contain(const QString &word) const
    {
        static const QRegularExpression whole = expression(wholeWords);
        static const QRegularExpression slashed = expression(slashedOption);
        static const QRegularExpression gnus = expression(dependencies);
        return whole.match(word).hasMatch() || (m_flag.size() > 1 && word.startsWith(m_flag))
            || (!m_isMicrosofts && gnus.match(word).hasMatch())
            || (slashed.match(word).hasMatch() && !QFileInfo::exists(word));
    }

    /// Whether the word behind \a word belongs to it and names a file.
    bool takeNextWord(const QString &word) const
    {
        return withNextWord.contains(word) || (m_flag.size() > 1 && word == m_flag)
            || (!m_isMicrosofts && dependenciesWithNextWord.contains(word));
    }

private:
    const QString m_flag;
    bool m_isMicrosofts = false;
};

/// Whether a word passes the next one on to the linker, assembler or preprocessor.
bool passesOn(const QString &word)
{
    return word == "-Xlinker"_L1 || word == "-Xassembler"_L1 || word == "-Xpreprocessor"_L1;
}

} // namespace

QStringList withoutOutputOptions(const QStringList &words, const CommandLayout &layout)
{
    const OutputOptions outputs(words.value(0), layout);
    QStringList kept = words.mid(0, 1);
    for (qsizetype i = 1; i < words.size(); ++i) {
        const bool isPassedOn = passesOn(words[i]);
        const qsizetype option = i + isPassedOn;
        const QString word = words.value(option);
        if (outputs.takeNextWord(word))
            i = option + 1 + isPassedOn; // what is passed on is introduced word by word
        else if (outputs.contain(word))
            i = option;
        else
            kept << words[i];
    }
    return kept;
}

QString optionAgainstCompiling(const QStringList &words)
{
    static const QRegularExpression option = expression(againstCompiling);
    return words.mid(1).filter(option).value(0);
}
