#pragma once

#include "core/platform/HttpTransport.h"

#include <QNetworkAccessManager>
#include <QSslCertificate>

/// What a developer build may trust: authorities, when there are any, instead of the system's (reading all of
/// those at start takes longer than the first frame), and plain HTTP to this machine.
struct DeveloperTrust {
    QList<QSslCertificate> authorities;
    bool loopbackHttp = false;
};

/// The transport on the network library: its connection pool keeps connections and TLS sessions, nothing else
/// is kept between requests (no cookies, no cached answers, no credentials). 301, 302 and 303 are followed as
/// GET, five at most; 307 and 308 would send a body again and fail. The headers of the request go only to its
/// own origin. What is on its way when the transport goes is dropped.
class QtHttpTransport : public HttpTransport {
public:
    explicit QtHttpTransport(const DeveloperTrust &trust = {});

    void send(const HttpRequest &request, std::function<void(const HttpOutcome &)> done) override;

private:
    QNetworkAccessManager manager;
    QSslConfiguration tls;
    const bool loopbackHttp;
};
