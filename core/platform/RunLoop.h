#pragma once

#include <QtGlobal>
#include <chrono>
#include <functional>
#include <memory>

enum class Repeat { Once, Forever };

/// A timer that is running; destroying it ends it, its function then never runs again.
class RunLoopTimer {
public:
    virtual ~RunLoopTimer() = default;
};

/// The clock and the timers of the main thread.
class RunLoop {
public:
    virtual ~RunLoop() = default;
    /// Milliseconds since 1970.
    virtual qint64 now() const = 0;
    /// Runs `fire` on the main thread, first after `interval`. A function may end or replace its own timer.
    virtual std::unique_ptr<RunLoopTimer> start(std::chrono::milliseconds interval, Repeat repeat,
                                                std::function<void()> fire) = 0;
};
