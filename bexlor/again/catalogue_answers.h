#pragma once

#include "arguments.h"

struct CompilerRecord;

/// The arguments that the wizard passes when \a record is chosen and nothing is changed, with the
/// product that its name tells.
QStringList argumentsFor(const CompilerRecord &record, const QString &personality);

/// The answers of the record \a name of the catalogue file \a catalogue, for the file
/// \a personality; the name may stand behind its family and a slash. Otherwise lines that say why
/// there is no such record, or what it leaves to fill in.
std::variant<QString, Arguments> answersOfEntry(const QString &name, const QString &catalogue,
                                                const QString &personality);
