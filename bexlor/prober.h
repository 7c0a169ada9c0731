#pragma once

#include "compiler.h"
#include "program_run.h"

#include <QList>
#include <QSet>
#include <atomic>

/// What the compiler has said to one probe.
struct Answer
{
    platform::ProgramRun run;
    QSet<int> lines;    ///< of the probe that its errors name, or else its other messages
    QSet<int> allLines; ///< that any message names; the first line is 1
    QByteArray bytes;   ///< of the object file, read from hexadecimal text where it is that

    bool compiled() const { return run.succeeded(); }
};

/// Compiles probes, small source files, each in a folder of its own.
class Prober
{
public:
    /// \a folder is where the probes are put; it must exist.
    Prober(const Compiler &compiler, const QString &folder, bool smallProbes);

    Answer ask(const QByteArray &source, Product product = Product::Object) const;
    /// The answers to \a sources in their order; asks as many at a time as there are processors.
    QList<Answer> askAll(const QList<QByteArray> &sources) const;
    /// Compiles \a source to a program, runs it, and has what it prints as the answer's bytes.
    Answer askByRunning(const QByteArray &source) const;

    /// The command that ask() runs.
    QStringList command(Product product = Product::Object) const;
    QString sourceName() const;

    /// How many declarations and bytes a probe may have.
    int declarationLimit() const { return m_smallProbes ? 99 : 20'000; }
    int byteLimit() const { return m_smallProbes ? 4000 : 500'000; }

    bool isCpp() const { return m_compiler.isCpp; }
    int compilersStarted() const { return m_started; }

private:
    Answer askIn(const QString &folder, const QByteArray &source, Product product) const;

    const Compiler m_compiler;
    const QString m_folder;
    const bool m_smallProbes;
    mutable std::atomic<int> m_started = 0;
    mutable std::atomic<int> m_folders = 0;
};

/// The line numbers that \a messages give for the file \a source, whatever stands around them:
/// "x.c:12", "x.c(12)", "\"x.c\", line 12", "line 12 of x.c". Those of errors only, if \a ofErrors
/// is set.
QSet<int> namedLines(const QByteArray &messages, const QByteArray &source, bool ofErrors = false);

/// The bytes that an object file holds: as it is; for the relocatable format of the ASxxxx
/// assemblers, Intel HEX and S-records, what its hexadecimal digits stand for; for ca65's format,
/// which takes a constant array apart, its data put together again.
QByteArray objectBytes(const QByteArray &file);
