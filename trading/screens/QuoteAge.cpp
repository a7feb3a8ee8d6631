#include "trading/screens/QuoteAge.h"

#include "core/platform/Platform.h"

#include <algorithm>

using namespace std::chrono_literals;
using std::chrono::milliseconds;

namespace {
/// A text and how long it holds.
struct Reading {
    QString text;
    milliseconds holds;
};

Reading read(milliseconds age)
{
    if (age < QuoteAge::limit)
        return {{}, QuoteAge::limit - age};
    const auto in = [age](milliseconds unit, const QString &sentence) {
        return Reading{sentence.arg(age / unit), unit - age % unit};
    };
    if (age < 1min)
        return in(1s, QStringLiteral("行情已 %1 秒未更新"));
    if (age < 1h)
        return in(1min, QStringLiteral("行情已 %1 分钟未更新"));
    return in(1h, QStringLiteral("行情已 %1 小时未更新"));
}
} // namespace

void QuoteAge::start()
{
    running = true;
    if (!since)
        since = Platform::current().runLoop.now();
    update();
}

void QuoteAge::stop()
{
    running = false;
    next.stop();
}

void QuoteAge::restart()
{
    since = Platform::current().runLoop.now();
    update();
}

void QuoteAge::forget()
{
    since.reset();
    next.stop();
    say({});
}

void QuoteAge::update()
{
    // A clock that was set back makes no age below zero.
    const Reading reading =
        read(milliseconds(std::max<qint64>(Platform::current().runLoop.now() - *since, 0)));
    say(reading.text);
    if (running)
        next.startOnce(reading.holds, [this] { update(); });
}

void QuoteAge::say(const QString &text)
{
    if (text == sentence)
        return;
    sentence = text;
    Q_EMIT changed();
}
