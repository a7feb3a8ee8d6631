#pragma once

#include <QSslCertificate>
#include <QSslKey>

/// Certificates made on the spot.
struct Identity {
    QSslCertificate certificate;
    QSslKey key;
};

struct Validity {
    /// Seconds from now.
    long from = -3600;
    long until = 3600;
};

Identity makeAuthority(const QByteArray &name);
/// `subject` is an alternative name as OpenSSL writes it: "IP:127.0.0.1", "DNS:elsewhere.test".
Identity makeServer(const Identity &authority, const QByteArray &subject, Validity validity = {});
