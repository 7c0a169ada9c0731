#include "experiment.h"

#include <algorithm>
#include <numeric>

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

QList<int> firstIndices(qsizetype count)
{
    QList<int> indices(count);
    std::iota(indices.begin(), indices.end(), 0);
    return indices;
}

QByteArray joined(const QList<QByteArray> &items, const QList<int> &chosen)
{
    QByteArray text;
    for (const int index : chosen)
        text += items[index];
    return text;
}

/// Those of \a chosen, which stand one after the other behind \a prelude, that \a lines name.
QList<int> itemsOn(const QSet<int> &lines, const QByteArray &prelude,
                   const QList<QByteArray> &items, const QList<int> &chosen)
{
    QList<int> named;
    int line = int(prelude.count('\n')) + 1;
    for (const int index : chosen) {
        const int end = line + int(items[index].count('\n'));
        bool isNamed = false;
        for (; line < end; ++line)
            isNamed |= lines.contains(line);
        if (isNamed)
            named << index;
    }
    return named;
}

} // namespace

Experiment::Experiment(const Prober &prober, bool compilerIsNative) : m_prober(prober)
{
    // As long as a literal may be (ISO C90 5.2.4.1) and dull, so that a compiler that compresses
    // what it leaves does so.
    const QByteArray text = QByteArray("calyx").repeated(90);
    for (const Channel channel : {Channel::Object, Channel::Program}) {
        if (channel == Channel::Program && !compilerIsNative)
            break;
        m_channel = channel;
        for (const bool isKnownSet : {true, false}) {
            if (!isKnownSet && !learnCharacterSet())
                break;
            if (texts({}, {'"' + text + '"'}).first() == text)
                return;
        }
        m_characters.clear();
    }
    m_channel = Channel::None;
}

/// Asks the compiler for the codes of the characters that a text may hold; numbers read the same in
/// every character set. Returns whether it has told them.
bool Experiment::learnCharacterSet()
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

QList<Experiment::Indices> Experiment::batches(qsizetype preludeSize,
                                               const QList<QByteArray> &items,
                                               const Indices &chosen) const
{
    QList<Indices> batches;
    qsizetype size = 0;
    for (const int index : chosen) {
        const bool isFull = batches.isEmpty()
                         || batches.last().size() * 2 >= m_prober.declarationLimit()
                         || size + items[index].size() > m_prober.byteLimit();
        if (isFull) {
            batches << Indices();
            size = preludeSize;
        }
        batches.last() << index;
        size += items[index].size();
    }
    return batches;
}

QList<bool> Experiment::accepted(const QByteArray &prelude, const QList<QByteArray> &items,
                                 bool confirmsAlone) const
{
    QList<bool> accepted(items.size(), false);
    QList<Indices> open = batches(prelude.size(), items, firstIndices(items.size()));
    Indices suspects;
    while (!open.isEmpty()) {
        QList<QByteArray> sources;
        for (const Indices &batch : open)
            sources << prelude + joined(items, batch);
        const QList<Answer> answers = m_prober.askAll(sources);
        QList<Indices> next;
        for (qsizetype i = 0; i < open.size(); ++i) {
            const Indices &batch = open[i];
            if (answers[i].compiled()) {
                for (const int index : batch)
                    accepted[index] = true;
                continue;
            }
            if (batch.size() == 1)
                continue;
            const Indices named = itemsOn(answers[i].lines, prelude, items, batch);
            Indices rest;
            std::set_difference(batch.begin(), batch.end(), named.begin(), named.end(),
                                std::back_inserter(rest));
            suspects << named;
            // A compiler that names one line only, or none, may stop at its first error.
            if (named.size() > 1 && !rest.isEmpty()) {
                next << rest;
            } else {
                const Indices &halved = rest.isEmpty() ? named : rest;
                if (rest.isEmpty())
                    suspects.resize(suspects.size() - named.size());
                const qsizetype half = halved.size() / 2;
                for (const Indices &part : {halved.mid(0, half), halved.mid(half)}) {
                    if (!part.isEmpty())
                        next << part;
                }
            }
        }
        open = next;
    }
    if (confirmsAlone && !suspects.isEmpty()) {
        QList<QByteArray> sources;
        for (const int index : suspects)
            sources << prelude + items[index];
        const QList<Answer> answers = m_prober.askAll(sources);
        for (qsizetype i = 0; i < suspects.size(); ++i)
            accepted[suspects[i]] = answers[i].compiled();
    }
    return accepted;
}

