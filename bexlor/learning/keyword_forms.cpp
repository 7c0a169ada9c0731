#include "keyword_forms.h"

#include "probe_line.h"

#include <QSet>
#include <span>

namespace {

/// A form in which a keyword may be used, "@" standing for it and "%" for a name that nothing else
/// has.
struct Use
{
    const char *line;
    Keyword::Form form;
};

// Most are declarations within a function, at whose end a compiler that has lost its way finds it
// again. What qualifies a char is no type of its own, whereas "__int64 int" may be one.
const Use usesWithinFunctions[] = {
    {"void %f(void) { extern char @ %; }", Keyword::Qualifier},
    {"void %f(void) { extern @ char %; }", Keyword::Qualifier},
    {"void %f(void) { extern char * @ %; }", Keyword::Qualifier},
    {"void %f(void) { extern @ void %(void); }", Keyword::Qualifier},
    {"static @ char %(void) { return 0; }", Keyword::Qualifier},
    {"extern void @ %(int);", Keyword::Qualifier},
    {"void %f(void) { extern @(1) int %; }", Keyword::QualifierWithArgument},
    {"void %f(void) { extern int @(1) %; }", Keyword::QualifierWithArgument},
    {"void %f(void) { extern @((unused)) int %; }", Keyword::QualifierWithArgument},
    {"void %f(void) { extern @(dllimport) int %; }", Keyword::QualifierWithArgument},
    {"void %f(void) { extern @(a, b) int %; }", Keyword::QualifierWithArgument},
    {"void %f(void) { extern @ %; }", Keyword::TypeName},
    {"void %f(void) { extern @ *%; }", Keyword::TypeName},
};

const Use usesWithBareArgument[] = {
    {"void %f(void) { extern @ 1 int %; }", Keyword::QualifierWithBareArgument},
    {"void %f(void) { extern int @ 1 %; }", Keyword::QualifierWithBareArgument},
    {"@ 1 char %;", Keyword::QualifierWithBareArgument},
};

// A compiler takes what is wrong behind a function for the start of a definition in the old style
// and may go astray, so each of these needs a probe of its own.
const Use usesBehindFunctions[] = {
    {"extern void %(void) @;", Keyword::Qualifier},
    {"extern void %(void) @(1);", Keyword::QualifierWithArgument},
    {"extern void %(void) @(a, b);", Keyword::QualifierWithArgument},
    {"extern void %(void) @((noreturn));", Keyword::QualifierWithArgument},
    {"extern void %(void) @ 1;", Keyword::QualifierWithBareArgument},
};

// At file scope, behind an object's name, of a member and of a parameter.
const Use usesElsewhere[] = {
    {"@ char %;", Keyword::Qualifier},
    {"@(1) char %;", Keyword::QualifierWithArgument},
    {"@ 1 char %;", Keyword::QualifierWithBareArgument},
    {"char % @;", Keyword::Qualifier},
    {"char % @(1);", Keyword::QualifierWithArgument},
    {"char % @ 1;", Keyword::QualifierWithBareArgument},
    {"struct % { @ char %m; };", Keyword::Qualifier},
    {"struct % { @(1) char %m; };", Keyword::QualifierWithArgument},
    {"extern void %(char @ *);", Keyword::Qualifier},
    {"extern void %(@(1) char *);", Keyword::QualifierWithArgument},
};

/// What well-known keywords are usually used for; those with Undetermined in none of these places.
/// One whose uses are all accepted is not asked for others, of which many a compiler rejects each
/// in a probe of its own.
const struct
{
    Use use;
    const char *keywords;
} usualUses[] = {
    {{"void %f(void) { extern char @ %; }", Keyword::Qualifier},
     "__const __const__ __volatile __volatile__ __signed __signed__ __code __data "
     "__far __idata __near __pdata __xdata far near"},
    {{"void %f(void) { extern char * @ %; }", Keyword::Qualifier}, "__restrict __restrict__"},
    {{"static @ char %(void) { return 0; }", Keyword::Qualifier}, "__inline __inline__"},
    {{"extern void @ %(int);", Keyword::Qualifier},
     "__cdecl __cdecl__ __fastcall __fastcall__ __stdcall cdecl fastcall"},
    {{"extern void %(void) @;", Keyword::Qualifier},
     "__banked __cosmic __critical __iar __interrupt __naked __nonbanked __overlay __raisonance "
     "__reentrant __smallc __trap __z88dk_callee __z88dk_fastcall"},
    {{"extern void %(void) @(1);", Keyword::QualifierWithArgument},
     "__interrupt __sdcccall __using __z88dk_params_offset"},
    {{"extern void %(void) @ 2;", Keyword::QualifierWithBareArgument}, "__interrupt __using"},
    {{"extern void %(void) @(a, b);", Keyword::QualifierWithArgument}, "__preserves_regs"},
    {{"extern void %(void) @(8, 1);", Keyword::QualifierWithArgument}, "__z88dk_shortcall"},
    {{"@ char %;", Keyword::Qualifier}, "__extension__"},
    {{"@(1) char %;", Keyword::QualifierWithArgument}, "__at"},
    {{"@ 1 char %;", Keyword::QualifierWithBareArgument}, "__at"},
    {{"void %f(void) { extern @((unused)) int %; }", Keyword::QualifierWithArgument},
     "__attribute __attribute__"},
    // What qualifies an int that nobody names is no type.
    {{"extern char %[1-2*(sizeof(@)==sizeof(int))];", Keyword::TypeName}, "__builtin_va_list"},
    {{"extern char %[1-2*(sizeof(@)==sizeof(int)&&(@)-1<0)];", Keyword::TypeName},
     "__bit __sbit __sfr __sfr16 __sfr32"},
    {{nullptr, Keyword::Undetermined},
     "asm __asm __asm__ _asm typeof __typeof __typeof__ __alignof __alignof__ __real __real__ "
     "__imag __imag__ __label__ __builtin_choose_expr __builtin_offsetof "
     "__builtin_types_compatible_p __builtin_va_arg __addressmod __A__ __AX__ __EAX__ __X__ __Y__"},
};

/// Keywords of which a compiler has all or few: the GNU ones, those of sdcc for all processors, and
/// those for the ones like the Z80 and like the MCS-51. Each is one of those with usual uses.
const char *const families[] = {
    "__attribute __attribute__ __const __const__ __extension__ __inline __inline__ __restrict "
    "__restrict__ __signed __signed__ __volatile __volatile__",
    "__at __interrupt __naked __preserves_regs __sdcccall __z88dk_params_offset __z88dk_shortcall",
    "__banked __critical __nonbanked __smallc __z88dk_callee",
    "__bit __code __data __far __idata __near __pdata __reentrant __sbit __sfr16 __sfr32 __using "
    "__xdata",
};

// In the order in which they stand behind one another.
const Keyword::Form qualifiers[] = {Keyword::QualifierWithArgument,
                                    Keyword::QualifierWithBareArgument, Keyword::Qualifier};

/// Looks for the forms of keywords.
class FormSearch
{
public:
    FormSearch(const Questions &questions, const QList<QByteArray> &keywords)
        : forms(keywords.size()), m_questions(questions), m_keywords(keywords)
    { }

