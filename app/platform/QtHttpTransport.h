#pragma once

#include "app/platform/DeveloperTrust.h"
#include "core/platform/HttpTransport.h"

#include <QNetworkAccessManager>
#include <QSslConfiguration>
#include <list>

/// The transport on the network library: its connection pool keeps connections and TLS sessions, nothing else
/// is kept between requests (no cookies, no cached answers, no credentials). No request waits for another:
/// when a pool is in use as a whole there is one more. 301, 302 and 303 are followed as GET, five at most;
/// 307 and 308 would send a body again and fail. The headers of the request go only to its own origin. What
/// is on its way when the transport goes is dropped.
class QtHttpTransport : public HttpTransport {
public:
    explicit QtHttpTransport(const DeveloperTrust &trust = {});

    void send(const HttpRequest &request, std::function<void(const HttpOutcome &)> done) override;

private:
    struct Lane {
        QNetworkAccessManager manager;
        int inFlight = 0;
    };
    Lane &freeLane();

    const QSslConfiguration tls;
    const bool loopbackHttp;
    std::list<Lane> lanes;
};
