#pragma once

#include <QList>
#include <QSslCertificate>
#include <QSslConfiguration>

/// What a developer build may trust: authorities, when there are any, instead of the system's (reading all of
/// those at start takes longer than the first frame), and plain HTTP to this machine.
struct DeveloperTrust {
    QList<QSslCertificate> authorities;
    bool loopbackHttp = false;

    QSslConfiguration configuration() const
    {
        QSslConfiguration tls = QSslConfiguration::defaultConfiguration();
        if (!authorities.isEmpty())
            tls.setCaCertificates(authorities);
        return tls;
    }
};
