#pragma once

#include <QByteArray>
#include <QStringList>

/// A compiler that measurements ask, as Debian installs it.
struct Subject
{
    QString name;
    QString command;
    QString target; ///< clang's
    bool isCpp;
    bool isSmall; ///< a compiler with small buffers, whose objects are text
    bool isCross;
    QStringList directories;
    QStringList programs;          ///< of /usr/bin, given as a binary directory
    QList<QByteArray> listedNames; ///< by its manual, where it cannot list them itself
};

/// Those that are installed, of the ones called \a chosen or of all.
QList<Subject> installedSubjects(const QStringList &chosen);

/// The generator's arguments for \a subject and a \a personality in \a folder, where links to its
/// programs are made.
QStringList generatorArguments(const Subject &subject, const QString &folder,
                               const QString &personality);
