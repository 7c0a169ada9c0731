#pragma once

#include "generation/answers.h"

/// The generator's program name followed by its arguments:
///
///     Bexlor.exe PRODUCT cmp|ccmp COMMAND OUTPUT-FLAG OBJECT-FLAG DEFINE-FLAG EXTENSION ORDER
///         {-i DIRECTORY} -op PERSONALITY [-xd DEFINES] [-xs SWITCHES]
///         [-tpl FILE] [-fi FILE] [-sub DIRECTORY] [-rfs]
///
/// An empty answer stays an empty argument, so that the places of the first nine never move. Paths
/// have backslashes; a catalogue file named without one lies in a folder beside the working
/// directory.
QStringList generatorArguments(const Answers &answers);
