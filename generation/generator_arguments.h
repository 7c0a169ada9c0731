#pragma once

#include "answers.h"

/// The generator's program name followed by its arguments, see generator_interface.h. An empty
/// answer stays an empty argument, so that the places of the first nine never move.
QStringList generatorArguments(const Answers &answers);
