#include "control.h"

#include "malfunction.h"

#include <algorithm>

using namespace Qt::StringLiterals;

const char *const acceptedSource = "int calyx_probe;\n";

namespace {

struct FaultySource
{
    Fault fault;
    const char *text;
};

const FaultySource faultySources[] = {
    {Fault::Syntax, "int calyx_object = (;\n"},
    {Fault::UnknownName, "extern calyx_unknown calyx_object;\n"},
    {Fault::ConflictingDeclarations, "extern int calyx_object;\nextern char *calyx_object;\n"},
    {Fault::NegativeSize, "extern char calyx_object[sizeof(int) > 0 ? -1 : 1];\n"},
    {Fault::ErrorDirective, "#error calyx\nint calyx_object;\n"},
    {Fault::MissingHeader, "#include <calyx_missing.h>\nint calyx_object;\n"},
};

// Of these lines there is something to say of the fifth only.
const char *const redefinitions = "#define CALYX_SAME 1\n"
                                  "#define CALYX_SAME 1\n"
                                  "\n"
                                  "#define CALYX_OTHER 1\n"
                                  "#define CALYX_OTHER 2\n"
                                  "extern int calyx_object;\n";
const QSet<int> linesOfNoInterest {1, 2};

} // namespace

int triesAfter(const ProbeAnswer &first)
{
    return first.run.ending == platform::ProgramRun::TimedOut ? 1 : 3;
}

Controls::Controls(const ProbeAnswer &accepted, const AskProbe &ask)
{
    QList<ProbeAnswer> answers;
    for (const FaultySource &source : faultySources)
        answers << ask(source.text);
    // What only one of them is answered with may come from a compiler that has failed.
    for (qsizetype i = 0; i < answers.size(); ++i) {
        const Manner manner = mannerOf(answers[i]);
        const auto isAlike = [&manner](const ProbeAnswer &answer) {
            return mannerOf(answer) == manner;
        };
        if (std::count_if(answers.begin(), answers.end(), isAlike) == 1)
            answers[i] = usualAnswer(faultySources[i].text, answers[i], ask);
    }
    findSigns(accepted, answers.first());
    for (qsizetype i = 0; i < answers.size(); ++i) {
        if (judged(answers[i]).compiled())
            continue;
        m_rejected << faultySources[i].fault;
        m_rejections << mannerOf(answers[i]);
    }
    const ProbeAnswer answer = judged(ask(redefinitions));
    m_namesTheRightLines = !answer.allLines.intersects(linesOfNoInterest);
}

Controls::Manner Controls::mannerOf(const ProbeAnswer &answer)
{
    const bool hasMessage = !answer.run.errors.isEmpty() || !answer.run.output.isEmpty();
    const bool hasExited = answer.run.ending == platform::ProgramRun::Exited;
    return {hasExited ? answer.run.exitCode : -1, hasMessage, answer.namesSource};
}

/// The answer to \a source that comes twice, \a first included.
ProbeAnswer Controls::usualAnswer(const QByteArray &source, const ProbeAnswer &first,
                                  const AskProbe &ask)
{
    QList<ProbeAnswer> answers {first};
    for (int i = 0; i < triesAfter(first); ++i) {
        const ProbeAnswer next = ask(source);
        for (const ProbeAnswer &answer : answers) {
            if (next.run.ending == platform::ProgramRun::Exited
                && mannerOf(answer) == mannerOf(next))
                return next;
        }
        answers << next;
    }
    throw Malfunction {u"The compiler answers the same source in another way each time, or not."_s,
                       first.run};
}

/// Finds out by what else than the exit status \a accepted and \a syntaxError differ.
void Controls::findSigns(const ProbeAnswer &accepted, const ProbeAnswer &syntaxError)
{
    m_objectHasExtension = accepted.leftObject;
    m_objectTells = leavesObject(accepted);
    if (!judged(syntaxError).compiled())
        return;
    m_messageTells = accepted.allLines.isEmpty();
    if (!judged(syntaxError).compiled())
        return;
    throw Malfunction {u"The compiler's answers tell nothing: a source with a syntax error is "
                       "answered like one without."_s,
                       syntaxError.run};
}

bool Controls::leavesObject(const ProbeAnswer &answer) const
{
    return m_objectHasExtension ? answer.leftObject : answer.leftFiles;
}

ProbeAnswer Controls::judged(ProbeAnswer answer) const
{
    answer.isContradicted =
        (m_objectTells && !leavesObject(answer)) || (m_messageTells && !answer.allLines.isEmpty());
    return answer;
}

bool Controls::isOdd(const ProbeAnswer &answer) const
{
    if (!answer.isWritten || answer.run.ending != platform::ProgramRun::Exited)
        return true;
    if (judged(answer).compiled())
        return false;
    const Manner manner = mannerOf(answer);
    return std::none_of(m_rejections.begin(), m_rejections.end(), [&manner](const Manner &known) {
        return known.exitCode == manner.exitCode && (manner.hasMessage || !known.hasMessage)
            && (manner.namesSource || !known.namesSource);
    });
}

bool Controls::mayBeRejection(const ProbeAnswer &answer) const
{
    const Manner manner = mannerOf(answer);
    return answer.isWritten
        && std::any_of(m_rejections.begin(), m_rejections.end(), [&manner](const Manner &known) {
               return known.exitCode == manner.exitCode && known.hasMessage == manner.hasMessage;
           });
}
