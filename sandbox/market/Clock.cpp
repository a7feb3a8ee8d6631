#include "market/Clock.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace sandbox {

namespace {

Millis systemNow()
{
    using namespace std::chrono;
    return duration_cast<milliseconds>(system_clock::now().time_since_epoch()).count();
}

} // namespace

Clock::Clock() : Clock(systemNow) {}

Clock::Clock(RealNow realNow) : m_realNow(std::move(realNow))
{
    const Millis real = m_realNow();
    m_state = {real, real, 100};
}

Millis Clock::nowLocked(Millis real) const
{
    // Real clocks are set back now and then; this one waits until they have caught up.
    const Millis elapsed = std::max<Millis>(0, real - m_state.real);
    return m_state.simulated + elapsed * m_state.speedPercent / 100;
}

Millis Clock::now() const
{
    const std::lock_guard lock(m_mutex);
    return nowLocked(m_realNow());
}

ClockState Clock::state() const
{
    const std::lock_guard lock(m_mutex);
    return m_state;
}

bool Clock::frozen() const
{
    return state().speedPercent == 0;
}

void Clock::restore(const ClockState &state)
{
    const std::lock_guard lock(m_mutex);
    m_state = state;
}

void Clock::setSpeedPercent(int percent)
{
    const std::lock_guard lock(m_mutex);
    const Millis real = m_realNow();
    m_state = {real, nowLocked(real), std::max(0, percent)};
}

bool Clock::jumpTo(Millis time)
{
    const std::lock_guard lock(m_mutex);
    const Millis real = m_realNow();
    if (time < nowLocked(real))
        return false;
    m_state = {real, time, m_state.speedPercent};
    return true;
}

} // namespace sandbox
