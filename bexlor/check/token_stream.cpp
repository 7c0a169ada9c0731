#include "token_stream.h"

#include "file_system.h"
#include "text_file.h"

#include <QDir>
#include <QSet>
#include <algorithm>
#include <cctype>

namespace {

// Longest first. ISO C, "Punctuators", and ISO C++, "Operators and punctuators".
const char *const punctuators[] = {
    "%:%:", "...", "<<=", ">>=", "->*", "<=>", "->", "++", "--", "<<", ">>",
    "<=",   ">=",  "==",  "!=",  "&&",  "||",  "*=", "/=", "%=", "+=", "-=",
    "&=",   "^=",  "|=",  "##",  "::",  ".*",  "<:", ":>", "<%", "%>", "%:"};

// Pragmas that a preprocessor obeys or that are about messages: it may write them or not.
const char *const pragmasSetAside[] = {
    "once",       "push_macro",  "pop_macro",      "GCC system_header",
    "GCC poison", "GCC warning", "GCC diagnostic",
};

// Declarations behind "typedef" that a header of the C library leaves out behind the GNU compilers'
// <stdarg.h> and <stddef.h>, and repeats behind clang's, which do not define the macros that it
// looks for.
const char *const repeatedDeclarations[][3] = {{"__gnuc_va_list", "va_list", ";"},
                                               {"__size_t", "size_t", ";"}};

const char *const literalPrefixes[] = {"L", "u", "U", "u8", "R", "LR", "uR", "UR", "u8R"};

bool isOfIdentifier(char character)
{
    const auto byte = static_cast<unsigned char>(character);
    return std::isalnum(byte) || character == '_' || character == '$' || byte >= 0x80;
}

bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

template <typename Words>
bool isOneOf(const Words &words, QByteArrayView word)
{
    return std::find(std::begin(words), std::end(words), word) != std::end(words);
}

/// \a text with the lines that are "_Pragma (...)", as cc65 writes pragmas, made "#pragma ...".
QByteArray withPragmaLines(const QByteArray &text)
{
    const QByteArray start = "_Pragma (\"", end = "\")";
    if (!text.contains(start))
        return text;
    QList<QByteArray> lines = text.split('\n');
    for (QByteArray &line : lines) {
        const QByteArray pragma = line.trimmed();
        const bool isWhole = pragma.size() >= start.size() + end.size();
        if (!isWhole || !pragma.startsWith(start) || !pragma.endsWith(end))
            continue;
        line = pragma.sliced(start.size()).chopped(end.size());
        line = "#pragma " + line.replace("\\\"", "\"").replace("\\\\", "\\");
    }
    return lines.join('\n');
}

/// The tokens of a preprocessed source, one after the other.
class TokenStream
{
public:
    explicit TokenStream(const PreprocessedSource &source)
        : m_text(source.text), m_ownHeaders(source.ownHeaders),
          m_passesSystemHeaders(source.passesSystemHeaders)
    { }

    /// The next token that counts, empty at the end.
    QByteArrayView next();

    QString file() const { return m_file; } ///< of the last token, like the next
    int line() const { return m_line; }

private:
    char at(qsizetype offset) const
    {
        return m_place + offset < m_text.size() ? m_text[m_place + offset] : '\0';
    }

    QByteArrayView takeToken();
    bool passRepeatedDeclaration();
    bool passSpace();
    bool passDirective();
    void readMarker(QByteArrayView directive);
    qsizetype tokenSize() const;
    qsizetype wordSize() const;
    qsizetype numberSize() const;
    qsizetype literalSize(qsizetype start) const;
    qsizetype rawLiteralSize(qsizetype start) const;
    qsizetype punctuatorSize() const;

