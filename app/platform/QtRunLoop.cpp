#include "app/platform/QtRunLoop.h"

#include <QDateTime>
#include <QTimer>

namespace {

struct QtTimer : RunLoopTimer {
    QtTimer(std::chrono::milliseconds interval, Repeat repeat, std::function<void()> fire)
    {
        timer->setSingleShot(repeat == Repeat::Once);
        timer->setTimerType(Qt::PreciseTimer);
        timer->callOnTimeout(timer, std::move(fire));
        timer->start(interval);
    }
    /// May be called by the timer's own function.
    ~QtTimer() override
    {
        timer->stop();
        timer->disconnect();
        timer->deleteLater();
    }
    QtTimer(const QtTimer &) = delete;
    QtTimer &operator=(const QtTimer &) = delete;

    QTimer *const timer = new QTimer;
};

} // namespace

qint64 QtRunLoop::now() const
{
    return QDateTime::currentMSecsSinceEpoch();
}

std::unique_ptr<RunLoopTimer> QtRunLoop::start(std::chrono::milliseconds interval, Repeat repeat,
                                               std::function<void()> fire)
{
    return std::make_unique<QtTimer>(interval, repeat, std::move(fire));
}
