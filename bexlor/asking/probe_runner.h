#pragma once

#include "compiler.h"
#include "probe_answer.h"

#include <atomic>

/// Compiles probes, small source files, each in a folder of its own.
class ProbeRunner
{
public:
    /// \a folder is where the probes are put; it must exist.
    ProbeRunner(const Compiler &compiler, const QString &folder, bool smallProbes);

    ProbeAnswer ask(const QByteArray &source, CompileTo goal = CompileTo::Object) const;
    /// The answers to \a sources in their order; asks as many at a time as there are processors.
    QList<ProbeAnswer> askAll(const QList<QByteArray> &sources) const;
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

    const Compiler m_compiler;
    const QString m_folder;
    const ProbeLimits m_limits;
    mutable std::atomic<int> m_started = 0;
    mutable std::atomic<int> m_folders = 0;
};

/// The name of a source file in the compiler's language, without a folder.
QString probeName(bool isCpp);
