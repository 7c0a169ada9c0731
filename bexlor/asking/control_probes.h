#pragma once

#include "probe_answer.h"

#include <functional>
#include <optional>

/// Probes of which it is known what a compiler must say to them. They come before all others and
/// show what its answers are worth.

/// A source that every compiler accepts, and one that every compiler rejects.
extern const QByteArray acceptedProbe, rejectedProbe;

/// What can be wrong with a source.
enum class ErrorKind {
    Syntax,
    UnknownName,
    NegativeArraySize,
    ConflictingDeclaration,
    ErrorDirective,
    MissingHeader,
};

/// How a compiler answers the control probes. As it stands, a compiler that overlooks nothing.
struct Controls
{
    QList<ErrorKind> overlooked; ///< what it accepts although it is wrong
    QSet<int> exitCodes; ///< with which it rejects; it may be 0 when it then leaves no object file
    bool givesReasons = true; ///< a message with every rejection
    bool namesLines = true;   ///< in each of these messages
    bool stopsAtFirstError = false;
    bool isQuiet = true;    ///< names no line of what it accepts
    bool namesEnds = false; ///< in each object, so that one without has not been read to its end

    /// Whether an error of \a kind is rejected, so that what compiles has none.
    bool rejects(ErrorKind kind) const { return !overlooked.contains(kind); }

    /// Whether \a answer, to a probe that has not compiled, is what this compiler says to errors.
    /// Anything else is a fault of the compiler or of the machine and tells nothing of the probe.
    bool isRejection(const ProbeAnswer &answer) const;

    /// Whether nothing about \a answer gives cause to ask again. A rejection that names no line may
    /// be one, but a missing licence and a full disk are reported in this way too.
    bool isExpected(const ProbeAnswer &answer) const;
};

/// Learns how a compiler that has given \a accepted to the accepted probe answers those with
/// errors. \a ask compiles a source, each time anew: what differs from the other answers is asked
/// until the same comes twice. Nothing when it never does.
std::optional<Controls> askControls(const std::function<ProbeAnswer(const QByteArray &)> &ask,
                                    const ProbeAnswer &accepted);

/// What \a kind is called in a line for the user.
QString nameOf(ErrorKind kind);