    QList<QSet<int>> forms; ///< of each keyword

    /// Adds the usual uses that the compiler accepts, and returns the keywords that these are all
    /// of.
    QList<QByteArray> tryUsualUses();

    enum Ways { Together, Apart };
    /// Adds those of \a uses that the compiler accepts of the keywords \a indices.
    void tryUses(std::span<const Use> uses, const QList<qsizetype> &indices, Ways ways);

    /// Leaves those keywords that have a size alone, and none together with char, only the form of
    /// a type: a compiler that lets a name be declared again takes "char size_t x;" too.
    void keepTypesApart();

    /// The keywords with \a form, or if that is Undetermined, with none, but for \a settled.
    QList<qsizetype> keywordsWith(Keyword::Form form, const QList<QByteArray> &settled) const;

private:
    struct Trial
    {
        qsizetype keyword;
        const Use *use;
    };

    void tryAtOnce(std::span<const Use> uses, const QList<qsizetype> &indices, Ways ways);
    /// Adds the forms of those of \a trials that the compiler accepts, and returns which.
    QList<bool> addAccepted(const QList<Trial> &trials, Ways ways);
    bool isNeeded(const Use &use, qsizetype keyword) const;

    const Questions &m_questions;
    const QList<QByteArray> &m_keywords;
};

void FormSearch::tryUses(std::span<const Use> uses, const QList<qsizetype> &indices, Ways ways)
{
    if (!m_questions.stopsAtFirstError()) {
        tryAtOnce(uses, indices, ways);
        return;
    }
    // Each that is rejected takes a probe, so that none is tried where it makes no difference.
    // Behind its first error such a compiler does not go astray.
    for (const Use &use : uses)
        tryAtOnce({&use, 1}, indices, Together);
}

void FormSearch::tryAtOnce(std::span<const Use> uses, const QList<qsizetype> &indices, Ways ways)
{
    QList<Trial> trials;
    for (const qsizetype index : indices) {
        for (const Use &use : uses) {
            if (isNeeded(use, index))
                trials.append({index, &use});
        }
    }
    addAccepted(trials, ways);
}

QList<bool> FormSearch::addAccepted(const QList<Trial> &trials, Ways ways)
{
    QList<QByteArray> lines;
    for (const auto &[keyword, use] : trials)
        lines << probeLine(use->line, m_keywords[keyword], lines.size()) + '\n';
    const QList<bool> isAccepted =
        ways == Apart ? m_questions.acceptedApart(lines)
                      : m_questions.accepted({}, lines, m_questions.stopsAtFirstError());
    for (const auto &[keyword, use] : selected(trials, isAccepted))
        forms[keyword] << use->form;
    return isAccepted;
}

QList<QByteArray> FormSearch::tryUsualUses()
{
    QList<Trial> trials;
    QList<QByteArray> settled;
    for (const auto &[use, keywords] : usualUses) {
        for (const QByteArray &name : QByteArray(keywords).split(' ')) {
            const qsizetype index = m_keywords.indexOf(name);
            if (index >= 0)
                settled << name;
            if (index >= 0 && use.line)
                trials.append({index, &use});
        }
    }
    const QList<bool> isAccepted = addAccepted(trials, Together);
    for (qsizetype i = 0; i < trials.size(); ++i) {
        if (!isAccepted[i])
            settled.removeAll(m_keywords[trials[i].keyword]);
    }
    return settled;
}

/// Whether it makes a difference to the form of a keyword how \a use is taken.
bool FormSearch::isNeeded(const Use &use, qsizetype keyword) const
{
    if (forms[keyword].contains(use.form))
        return false;
    if (use.form != Keyword::TypeName)
        return true;
    // An unknown name must not pass for a type. What qualifies is none, where types show.
    return m_questions.rejects(ErrorKind::UnknownName)
        && (forms[keyword].isEmpty() || !m_questions.rejects(ErrorKind::ConflictingDeclaration));
}

void FormSearch::keepTypesApart()
{
    QList<qsizetype> doubtful;
    QList<QByteArray> expressions;
    for (qsizetype i = 0; i < m_keywords.size(); ++i) {
        if (!forms[i].contains(Keyword::TypeName) || forms[i].size() == 1)
            continue;
        doubtful << i;
        expressions << "sizeof(" + m_keywords[i] + ')' << "sizeof(" + m_keywords[i] + " char)"
                    << "sizeof(char " + m_keywords[i] + ')';
    }
    const QList<std::optional<int>> sizes = m_questions.numbers({}, expressions);
    for (qsizetype i = 0; i < doubtful.size(); ++i) {
        if (sizes[3 * i] && !sizes[3 * i + 1] && !sizes[3 * i + 2])
            forms[doubtful[i]] = {Keyword::TypeName};
    }
}

QList<qsizetype> FormSearch::keywordsWith(Keyword::Form form,
                                          const QList<QByteArray> &settled) const
{
    QList<qsizetype> found;
    for (qsizetype i = 0; i < m_keywords.size(); ++i) {
        const bool isMeant =
            form == Keyword::Undetermined ? forms[i].isEmpty() : forms[i].contains(form);
        if (isMeant && !settled.contains(m_keywords[i]))
            found << i;
    }
    return found;
}

/// The forms of a keyword that may be used in those of \a found. What qualifies is no type.
QList<Keyword::Form> inOrder(const QSet<int> &found)
{
    QList<Keyword::Form> forms;
    for (const Keyword::Form form : qualifiers) {
        if (found.contains(form))
            forms << form;
    }
    if (forms.isEmpty())
        forms << (found.contains(Keyword::TypeName) ? Keyword::TypeName : Keyword::Undetermined);
    return forms;
}

/// What \a keywords are usually used for, a line each.
QByteArray usualUsesOf(const QList<QByteArray> &keywords)
{
    QByteArray lines;
    for (const auto &[use, usual] : usualUses) {
        for (const QByteArray &name : QByteArray(usual).split(' ')) {
            if (use.line && keywords.contains(name))
                lines += probeLine(use.line, name, lines.size()) + '\n';
        }
    }
    return lines;
}

} // namespace

