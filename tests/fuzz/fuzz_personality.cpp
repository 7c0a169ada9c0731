// A personality of any bytes is read, written and read again. Words that Bexlor would not write may
// be others the first time.

#include "personality.h"

extern "C" int LLVMFuzzerTestOneInput(const char *data, std::size_t size)
{
    const auto again = [](const QByteArray &text) {
        return personalityText(parsePersonality(text));
    };
    const QByteArray written = again(again(QByteArray(data, qsizetype(size))));
    if (again(written) != written)
        __builtin_trap();
    return 0;
}
