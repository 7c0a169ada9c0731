#include "constant_arrays.h"

namespace {

// Control characters mark what is read back: a listing that a compiler leaves beside the object
// shows them in another way, so that it is never taken for the object.
const char begins = '\1', numbered = '\2', ends = '\3';

const int mostReadings = 3; // of constants that should be there and are not

const QByteArray provingNumber = "0x4361", provingLetters = "BGDE";

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

QByteArray arrayName(qsizetype number)
{
    return "calyx_" + QByteArray::number(number);
}

/// The content of array \a number, a literal between its marks.
QByteArray markedText(qsizetype number, const QByteArray &literal)
{
    return "\"\\001\" \"" + QByteArray::number(number) + "\" \"\\002\" " + literal + " \"\\003\"";
}

QByteArray listStart(qsizetype number)
{
    QByteArray list = "{1,";
    for (const char digit : QByteArray::number(number))
        list += QByteArray::number(int(digit)) + ',';
    return list + "2,";
}

/// The content of array \a number: four characters, least significant first, which stand for the
/// value of \a expression.
QByteArray markedNumber(qsizetype number, const QByteArray &expression)
{
    QByteArray list = listStart(number);
    for (const char *shift : {"", ">>4", ">>8", ">>12"})
        list += "65+(((" + expression + ')' + shift + ")&15),";
    return list + "3}";
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

/// As long as a literal may be (ISO C90 5.2.4.1) and dull, so that a compiler that compresses what
/// it leaves does so.
QByteArray provingText()
{
    return QByteArray("calyx").repeated(90);
}

} // namespace

// In the order in which they are preferred. What is not constant may be stored otherwise, by code
// that runs first; but older compilers know no "const", and others keep no constant array.
const ConstantArrays::Form ConstantArrays::forms[] = {
    {"const char @[]", true, true},
    {"char @[]", true, true},
    {"const char *@", false, true},
    {"char *@", false, false},
};

ConstantArrays::ConstantArrays(const ProbeRunner &runner, CompileTo goal)
    : m_runner(runner), m_goal(goal)
{
    const std::span<const Form> all(forms);
    // Most compilers need no other than the first, and a probe that all accept.
    if (!learnForm(all.first(1)))
        learnForm(all.subspan(1));
    if (readsNumbers() && !m_readsTexts) {
        const QByteArray text = provingText();
        m_readsTexts = learnCharacterSet() && texts({}, {'"' + text + '"'}).first() == text;
    }
    m_isProven = m_form != nullptr;
}

/// Takes the first of the forms \a tried whose constants come back, one whose texts come back as
/// they are if there is any. Returns whether there is.
bool ConstantArrays::learnForm(std::span<const Form> tried)
{
    QList<QByteArray> items;
    QList<std::pair<const Form *, QByteArray>> proofs; // of each, with what it must tell
    for (const Form &form : tried) {
        // What a program prints is as long as its array.
        if ((m_runner.compiler().isCpp && !form.isForCpp)
            || (m_goal == CompileTo::Program && !form.takesLists))
            continue;
        items << defined(form, items.size(), markedText(items.size(), '"' + provingText() + '"'));
        proofs << std::pair(&form, provingText());
    }
    const qsizetype firstNumber = items.size();
    for (const Form &form : tried) {
        if (!form.takesLists)
            continue;
        items << defined(form, items.size(), markedNumber(items.size(), provingNumber));
        proofs << std::pair(&form, provingLetters);
    }
    const QList<std::optional<QByteArray>> contents = readBack({}, items, {});
    for (qsizetype i = 0; i < contents.size() && !m_form; ++i) {
        if (contents[i] == proofs[i].second) {
            m_form = proofs[i].first;
            m_readsTexts = i < firstNumber;
        }
    }
    return m_form != nullptr;
}

/// Asks the compiler for the codes of the characters that a text may hold; numbers read the same in
/// every character set. Returns whether it has told them.
bool ConstantArrays::learnCharacterSet()
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

/// The definition of array \a number with \a content, a literal or a list in braces.
QByteArray ConstantArrays::defined(const Form &form, qsizetype number,
                                   const QByteArray &content) const
{
    QByteArray declaration = form.declaration;
    declaration.replace('@', arrayName(number));
    // Without a declaration before it a constant would be internal in C++, and left out.
    const QByteArray before = m_runner.compiler().isCpp ? "extern " + declaration + "; " : "";
    return before + declaration + " = " + content + ";\n";
}

/// The bytes of the arrays in \a batch, with which \a source has been compiled.
QByteArray ConstantArrays::bytesOf(const QByteArray &source, const Batch &batch,
                                   const ProbeAnswer &answer) const
{
    if (m_goal == CompileTo::Object)
        return answer.bytes;
    QByteArray program = source;
    program +=
        m_runner.compiler().isCpp ? "extern \"C\" int putchar(int);\n" : "int putchar(int);\n";
    program += "int main(void) { unsigned i;\n";
    for (const int index : batch) {
        const QByteArray array = arrayName(index);
        program += "for (i = 0; i < sizeof " + array + "; ++i) putchar(" + array + "[i]);\n";
    }
    return m_runner.ask(program + "return 0; }\n", m_goal).bytes;
}

/// Reads the contents of the arrays in \a batch, with which \a source has compiled with the answer
/// \a first. A compiler that leaves some of them out, and does so again, has failed: they would be
/// taken for conditions that are false.
void ConstantArrays::readContents(const QByteArray &source, const Batch &batch,
                                  const ProbeAnswer &first, const QByteArray &characters,
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
    answer.lacksSomething = true;
    m_runner.fail(answer);
}

/// Reads the contents of the arrays \a items in \a batches into \a contents. Returns the batches
/// that do not compile.
QList<Batch> ConstantArrays::readBatches(const QByteArray &prelude, const QList<QByteArray> &items,
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
        m_soundPrelude = prelude;
        readContents(sources[i], batches[i], answers[i], characters, contents);
    }
    return failed;
}

