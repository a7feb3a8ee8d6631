#include "app/platform/QtHttpTransport.h"
#include "tests/core/WireServer.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QThread>
#include <QTimer>
#include <gtest/gtest.h>
#include <memory>
#include <optional>

using namespace std::chrono_literals;

namespace {

class HttpTransportTest : public testing::Test {
protected:
    /// A thread of the network library counts as ended a moment before the TLS library has let go of what it
    /// keeps for it: a process that ends between the two seems to leak.
    static void TearDownTestSuite() { QThread::msleep(100); }

    static HttpOutcome send(const HttpRequest &request, HttpTransport &by)
    {
        std::optional<HttpOutcome> outcome;
        by.send(request, [&outcome](const HttpOutcome &what) { outcome = what; });
        EXPECT_FALSE(outcome) << "an outcome from inside send";
        for (const QDeadlineTimer limit(20s); !outcome && !limit.hasExpired();)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 100);
        EXPECT_TRUE(outcome);
        return outcome.value_or(HttpFailure::Cancelled);
    }
    HttpOutcome send(const HttpRequest &request) { return send(request, transport); }
    HttpOutcome get(const QString &url) { return send({"GET", url, {}, {}}); }

    /// Long enough for a second sending to show up.
    static void linger()
    {
        for (const QDeadlineTimer limit(300ms); !limit.hasExpired();)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
    }

    const Identity authority = makeAuthority("Test authority");
    const Identity identity = makeServer(authority, "IP:127.0.0.1");
    WireServer server{&identity};
    QtHttpTransport transport{DeveloperTrust{{authority.certificate}, true}};
};

std::string described(const HttpOutcome &outcome)
{
    if (const auto *response = std::get_if<HttpResponse>(&outcome))
        return std::to_string(response->status) + " " + response->body.toStdString();
    static const char *const names[] = {"offline", "timed out", "tls", "connection", "cancelled"};
    return names[static_cast<int>(std::get<HttpFailure>(outcome))];
}

/// As an order is sent; a GET has no body.
HttpRequest form(const QString &url, const QByteArray &method = "POST")
{
    return {method,
            url,
            {{"Content-Type", "application/x-www-form-urlencoded"}, {"api_token", "t"}},
            method == "GET" ? "" : "a=1&b=2"};
}

TEST_F(HttpTransportTest, CarriesMethodHeadersAndBodyAndBringsAnyStatusBack)
{
    server.answer = [](QTcpSocket &socket, const WireServer::Request &request) {
        const QByteArray status = request.line().split('/').value(1).split(' ').value(0);
        const QByteArray challenge = status == "401" ? "WWW-Authenticate: Basic realm=\"x\"\r\n" : "";
        const QByteArray date = status == "201" ? "" : "Date: Sun, 13 Sep 2020 12:26:40 GMT\r\n";
        respond(socket, status + " X", "Content-Type: text/html; charset=utf-8\r\n" + date + challenge,
                "{" + status + "}");
    };
    for (const char *method : {"GET", "POST", "PUT"}) {
        for (const int status : {200, 201, 400, 401, 403, 404, 407, 409, 418, 500, 502, 503, 599}) {
            const HttpRequest request = form(server.url(QString::number(status)), method);
            server.requests.clear();
            const HttpOutcome outcome = send(request);
            EXPECT_EQ(described(outcome), std::to_string(status) + " {" + std::to_string(status) + "}")
                << method;
            ASSERT_EQ(server.requests.size(), 1) << method << status;
            EXPECT_TRUE(server.requests.first().line().startsWith(method));
            EXPECT_EQ(server.requests.first().body, request.body);
            EXPECT_EQ(server.requests.first().header("api_token"), "t");
        }
    }
    EXPECT_EQ(std::get<HttpResponse>(get(server.url("200"))).contentType, "text/html; charset=utf-8");
    EXPECT_EQ(std::get<HttpResponse>(get(server.url("200"))).date, 1'600'000'000'000);
    EXPECT_EQ(std::get<HttpResponse>(get(server.url("201"))).date, 0);
    EXPECT_EQ(described(get(server.url("204"))), "204 ");
}

TEST_F(HttpTransportTest, NeverSendsTwiceHoweverTheConnectionEndsAfterReading)
{
    const QByteArray half = "HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\n{\"success\":";
    const struct {
        QByteArray written;
        bool reset;
        // A reset on a connection in use is what tempts to send again.
        bool warm;
    } cases[] = {
        {"", true, true}, {"", true, false}, {"", false, false}, {half, true, false}, {half, false, false}};
    for (const char *method : {"GET", "POST", "PUT"}) {
        for (const auto &ending : cases) {
            if (ending.warm) {
                server.answer = [](QTcpSocket &socket, auto &) { respond(socket, "200 OK", "", "{}"); };
                EXPECT_EQ(described(get(server.url("warm"))), "200 {}");
            }
            server.answer = [&](QTcpSocket &socket, const WireServer::Request &) {
                socket.write(ending.written);
                socket.flush();
                if (ending.reset)
                    resetConnection(socket);
                else
                    socket.disconnectFromHost();
            };
            server.requests.clear();
            EXPECT_EQ(described(send(form(server.url("order"), method))), "connection")
                << method << ending.written.toStdString() << ending.reset << ending.warm;
            linger();
            EXPECT_EQ(server.requests.size(), 1)
                << method << ending.written.toStdString() << ending.reset << ending.warm;
        }
    }
}

