#include "options_for_clang.h"

using namespace Qt::StringLiterals;

OptionsForClang::OptionsForClang(const CommandDifferences &differences,
                                 const AcceptedOptions &accepted)
    : m_differences(differences), m_accepted(accepted)
{ }

QStringList OptionsForClang::of(const CompileCommand &command)
{
    const CommandDifference difference = m_differences.of(command);
    if (!difference.otherTypes.isEmpty())
        m_ofOtherTypes << difference.otherTypes;
    return difference.options + m_accepted.of(command);
}

QString OptionsForClang::remarkOnTypes() const
{
    if (m_ofOtherTypes.isEmpty())
        return {};
    QStringList differing = m_ofOtherTypes;
    differing.removeDuplicates();
    return u"Sources with other types or another target than the personality, for which one should "
           "be made with their options: %1 (%2)"_s.arg(m_ofOtherTypes.size())
               .arg(differing.join(u", "_s));
}
