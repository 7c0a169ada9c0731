#include "checked_source.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace {

/// An option by which the commands of a database are told apart.
struct KnownOption
{
    QLatin1StringView flag;
    bool takesWord; ///< what belongs to it may stand in the next word
    bool isJoined;  ///< or in the same
};

// What decides which code is seen. The GNU compilers' manual, "Preprocessor Options", "Directory
// Options" and "C Dialect Options".
const KnownOption seenByClang[] = {
    {"-I"_L1, true, true},         {"-isystem"_L1, true, true},  {"-iquote"_L1, true, true},
    {"-idirafter"_L1, true, true}, {"-include"_L1, true, false}, {"-imacros"_L1, true, false},
    {"-D"_L1, true, true},         {"-U"_L1, true, true},        {"-x"_L1, true, true},
    {"-std="_L1, false, true},     {"-ansi"_L1, false, false},
};

// What lets a compiler write other files.
const KnownOption writesFiles[] = {
    {"-MD"_L1, false, false}, {"-MMD"_L1, false, false},       {"-MP"_L1, false, false},
    {"-MF"_L1, true, true},   {"-MT"_L1, true, true},          {"-MQ"_L1, true, true},
    {"-MJ"_L1, true, true},   {"-save-temps"_L1, false, true}, {"--coverage"_L1, false, false},
};

/// How many of \a words, from \a index on, are an option of \a options: 0, 1 or 2.
template <std::size_t Size>
qsizetype wordsOfOption(const QStringList &words, qsizetype index,
                        const KnownOption (&options)[Size])
{
    const QString &word = words[index];
    for (const KnownOption &option : options) {
        if (word == option.flag)
            return option.takesWord && index + 1 < words.size() ? 2 : 1;
        if (option.isJoined && word.startsWith(option.flag))
            return 1;
    }
    return 0;
}

/// How many words name the output.
qsizetype wordsOfOutput(const QStringList &words, qsizetype index, const QString &flag)
{
    if (flag.isEmpty() || index == 0 || !words[index].startsWith(flag))
        return 0;
    return words[index] == flag && index + 1 < words.size() ? 2 : 1;
}

/// \a words as a source whose clang options still lack the file.
CheckedSource takenApart(const QStringList &words, const CommandLayout &layout)
{
    CheckedSource source;
    for (qsizetype i = 0, count = 0; i < words.size(); i += count) {
        count = std::max<qsizetype>(1, wordsOfOption(words, i, seenByClang));
        const qsizetype output = wordsOfOutput(words, i, layout.outputFlag);
        const qsizetype written = wordsOfOption(words, i, writesFiles);
        if (output != 0 || written != 0) {
            count = std::max(output, written);
            continue;
        }
        const QStringList option = words.mid(i, count);
        if (wordsOfOption(words, i, seenByClang) != 0)
            source.clangOptions << option;
        if (i == 0 || option.first() != layout.objectFlag)
            source.bareCommand << option;
        source.command << option;
    }
    return source;
}

bool isInLanguage(const QString &file, bool isCpp)
{
    const QString suffix = QFileInfo(file).suffix();
    return suffix == "c"_L1
             ? !isCpp
             : isCpp
                   || !QStringList {u"cc"_s, u"cpp"_s, u"cxx"_s, u"c++"_s, u"C"_s}.contains(suffix);
}

} // namespace

CheckedSource sourceOfFile(const Compiler &compiler, const QString &file, const QString &folder,
                           qsizetype number)
{
    Compiler whole = compiler;
    whole.command << compiler.includedFirst;
    Compiler bare = whole;
    bare.layout.outputFlag.clear();
    bare.layout.objectFlag.clear();
    bare.layout.order.remove("%o"_L1).remove("%e"_L1);
    CheckedSource source {file, folder, {}, {}, probeCommand(bare, file, {}), {file}};
    source.output = folder + u"/%1"_s.arg(number) + compiler.layout.objectExtension;
    source.command = probeCommand(whole, file, source.output);
    return source;
}

std::optional<QList<CheckedSource>>
sourcesOfDatabase(const QByteArray &json, const Compiler &compiler, const QString &folder)
{
    const QJsonDocument document = QJsonDocument::fromJson(json);
    if (!document.isArray())
        return {};
    QList<CheckedSource> sources;
    for (const QJsonValue &value : document.array()) {
        const QString file = value["file"_L1].toString();
        const QStringList arguments = value["arguments"_L1].toVariant().toStringList();
        const QStringList words =
            arguments.isEmpty() ? databaseWords(value["command"_L1].toString()) : arguments;
        if (file.isEmpty() || words.isEmpty())
            return {};
        if (!isInLanguage(file, compiler.isCpp))
            continue;
        CheckedSource source = takenApart(words, compiler.layout);
        source.file = file;
        source.directory = value["directory"_L1].toString();
        source.clangOptions << file;
        if (!compiler.layout.outputFlag.isEmpty()) {
            source.output = folder + u"/%1"_s.arg(sources.size()) + compiler.layout.objectExtension;
            source.command << compiler.layout.outputFlag << source.output;
        }
        sources << source;
    }
    return sources;
}

QStringList databaseWords(const QString &command)
{
    QStringList words;
    bool isInWord = false;
    QChar quote;
    for (qsizetype i = 0; i < command.size(); ++i) {
        QChar character = command[i];
        if (quote.isNull() && character.isSpace()) {
            isInWord = false;
            continue;
        }
        if (!isInWord)
            words << QString();
        isInWord = true;
        if (character == quote) {
            quote = QChar();
            continue;
        }
        if (quote.isNull() && (character == u'"' || character == u'\'')) {
            quote = character;
            continue;
        }
        const bool isLiteral = character == u'\\' && quote != u'\'' && i + 1 < command.size()
                            && QStringView(u"\\\"' ").contains(command[i + 1]);
        words.last() += isLiteral ? command[++i] : character;
    }
    return words;
}
