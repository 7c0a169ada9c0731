#include "questions.h"

namespace {

// Control characters mark what is read back: a listing that a compiler leaves beside the object
// shows them in another way, so that it is never taken for the object.
const char begins = '\1', numbered = '\2', ends = '\3';

const int mostReadings = 3; // of constants that should be there and are not

/// The content between the marks of array \a number, if they stand in \a bytes.
std::optional<QByteArray> contentOf(const QByteArray &bytes, int number)
{
    const QByteArray mark = begins + QByteArray::number(number) + numbered;
    const qsizetype start = bytes.indexOf(mark);
    if (start < 0)
        return {};
    const qsizetype end = bytes.indexOf(ends, start);
    if (end < 0)
        return {};
    return bytes.mid(start + mark.size(), end - start - mark.size());
}

QByteArray arrayName(int number)
{
    return "calyx_" + QByteArray::number(number);
}

/// An array of characters; \a elements is a string literal or a list in braces.
QByteArray arrayOf(int number, const QByteArray &elements, bool isCpp)
{
    const QByteArray declarator = "const char " + arrayName(number) + "[]";
    // Without a declaration before it a constant would be internal in C++, and left out.
    return (isCpp ? "extern " + declarator + "; " : QByteArray()) + declarator + " = " + elements
         + ";\n";
}

QByteArray listStart(int number)
{
    QByteArray list = "1,";
    for (const char digit : QByteArray::number(number))
        list += QByteArray::number(int(digit)) + ',';
    return list + "2,";
}

/// Four characters, least significant first, which stand for the value of \a expression.
QByteArray hexLetters(const QByteArray &expression)
{
    QByteArray list;
    for (const char *shift : {"", ">>4", ">>8", ">>12"})
        list += "65+(((" + expression + ')' + shift + ")&15),";
    return list;
}

int fromHexLetters(const QByteArray &letters)
{
    int value = 0;
    for (qsizetype i = letters.size() - 1; i >= 0; --i)
        value = value * 16 + (letters[i] - 'A');
    return value;
}

QByteArray characterConstant(char c)
{
    if (c < ' ')
        return "'\\" + QByteArray::number(int(c), 8) + '\'';
    const bool isEscaped = c == '\'' || c == '\\';
    return (isEscaped ? "'\\" : "'") + QByteArray(1, c) + '\'';
}

/// \a bytes, in a character set whose codes stand for \a characters, or none if that is empty.
QByteArray decoded(QByteArray bytes, const QByteArray &characters)
{
    if (!characters.isEmpty()) {
        for (char &byte : bytes)
            byte = characters[static_cast<unsigned char>(byte)];
    }
    return bytes;
}

} // namespace

Questions::Questions(const ProbeRunner &runner) : m_runner(runner)
{
    QList<ConstantSource> sources {ConstantSource::ObjectFile};
    if (!runner.compiler().isCross)
        sources << ConstantSource::RunningProgram;
    for (const ConstantSource source : sources) {
        m_source = source;
        m_isProven = readsTexts() || (learnCharacterSet() && readsTexts());
        if (m_isProven)
            return;
        m_characters.clear();
    }
    m_source = ConstantSource::None;
}

/// Whether a text comes back as it is.
bool Questions::readsTexts()
{
    // As long as a literal may be (ISO C90 5.2.4.1) and dull, so that a compiler that compresses
    // what it leaves does so.
    const QByteArray text = QByteArray("calyx").repeated(90);
    return texts({}, {'"' + text + '"'}).first() == text;
}

/// Asks the compiler for the codes of the characters that a text may hold; numbers read the same in
/// every character set. Returns whether it has told them.
bool Questions::learnCharacterSet()
{
    QByteArray characters = QByteArray() + begins + numbered + ends;
    for (char c = ' '; c <= '~'; ++c)
        characters += c;
    QList<QByteArray> constants;
    for (const char c : characters)
        constants << characterConstant(c);
    const QList<std::optional<int>> codes = numbers({}, constants);
    m_characters = QByteArray(256, '\0');
    for (qsizetype i = 0; i < codes.size(); ++i)
        m_characters[codes[i].value_or(0) & 255] = characters[i];
    return !codes.contains(std::nullopt);
}

AskProbes Questions::askProbes() const
{
    return [this](const QList<QByteArray> &sources) { return m_runner.askAll(sources); };
}

QList<bool> Questions::accepted(const QByteArray &prelude, const QList<QByteArray> &items,
                                bool confirms) const
{
    return acceptedItems(askProbes(), prelude, items, limits(), confirms);
}

std::optional<QList<bool>> Questions::withoutMessage(const QByteArray &prelude,
                                                     const QList<QByteArray> &items,
                                                     const QByteArray &control) const
{
    if (!m_runner.controls().isQuiet)
        return {};
    return itemsWithoutMessage(askProbes(), prelude, items, control, limits());
}

QList<ProbeAnswer> Questions::eachAlone(const QList<QByteArray> &sources) const
{
    return m_runner.askAll(sources);
}

bool Questions::rejects(ErrorKind kind) const
{
    return m_runner.controls().rejects(kind);
}

