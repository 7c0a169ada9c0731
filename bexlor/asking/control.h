#pragma once

#include "probe_answer.h"

#include <QList>
#include <functional>

/// What is wrong with a source that must be rejected.
enum class Fault {
    Syntax,
    UnknownName,
    ConflictingDeclarations,
    NegativeSize,
    ErrorDirective,
    MissingHeader,
};

/// The answer to one source.
using AskProbe = std::function<ProbeAnswer(const QByteArray &source)>;

/// A source that every compiler accepts.
extern const char *const acceptedSource;

/// How often a source is asked again, by itself, whose answer \a first is no answer. One that took
/// all its time would take it each time.
int triesAfter(const ProbeAnswer &first);

/// How a compiler answers control probes, sources that must be accepted or rejected. By it other
/// answers are judged: those that are like none of these come from a compiler that has failed.
class Controls
{
public:
    /// The sources that must be rejected are asked by \a ask, one at a time, again where one is
    /// answered as no other is; \a accepted is the answer to acceptedSource. Throws a Malfunction
    /// when the answers do not tell a syntax error from a source without one.
    Controls(const ProbeAnswer &accepted, const AskProbe &ask);

    /// Whether a source with \a fault is rejected, so that one which is accepted has none.
    bool rejects(Fault fault) const { return m_rejected.contains(fault); }

    /// Whether the lines that messages name are those that there is something to say of.
    bool namesTheRightLines() const { return m_namesTheRightLines; }

    /// \a answer with what other signs than the exit status say of it: a compiler behind a pipe
    /// may lose that one, and shows by its object file, or by a message, what it has done.
    ProbeAnswer judged(ProbeAnswer answer) const;

    /// Whether \a answer is like none of the control probes', as when a license is in use or the
    /// disk is full.
    bool isOdd(const ProbeAnswer &answer) const;

    /// Whether an odd answer may be a rejection all the same: one with a usual exit status, whose
    /// message names no line of the source.
    bool mayBeRejection(const ProbeAnswer &answer) const;

private:
    /// How a rejection looks.
    struct Manner
    {
        int exitCode;
        bool hasMessage;
        bool namesSource;

        bool operator==(const Manner &) const = default;
    };

    static Manner mannerOf(const ProbeAnswer &answer);
    static ProbeAnswer usualAnswer(const QByteArray &source, const ProbeAnswer &first,
                                   const AskProbe &ask);
    void findSigns(const ProbeAnswer &accepted, const ProbeAnswer &syntaxError);
    bool leavesObject(const ProbeAnswer &answer) const;

    QList<Fault> m_rejected;
    QList<Manner> m_rejections;
    bool m_objectHasExtension = false;
    bool m_objectTells = false;
    bool m_messageTells = false;
    bool m_namesTheRightLines = false;
};
