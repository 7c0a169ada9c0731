#pragma once

#include "generation/answers.h"

/// The headings of the review, which are also keys of the settings file.
namespace reviewKeys {

inline const QString product = QStringLiteral("Product:");
inline const QString destination = QStringLiteral("Personality Destination Directory:");
inline const QString name = QStringLiteral("Personality Name:");
inline const QString command = QStringLiteral("Compiler:");
inline const QString crossCompiler = QStringLiteral("Cross Compiler:");
inline const QString outputFlag = QStringLiteral("Compiler Output Flag:");
inline const QString objectFlag = QStringLiteral("Compiler Object File Generation Flag:");
inline const QString defineFlag = QStringLiteral("Compiler Define Flag:");
inline const QString objectExtension = QStringLiteral("Object File Extension:");
inline const QString reduceFileSize = QStringLiteral("Reduce File Size:");
inline const QString headerDirectories = QStringLiteral("Compiler Header Directories:");
inline const QString defines = QStringLiteral("Compiler Defines:");
inline const QString switches = QStringLiteral("Compiler Switches:");
inline const QString order = QStringLiteral("Compiler Command Order:");

} // namespace reviewKeys

/// The answers as headings and values, without the command order; ends with an empty line.
QString reviewText(const Answers &answers);

/// The last block of the review as it is shown: the heading and the command's \a preview.
QString shownOrder(const QString &preview);

/// The last block of the review as it is kept: the heading and one line for each order item.
QString keptOrder(const Answers &answers);
