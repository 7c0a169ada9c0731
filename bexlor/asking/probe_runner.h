#pragma once

#include "compiler.h"
#include "control.h"

#include <atomic>
#include <optional>

/// Compiles probes, small source files, each in a folder of its own. Once it has controls it asks
/// those that are not answered as these again, by themselves, and throws a Malfunction when that
/// does not help.
class ProbeRunner
{
public:
    /// \a folder is where the probes are put; it must exist.
    ProbeRunner(const Compiler &compiler, const QString &folder, bool smallProbes);

    ProbeAnswer ask(const QByteArray &source) const;
    /// The answers to \a sources in their order; asks as many at a time as there are processors,
    /// or one, if the compiler cannot do more.
    QList<ProbeAnswer> askAll(const QList<QByteArray> &sources) const;
    /// Has the answers from now on judged by \a controls.
    void judgeBy(const Controls &controls) { m_controls = controls; }
    /// What has been given to judgeBy(), which must have been called before.
    const Controls &controls() const { return *m_controls; }

    /// Compiles \a source to a program, runs it, and has what it prints as the answer's bytes.
    ProbeAnswer askByRunning(const QByteArray &source) const;

    /// The command that ask() runs.
    QStringList command(CompileTo goal = CompileTo::Object) const;

    const Compiler &compiler() const { return m_compiler; }
    ProbeLimits limits() const { return m_limits; }
    int compilersStarted() const { return m_started; }

private:
    QString newFolder() const;
    ProbeAnswer askIn(const QString &folder, const QByteArray &source, CompileTo goal) const;
    ProbeAnswer askOnce(const QByteArray &source) const;
    ProbeAnswer confirmed(const ProbeAnswer &first, const QByteArray &source) const;
    bool worksStill() const;

    const Compiler m_compiler;
    const QString m_folder;
    const ProbeLimits m_limits;
    std::optional<Controls> m_controls;
    mutable std::atomic<int> m_started = 0;
    mutable int m_answersCured = 0; ///< by asking without others
    mutable std::atomic<int> m_folders = 0;
};

/// The name of a source file in the compiler's language, without a folder.
QString probeName(bool isCpp);
