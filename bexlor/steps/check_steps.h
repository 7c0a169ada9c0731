#pragma once

#include "personality.h"
#include "progress.h"
#include "request.h"

/// The steps that let clang read code with a personality and say what came out.

/// Checks the sources of \a request, whose paths are absolute, with the personality that \a content
/// is of and \a arguments are the answers in; \a folder is for temporary files. Returns the exit
/// status: 0 when clang accepts all that the compiler accepts, 1 when it does not, 3 when something
/// is missing that a check needs.
int checkWithPersonality(Progress &progress, const CheckRequest &request,
                         const Arguments &arguments, const Personality &content,
                         const QString &folder);

/// Says in one line how many headers of the search path clang accepts with the personality that has
/// just been written; of many headers a part is tried, for two seconds at most. Says nothing where
/// no clang is found.
void checkHeaders(Progress &progress, const Arguments &arguments, const QString &folder);
