#include "app/platform/QtHttpTransport.h"

#include "app/platform/Loopback.h"
#include "app/platform/OneShotBody.h"

#include <QDateTime>
#include <QLocale>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QSslConfiguration>
#include <QTimer>
#include <algorithm>

namespace {

constexpr int mostRedirects = 5;

/// The connections that a manager opens to one host; what it is given beyond them waits.
constexpr int mostPerLane = 6;

/// Nothing is sent again when a kept connection turns out to be closed, and services commonly close theirs
/// after five seconds without a request.
constexpr int secondsKept = 4;

/// One request from sending to its outcome, redirects included; deletes itself.
class Exchange : public QObject {
public:
    Exchange(QNetworkAccessManager &networkManager, const QSslConfiguration &tlsConfiguration,
             bool allowLoopbackHttp, HttpRequest httpRequest, std::function<void(const HttpOutcome &)> onDone)
        : QObject(&networkManager), manager(networkManager), tls(tlsConfiguration),
          loopbackHttp(allowLoopbackHttp), request(std::move(httpRequest)), done(std::move(onDone))
    {
        deadline.setSingleShot(true);
        deadline.setTimerType(Qt::PreciseTimer);
        deadline.callOnTimeout(this, [this] { timeOut(); });
        deadline.start(request.timeout);
    }

    void start(const QUrl &url)
    {
        if (!isSafe(url))
            return fail(HttpFailure::Tls);
        body = new OneShotBody(request.body, this);
        reply = manager.sendCustomRequest(prepared(url), request.method, body);
        connect(reply, &QNetworkReply::finished, this, [this] { receive(); });
    }

private:
    bool isSafe(const QUrl &url) const
    {
        return url.scheme() == QLatin1String("https") ||
               (loopbackHttp && url.scheme() == QLatin1String("http") && isLoopback(url));
    }

    QNetworkRequest prepared(const QUrl &url) const
    {
        QNetworkRequest prepared(url);
        prepared.setSslConfiguration(tls);
        prepared.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                              QNetworkRequest::ManualRedirectPolicy);
        prepared.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
        prepared.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
        prepared.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
        // HTTP/2 has rules of its own for sending a refused stream again.
        prepared.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
        prepared.setAttribute(QNetworkRequest::ConnectionCacheExpiryTimeoutSecondsAttribute, secondsKept);
        for (const auto &[name, value] : request.headers)
            prepared.setRawHeader(name, value);
        return prepared;
    }

    void timeOut()
    {
        if (reply) {
            reply->disconnect(this);
            reply->abort();
        }
        fail(HttpFailure::TimedOut);
    }

    void receive()
    {
        const int status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
        const QUrl target = reply->attribute(QNetworkRequest::RedirectionTargetAttribute).toUrl();
        if (const auto failure = failureOf(reply->error()))
            return fail(*failure);
        if ((status == 301 || status == 302 || status == 303) && target.isValid())
            return redirect(reply->url().resolved(target));
        finish(HttpResponse{status, reply->header(QNetworkRequest::ContentTypeHeader).toByteArray(),
                            reply->readAll(), bodyWasSent, dateOf(*reply)});
    }

    static qint64 dateOf(const QNetworkReply &reply)
    {
        QDateTime date = QLocale::c().toDateTime(QString::fromLatin1(reply.rawHeader("Date")),
                                                 QStringLiteral("ddd, dd MMM yyyy hh:mm:ss 'GMT'"));
        date.setTimeSpec(Qt::UTC);
        return date.isValid() ? date.toMSecsSinceEpoch() : 0;
    }

    void redirect(const QUrl &target)
    {
        if (++redirects > mostRedirects)
            return fail(HttpFailure::Connection);
        const QUrl from = reply->url();
        if (target.scheme() != from.scheme() || target.authority() != from.authority())
            request.headers.clear();
        bodyWasSent = bodyWasSent || body->wasTaken();
        request.method = "GET";
        request.body.clear();
        reply->deleteLater();
        reply = nullptr;
        start(target);
    }

    /// None when a whole answer came, whatever its status.
    static std::optional<HttpFailure> failureOf(QNetworkReply::NetworkError error)
    {
        switch (error) {
        case QNetworkReply::NoError:
        case QNetworkReply::ProxyAuthenticationRequiredError:
        case QNetworkReply::ProtocolInvalidOperationError:
            return std::nullopt;
        case QNetworkReply::SslHandshakeFailedError:
            return HttpFailure::Tls;
        case QNetworkReply::TimeoutError:
            return HttpFailure::TimedOut;
        case QNetworkReply::HostNotFoundError:
        case QNetworkReply::TemporaryNetworkFailureError:
        case QNetworkReply::NetworkSessionFailedError:
            return HttpFailure::Offline;
        case QNetworkReply::OperationCanceledError:
            return HttpFailure::Cancelled;
        case QNetworkReply::ContentReSendError:
            return HttpFailure::Connection;
        default:
            break;
        }
        const bool isStatus =
            (error > QNetworkReply::UnknownProxyError && error < QNetworkReply::ProtocolUnknownError) ||
            error >= QNetworkReply::InternalServerError;
        return isStatus ? std::nullopt : std::optional(HttpFailure::Connection);
    }

    /// Never says that nothing was sent when something was, nor the other way round where that is known.
    void fail(HttpFailure failure)
    {
        const bool saysUnsent = failure == HttpFailure::Offline || failure == HttpFailure::Tls;
        bodyWasSent = bodyWasSent || (body && body->wasTaken());
        if (bodyWasSent && saysUnsent)
            failure = HttpFailure::Connection;
        else if (!bodyWasSent && !saysUnsent && !request.body.isEmpty())
            failure = HttpFailure::Offline;
        finish(failure);
    }

    void finish(const HttpOutcome &outcome)
    {
        deadline.stop();
        if (reply)
            reply->deleteLater();
        deleteLater();
        std::exchange(done, {})(outcome);
    }

    QNetworkAccessManager &manager;
    const QSslConfiguration tls;
    const bool loopbackHttp;
    HttpRequest request;
    std::function<void(const HttpOutcome &)> done;
    QTimer deadline;
    QNetworkReply *reply = nullptr;
    OneShotBody *body = nullptr;
    bool bodyWasSent = false;
    int redirects = 0;
};

} // namespace

QtHttpTransport::QtHttpTransport(const DeveloperTrust &trust)
    : tls(trust.configuration()), loopbackHttp(trust.loopbackHttp)
{
}

QtHttpTransport::Lane &QtHttpTransport::freeLane()
{
    const auto free = std::find_if(lanes.begin(), lanes.end(),
                                   [](const Lane &lane) { return lane.inFlight < mostPerLane; });
    return free == lanes.end() ? lanes.emplace_back() : *free;
}

void QtHttpTransport::send(const HttpRequest &request, std::function<void(const HttpOutcome &)> done)
{
    Lane &lane = freeLane();
    ++lane.inFlight;
    auto leave = [&lane, done = std::move(done)](const HttpOutcome &outcome) {
        --lane.inFlight;
        done(outcome);
    };
    auto *exchange = new Exchange(lane.manager, tls, loopbackHttp, request, std::move(leave));
    // No outcome comes from inside this call, and the first requests, which are made before the first frame
    // is drawn, wait for the event loop.
    QTimer::singleShot(0, exchange, [exchange, url = QUrl(request.url)] { exchange->start(url); });
}
