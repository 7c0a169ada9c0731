#include "rejection.h"

#include "text_file.h"

#include <QRegularExpression>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// What the messages of a kind hold; the first row that fits counts. The words are those of clang's
/// diagnostics; "clang: error" without a place comes from its command line.
const struct Kind
{
    QLatin1StringView name;
    QLatin1StringView pattern;
} kinds[] = {
    {"option"_L1, "^(clang\\S*: |.*unknown target|.*\\(in '.*\\.p_c'\\))"_L1},
    {"header not found"_L1, "file not found$"_L1},
    {"inline assembler"_L1, "\\basm\\b|in inline asm|constraint|expected 'volatile'"_L1},
    {"attribute"_L1, "\\battribute"_L1},
    {"builtin"_L1, "'__builtin_|'__(atomic|sync)_|\\bbuiltin\\b"_L1},
    {"keyword"_L1, "unknown type name|: expected |undeclared identifier '_"_L1},
    {"other"_L1, ""_L1},
};

} // namespace

QStringList rejectionKinds()
{
    QStringList names;
    for (const Kind &kind : kinds)
        names << kind.name;
    return names;
}

QString firstError(const QByteArray &messages)
{
    static const QRegularExpression error(u"^.*\\berror( \\w+)?: .*$"_s,
                                          QRegularExpression::MultilineOption
                                              | QRegularExpression::CaseInsensitiveOption);
    const QString text = platform::decodedText(messages).trimmed();
    const QString found = error.match(text).captured().trimmed();
    // One that crashes leaves no error.
    return found.isEmpty() ? text.section(u'\n', 0, 0) : found;
}

Rejection rejectionIn(const QByteArray &messages)
{
    const QString message = firstError(messages);
    const Kind *kind =
        std::find_if(std::begin(kinds), std::end(kinds), [&message](const Kind &row) {
            return QRegularExpression(row.pattern).match(message).hasMatch();
        });
    return {kind->name, message};
}
