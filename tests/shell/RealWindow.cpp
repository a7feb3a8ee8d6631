#include "tests/shell/RealWindow.h"

#include "ui/Look.h"

#include <QDeadlineTimer>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QQuickWindow>

using namespace std::chrono_literals;

namespace {
std::string collected;

void collect(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type != QtDebugMsg && type != QtInfoMsg)
        collected += message.toStdString() + '\n';
}
} // namespace

RealWindowTest::RealWindowTest()
{
    collected.clear();
    signIn();
    shell.didFinishLaunchingWithOptions({});
    shown = views->show(window, overlays);
    pass();
}

void RealWindowTest::SetUp()
{
    ASSERT_TRUE(shown);
}

void RealWindowTest::TearDown()
{
    views.reset();
    settle();
    EXPECT_EQ(complaints(), "");
}

void RealWindowTest::pass()
{
    for (const QDeadlineTimer limit(400ms); !limit.hasExpired();)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 10);
}

void RealWindowTest::answerAll()
{
    for (int round = 0; round < 3; ++round) {
        for (FakeTransport::Sent &sent : http.sent) {
            if (!sent.answered)
                http.answer(sent, succeeded());
        }
        runLoop.advance(4s);
    }
}

void RealWindowTest::tap(const QPointF &place) const
{
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        QMouseEvent event(type, place, shown->mapToGlobal(place), Qt::LeftButton,
                          type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(shown, &event);
    }
}

std::string RealWindowTest::complaints()
{
    return std::exchange(collected, {});
}

int main(int argc, char **argv)
{
    testing::InitGoogleTest(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    qputenv("TZ", "Asia/Shanghai");
    const QGuiApplication application(argc, argv);
    const Look look;
    qInstallMessageHandler(collect);
    return RUN_ALL_TESTS();
}
