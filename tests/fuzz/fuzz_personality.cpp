// A personality of any bytes is read, written and read again. Words that Bexlor would not write may
// be others the first time. The answers in it are taken apart, and what differs is told.

#include "changes.h"
#include "personality.h"
#include "refusal.h"

extern "C" int LLVMFuzzerTestOneInput(const char *data, std::size_t size)
{
    const auto again = [](const QByteArray &text) {
        return personalityText(parsePersonality(text));
    };
    const QByteArray read(data, qsizetype(size));
    const QByteArray written = again(again(read));
    if (again(written) != written)
        __builtin_trap();
    const auto parsed = parseArguments(parsePersonality(read).answers.arguments);
    if (const auto *arguments = std::get_if<Arguments>(&parsed))
        refusalReason(*arguments);
    if (changesBetween(read, written).isEmpty() != (read == written))
        __builtin_trap();
    return 0;
}