TEST_F(HttpTransportTest, EndsTheWholeRequestAtItsTimeOutEvenWhileBytesTrickle)
{
    for (const bool trickle : {false, true}) {
        server.answer = [this, trickle](QTcpSocket &socket, const WireServer::Request &) {
            socket.write("HTTP/1.1 200 OK\r\nContent-Length: 1000\r\n\r\n");
            if (!trickle)
                return;
            auto *drip = new QTimer(&socket);
            QObject::connect(drip, &QTimer::timeout, &server, [&socket] { socket.write("x"); });
            drip->start(20ms);
        };
        HttpRequest request = form(server.url("slow"));
        request.timeout = 200ms;
        QElapsedTimer watch;
        watch.start();
        EXPECT_EQ(described(send(request)), "timed out");
        EXPECT_GE(watch.elapsed(), 195);
        EXPECT_LT(watch.elapsed(), 5000);
    }
    EXPECT_EQ(HttpRequest().timeout, 15s);
}

TEST_F(HttpTransportTest, RefusesCertificatesThatDoNotProveTheServer)
{
    const Identity stranger = makeServer(makeAuthority("Stranger"), "IP:127.0.0.1");
    const Identity otherHost = makeServer(authority, "DNS:elsewhere.test");
    const Identity expired = makeServer(authority, "IP:127.0.0.1", {-7200, -3600});
    const Identity early = makeServer(authority, "IP:127.0.0.1", {3600, 7200});
    for (const Identity *bad : {&stranger, &otherHost, &expired, &early}) {
        WireServer wrong(bad);
        EXPECT_EQ(described(send(form(wrong.url("login")))), "tls");
        EXPECT_TRUE(wrong.requests.isEmpty());
    }
    QtHttpTransport strict;
    EXPECT_EQ(described(send(form(server.url("login")), strict)), "tls")
        << "without the developer's authority";
    EXPECT_TRUE(server.requests.isEmpty());
}

TEST_F(HttpTransportTest, FollowsRedirectsOnlyToSafePlacesAndKeepsTheTokenAtHome)
{
    WireServer other(&identity);
    WireServer loopbackHttp;
    QByteArray location;
    QByteArray status;
    server.answer = [&](QTcpSocket &socket, const WireServer::Request &request) {
        if (request.line().contains("/target"))
            respond(socket, "200 OK", "", "here");
        else
            respond(socket, status, "Location: " + location + "\r\n", "");
    };
    other.answer = loopbackHttp.answer = [](QTcpSocket &socket, const WireServer::Request &) {
        respond(socket, "200 OK", "", "there");
    };
    struct Case {
        const char *status;
        QByteArray location;
        std::string get;
        std::string post;
    };
    const QByteArray foreign = other.url("target").toLatin1();
    const Case cases[] = {
        {"302 Found", "/target", "200 here", "200 here"},
        {"301 Moved", foreign, "200 there", "200 there"},
        {"307 Again", "/target", "connection", "connection"},
        {"308 Again", foreign, "connection", "connection"},
        {"302 Found", loopbackHttp.url(QStringLiteral("target")).toLatin1(), "200 there", "200 there"},
        {"302 Found", "http://service.example/target", "tls", "connection"},
        {"302 Found", "file:///etc/passwd", "tls", "connection"},
        {"302 Found", "/again", "connection", "connection"},
        {"302 Found", "", "302 ", "302 "},
    };
    for (const Case &c : cases) {
        status = c.status;
        location = c.location;
        const QString start = server.url("start");
        EXPECT_EQ(described(send(form(start))), c.post) << c.status << c.location.toStdString();
        EXPECT_EQ(described(send(form(start, "GET"))), c.get) << c.status << c.location.toStdString();
    }
    status = "302 Found";
    location = "/target";
    const auto redirected = [this](const HttpRequest &request) {
        return std::get<HttpResponse>(send(request)).redirected;
    };
    EXPECT_TRUE(redirected(form(server.url("start")))) << "the body was not sent there";
    EXPECT_FALSE(redirected(form(server.url("target"))));
    EXPECT_FALSE(redirected(form(server.url("start"), "GET")));

    ASSERT_FALSE(other.requests.isEmpty());
    for (const WireServer::Request &request : std::as_const(other.requests)) {
        EXPECT_EQ(request.header("api_token"), "");
        EXPECT_TRUE(request.line().startsWith("GET"));
        EXPECT_EQ(request.body, "");
    }
    for (const WireServer::Request &request : std::as_const(server.requests))
        EXPECT_EQ(request.header("api_token"), "t");
}

