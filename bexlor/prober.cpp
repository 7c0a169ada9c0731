#include "prober.h"

#include "text_file.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QThreadPool>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const int usualTimeLimit = 60'000; // milliseconds for one compilation

/// The same, or what tests set.
int timeLimit()
{
    const int set = qEnvironmentVariableIntValue("BEXLOR_TIME_LIMIT");
    return set > 0 ? set : usualTimeLimit;
}

const qint64 largestObject = 64'000'000;

/// The bytes of all files in \a folder but the source, the most likely object first.
QByteArray leftBytes(const QString &folder, const QString &source, const QString &extension)
{
    QStringList files;
    QDirIterator entries(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QString file = entries.next();
        if (entries.fileName() != source && entries.fileInfo().size() <= largestObject)
            files << file;
    }
    std::sort(files.begin(), files.end(), [&](const QString &a, const QString &b) {
        const bool aIsObject = !extension.isEmpty() && a.endsWith(extension);
        const bool bIsObject = !extension.isEmpty() && b.endsWith(extension);
        return aIsObject != bIsObject ? aIsObject : a < b;
    });
    QByteArray bytes;
    for (const QString &path : files) {
        QFile file(path);
        if (file.open(QIODevice::ReadOnly))
            bytes += objectBytes(file.readAll()) + '\n';
    }
    return bytes;
}

QByteArray fromHex(const QByteArray &digits, qsizetype skippedBytes, qsizetype droppedBytes)
{
    const QByteArray bytes = QByteArray::fromHex(digits);
    return bytes.mid(skippedBytes, bytes.size() - skippedBytes - droppedBytes);
}

/// Reads one of the numbers of ca65's object files, seven bits a byte, the least significant first.
/// Moves \a at behind it; -1 when the file ends before.
int takeNumber(const QByteArray &file, qsizetype &at)
{
    int number = 0;
    for (int shift = 0; at < file.size() && shift < 28; shift += 7) {
        const unsigned char byte = static_cast<unsigned char>(file[at++]);
        number |= (byte & 0x7f) << shift;
        if (!(byte & 0x80))
            return number;
    }
    return -1;
}

/// The constants in an object file of the assembler ca65. It holds an array as one fragment for
/// each byte: a zero, the length one, the byte, and a list of numbers that refer to source lines.
QByteArray fromCa65(const QByteArray &file)
{
    const int mostLineNumbers = 4;
    QByteArray bytes;
    for (qsizetype start = 0; start + 3 < file.size();) {
        qsizetype at = start + 3;
        const bool mayBegin = file[start] == 0 && file[start + 1] == 1;
        const int lineNumbers = mayBegin ? takeNumber(file, at) : 0;
        if (lineNumbers < 1 || lineNumbers > mostLineNumbers) {
            bytes += '\n';
            ++start;
            continue;
        }
        bytes += file[start + 2];
        for (int i = 0; i < lineNumbers; ++i)
            takeNumber(file, at);
        start = at;
    }
    return bytes;
}

} // namespace

Prober::Prober(const Compiler &compiler, const QString &folder, bool smallProbes)
    : m_compiler(compiler), m_folder(folder), m_smallProbes(smallProbes)
{ }

QString Prober::sourceName() const
{
    return QLatin1String(m_compiler.isCpp ? "probe.cpp" : "probe.c");
}

QStringList Prober::command(Product product) const
{
    const QString output =
        product == Product::Object ? "probe"_L1 + m_compiler.objectExtension : u"probe.exe"_s;
    return compileCommand(m_compiler, sourceName(), output, product);
}

Answer Prober::ask(const QByteArray &source, Product product) const
{
    const QString folder = m_folder + u"/%1"_s.arg(++m_folders);
    const Answer answer = askIn(folder, source, product);
    QDir(folder).removeRecursively();
    return answer;
}