QByteArray Experiment::bytesOf(const Probe &probe, const Answer &answer) const
{
    if (m_channel == Channel::Object)
        return answer.bytes;
    QByteArray program = probe.source;
    program += m_prober.isCpp() ? "extern \"C\" int putchar(int);\n" : "int putchar(int);\n";
    program += "int main(void) { unsigned i;\n";
    for (const QByteArray &array : probe.arrays)
        program += "for (i = 0; i < sizeof " + array + "; ++i) putchar(" + array + "[i]);\n";
    return m_prober.askByRunning(program + "return 0; }\n").bytes;
}

QList<std::pair<Experiment::Indices, QByteArray>> Experiment::read(const QByteArray &prelude,
                                                                   const QList<QByteArray> &items,
                                                                   const MakeProbe &makeProbe) const
{
    QList<std::pair<Indices, QByteArray>> results;
    QList<Indices> open = batches(prelude.size(), items, firstIndices(items.size()));
    // All are tried together first; what keeps a batch from compiling is left out afterwards.
    for (const bool isFirst : {true, false}) {
        QList<Probe> probes;
        QList<QByteArray> sources;
        for (const Indices &batch : open) {
            probes << makeProbe(batch);
            sources << probes.last().source;
        }
        const QList<Answer> answers = m_prober.askAll(sources);
        QList<Indices> next;
        for (qsizetype i = 0; i < open.size(); ++i) {
            if (answers[i].compiled()) {
                results << std::pair(open[i], bytesOf(probes[i], answers[i]));
            } else if (isFirst) {
                QList<QByteArray> own;
                for (const int index : open[i])
                    own << items[index];
                const QList<bool> good = accepted(prelude, own);
                Indices rest;
                for (qsizetype j = 0; j < own.size(); ++j) {
                    if (good[j])
                        rest << open[i][j];
                }
                if (!rest.isEmpty())
                    next << rest;
            }
        }
        open = next;
    }
    return results;
}

QList<std::optional<QByteArray>> Experiment::arrays(const QByteArray &prelude,
                                                    const QList<QByteArray> &contents,
                                                    bool areTexts) const
{
    QList<QByteArray> items;
    for (qsizetype i = 0; i < contents.size(); ++i)
        items << arrayOf(int(i), contents[i]);
    const MakeProbe makeProbe = [&](const Indices &batch) {
        Probe probe {prelude + joined(items, batch), {}};
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

QList<std::optional<QByteArray>> Experiment::texts(const QByteArray &prelude,
                                                   const QList<QByteArray> &literals) const
{
    QList<QByteArray> contents;
    for (qsizetype i = 0; i < literals.size(); ++i) {
        contents << "\"\\001\" \"" + QByteArray::number(i) + "\" \"\\002\" " + literals[i]
                        + " \"\\003\"";
    }
    return arrays(prelude, contents, true);
}

QList<std::optional<int>> Experiment::numbers(const QByteArray &prelude,
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

QList<bool> Experiment::conditions(const QList<QByteArray> &conditions,
                                   const QByteArray &prelude) const
{
    // Where a condition is true its number within the batch stands in the batch's one array.
    // The items, which are only compiled by themselves to find one that is not understood, are as
    // long as what stands for them in the array.
    QList<QByteArray> items;
    for (const QByteArray &condition : conditions)
        items << "#if " + condition + "\n            \n#endif\n";
    const MakeProbe makeProbe = [&](const Indices &batch) {
        QByteArray list = '{' + listStart(0) + '\n';
        for (qsizetype i = 0; i < batch.size(); ++i) {
            QByteArray code;
            for (int shift = 0; shift < 16; shift += 4)
                code += QByteArray::number('A' + ((i >> shift) & 15)) + ',';
            list += "#if " + conditions[batch[i]] + '\n' + code + "\n#endif\n";
        }
        return Probe {prelude + arrayOf(0, list + "3}"), {arrayName(0)}};
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