    QByteArrayView m_text;
    QStringList m_ownHeaders;
    bool m_passesSystemHeaders;
    qsizetype m_place = 0;
    bool m_atLineStart = true;
    bool m_isPassedOver = false;
    QSet<QString> m_projectFiles; ///< those that are no system headers
    QString m_file;
    int m_line = 1;
};

QByteArrayView TokenStream::next()
{
    QByteArrayView token = takeToken();
    while (token == "typedef" && passRepeatedDeclaration())
        token = takeToken();
    return token;
}

/// Passes what stands behind "typedef" if it is one of the declarations.
bool TokenStream::passRepeatedDeclaration()
{
    for (const auto &declaration : repeatedDeclarations) {
        TokenStream ahead = *this;
        const bool isRepeated =
            std::all_of(std::begin(declaration), std::end(declaration),
                        [&ahead](const char *expected) { return ahead.takeToken() == expected; });
        if (isRepeated) {
            *this = ahead;
            return true;
        }
    }
    return false;
}

QByteArrayView TokenStream::takeToken()
{
    QByteArrayView token;
    do {
        while (passSpace() || passDirective()) { }
        token = m_text.sliced(m_place, tokenSize());
        m_line += int(token.count('\n'));
        m_place += token.size();
        m_atLineStart = false;
    } while (m_isPassedOver && !token.isEmpty());
    return token;
}

bool TokenStream::passSpace()
{
    const qsizetype start = m_place;
    while (m_place < m_text.size() && std::isspace(static_cast<unsigned char>(at(0)))) {
        if (m_text[m_place++] == '\n') {
            ++m_line;
            m_atLineStart = true;
        }
    }
    return m_place != start;
}

/// Passes a line marker, a definition or a pragma that is set aside, if that comes next.
bool TokenStream::passDirective()
{
    if (!m_atLineStart || at(0) != '#')
        return false;
    const qsizetype end = m_text.indexOf('\n', m_place);
    const QByteArrayView line = m_text.sliced(m_place, (end < 0 ? m_text.size() : end) - m_place);
    QByteArrayView directive = line.sliced(1).trimmed();
    if (directive.startsWith("pragma ")) {
        const QByteArrayView pragma = directive.sliced(7).trimmed();
        const bool isSetAside =
            std::any_of(std::begin(pragmasSetAside), std::end(pragmasSetAside),
                        [pragma](const char *start) { return pragma.startsWith(start); });
        m_place += isSetAside ? line.size() : 0;
        return isSetAside;
    }
    // Under -g3 and -dD, GNU compilers write what they have obeyed of these, too.
    if (directive.startsWith("define ") || directive.startsWith("undef ")) {
        m_place += line.size();
        return true;
    }
    if (directive.startsWith("line "))
        directive = directive.sliced(5).trimmed();
    if (directive.isEmpty() || !isDigit(directive.front()))
        return false;
    readMarker(directive);
    m_place += line.size();
    return true;
}

/// Takes the place that a marker such as "12 \"x.h\" 3" gives to the line behind it.
void TokenStream::readMarker(QByteArrayView directive)
{
    const qsizetype quote = directive.indexOf('"');
    const qsizetype digits = directive.indexOf(' ');
    m_line = directive.first(digits < 0 ? directive.size() : digits).toInt() - 1;
    if (quote < 0)
        return;
    const qsizetype end = directive.lastIndexOf('"');
    QByteArray name =
        directive.sliced(quote + 1, std::max<qsizetype>(end - quote - 1, 0)).toByteArray();
    // On Windows clang joins the parts of a name with either separator.
    m_file = QDir::cleanPath(
        QDir::fromNativeSeparators(platform::decodedText(name.replace("\\\\", "\\"))));
    // Behind the name stand flags, of which 3 is that of a system header. What such a header's
    // macro stands for in another file has the flag, too.
    const bool isSystem = directive.sliced(end + 1).contains('3');
    if (!isSystem)
        m_projectFiles << m_file;
    m_isPassedOver =
        (m_passesSystemHeaders && isSystem && !m_projectFiles.contains(m_file))
        || std::any_of(m_ownHeaders.begin(), m_ownHeaders.end(), [this](const QString &folder) {
               return m_file.startsWith(folder + QLatin1Char('/'), platform::caseOfFileNames());
           });
}

qsizetype TokenStream::tokenSize() const
{
    if (m_place >= m_text.size())
        return 0;
    if (isDigit(at(0)) || (at(0) == '.' && isDigit(at(1))))
        return numberSize();
    if (isOfIdentifier(at(0)))
        return wordSize();
    if (at(0) == '"' || at(0) == '\'')
        return literalSize(0);
    return punctuatorSize();
}

/// The size of an identifier, or of the literal that it is the prefix of.
qsizetype TokenStream::wordSize() const
{
    qsizetype size = 1;
    while (isOfIdentifier(at(size)))
        ++size;
    const bool isBeforeLiteral = at(size) == '"' || at(size) == '\'';
    if (!isBeforeLiteral || !isOneOf(literalPrefixes, m_text.sliced(m_place, size)))
        return size;
    return at(size - 1) == 'R' ? rawLiteralSize(size) : literalSize(size);
}

qsizetype TokenStream::numberSize() const
{
    qsizetype size = 1;
    while (true) {
        const bool isSign =
            (at(size) == '+' || at(size) == '-') && QByteArrayView("eEpP").contains(at(size - 1));
        const bool isSeparator = at(size) == '\'' && isOfIdentifier(at(size + 1));
        if (!isSign && !isSeparator && at(size) != '.' && !isOfIdentifier(at(size)))
            return size;
        ++size;
    }
}

/// The size of a literal that is quoted from \a start on. One that does not end ends with its line.
qsizetype TokenStream::literalSize(qsizetype start) const
{
    const char quote = at(start);
    qsizetype size = start + 1;
    while (m_place + size < m_text.size() && at(size) != quote && at(size) != '\n')
        size += at(size) == '\\' ? 2 : 1;
    size += at(size) == quote ? 1 : 0;
    return std::min(size, m_text.size() - m_place);
}

qsizetype TokenStream::rawLiteralSize(qsizetype start) const
{
    const qsizetype open = m_text.indexOf('(', m_place + start);
    if (open < 0)
        return literalSize(start);
    const QByteArray end =
        ')' + m_text.sliced(m_place + start + 1, open - m_place - start - 1).toByteArray() + '"';
    const qsizetype close = m_text.indexOf(end, open);
    return close < 0 ? literalSize(start) : close + end.size() - m_place;
}

qsizetype TokenStream::punctuatorSize() const
{
    for (const QByteArrayView punctuator : punctuators) {
        if (m_text.sliced(m_place).startsWith(punctuator))
            return punctuator.size();
    }
    return 1;
}

/// How many lines behind that of \a stream the number \a token is; nothing if it is none.
std::optional<int> linesBehind(QByteArrayView token, const TokenStream &stream)
{
    bool isNumber = false;
    const int number = token.toInt(&isNumber);
    return isNumber ? std::optional(number - stream.line()) : std::nullopt;
}

/// How many lines behind that of \a stream the next token on another one stands; nothing if the
/// file ends before.
std::optional<int> linesToNext(TokenStream stream)
{
    const QString file = stream.file();
    const int line = stream.line();
    while (!stream.next().isEmpty() && stream.file() == file) {
        if (stream.line() != line)
            return stream.line() - line;
    }
    return {};
}

/// How long the same name is that \a one and \a other begin with, without digits at its end.
qsizetype commonStem(QByteArrayView one, QByteArrayView other)
{
    const auto ends = std::mismatch(one.begin(), one.end(), other.begin(), other.end());
    qsizetype stem = ends.first - one.begin();
    while (stem > 0 && isDigit(one[stem - 1]))
        --stem;
    return stem;
}

/// Whether \a one and \a other are what both have in the place of __LINE__ in a macro's arguments
/// that stand on several lines: the first line for GNU compilers, for clang the last. It may have
/// been pasted to a name. Nothing else stands on lines between them.
bool areLineOfCall(QByteArrayView one, const TokenStream &compiler, QByteArrayView other,
                   const TokenStream &clang)
{
    const int longestCall = 50;
    const qsizetype stem = commonStem(one, other);
    one = one.sliced(stem);
    other = other.sliced(stem);
    const std::optional<int> ofCall = linesBehind(other, clang);
    return linesBehind(one, compiler) == 0 && ofCall > 0 && ofCall < longestCall
        && linesToNext(compiler).value_or(longestCall) >= ofCall;
}

} // namespace

std::optional<TokenDifference> firstDifference(const PreprocessedSource &ofCompiler,
                                               const PreprocessedSource &ofClang)
{
    PreprocessedSource own = ofCompiler;
    own.text = withPragmaLines(own.text);
    TokenStream compiler(own), clang(ofClang);
    while (true) {
        const QByteArrayView one = compiler.next(), other = clang.next();
        if (one != other && !areLineOfCall(one, compiler, other, clang)) {
            const TokenStream &place = one.isEmpty() ? clang : compiler;
            return TokenDifference {place.file(), place.line(), one.toByteArray(),
                                    other.toByteArray()};
        }
        if (one.isEmpty())
            return {};
    }
}
