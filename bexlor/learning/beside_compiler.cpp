#include "beside_compiler.h"

#include "text_file.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

// From the folder of a program; "@" stands for the program's name and for its target, "arm-eabi" of
// "arm-eabi-gcc".
const QLatin1StringView usualDirectories[] = {
    "../include"_L1,       "../inc"_L1,           "include"_L1,
    "../../../include"_L1, "../lib/@/include"_L1, "../share/@/include"_L1,
    "../@/include"_L1,
};

/// The name of \a program without what makes it one on Windows, and its parts that may name a
/// target.
QStringList wordsOf(const QString &program)
{
    static const QRegularExpression suffix(u"\\.(exe|com|bat|cmd)$"_s,
                                           QRegularExpression::CaseInsensitiveOption);
    QString word = QFileInfo(program).fileName().remove(suffix);
    QStringList words {word};
    for (qsizetype dash; (dash = word.lastIndexOf(u'-')) > 0;) {
        word.truncate(dash);
        words << word;
    }
    return words;
}

/// The absolute paths in \a file with "inc" at the start of a folder's name. Folders above that one
/// may be called like "Program Files (x86)".
QStringList pathsNamedIn(const QString &file)
{
    static const QRegularExpression path(
        u"(?<![A-Za-z0-9_.}/\\\\])([A-Za-z]:[/\\\\]|/)"
        "([-A-Za-z0-9_.+/\\\\)]|[ (](?=[A-Za-z0-9])| (?=\\([A-Za-z0-9])){0,300}?"
        "[/\\\\]inc[-A-Za-z0-9_.+/\\\\]*"_s,
        QRegularExpression::CaseInsensitiveOption);
    QStringList paths;
    auto matches = path.globalMatch(QString::fromLatin1(platform::readFile(file).bytes));
    while (matches.hasNext())
        paths << QDir::fromNativeSeparators(matches.next().captured());
    return paths;
}

} // namespace

QStringList directoriesBeside(const QString &program)
{
    QStringList candidates;
    // A link may lead to where the compiler is installed.
    for (const QString &path : {program, QFileInfo(program).canonicalFilePath()}) {
        const QDir folder = QFileInfo(path).absoluteDir();
        for (const QString &word : wordsOf(path)) {
            for (const QLatin1StringView usual : usualDirectories)
                candidates << folder.filePath(QString(usual).replace(u'@', word));
        }
    }
    candidates << pathsNamedIn(program);
    QStringList directories;
    for (const QString &candidate : candidates) {
        const QFileInfo info(candidate);
        if (info.isDir() && !info.isRoot())
            directories << info.canonicalFilePath();
    }
    directories.removeDuplicates();
    return directories;
}
