#include "control_probes.h"

using namespace Qt::StringLiterals;

const QByteArray acceptedProbe = "int calyx_probe;\n";
const QByteArray rejectedProbe = "int calyx_syntax = ;\n";

namespace {

const int mostTries = 5; // until two answers are alike

/// A source with one error of each kind.
const struct
{
    ErrorKind kind;
    QByteArray source;
    QLatin1StringView name;
} controlProbes[] = {
    {ErrorKind::Syntax, rejectedProbe, "a syntax error"_L1},
    {ErrorKind::UnknownName, "void calyx_f(void) { extern calyx_unknown *calyx_object; }\n",
     "an unknown name"_L1},
    {ErrorKind::NegativeArraySize, "extern char calyx_array[1-2*(sizeof(char)!=2)];\n",
     "an array of negative size"_L1},
    {ErrorKind::ConflictingDeclaration,
     "extern unsigned char calyx_object;\nextern signed char calyx_object;\n",
     "a conflicting declaration"_L1},
    {ErrorKind::ErrorDirective, "#error calyx\n", "an #error directive"_L1},
    {ErrorKind::MissingHeader, "#include <calyx_no_such_header.h>\nextern int calyx_object;\n",
     "a missing header"_L1},
};

bool hasMessages(const platform::ProgramRun &run)
{
    return !(run.output + run.errors).trimmed().isEmpty();
}

bool areAlike(const ProbeAnswer &first, const ProbeAnswer &second)
{
    return first.isAsked && second.isAsked && first.compiled() == second.compiled()
        && first.run.ending == second.run.ending && first.run.exitCode == second.run.exitCode
        && hasMessages(first.run) == hasMessages(second.run)
        && first.messageCounts.isEmpty() == second.messageCounts.isEmpty();
}

/// The answer to \a source that is like one of those \a known, or that has come twice.
std::optional<ProbeAnswer> steadyAnswer(const std::function<ProbeAnswer(const QByteArray &)> &ask,
                                        const QByteArray &source, QList<ProbeAnswer> known)
{
    for (int tries = 0; tries < mostTries; ++tries) {
        const ProbeAnswer answer = ask(source);
        for (const ProbeAnswer &other : known) {
            if (areAlike(answer, other))
                return answer;
        }
        known << answer;
    }
    return {};
}

} // namespace

bool Controls::isRejection(const ProbeAnswer &answer) const
{
    return answer.isAsked && answer.run.ending == platform::ProgramRun::Exited
        && exitCodes.contains(answer.run.exitCode) && (!givesReasons || hasMessages(answer.run));
}

bool Controls::isExpected(const ProbeAnswer &answer) const
{
    if (answer.compiled())
        return answer.namesEnd || !namesEnds;
    return isRejection(answer) && !(namesLines && answer.messageCounts.isEmpty());
}

std::optional<Controls> askControls(const std::function<ProbeAnswer(const QByteArray &)> &ask,
                                    const ProbeAnswer &accepted)
{
    Controls controls;
    controls.isQuiet = accepted.messageCounts.isEmpty();
    controls.namesEnds = accepted.namesEnd;
    QList<ProbeAnswer> rejections;
    for (const auto &control : controlProbes) {
        const std::optional<ProbeAnswer> answer = steadyAnswer(ask, control.source, rejections);
        if (!answer)
            return {};
        if (answer->compiled()) {
            controls.overlooked << control.kind;
            continue;
        }
        rejections << *answer;
        controls.exitCodes << answer->run.exitCode;
        controls.givesReasons &= hasMessages(answer->run);
        controls.namesLines &= !answer->messageCounts.isEmpty();
    }
    return controls;
}

QString nameOf(ErrorKind kind)
{
    for (const auto &control : controlProbes) {
        if (control.kind == kind)
            return control.name;
    }
    return QString();
}