QList<QByteArray> keywordsOfWholeFamilies(const Questions &questions,
                                          const QList<QByteArray> &names)
{
    QList<QList<QByteArray>> members;
    QList<QByteArray> uses;
    for (const char *family : families) {
        members << QByteArray(family).split(' ');
        members.last().removeIf([&names](const QByteArray &name) { return !names.contains(name); });
        uses << usualUsesOf(members.last());
    }
    const QList<ProbeAnswer> answers = questions.eachAlone(uses);
    QList<QByteArray> found;
    for (qsizetype i = 0; i < answers.size(); ++i) {
        if (answers[i].compiled())
            found << members[i];
    }
    return found;
}

QList<QList<Keyword::Form>> keywordForms(const Questions &questions,
                                         const QList<QByteArray> &keywords,
                                         const QList<QByteArray> &settled)
{
    FormSearch search(questions, keywords);
    const QList<QByteArray> usual = search.tryUsualUses(), known = usual + settled;
    search.tryUses(usesWithinFunctions, search.keywordsWith(Keyword::Undetermined, usual),
                   FormSearch::Together);
    search.tryUses(usesWithBareArgument, search.keywordsWith(Keyword::QualifierWithArgument, known),
                   FormSearch::Together);
    search.tryUses(usesBehindFunctions, search.keywordsWith(Keyword::Undetermined, known),
                   FormSearch::Apart);
    search.tryUses(usesElsewhere, search.keywordsWith(Keyword::Undetermined, known),
                   FormSearch::Together);
    if (!questions.rejects(ErrorKind::ConflictingDeclaration))
        search.keepTypesApart();
    QList<QList<Keyword::Form>> forms;
    for (const QSet<int> &found : search.forms)
        forms << inOrder(found);
    return forms;
}

QList<Keyword> assemblerBlocks(const Questions &questions, const QList<QByteArray> &keywords)
{
    QList<Keyword> blocks {{"__asm", Keyword::AssemblerBlock, "__endasm"},
                           {"_asm", Keyword::AssemblerBlock, "_endasm"}};
    blocks.removeIf([&keywords](const Keyword &block) { return !keywords.contains(block.name); });
    QList<QByteArray> functions;
    for (const Keyword &block : blocks) {
        functions << "void calyx_" + QByteArray::number(functions.size()) + "(void) { " + block.name
                         + '\n' + block.standIn + "; }\n";
    }
    return selected(blocks, questions.accepted({}, functions));
}
