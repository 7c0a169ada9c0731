#pragma once

#include "compiler.h"
#include "control_probes.h"

#include <atomic>

/// Compiles probes, small source files, each in a folder of its own.
class ProbeRunner
{
public:
    /// \a folder is where the probes are put; it must exist.
    ProbeRunner(const Compiler &compiler, const QString &folder, bool smallProbes);

    /// Compiles the accepted probe without a name for its object, and does so from then on if it
    /// compiles. For compilers that refuse such a name and leave the object under the usual one.
    ProbeAnswer tryWithoutObjectName();

    /// Learns from control probes what the compiler's answers are worth; from then on an answer
    /// that is unlike them is not taken for one. \a accepted is that to the accepted probe. False
    /// when the compiler does not answer twice alike.
    bool learnControls(const ProbeAnswer &accepted);
    const Controls &controls() const { return m_controls; }

    /// Compiles \a source. A program is run, too. What is unlike the control probes is asked again;
    /// if it stays so that is a malfunction, and no compiler is started any more.
    ProbeAnswer ask(const QByteArray &source, CompileTo goal = CompileTo::Object) const;
    /// The answers to \a sources in their order; asks as many at a time as there are processors,
    /// but one alone what must be asked again, and all if that has been needed often.
    QList<ProbeAnswer> askAll(const QList<QByteArray> &sources) const;
    /// Takes \a answer for a malfunction, unless there is one already. Returns it.
    ProbeAnswer fail(const ProbeAnswer &answer) const;

    /// The command that ask() runs.
    QStringList command(CompileTo goal = CompileTo::Object) const;

    const Compiler &compiler() const { return m_compiler; }
    ProbeLimits limits() const { return m_limits; }
    int compilersStarted() const { return m_started; }

private:
    ProbeAnswer askOnce(const QByteArray &source, CompileTo goal) const;
    ProbeAnswer askIn(const QString &folder, const QByteArray &source, CompileTo goal) const;
    ProbeAnswer askAgain(const ProbeAnswer &first, const QByteArray &source, CompileTo goal) const;
    bool isExpected(const ProbeAnswer &answer) const;
    bool worksStill() const;
    int errorsNamed() const;
    void liftErrorLimit();
    void widenLimits();

    Compiler m_compiler;
    const QString m_folder;
    ProbeLimits m_limits;
    Controls m_controls;
    bool m_knowsControls = false;
    /// The answer that could not be understood, which all later ones repeat.
    mutable std::optional<ProbeAnswer> m_malfunction;
    mutable int m_mended = 0; ///< answers that were right when asked for again
    mutable std::atomic<int> m_started = 0;
    mutable std::atomic<int> m_folders = 0;
};

/// The name of a source file in the compiler's language, without a folder.
QString probeName(bool isCpp);
