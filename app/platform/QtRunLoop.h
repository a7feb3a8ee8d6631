#pragma once

#include "core/platform/RunLoop.h"

class QtRunLoop : public RunLoop {
public:
    qint64 now() const override;
    std::unique_ptr<RunLoopTimer> start(std::chrono::milliseconds interval, Repeat repeat,
                                        std::function<void()> fire) override;
};
