// A command of any bytes is taken apart, put into any order, and taken apart again.

#include "comma_list.h"
#include "command_check.h"
#include "command_line.h"
#include "compiler.h"
#include "order_tokens.h"
#include "quoting.h"
#include "typed_command.h"

extern "C" int LLVMFuzzerTestOneInput(const char *data, std::size_t size)
{
    const QString text = QString::fromLocal8Bit(QByteArray(data, qsizetype(size)));
    commandWord(text);
    commandWords(text, [](const QString &word) { return word.size() % 2 == 0; });

    splitCommand(text);
    platform::shellWords(text);
    const QStringList items = splitCommaList(toCommaList(text));
    for (const QString &item : items) {
        if (item.isEmpty() || item != item.trimmed())
            __builtin_trap();
    }
    // Of more than six tokens the last are not read.
    const QList<OrderToken> tokens = parseOrderString(orderString(parseOrderString(text)));
    if (tokens.size() <= 6 && parseOrderString(orderString(tokens)) != tokens)
        __builtin_trap();
    Compiler compiler;
    compiler.command = QStringList {QStringLiteral("cc")} + items;
    compiler.layout.order = parseOrderString(text);
    probeCommand(compiler, QStringLiteral("probe.c"), QStringLiteral("probe.o"));
    return 0;
}
