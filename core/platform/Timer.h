#pragma once

#include "core/platform/RunLoop.h"

/// A timer as a member of its owner: ends with it. Starting again replaces what was running, which is how a
/// burst of calls becomes one.
class Timer {
public:
    void startOnce(std::chrono::milliseconds interval, std::function<void()> fire);
    void startRepeating(std::chrono::milliseconds interval, std::function<void()> fire);
    void stop();
    bool isActive() const { return running != nullptr; }

private:
    std::shared_ptr<RunLoopTimer> running;
};
