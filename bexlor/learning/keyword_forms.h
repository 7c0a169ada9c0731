#pragma once

#include "facts.h"
#include "questions.h"

/// How extension keywords are used, found by using them.

/// Those of \a names that are keywords of a family of which the compiler accepts all that is left
/// in \a names, used as usual. Takes a probe for each family, and a compiler that rejects unknown
/// names.
QList<QByteArray> keywordsOfWholeFamilies(const Questions &questions,
                                          const QList<QByteArray> &names);

/// The forms in which each of \a keywords may be used, those that take an argument first; only
/// Undetermined where there is none. Of those \a settled it is enough to know that they are there.
QList<QList<Keyword::Form>> keywordForms(const Questions &questions,
                                         const QList<QByteArray> &keywords,
                                         const QList<QByteArray> &settled);

/// Those of \a keywords that begin a block of assembler, of which nothing is C up to another
/// keyword.
QList<Keyword> assemblerBlocks(const Questions &questions, const QList<QByteArray> &keywords);
