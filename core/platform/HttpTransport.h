#pragma once

#include <QByteArray>
#include <QList>
#include <QPair>
#include <QString>
#include <chrono>
#include <functional>
#include <variant>

struct HttpRequest {
    QByteArray method;
    QString url;
    QList<QPair<QByteArray, QByteArray>> headers;
    QByteArray body;
    std::chrono::milliseconds timeout{15000};
};

struct HttpResponse {
    int status = 0;
    QByteArray contentType;
    QByteArray body;
    /// It answers a GET to which a redirect led after the body of the request was sent.
    bool redirected = false;
    /// Its "Date", in milliseconds since 1970; 0 when it has none.
    qint64 date = 0;
};

/// `Offline`: no connection came about. `Tls`: the other side could not prove itself, or an address was not
/// HTTPS. With these two nothing of a request with a body was sent; with the others it may have been, whole.
/// `Cancelled`: given up on this side.
enum class HttpFailure { Offline, TimedOut, Tls, Connection, Cancelled };

using HttpOutcome = std::variant<HttpResponse, HttpFailure>;

/// Sends bytes, brings bytes. Any status is a response; only what yields no whole response is a failure.
/// Never retries (no request reaches the wire twice), never ignores a TLS error, follows redirects only while
/// they stay on HTTPS. `done` runs exactly once, on the main thread, never from inside `send`.
class HttpTransport {
public:
    virtual ~HttpTransport() = default;
    virtual void send(const HttpRequest &request, std::function<void(const HttpOutcome &)> done) = 0;
};
