#pragma once

#include "answers.h"

/// The generator's program name followed by its arguments, see recordArguments().
QStringList generatorArguments(const Answers &answers);
