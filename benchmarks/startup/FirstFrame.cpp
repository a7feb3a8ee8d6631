#include "benchmarks/startup/FirstFrame.h"

#include <QFile>
#include <QQuickWindow>
#include <QTimer>
#include <chrono>
#include <cstdio>

namespace {
long residentKilobytes()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    for (QByteArray line = status.readLine(); !line.isEmpty(); line = status.readLine()) {
        if (line.startsWith("VmRSS:"))
            return line.simplified().split(' ').at(1).toLong();
    }
    return 0;
}
} // namespace

void reportFirstFrame(QQuickWindow *window)
{
    QObject::connect(window, &QQuickWindow::frameSwapped, window, [window] {
        QObject::disconnect(window, &QQuickWindow::frameSwapped, window, nullptr);
        const auto shown = std::chrono::steady_clock::now().time_since_epoch();
        const long long nanoseconds = std::chrono::duration_cast<std::chrono::nanoseconds>(shown).count();
        QTimer::singleShot(500, window, [nanoseconds] {
            std::printf("first_frame_ns %lld rss_kb %ld\n", nanoseconds, residentKilobytes());
            std::fflush(stdout);
        });
    });
}
