#pragma once

#include "generator_interface.h"

#include <QString>
#include <QStringList>

/// Everything the user has answered on the five pages, as the fields hold it, and what came with
/// the compiler chosen from the catalogue.
struct Answers
{
    QString productCode {generator::productC}; ///< one of the generator's two product words
    QString destination;                       ///< folder of the personality
    QString name;                              ///< of the personality
    QString command;
    bool crossCompiler = false;
    QString outputFlag;
    QString objectFlag;
    QString defineFlag;
    QString objectExtension;
    bool reduceFileSize = false;
    QStringList headerDirectories;
    QString defines;   ///< lines as typed
    QString switches;  ///< lines as typed
    QStringList order; ///< order items such as "Exe Command", in the order of the compile command
    bool spaceAfterOutputFlag = false;
    bool spaceAfterDefineFlag = false;

    // No field shows these.
    QString
        selectedCompilerFamily; ///< of the compiler chosen from the catalogue, like the next four
    QString selectedCompilerName;
    QString templatePersonalityFile;
    QString forceIncludeFile;
    QString substituteHeaders;
    QString compilerFamilySet; ///< when not empty, the menu shows only families that occur in it
};
