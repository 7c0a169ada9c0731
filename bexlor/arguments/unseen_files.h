#pragma once

#include "arguments.h"
#include "generator_interface.h"

/// A file or a folder of the user's that a catalogue names, and no page shows.
struct UnseenFile
{
    QLatin1StringView name;
    QString Arguments::*path;
    QLatin1StringView home; ///< the folder that it belongs in, beside the working directory
    bool isFolder;          ///< and no file itself
};

inline constexpr UnseenFile unseenFiles[] = {
    {QLatin1StringView("template"), &Arguments::templateFile, generator::templateFolder, false},
    {QLatin1StringView("force-include file"), &Arguments::forceIncludeFile,
     generator::forceIncludeFolder, false},
    {QLatin1StringView("folder of substitute headers"), &Arguments::substituteHeaders,
     generator::substituteHeadersFolder, true},
};
