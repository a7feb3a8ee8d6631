#pragma once

#include "tests/core/Certificates.h"

#include <QSslServer>
#include <functional>

/// A server on loopback that counts what really reaches it. A request counts once its whole body was read.
class WireServer : public QObject {
public:
    struct Request {
        QByteArray head;
        QByteArray body;
        QByteArray line() const { return head.left(head.indexOf('\r')); }
        QByteArray header(const QByteArray &name) const;
    };
    using Answer = std::function<void(QTcpSocket &, const Request &)>;

    /// Speaks TLS as `identity`, plain HTTP without one.
    explicit WireServer(const Identity *identity = nullptr);

    /// Writes what a test wants on the wire; the standard one answers {"success":true}.
    Answer answer;
    QList<Request> requests;
    int connections = 0;

    QString url(const QString &path) const;

private:
    void serve(QTcpSocket *socket);
    void read(QTcpSocket &socket, QByteArray &buffer);

    QSslServer tls;
    QTcpServer plain;
    const bool secure;
};

void respond(QTcpSocket &socket, const QByteArray &status, const QByteArray &headers, const QByteArray &body);
/// Ends the connection with a reset instead of a close.
void resetConnection(QTcpSocket &socket);
