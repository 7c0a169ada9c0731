#pragma once

#include <QLatin1StringView>

/// How the wizard calls the generator, and what it finds afterwards:
///
///     Bexlor.exe kov|kovpp cmp|ccmp COMMAND OUTPUT-FLAG OBJECT-FLAG DEFINE-FLAG EXTENSION ORDER
///         {-i DIRECTORY} -op PERSONALITY [-xd DEFINES] [-xs SWITCHES]
///         [-tpl FILE] [-fi FILE] [-sub DIRECTORY] [-rfs] [-check]
///
/// The wizard never asks for the last one.
namespace generator {

inline constexpr QLatin1StringView program("Bexlor.exe");

inline constexpr QLatin1StringView productC("kov");
inline constexpr QLatin1StringView productCpp("kovpp");
inline constexpr QLatin1StringView nativeCompiler("cmp");
inline constexpr QLatin1StringView crossCompiler("ccmp");

inline constexpr QLatin1StringView headerDirectory("-i");
inline constexpr QLatin1StringView personality("-op");
inline constexpr QLatin1StringView defines("-xd");
inline constexpr QLatin1StringView switches("-xs");
inline constexpr QLatin1StringView templateFile("-tpl");
inline constexpr QLatin1StringView forceIncludeFile("-fi");
inline constexpr QLatin1StringView substituteHeaders("-sub");
inline constexpr QLatin1StringView reduceFileSize("-rfs");
inline constexpr QLatin1StringView checkTypes("-check");

// In the working directory: the known compilers, which the generator knows by their names, too.
inline constexpr QLatin1StringView catalogue("compilers.txt");

// Beside the working directory: where the files lie that are named without a folder.
inline constexpr QLatin1StringView templateFolder("TemplatePersonalities");
inline constexpr QLatin1StringView forceIncludeFolder("ForceIncludeFiles");
inline constexpr QLatin1StringView substituteHeadersFolder("SubstituteHeaders");

// What a run leaves in the working directory: the command it attempted, and what that wrote.
inline constexpr QLatin1StringView attemptedCommand("compile.bat");
inline constexpr QLatin1StringView standardOutput("stdout.log");
inline constexpr QLatin1StringView standardError("stderr.log");

} // namespace generator
