#pragma once

#include <QStringList>

struct CompilerRecord;

/// \a record with the white space of its fields of one line simplified, as the wizard's review does
/// it.
CompilerRecord tidied(CompilerRecord record);

/// The generator's arguments for the compiler of \a record, see generator_interface.h, without the
/// program. \a personality is the path of the file that it makes. An empty field stays an empty
/// argument, so that the places of the first eight never move.
QStringList recordArguments(const CompilerRecord &record, const QString &productCode,
                            const QStringList &headerDirectories, const QString &personality);
