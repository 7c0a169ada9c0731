#include "program_search.h"

#include <algorithm>

namespace platform {

QStringList inHostOrder(QStringList candidates)
{
    // What lies in the current folder must not take the place of an installed program.
    std::rotate(candidates.begin(), candidates.begin() + 1, candidates.end());
    return candidates;
}

} // namespace platform
