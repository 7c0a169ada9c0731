#pragma once

#include <QStringList>
#include <optional>

/// An entry of a compilation database, "compile_commands.json" as clang's manual describes it.
struct CompileCommand
{
    QString directory; ///< in which it runs, absolute
    QString file;      ///< as the database names it
    QStringList words;

    QString absoluteFile() const;
    /// Whether \a word of the command is the path of its file, however that is written.
    bool isNamedBy(const QString &word) const;

    /// Its words, also those in response files, without what asks for other files than an object;
    /// a program in a folder is named by its whole path.
    QStringList compilingWords() const;
};

/// The entries of the database \a json, which is a file in \a folder. Nothing if it is none.
std::optional<QList<CompileCommand>> parseDatabase(const QByteArray &json, const QString &folder);

/// A database of \a commands.
QByteArray databaseText(const QList<CompileCommand> &commands);
