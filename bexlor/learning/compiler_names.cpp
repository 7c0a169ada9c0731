#include "compiler_names.h"

#include "macro_options.h"

#include <QDir>
#include <QRegularExpression>
#include <QSet>

using namespace Qt::StringLiterals;

namespace {

const qsizetype mostWords = 60; // no compiler needs more to name itself
const qint64 largestConfiguration = 1'000'000;

// What configuration files beside programs are called.
const QStringList configurationFiles {u"*.cfg"_s, u"*.cnf"_s, u"*.conf"_s,  u"*.ini"_s, u"*.opt"_s,
                                      u"*.rc"_s,  u"*.rsp"_s, u"*.sp?cs"_s, u"*.via"_s, u"*.xcl"_s};

/// \a text with "_" for what no name may hold.
QString asName(QString text)
{
    static const QRegularExpression odd(u"[^A-Za-z0-9_]+"_s);
    return text.replace(odd, u"_"_s);
}

/// \a text and the words in it.
QStringList withWords(const QString &text)
{
    const QString whole = asName(text);
    return QStringList {whole} + whole.split(u'_', Qt::SkipEmptyParts);
}

/// The words of an option, "-march=armv7e-m", "-mmcs51" or "--model-large", and what follows it.
QStringList wordsOfOption(const QString &option)
{
    static const QRegularExpression parts(u"^(?:--?|/)(m?)([A-Za-z0-9][-\\w]*)(?:[=:](.+))?$"_s);
    const QRegularExpressionMatch match = parts.match(option);
    if (!match.hasMatch())
        return withWords(option);
    const QString name = match.captured(2), value = match.captured(3);
    QStringList words = withWords(value) + withWords(match.captured(1) + name);
    words << asName(name) << asName(name + u'_' + value);
    return words;
}

QString programName(const Compiler &compiler)
{
    return QFileInfo(compiler.command.value(0)).completeBaseName();
}

/// The words by which \a compiler is told from others, the likeliest first.
QStringList wordsOf(const Compiler &compiler, const QByteArray &versionLine)
{
    QStringList words = withWords(programName(compiler));
    for (qsizetype i = 1; i < compiler.command.size(); ++i) {
        static const QRegularExpression path(u".[/\\\\]"_s);
        const QString &option = compiler.command[i];
        if (const auto aboutMacro = macroOptionAt(compiler.command, i))
            i += aboutMacro->words - 1;
        else if (!option.contains(path))
            words << wordsOfOption(option);
    }
    words << withWords(QString::fromLocal8Bit(versionLine)).mid(1);
    words.removeIf([](const QString &word) { return word.size() < 2; });
    words.removeDuplicates();
    return words.mid(0, mostWords);
}

/// The ways in which \a word may be spelled.
QStringList spellings(const QString &word)
{
    return {word, word.toLower(), word.toUpper()};
}

/// The names that are formed of \a words, alone and behind the name of the program.
QStringList formedNames(const QStringList &words, const QStringList &programWords)
{
    QStringList stems;
    for (const QString &word : words) {
        stems << spellings(word);
        for (const QString &program : programWords) {
            stems << spellings(program + u'_' + word) << program.toUpper() + u'_' + word;
        }
    }
    stems.removeDuplicates();
    QStringList names;
    for (const QString &stem : stems) {
        names << u'_' + stem << "__"_L1 + stem << "__"_L1 + stem + "__"_L1;
        if (!stem.front().isDigit())
            names << stem;
    }
    return names;
}

/// The names of the macros that \a compiler's own command is about, and of those that it is given.
QStringList definedNames(const Compiler &compiler)
{
    static const QRegularExpression name(u"^[A-Za-z_]\\w*"_s);
    const QStringList command = commandWithDefines(compiler);
    QStringList names;
    for (qsizetype i = 1; i < command.size(); ++i) {
        if (const auto option = macroOptionAt(command, i, compiler.layout.defineFlag))
            names << name.match(option->definition).captured();
    }
    names.removeAll(QString());
    return names;
}

/// The program that \a command starts and the configuration files in its folders.
QStringList programFiles(const QStringList &command)
{
    const QFileInfo program(command.value(0));
    if (!program.isFile())
        return {};
    QStringList files {program.filePath()};
    const QSet<QString> folders {program.absolutePath(),
                                 QFileInfo(program.canonicalFilePath()).path()};
    for (const QString &folder : folders) {
        for (const QFileInfo &file : QDir(folder).entryInfoList(configurationFiles, QDir::Files)) {
            if (file.size() <= largestConfiguration)
                files << file.filePath();
        }
    }
    return files;
}

} // namespace

QList<ScannedName> namesOfCompiler(const Compiler &compiler, const QByteArray &versionLine)
{
    // A cross compiler's name begins with what its code is for: "arm-none-eabi-gcc".
    QStringList programWords = withWords(programName(compiler)).mid(1);
    programWords = QStringList {programWords.value(0), programWords.value(programWords.size() - 1)};
    programWords.removeAll(QString());
    programWords.removeDuplicates();
    QList<ScannedName> names = scanProgramFiles(programFiles(compiler.command));
    for (const QString &name :
         definedNames(compiler) + formedNames(wordsOf(compiler, versionLine), programWords))
        names.append({name.toLatin1(), DefinedByOption});
    return names;
}
