#pragma once

#include "answers.h"

#include <span>

class CalyxBase;
struct CompilerRecord;

/// One answer, and how it goes through every place: the pages, the review, the settings file and
/// the catalogue, of whose records the generator's arguments are made.
struct AnswerField
{
    enum Role : unsigned {
        Shown = 1,      ///< stands in the review that the last page shows
        Kept = 2,       ///< stands in the review that is kept
        Tidied = 4,     ///< has its white space simplified before the review
        Recorded = 8,   ///< comes from a record of the catalogue
        Reset = 16,     ///< goes when the chosen compiler is not of the product's language
        InCommand = 32, ///< is a part of the compile command
        ReadOnly = 64,  ///< stands only in settings files that come from elsewhere
    };

    QLatin1StringView key; ///< heading in the review and key in the settings file
    unsigned roles = 0;
    bool isList = false; ///< in the settings file: any number of lines, up to an empty one
    QString CompilerRecord::*record = nullptr; ///< null where no field of a record holds it alone
    void (*lock)(CalyxBase &form) = nullptr;   ///< null where the settings file cannot ask for it

    /// What the last page shows of it; null where that is what the review holds.
    QStringList (*shownLines)(const Answers &) = nullptr;

    // These follow from the types of the value and of the widget.
    QStringList (*lines)(const Answers &) = nullptr; ///< as review and settings file hold it
    void (*setLines)(Answers &, const QStringList &lines) = nullptr;
    QString (*recordText)(const Answers &) = nullptr; ///< as a record holds it
    void (*setRecordText)(Answers &, const QString &text) = nullptr;
    void (*reset)(Answers &) = nullptr;
    void (*take)(Answers &, const CalyxBase &form) = nullptr; ///< null where no widget shows it
    void (*show)(const Answers &, CalyxBase &form) = nullptr; ///< likewise
};

/// All answers, in the order of the review and the settings file.
std::span<const AnswerField> answerTable();
