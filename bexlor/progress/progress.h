#pragma once

#include <QString>
#include <functional>
#include <mutex>
#include <thread>

/// What a program says of its work: lines, and for each step one that grows for as long as the step
/// takes. May be used by several threads at a time.
class Progress
{
public:
    /// Gives how far a step is, "120", or nothing while there is nothing to tell.
    using State = std::function<QString()>;

    /// \a write gets every piece of text as it comes, line feeds included.
    explicit Progress(std::function<void(const QString &)> write);

    /// Says \a line, behind the end of the step's line if there is one. It may hold what anybody
    /// has written: what a reader would not see, and what a terminal would obey, becomes an escape.
    void say(const QString &line);

    /// Starts the line of a step, \a text, which ends with "...". grow() asks for \a state, in
    /// whatever thread, until the line ends.
    void begin(const QString &text, const State &state);
    /// Ends the line of a step, if there is one.
    void end();

    /// Adds to the line of a step how far it is or, where that has not changed, "..." to show that
    /// the work goes on: "Looking for keywords ... 120 ... 240". Between two steps nothing is said.
    void grow();

private:
    void endLine();

    std::mutex m_mutex;
    const std::function<void(const QString &)> m_write;
    State m_state; ///< of the step whose line grows; empty between two steps
    QString m_told;
    bool m_endsWithDots = false;
};

/// A step of \a progress, which has its line for as long as this lives, or until something else is
/// said.
class ProgressStep
{
public:
    /// \a state of one that is done at a stroke has nothing to tell.
    ProgressStep(
        Progress &progress, const QString &text,
        const Progress::State &state = [] { return QString(); });
    ~ProgressStep();
    ProgressStep(const ProgressStep &) = delete;
    ProgressStep &operator=(const ProgressStep &) = delete;

private:
    Progress &m_progress;
};

/// Lets \a progress grow every second for as long as this lives.
class ProgressClock
{
public:
    explicit ProgressClock(Progress &progress);

private:
    std::jthread m_thread;
};
