#include "app/push/QtPushService.h"
#include "tests/core/WireServer.h"
#include "tests/support/TestPlatform.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QPointer>
#include <QTcpSocket>

using namespace std::chrono_literals;

/// A server that holds the stream open and writes on it when told.
class PushStreamTest : public PlatformTest {
protected:
    PushStreamTest()
    {
        server.answer = [this](QTcpSocket &socket, const WireServer::Request &) {
            socket.write("HTTP/1.1 " + status + "\r\nContent-Type: application/x-ndjson\r\n\r\n");
            streams.append(&socket);
        };
        push.onRemoteNotification([this](const QVariantMap &payload) {
            received << payload.value("pageId").toString();
            if (onReceive)
                onReceive();
        });
    }

    static bool wait(const std::function<bool()> &done, std::chrono::milliseconds atMost = 10s)
    {
        for (const QDeadlineTimer limit(atMost); !done() && !limit.hasExpired();)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
        return done();
    }

    void setAlias(const QString &alias)
    {
        push.setAlias(alias, "api_token");
        runLoop.advance(0ms);
    }
    bool opened(int streamCount)
    {
        return wait([this, streamCount] { return streams.size() == streamCount; });
    }
    void write(const QByteArray &bytes)
    {
        streams.last()->write(bytes);
        streams.last()->flush();
    }

    QByteArray status = "200 OK";
    WireServer server;
    QList<QPointer<QTcpSocket>> streams;
    QStringList received;
    std::function<void()> onReceive;
    QtPushService push{server.url(QString()), DeveloperTrust{{}, true}};
};

TEST_F(PushStreamTest, MessagesComeLineByLineHoweverTheyAreCut)
{
    setAlias("t0ken");
    ASSERT_TRUE(opened(1));
    EXPECT_EQ(server.requests.first().line(), "GET /sandbox/push HTTP/1.1");
    EXPECT_EQ(server.requests.first().header("alias"), "t0ken");
    for (const char *common : {"api_token", "info_version", "version", "platform"})
        EXPECT_EQ(server.requests.first().header(common), "") << common;
    write("{\"pageId\":2,\"data\":{}}\n\n{\"pageId\":");
    EXPECT_TRUE(wait([this] { return received.size() == 1; }));
    write("3}\nno json\n[4]\n{\"pageId\":5}\n");
    EXPECT_TRUE(wait([this] { return received.size() == 3; }));
    EXPECT_EQ(received.join(u' '), "2 3 5");
}

TEST_F(PushStreamTest, AStreamIsOpenWhileThereIsAnAliasAndWakesNobody)
{
    setAlias("off_line");
    wait([] { return false; }, 200ms);
    EXPECT_EQ(server.connections, 0);
    setAlias("t0ken");
    ASSERT_TRUE(opened(1));
    EXPECT_EQ(runLoop.activeTimers(), 0);
    setAlias("off_line");
    EXPECT_TRUE(wait([this] {
        return !streams.first() || streams.first()->state() == QAbstractSocket::UnconnectedState;
    }));
    runLoop.advance(120s);
    wait([] { return false; }, 100ms);
    EXPECT_EQ(streams.size(), 1);
    EXPECT_EQ(runLoop.activeTimers(), 0);
}

TEST_F(PushStreamTest, AnotherUserHasAStreamOfTheirOwnAndHearsNothingOfTheFirst)
{
    setAlias("first");
    ASSERT_TRUE(opened(1));
    write("{\"pageId\":1}\n");
    setAlias("second");
    ASSERT_TRUE(opened(2));
    EXPECT_EQ(server.requests.last().header("alias"), "second");
    EXPECT_TRUE(received.isEmpty()) << "what was under way to the first is dropped";
    write("{\"pageId\":2}\n");
    EXPECT_TRUE(wait([this] { return !received.isEmpty(); }));
    EXPECT_EQ(received.join(u' '), "2");
}

TEST_F(PushStreamTest, AMessageThatSignsOutEndsTheStreamItCameOn)
{
    onReceive = [this] { push.setAlias("off_line", QString()); };
    setAlias("t0ken");
    ASSERT_TRUE(opened(1));
    write("{\"pageId\":1}\n{\"pageId\":2}\n");
    EXPECT_TRUE(wait([this] { return !received.isEmpty(); }));
    wait([] { return false; }, 100ms);
    EXPECT_EQ(received.size(), 1);
}

TEST_F(PushStreamTest, ALostStreamIsOpenedAgainAfterGrowingDelaysUntilAMessageComes)
{
    status = "503 Service Unavailable";
    setAlias("t0ken");
    ASSERT_TRUE(opened(1));
    int openings = 1;
    for (const std::chrono::seconds delay : {1s, 2s, 4s, 8s, 16s, 32s, 60s, 60s}) {
        // The client may have ended what is no stream already.
        if (streams.last())
            streams.last()->disconnectFromHost();
        ASSERT_TRUE(wait([this] { return runLoop.activeTimers() == 1; })) << delay.count();
        runLoop.advance(delay - 1ms);
        wait([] { return false; }, 20ms);
        ASSERT_EQ(streams.size(), openings) << "too early, before " << delay.count();
        if (openings == 6)
            status = "200 OK\r\nContent-Length: 17\r\n\r\n{\"success\":true}\n";
        if (openings == 7)
            status = "200 OK";
        runLoop.advance(1ms);
        ASSERT_TRUE(opened(++openings)) << delay.count();
    }
    write("{\"pageId\":2}\n");
    ASSERT_TRUE(wait([this] { return !received.isEmpty(); }));
    streams.last()->disconnectFromHost();
    ASSERT_TRUE(wait([this] { return runLoop.activeTimers() == 1; }));
    runLoop.advance(1s);
    EXPECT_TRUE(opened(++openings)) << "after a message the first delay holds again";
}

TEST_F(PushStreamTest, AServiceWithoutAStreamIsAskedOnceForEachAlias)
{
    status = "405 Method Not Allowed\r\nSet-Cookie: a=b";
    setAlias("t0ken");
    ASSERT_TRUE(opened(1));
    streams.last()->disconnectFromHost();
    EXPECT_FALSE(wait([this] { return runLoop.activeTimers() > 0; }, 200ms));
    setAlias("other");
    ASSERT_TRUE(opened(2));
    EXPECT_EQ(server.requests.last().header("Cookie"), "");
}

TEST_F(PushStreamTest, ALineWithoutAnEndEndsTheStream)
{
    setAlias("t0ken");
    ASSERT_TRUE(opened(1));
    write(QByteArray(3 << 20, 'x'));
    EXPECT_TRUE(wait([this] { return runLoop.activeTimers() == 1; }));
    EXPECT_TRUE(received.isEmpty());
}
