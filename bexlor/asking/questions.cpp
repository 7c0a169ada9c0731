#include "questions.h"

namespace {

// Control characters mark what is read back: a listing that a compiler leaves beside the object
// shows them in another way, so that it is never taken for the object.
const char begins = '\1', numbered = '\2', ends = '\3';

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
QByteArray arrayOf(int number, const QByteArray &elements)
{
    // Without a declaration before it a constant would be internal in C++, and left out.
    const QByteArray declarator = "const char " + arrayName(number) + "[]";
    return "extern " + declarator + "; " + declarator + " = " + elements + ";\n";
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

/// The elements of an array in which, for each of \a conditions in \a batch that is true, its
/// number within the batch stands as four letters.
QByteArray numbersOfTrue(const QList<QByteArray> &conditions, const Batch &batch)
{
    QByteArray list = '{' + listStart(0) + '\n';
    for (qsizetype i = 0; i < batch.size(); ++i) {
        QByteArray code;
        for (int shift = 0; shift < 16; shift += 4)
            code += QByteArray::number('A' + ((i >> shift) & 15)) + ',';
        list += "#if " + conditions[batch[i]] + '\n' + code + "\n#endif\n";
    }
    return list + "3}";
}

} // namespace

Questions::Questions(const ProbeRunner &runner) : m_runner(runner)
{
    QList<ConstantSource> sources {ConstantSource::ObjectFile};
    if (!runner.compiler().isCross)
        sources << ConstantSource::RunningProgram;
    for (const ConstantSource source : sources) {
        m_source = source;
        if (readsTexts() || (learnCharacterSet() && readsTexts()))
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
                                bool confirmsAlone) const
{
    return acceptedItems(askProbes(), prelude, items, limits(), confirmsAlone);
}

std::optional<QList<bool>> Questions::withoutMessage(const QByteArray &prelude,
                                                     const QList<QByteArray> &items,
                                                     const QByteArray &control) const
{
    return itemsWithoutMessage(askProbes(), prelude, items, control, limits());
}

QList<ProbeAnswer> Questions::eachAlone(const QList<QByteArray> &sources) const
{
    return m_runner.askAll(sources);
}

QByteArray Questions::bytesOf(const ReadingProbe &probe, const ProbeAnswer &answer) const
{
    if (m_source == ConstantSource::ObjectFile)
        return answer.bytes;
    QByteArray program = probe.source;
    program += isCpp() ? "extern \"C\" int putchar(int);\n" : "int putchar(int);\n";
    program += "int main(void) { unsigned i;\n";
    for (const QByteArray &array : probe.arrays)
        program += "for (i = 0; i < sizeof " + array + "; ++i) putchar(" + array + "[i]);\n";
    return m_runner.askByRunning(program + "return 0; }\n").bytes;
}

/// Adds what can be read of \a batches to \a readings. Returns the batches that do not compile.
QList<Batch> Questions::readTogether(const QList<Batch> &batches, const MakeProbe &makeProbe,
                                     QList<Reading> &readings) const
{
    QList<ReadingProbe> probes;
    QList<QByteArray> sources;
    for (const Batch &batch : batches) {
        probes << makeProbe(batch);
        sources << probes.last().source;
    }
    const QList<ProbeAnswer> answers = m_runner.askAll(sources);
    QList<Batch> failed;
    for (qsizetype i = 0; i < batches.size(); ++i) {
        if (answers[i].compiled())
            readings.append({batches[i], bytesOf(probes[i], answers[i])});
        else
            failed << batches[i];
    }
    return failed;
}

QList<Questions::Reading> Questions::read(const QByteArray &prelude, const QList<QByteArray> &items,
                                          const MakeProbe &makeProbe) const
{
    QList<Reading> readings;
    // All are tried together first; what keeps a batch from compiling is left out afterwards.
    QList<Batch> rests;
    for (const Batch &batch :
         readTogether(batchesOf(items, prelude.size(), limits()), makeProbe, readings)) {
        QList<QByteArray> own;
        for (const int index : batch)
            own << items[index];
        const QList<bool> isGood = accepted(prelude, own);
        Batch rest;
        for (qsizetype i = 0; i < batch.size(); ++i) {
            if (isGood[i])
                rest << batch[i];
        }
        if (!rest.isEmpty())
            rests << rest;
    }
    readTogether(rests, makeProbe, readings);
    return readings;
}

QList<std::optional<QByteArray>>
Questions::arrays(const QByteArray &prelude, const QList<QByteArray> &contents, bool areTexts) const
{
    QList<QByteArray> items;
    for (qsizetype i = 0; i < contents.size(); ++i)
        items << arrayOf(int(i), contents[i]);
    const MakeProbe makeProbe = [&](const Batch &batch) {
        ReadingProbe probe {prelude + joinedItems(items, batch), {}};
        for (const int index : batch)
            probe.arrays << arrayName(index);
        return probe;
    };
    QList<std::optional<QByteArray>> found(contents.size());
    for (const auto &[batch, bytes] : read(prelude, items, makeProbe)) {
        const QByteArray content = areTexts ? decoded(bytes, m_characters) : bytes;
        for (const int index : batch)
            found[index] = contentOf(content, index);
    }
    return found;
}

QList<std::optional<QByteArray>> Questions::texts(const QByteArray &prelude,
                                                  const QList<QByteArray> &literals) const
{
    QList<QByteArray> contents;
    for (qsizetype i = 0; i < literals.size(); ++i) {
        contents << "\"\\001\" \"" + QByteArray::number(i) + "\" \"\\002\" " + literals[i]
                        + " \"\\003\"";
    }
    return arrays(prelude, contents, true);
}

QList<std::optional<int>> Questions::numbers(const QByteArray &prelude,
                                             const QList<QByteArray> &expressions) const
{
    QList<QByteArray> contents;
    for (qsizetype i = 0; i < expressions.size(); ++i)
        contents << '{' + listStart(int(i)) + hexLetters(expressions[i]) + "3}";
    QList<std::optional<int>> values;
    for (const std::optional<QByteArray> &letters : arrays(prelude, contents, false))
        values << (letters ? std::optional(fromHexLetters(*letters)) : std::nullopt);
    return values;
}

QList<bool> Questions::conditions(const QList<QByteArray> &conditions,
                                  const QByteArray &prelude) const
{
    // The items are only compiled by themselves to find one that is not understood; they are as
    // long as what stands for them in the array.
    QList<QByteArray> items;
    for (const QByteArray &condition : conditions)
        items << "#if " + condition + "\n            \n#endif\n";
    const MakeProbe makeProbe = [&conditions, &prelude](const Batch &batch) {
        return ReadingProbe {prelude + arrayOf(0, numbersOfTrue(conditions, batch)),
                             {arrayName(0)}};
    };
    QList<bool> holds(conditions.size(), false);
    for (const auto &[batch, bytes] : read(prelude, items, makeProbe)) {
        const QByteArray codes = contentOf(bytes, 0).value_or(QByteArray());
        for (qsizetype i = 0; i + 4 <= codes.size(); i += 4) {
            const int index = fromHexLetters(codes.mid(i, 4));
            if (index < batch.size())
                holds[batch[index]] = true;
        }
    }
    return holds;
}
