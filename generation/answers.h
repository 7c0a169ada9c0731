#pragma once

#include "generation/command_order.h"

/// Everything the user has answered on the five pages, as the fields hold it, and the files that
/// came with a compiler chosen from the catalogue.
struct Answers
{
    QString productCode; ///< "kov" for the C product, "kovpp" for the C++ product
    QString destination; ///< folder of the personality
    QString name;        ///< of the personality
    CompileCommand compile;
    bool crossCompiler = false;
    QString objectExtension;
    bool reduceFileSize = false;
    QStringList headerDirectories;
    QString defines;  ///< lines as typed
    QString switches; ///< lines as typed
    QString templatePersonalityFile;
    QString forceIncludeFile;
    QString substituteHeaders;
};
