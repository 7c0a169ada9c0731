#include "learning.h"

#include "probe_line.h"

#include <algorithm>

namespace {

// Attributes of the GNU compilers that clang does not have, from their manual ("Declaring
// Attributes of Functions", "Specifying Attributes of Variables"), as they may stand alone.
const char *const attributesTried[] = {
    "OS_main",     "OS_task",    "absdata",   "address(1)",    "externally_visible",
    "io",          "io_low",     "no_gccisr", "no_icf",        "no_reorder",
    "noclone",     "noinit",     "noipa",     "nonstring",     "noplt",
    "optimize(2)", "persistent", "progmem",   "stack_protect", "symver(\"a@b\")",
};

/// What an attribute may belong to, "@" standing for it and "%" for a name.
const char *const attributeUses[] = {
    "extern const int % __attribute__((@));\n",
    "extern void %(void) __attribute__((@));\n",
    "extern const char %[2] __attribute__((@));\n",
};

} // namespace

QList<QByteArray> learnAttributes(const Questions &questions)
{
    QList<QByteArray> lines, names;
    for (const char *attribute : attributesTried) {
        for (const char *use : attributeUses) {
            lines << probeLine(use, attribute, lines.size());
            names << QByteArray(attribute).split('(').first();
        }
    }
    // In the one use that holds nothing else that a compiler may not know.
    const auto isSilent = questions.withoutMessage(
        {}, lines, probeLine(attributeUses[1], "calyx_unknown", lines.size()));
    if (!isSilent)
        return {};
    QList<QByteArray> accepted = selected(names, *isSilent);
    accepted.erase(std::unique(accepted.begin(), accepted.end()), accepted.end());
    return accepted;
}