QList<bool> Questions::acceptedApart(const QList<QByteArray> &items) const
{
    return itemsAcceptedApart(askProbes(), {}, items, limits());
}

/// The bytes of the arrays in \a batch, with which \a source has been compiled.
QByteArray Questions::bytesOf(const QByteArray &source, const Batch &batch,
                              const ProbeAnswer &answer) const
{
    if (m_source == ConstantSource::ObjectFile)
        return answer.bytes;
    QByteArray program = source;
    program += isCpp() ? "extern \"C\" int putchar(int);\n" : "int putchar(int);\n";
    program += "int main(void) { unsigned i;\n";
    for (const int index : batch) {
        const QByteArray array = arrayName(index);
        program += "for (i = 0; i < sizeof " + array + "; ++i) putchar(" + array + "[i]);\n";
    }
    return m_runner.ask(program + "return 0; }\n", CompileTo::Program).bytes;
}

/// Reads the contents of the arrays in \a batch, with which \a source has compiled with the answer
/// \a first. A compiler that leaves some of them out, and does so again, has failed: they would be
/// taken for conditions that are false.
void Questions::readContents(const QByteArray &source, const Batch &batch, const ProbeAnswer &first,
                             const QByteArray &characters,
                             QList<std::optional<QByteArray>> &contents) const
{
    ProbeAnswer answer = first;
    for (int tries = 0; tries < mostReadings; ++tries) {
        if (tries > 0)
            answer = m_runner.ask(source);
        const QByteArray bytes = decoded(bytesOf(source, batch, answer), characters);
        bool isWhole = true;
        for (const int index : batch) {
            contents[index] = contentOf(bytes, index);
            isWhole &= contents[index].has_value();
        }
        if (isWhole || !m_isProven)
            return;
    }
    answer.lacksConstants = true;
    m_runner.fail(answer);
}

/// Reads the contents of the arrays \a items in \a batches into \a contents. Returns the batches
/// that do not compile.
QList<Batch> Questions::readBatches(const QByteArray &prelude, const QList<QByteArray> &items,
                                    const QList<Batch> &batches, const QByteArray &characters,
                                    QList<std::optional<QByteArray>> &contents) const
{
    QList<QByteArray> sources;
    for (const Batch &batch : batches)
        sources << prelude + joinedItems(items, batch);
    const QList<ProbeAnswer> answers = m_runner.askAll(sources);
    QList<Batch> failed;
    for (qsizetype i = 0; i < batches.size(); ++i) {
        if (!answers[i].compiled()) {
            failed << batches[i];
            continue;
        }
        readContents(sources[i], batches[i], answers[i], characters, contents);
    }
    return failed;
}

/// The contents of arrays with \a elements, in a character set whose codes stand for \a characters.
QList<std::optional<QByteArray>> Questions::arrays(const QByteArray &prelude,
                                                   const QList<QByteArray> &elements,
                                                   const QByteArray &characters) const
{
    QList<QByteArray> items;
    for (const QByteArray &list : elements)
        items << arrayOf(int(items.size()), list, isCpp());
    QList<std::optional<QByteArray>> contents(items.size());
    // All are tried together first; what keeps a batch from compiling is left out afterwards.
    QList<Batch> rests;
    for (const Batch &batch : readBatches(
             prelude, items, batchesOf(items, prelude.size(), limits()), characters, contents)) {
        QList<QByteArray> own;
        for (const int index : batch)
            own << items[index];
        const Batch rest = selected(batch, accepted(prelude, own));
        if (!rest.isEmpty())
            rests << rest;
    }
    readBatches(prelude, items, rests, characters, contents);
    return contents;
}

QList<std::optional<QByteArray>> Questions::texts(const QByteArray &prelude,
                                                  const QList<QByteArray> &literals) const
{
    QList<QByteArray> elements;
    for (const QByteArray &literal : literals) {
        elements << "\"\\001\" \"" + QByteArray::number(elements.size()) + "\" \"\\002\" " + literal
                        + " \"\\003\"";
    }
    return arrays(prelude, elements, m_characters);
}

QList<std::optional<int>> Questions::numbers(const QByteArray &prelude,
                                             const QList<QByteArray> &expressions) const
{
    QList<QByteArray> elements;
    for (const QByteArray &expression : expressions)
        elements << '{' + listStart(int(elements.size())) + hexLetters(expression) + "3}";
    QList<std::optional<int>> values;
    for (const std::optional<QByteArray> &letters : arrays(prelude, elements, {}))
        values << (letters ? std::optional(fromHexLetters(*letters)) : std::nullopt);
    return values;
}

QList<bool> Questions::conditions(const QList<QByteArray> &conditions,
                                  const QByteArray &prelude) const
{
    QList<QByteArray> elements;
    for (const QByteArray &condition : conditions) {
        elements << '{' + listStart(int(elements.size())) + "\n#if " + condition
                        + "\n1,\n#endif\n3}";
    }
    QList<bool> holds;
    for (const std::optional<QByteArray> &content : arrays(prelude, elements, {}))
        holds << (content && !content->isEmpty());
    return holds;
}