Answer Prober::askIn(const QString &folder, const QByteArray &source, Product product) const
{
    Answer answer;
    QDir().mkdir(folder);
    // Without an object flag a native compiler makes a program of every probe.
    const bool needsMain =
        product == Product::Object && m_compiler.objectFlag.isEmpty() && !m_compiler.isCross;
    const QByteArray text = needsMain ? source + "int main(void) { return 0; }\n" : source;
    if (!platform::writeFile(folder + u'/' + sourceName(), text))
        return answer;
    ++m_started;
    answer.run = platform::runProgram(command(product), folder, timeLimit());
    const QByteArray messages = answer.run.errors + '\n' + answer.run.output;
    const QByteArray name = sourceName().toLatin1();
    answer.allLines = namedLines(messages, name);
    answer.lines = namedLines(messages, name, true);
    if (answer.lines.isEmpty())
        answer.lines = answer.allLines;
    if (answer.compiled() && product == Product::Object)
        answer.bytes = leftBytes(folder, sourceName(), m_compiler.objectExtension);
    return answer;
}

QList<Answer> Prober::askAll(const QList<QByteArray> &sources) const
{
    QList<Answer> answers(sources.size());
    Answer *const slots_ = answers.data();
    QThreadPool pool;
    for (qsizetype i = 0; i < sources.size(); ++i)
        pool.start([this, slots_, &sources, i] { slots_[i] = ask(sources[i]); });
    pool.waitForDone();
    return answers;
}

Answer Prober::askByRunning(const QByteArray &source) const
{
    const QString folder = m_folder + u"/%1"_s.arg(++m_folders);
    Answer answer = askIn(folder, source, Product::Executable);
    if (answer.compiled()) {
        for (const QString &name : {u"probe.exe"_s, u"a.out"_s}) {
            const QString program = folder + u'/' + name;
            if (QFile::exists(program))
                answer.bytes = platform::runProgram({program}, folder, timeLimit()).output;
        }
    }
    QDir(folder).removeRecursively();
    return answer;
}

QSet<int> namedLines(const QByteArray &messages, const QByteArray &source, bool ofErrors)
{
    static const QRegularExpression lineBefore(u"\\bline ([0-9]+)\\D*$"_s,
                                               QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression number(u"^[^0-9\\n]{1,10}?(?<![A-Za-z_])([0-9]+)"_s);
    static const QRegularExpression isError(u"error|fatal"_s,
                                            QRegularExpression::CaseInsensitiveOption);
    QSet<int> lines;
    for (const QByteArray &message : messages.split('\n')) {
        const qsizetype name = message.indexOf(source);
        if (name < 0)
            continue;
        const QString before = QString::fromLatin1(message.first(name));
        const QString behind = QString::fromLatin1(message.mid(name + source.size()));
        QRegularExpressionMatch match = lineBefore.match(before);
        const QString &description = match.hasMatch() ? before : behind;
        if (!match.hasMatch())
            match = number.match(behind);
        if (match.hasMatch() && (!ofErrors || isError.match(description).hasMatch()))
            lines << match.captured(1).toInt();
    }
    return lines;
}

QByteArray objectBytes(const QByteArray &file)
{
    // The first line of an ASxxxx file: radix, byte order, and how many bytes an address has.
    static const QRegularExpression relocatable(u"^X[HL]([234])\\s"_s);
    const QRegularExpressionMatch match = relocatable.match(QString::fromLatin1(file.left(16)));
    if (file.startsWith("Uzna"))
        return fromCa65(file);
    const bool isIntelHex = file.startsWith(':');
    const bool isSRecord = file.startsWith("S0") || file.startsWith("S1") || file.startsWith("S3");
    if (!match.hasMatch() && !isIntelHex && !isSRecord)
        return file;

    QByteArray bytes;
    for (const QByteArray &rawLine : file.split('\n')) {
        const QByteArray line = rawLine.trimmed();
        if (match.hasMatch() && line.startsWith("T ")) {
            bytes += fromHex(line.mid(2), match.captured(1).toInt(), 0);
        } else if (isIntelHex && line.startsWith(':') && line.mid(7, 2) == "00") {
            bytes += fromHex(line.mid(1), 4, 1); // count, address and type; checksum
        } else if (isSRecord && line.startsWith('S') && line.size() > 3) {
            // Count and an address of two, three or four bytes; checksum.
            const int addressBytes = line[1] == '1' ? 2 : line[1] == '2' ? 3 : 4;
            if (line[1] >= '1' && line[1] <= '3')
                bytes += fromHex(line.mid(2), 1 + addressBytes, 1);
        }
    }
    return bytes;
}
