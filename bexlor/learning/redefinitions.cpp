#include "redefinitions.h"

namespace {

const QByteArray control = "CALYX_CONTROL";

QByteArray defined(const QByteArray &name, const QByteArray &value)
{
    return "#define " + name + ' ' + value + '\n';
}

/// Which of \a definitions, of macros that there are, the compiler accepts. Nothing unless it takes
/// a definition unlike the one that there is for an error.
std::optional<QList<bool>> acceptedAgain(const Questions &questions,
                                         const QList<QByteArray> &definitions)
{
    const QByteArray first = defined(control, "1") + acceptedProbe;
    const QList<ProbeAnswer> answers =
        questions.eachAlone({first + defined(control, "1"), first + defined(control, "2")});
    if (!answers[0].compiled() || answers[1].compiled())
        return {};
    return questions.accepted({}, definitions);
}

/// Keeps those of \a open that have a definition left to be tried; of the others \a facts get what
/// else is known.
QList<OpenMacro> stillOpen(const QList<OpenMacro> &open, MacroFacts &facts)
{
    QList<OpenMacro> left;
    for (const OpenMacro &macro : open) {
        if (!macro.definitions.isEmpty())
            left << macro;
        else if (macro.otherwise)
            facts.known << *macro.otherwise;
        else
            facts.undetermined << macro.name;
    }
    return left;
}

} // namespace

std::optional<QList<bool>> confirmed(const Questions &questions, const QList<Macro> &macros)
{
    QList<QByteArray> definitions, others;
    for (const Macro &macro : macros) {
        definitions << defined(macro.name, macro.value);
        others << defined(macro.name, "calyx_other " + macro.value);
    }
    const QByteArray same = defined(control, "1"), other = defined(control, "2");
    const std::optional<QList<bool>> isExact =
        questions.isQuiet()
            ? questions.withoutMessage(same, definitions, other + "extern int calyx_end;\n")
            : questions.withFewerMessages(same, definitions + QList {same}, others + QList {other});
    return isExact ? isExact : acceptedAgain(questions, definitions);
}

MacroFacts firstConfirmed(const Questions &questions, const QList<OpenMacro> &open)
{
    MacroFacts facts;
    QList<OpenMacro> left = stillOpen(open, facts);
    while (!left.isEmpty()) {
        QList<Macro> tried;
        for (OpenMacro &macro : left)
            tried << macro.definitions.takeFirst();
        const std::optional<QList<bool>> isExact = confirmed(questions, tried);
        QList<OpenMacro> refused;
        for (qsizetype i = 0; i < left.size(); ++i) {
            if (isExact && (*isExact)[i])
                facts.known << tried[i];
            else
                refused << left[i];
            if (!isExact)
                refused.last().definitions.clear();
        }
        left = stillOpen(refused, facts);
    }
    return facts;
}
