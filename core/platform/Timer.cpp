#include "core/platform/Timer.h"

#include "core/platform/Platform.h"

void Timer::startOnce(std::chrono::milliseconds interval, std::function<void()> fire)
{
    running.reset();
    running = Platform::current().runLoop.start(interval, Repeat::Once, [this, fire = std::move(fire)] {
        // The function may destroy this timer's owner, or start it again: keep what runs alive and touch
        // nothing after.
        const auto alive = std::move(running);
        const auto body = fire;
        body();
    });
}

void Timer::startRepeating(std::chrono::milliseconds interval, std::function<void()> fire)
{
    running.reset();
    running = Platform::current().runLoop.start(interval, Repeat::Forever, [this, fire = std::move(fire)] {
        const auto alive = running;
        const auto body = fire;
        body();
    });
}

void Timer::stop()
{
    running.reset();
}
