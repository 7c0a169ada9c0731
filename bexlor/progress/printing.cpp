#include "printing.h"

#include "console.h"
#include "visible_text.h"

#include <QStringList>

void printLines(std::FILE *stream, const QString &lines)
{
    for (const QString &line : lines.split(u'\n'))
        platform::print(stream, printableText(line) + u'\n');
}
