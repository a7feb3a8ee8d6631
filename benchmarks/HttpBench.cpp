#include "app/platform/QtHttpTransport.h"
#include "core/net/KRAFHTTPClient.h"
#include "core/session/SettingsKeys.h"
#include "tests/core/WireServer.h"
#include "tests/support/TestPlatform.h"

#include <QEventLoop>
#include <QNetworkReply>
#include <QThread>
#include <benchmark/benchmark.h>

namespace {
/// A TLS server on loopback with a thread of its own, answering what a quote weighs.
class QuoteServer {
public:
    QuoteServer()
    {
        place.moveToThread(&thread);
        thread.start();
        inThread([this] {
            server = std::make_unique<WireServer>(&identity);
            server->answer = [](QTcpSocket &socket, const WireServer::Request &) {
                static const QByteArray body =
                    R"({"success":true,"data":{"match":"12.34","levels":")" + QByteArray(900, 'x') + R"("}})";
                respond(socket, "200 OK", "Content-Type: application/json\r\n", body);
            };
        });
    }
    ~QuoteServer()
    {
        inThread([this] { server.reset(); });
        thread.quit();
        thread.wait();
    }

    QString url() const { return server->url(QStringLiteral("quote")); }

    const Identity authority = makeAuthority("Benchmark authority");

private:
    template <typename Work> void inThread(Work work)
    {
        QMetaObject::invokeMethod(&place, work, Qt::BlockingQueuedConnection);
    }

    const Identity identity = makeServer(authority, "IP:127.0.0.1");
    QThread thread;
    QObject place;
    std::unique_ptr<WireServer> server;
};

void getFloor(benchmark::State &state)
{
    const QuoteServer server;
    QNetworkAccessManager manager;
    QNetworkRequest request(QUrl(server.url()));
    QSslConfiguration tls = QSslConfiguration::defaultConfiguration();
    tls.setCaCertificates({server.authority.certificate});
    request.setSslConfiguration(tls);
    QEventLoop loop;
    for ([[maybe_unused]] const auto &iteration : state) {
        QNetworkReply *const reply = manager.get(request);
        QObject::connect(reply, &QNetworkReply::finished, &loop, [&] {
            if (reply->error() != QNetworkReply::NoError)
                state.SkipWithError("no answer");
            benchmark::DoNotOptimize(reply->readAll());
            loop.quit();
        });
        loop.exec();
        reply->deleteLater();
    }
}

void getOurs(benchmark::State &state)
{
    const QuoteServer server;
    QtHttpTransport http(DeveloperTrust{{server.authority.certificate}, true});
    MemorySettings settings;
    settings.setValue(SettingsKeys::user,
                      QVariantMap{{QStringLiteral("api_token"), QStringLiteral("t0ken")}});
    FakeReachability reachability;
    ManualRunLoop runLoop;
    RecordingKits kits;
    FakeApplication application;
    NotificationCenter notifications;
    OverlayHost overlays;
    const Platform platform{http, settings, reachability, runLoop,     kits,          kits,    kits,
                            kits, kits,     kits,         application, notifications, overlays};
    Platform::install(&platform);
    QEventLoop loop;
    for ([[maybe_unused]] const auto &iteration : state) {
        KRAFHTTPClient::get(server.url(), {},
                            Success(&loop,
                                    [&](const Operation &, const QVariantMap &answer) {
                                        benchmark::DoNotOptimize(answer);
                                        loop.quit();
                                    }),
                            Failure(&loop, [&](const Operation &, const RequestError &) {
                                state.SkipWithError("no answer");
                                loop.quit();
                            }));
        loop.exec();
    }
    Platform::install(nullptr);
}
} // namespace

BENCHMARK(getFloor)->Name("https_get/floor")->UseRealTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(getOurs)->Name("https_get/ours")->UseRealTime()->Unit(benchmark::kMicrosecond);
