// Settings of any bytes are read, written and read again.

#include "settings_text.h"

#include "review.h"

extern "C" int LLVMFuzzerTestOneInput(const char *data, std::size_t size)
{
    Answers read;
    parseSettings(QString::fromLocal8Bit(QByteArray(data, qsizetype(size))), read);
    const QString text = settingsText(reviewText(read, AnswerField::Kept), read);
    Answers again;
    parseSettings(text, again);
    if (settingsText(reviewText(again, AnswerField::Kept), again) != text)
        __builtin_trap();
    return 0;
}
