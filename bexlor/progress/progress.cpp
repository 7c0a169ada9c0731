#include "progress.h"

#include "visible_text.h"

#include <chrono>
#include <condition_variable>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

// Less than a second, so that none passes without a word on a busy machine.
const auto interval = 800ms;

void growUntilStopped(const std::stop_token &stop, Progress &progress)
{
    std::mutex mutex;
    std::unique_lock lock(mutex);
    std::condition_variable_any wakes;
    while (!wakes.wait_for(lock, stop, interval, [&stop] { return stop.stop_requested(); }))
        progress.grow();
}

} // namespace

Progress::Progress(std::function<void(const QString &)> write) : m_write(std::move(write)) { }

void Progress::say(const QString &line)
{
    const std::scoped_lock lock(m_mutex);
    endLine();
    m_write(printableText(line) + u'\n');
}

void Progress::begin(const QString &text, const State &state)
{
    const std::scoped_lock lock(m_mutex);
    endLine();
    m_state = state;
    m_told.clear();
    m_endsWithDots = true;
    m_write(text);
}

void Progress::end()
{
    const std::scoped_lock lock(m_mutex);
    endLine();
}

void Progress::grow()
{
    const std::scoped_lock lock(m_mutex);
    if (!m_state)
        return;
    const QString state = m_state();
    const bool isNews = state != m_told;
    if (!isNews || !m_endsWithDots)
        m_write(u" ..."_s);
    if (isNews)
        m_write(u' ' + state);
    m_told = state;
    m_endsWithDots = !isNews;
}

/// Ends the line of a step, if there is one. The mutex must be locked.
void Progress::endLine()
{
    if (m_state)
        m_write(u"\n"_s);
    m_state = {};
}

ProgressStep::ProgressStep(Progress &progress, const QString &text, const Progress::State &state)
    : m_progress(progress)
{
    progress.begin(text, state);
}

ProgressStep::~ProgressStep()
{
    m_progress.end();
}

ProgressClock::ProgressClock(Progress &progress)
    : m_thread([&progress](const std::stop_token &stop) { growUntilStopped(stop, progress); })
{ }
