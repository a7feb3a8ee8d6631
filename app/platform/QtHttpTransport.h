#pragma once

#include "core/platform/HttpTransport.h"

#include <QNetworkAccessManager>
#include <QSslCertificate>

/// What a developer build may trust besides what the system trusts.
struct DeveloperTrust {
    QList<QSslCertificate> authorities;
    bool loopbackHttp = false;
};

/// The transport on the network library: its connection pool keeps connections and TLS sessions, nothing else
/// is kept between requests (no cookies, no cached answers, no credentials). Redirects are followed as GET,
/// five at most; the headers of the request go only to its own origin. What is on its way when the transport
/// goes is dropped.
class QtHttpTransport : public HttpTransport {
public:
    explicit QtHttpTransport(const DeveloperTrust &trust = {});

    void send(const HttpRequest &request, std::function<void(const HttpOutcome &)> done) override;

private:
    QNetworkAccessManager manager;
    QSslConfiguration tls;
    const bool loopbackHttp;
};
