#pragma once

#include "market/Units.h"

#include <functional>
#include <mutex>

namespace sandbox {

/** How simulated time follows real time: now = simulated + (real now - real) x speedPercent / 100. Frozen: 0
 * percent. */
struct ClockState {
    Millis real = 0;
    Millis simulated = 0;
    int speedPercent = 100;

    bool operator==(const ClockState &) const = default;
};

/**
 * The sandbox's one source of time. It never goes back. All functions may be called from any thread.
 * Changes made here are not remembered over a restart: control the clock through Brokerage, which stores it.
 */
class Clock {
public:
    using RealNow = std::function<Millis()>;

    /** Starts in real time, at the real time. */
    Clock();
    /** With another source of real time, for tests. */
    explicit Clock(RealNow realNow);

    Millis now() const;
    ClockState state() const;
    bool frozen() const;

    /** Takes up a stored state; time that passed meanwhile passes in the simulation too. */
    void restore(const ClockState &state);
    /** 100 is real time, 6000 sixty times as fast, 0 frozen. Negative counts as 0. */
    void setSpeedPercent(int percent);
    /** Moves to a later time and goes on at the same speed. False, and nothing happens, when it is in the
     * past. */
    bool jumpTo(Millis time);

private:
    Millis nowLocked(Millis real) const;

    RealNow m_realNow;
    mutable std::mutex m_mutex;
    ClockState m_state;
};

} // namespace sandbox
