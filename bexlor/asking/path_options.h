#pragma once

#include "arguments.h"

#include <QDir>

/// What a compile command reads from where it is started. Probes are compiled elsewhere.

/// \a words, a program and its options, with each response file in \a folder, "@file", replaced by
/// the words in it. One that cannot be read, or not by the rules of splitCommand(), stays.
QStringList withoutResponseFiles(const QStringList &words, const QDir &folder);

/// \a words with the relative paths made absolute that name a file or directory in \a folder: those
/// of options that read it and those that stand behind no option, such as a script that is the
/// compiler. Whatever another option names may be written, so that it stays in the folder of the
/// probe; a define is no path, whatever it looks like.
QStringList withAbsolutePaths(const QStringList &words, const CommandLayout &layout,
                              const QDir &folder = QDir::current());