TEST_F(HttpTransportTest, LeavesHttpsOnlyForLoopbackInDeveloperBuilds)
{
    WireServer loopbackHttp;
    EXPECT_EQ(described(get(loopbackHttp.url("x"))), "200 {\"success\":true}");
    EXPECT_EQ(described(get("http://service.example/")), "tls");
    EXPECT_EQ(described(get("file:///etc/passwd")), "tls");
    EXPECT_EQ(described(get("not a url")), "tls");
}

TEST_F(HttpTransportTest, ReusesItsConnectionAndKeepsNothingElse)
{
    server.answer = [](QTcpSocket &socket, const WireServer::Request &) {
        respond(socket, "200 OK",
                "Set-Cookie: session=1; Path=/\r\nCache-Control: max-age=600\r\nETag: \"1\"\r\n", "{}");
    };
    for (int i = 0; i < 10; ++i)
        EXPECT_EQ(described(i % 2 ? get(server.url("x")) : send(form(server.url("x")))), "200 {}");
    EXPECT_EQ(server.connections, 1);
    EXPECT_EQ(server.requests.size(), 10);
    for (const WireServer::Request &request : std::as_const(server.requests)) {
        EXPECT_EQ(request.header("cookie"), "");
        EXPECT_EQ(request.header("if-none-match"), "");
    }
}

TEST_F(HttpTransportTest, SendsManyAtOnceEachExactlyOnceAndNoneWaitsForAnAnswerToAnother)
{
    std::vector<QTcpSocket *> waiting;
    server.answer = [&waiting](QTcpSocket &socket, const WireServer::Request &request) {
        if (request.line().startsWith("POST"))
            respond(socket, "200 OK", "", "taken");
        else
            waiting.push_back(&socket);
    };
    constexpr std::size_t many = 20;
    std::size_t answered = 0;
    for (std::size_t i = 0; i < many; ++i)
        transport.send({"GET", server.url("held"), {}, {}}, [&answered](const HttpOutcome &outcome) {
            EXPECT_EQ(described(outcome), "200 held");
            ++answered;
        });
    EXPECT_EQ(described(send(form(server.url("order")))), "200 taken");
    EXPECT_EQ(answered, 0U);
    while (waiting.size() < many && answered == 0)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    for (QTcpSocket *const socket : waiting)
        respond(*socket, "200 OK", "", "held");
    while (answered < many)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    EXPECT_EQ(server.requests.size(), static_cast<qsizetype>(many) + 1);

    const int connections = server.connections;
    EXPECT_EQ(described(send(form(server.url("order")))), "200 taken");
    EXPECT_EQ(server.connections, connections) << "a pool with room is used before there is another";
}

TEST_F(HttpTransportTest, CarriesLargeBodiesBothWays)
{
    const QByteArray large(10 * 1024 * 1024, 'x');
    server.answer = [&large](QTcpSocket &socket, const WireServer::Request &) {
        respond(socket, "200 OK", "", large);
    };
    HttpRequest request = form(server.url("photo"));
    request.body = large;
    const HttpOutcome outcome = send(request);
    ASSERT_TRUE(std::holds_alternative<HttpResponse>(outcome)) << described(outcome);
    EXPECT_EQ(std::get<HttpResponse>(outcome).body, large);
    ASSERT_EQ(server.requests.size(), 1);
    EXPECT_EQ(server.requests.first().body, large);
}

TEST_F(HttpTransportTest, TellsWhyNothingCameBackAndThatAFormWithoutAConnectionWasNotSent)
{
    server.answer = [](QTcpSocket &socket, const WireServer::Request &request) {
        if (request.line().contains("/noise"))
            socket.write("no HTTP at all\r\n\r\n");
        socket.disconnectFromHost();
    };
    const QString gone = std::make_unique<WireServer>(&identity)->url("x");
    QTcpServer mute;
    mute.listen(QHostAddress::LocalHost);
    const struct {
        QString url;
        std::string get;
        std::string post;
    } cases[] = {
        {gone, "connection", "offline"},
        {QStringLiteral("https://127.0.0.1:%1/").arg(mute.serverPort()), "timed out", "offline"},
        {"https://nowhere.invalid/", "offline", "offline"},
        {server.url("noise"), "connection", "connection"},
        {server.url("closed"), "connection", "connection"},
    };
    for (const auto &[url, read, sent] : cases) {
        for (const QByteArray method : {"POST", "GET"}) {
            HttpRequest request = form(url, method);
            request.timeout = 500ms;
            EXPECT_EQ(described(send(request)), method == "GET" ? read : sent) << url.toStdString();
        }
    }
}

TEST_F(HttpTransportTest, DropsWhatIsOnItsWayWhenItGoes)
{
    server.answer = [](QTcpSocket &, const WireServer::Request &) {};
    auto shortLived = std::make_unique<QtHttpTransport>(DeveloperTrust{{authority.certificate}, false});
    bool done = false;
    shortLived->send(form(server.url("x")), [&done](const HttpOutcome &) { done = true; });
    for (const QDeadlineTimer limit(5s); server.requests.isEmpty() && !limit.hasExpired();)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
    shortLived.reset();
    linger();
    EXPECT_FALSE(done);
    EXPECT_EQ(server.requests.size(), 1);
}

} // namespace
