#pragma once

#include <QByteArray>
#include <QStringList>
#include <optional>

/// What a preprocessor has written.
struct PreprocessedSource
{
    QByteArray text;
    /// Folders with headers such as <immintrin.h>, which each compiler has in a form of its own.
    /// What comes from there is passed over.
    QStringList ownHeaders;
    /// What the markers say to be of system headers is passed over, too.
    bool passesSystemHeaders = false;
};

/// Where two compilers begin to see different code.
struct TokenDifference
{
    QString file; ///< by the compiler's line markers, like the next
    int line = 0;
    QByteArray ofCompiler; ///< token; empty at the end of its source, like the next
    QByteArray ofClang;
};

/// The first place where the tokens of two sources differ, white space, line markers and pragmas
/// that are for the preprocessor alone set aside. Nothing when they are the same to the end.
std::optional<TokenDifference> firstDifference(const PreprocessedSource &ofCompiler,
                                               const PreprocessedSource &ofClang);
