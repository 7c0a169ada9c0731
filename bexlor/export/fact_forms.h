#pragma once

#include "personality.h"

/// The types of \a facts as a platform of cppcheck; empty when none of those that it can express is
/// known. What is not known is left out, since it refuses a file with an empty element.
QByteArray cppcheckPlatform(const Facts &facts);

/// The macros of \a personality as a header.
QByteArray macroHeader(const Personality &personality);

/// A c_cpp_properties.json of VS Code with one configuration, called \a name.
QByteArray vscodeProperties(const Personality &personality, bool isCpp, const QString &name);