/// The contents of the arrays \a items, in a character set whose codes stand for \a characters.
QList<std::optional<QByteArray>> ConstantArrays::readBack(const QByteArray &prelude,
                                                          const QList<QByteArray> &items,
                                                          const QByteArray &characters) const
{
    const ProbeLimits limits = m_runner.limits();
    QList<std::optional<QByteArray>> contents(items.size());
    // All are tried together first; what keeps a batch from compiling is left out afterwards.
    const QList<Batch> failed =
        readBatches(prelude, items, batchesOf(items, prelude.size(), limits), characters, contents);
    if (failed.isEmpty() || (prelude != m_soundPrelude && !preludeCompiles(m_runner, prelude)))
        return contents;
    QList<Batch> rests;
    for (const Batch &batch : failed) {
        QList<QByteArray> own;
        for (const int index : batch)
            own << items[index];
        const Batch rest =
            selected(batch, acceptedItems(askProbes(m_runner), prelude, own, limits, false));
        if (!rest.isEmpty())
            rests << rest;
    }
    readBatches(prelude, items, rests, characters, contents);
    return contents;
}

/// The same for arrays with \a contents in the form that has been learned.
QList<std::optional<QByteArray>> ConstantArrays::arrays(const QByteArray &prelude,
                                                        const QList<QByteArray> &contents,
                                                        const QByteArray &characters) const
{
    QList<QByteArray> items;
    for (const QByteArray &content : contents)
        items << defined(*m_form, items.size(), content);
    return readBack(prelude, items, characters);
}

QList<std::optional<QByteArray>> ConstantArrays::texts(const QByteArray &prelude,
                                                       const QList<QByteArray> &literals) const
{
    QList<QByteArray> contents;
    for (const QByteArray &literal : literals)
        contents << markedText(contents.size(), literal);
    return arrays(prelude, contents, m_characters);
}

QList<std::optional<int>> ConstantArrays::numbers(const QByteArray &prelude,
                                                  const QList<QByteArray> &expressions) const
{
    QList<QByteArray> contents;
    for (const QByteArray &expression : expressions)
        contents << markedNumber(contents.size(), expression);
    QList<std::optional<int>> values;
    for (const std::optional<QByteArray> &letters : arrays(prelude, contents, {}))
        values << (letters ? std::optional(fromHexLetters(*letters)) : std::nullopt);
    return values;
}

QList<bool> ConstantArrays::conditions(const QByteArray &prelude,
                                       const QList<QByteArray> &conditions) const
{
    QList<QByteArray> contents;
    for (const QByteArray &condition : conditions)
        contents << listStart(contents.size()) + "\n#if " + condition + "\n1,\n#endif\n3}";
    QList<bool> holds;
    for (const std::optional<QByteArray> &content : arrays(prelude, contents, {}))
        holds << (content && !content->isEmpty());
    return holds;
}
