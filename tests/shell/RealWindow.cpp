#include "tests/shell/RealWindow.h"

#include "ui/Look.h"

#include <QDeadlineTimer>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QQuickItem>
#include <QQuickWindow>

using namespace std::chrono_literals;

namespace {
std::string collected;

void collect(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type != QtDebugMsg && type != QtInfoMsg)
        collected += message.toStdString() + '\n';
}

QQuickItem *itemIn(const QQuickItem *area, const char *property, const QString &value)
{
    for (QQuickItem *const child : area->childItems()) {
        if (!child->isVisible())
            continue;
        if (child->property(property).toString() == value)
            return child;
        if (QQuickItem *const found = itemIn(child, property, value))
            return found;
    }
    return nullptr;
}

void send(QQuickWindow *window, QEvent::Type type, const QPointF &place)
{
    QMouseEvent event(type, place, window->mapToGlobal(place), Qt::LeftButton,
                      type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(window, &event);
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

void RealWindowTest::pass() const
{
    const auto slides = [this] { return shown && itemIn(shown->contentItem(), "sliding", "true"); };
    const QDeadlineTimer patience(5s);
    for (const QDeadlineTimer limit(400ms); !limit.hasExpired() || (slides() && !patience.hasExpired());)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 10);
}

void RealWindowTest::draw() const
{
    shown->grabWindow();
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
    press(place);
    release(place);
}

std::string RealWindowTest::complaints()
{
    return std::exchange(collected, {});
}

QQuickItem *RealWindowTest::item(const char *property, const QString &value, const QQuickItem *area) const
{
    QQuickItem *const found = itemIn(area ? area : shown->contentItem(), property, value);
    EXPECT_NE(found, nullptr) << value.toStdString();
    return found;
}

QPointF RealWindowTest::middleOf(const QQuickItem *item)
{
    return item ? item->mapToScene(item->boundingRect().center()) : QPointF();
}

void RealWindowTest::press(const QPointF &place) const
{
    send(shown, QEvent::MouseButtonPress, place);
}

void RealWindowTest::release(const QPointF &place) const
{
    send(shown, QEvent::MouseButtonRelease, place);
}

void RealWindowTest::strike(Qt::Key key) const
{
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, Qt::NoModifier);
        QCoreApplication::sendEvent(shown, &event);
    }
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
