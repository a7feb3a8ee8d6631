#include "tests/core/WireServer.h"

#include <QSslConfiguration>
#include <QSslSocket>
#include <QTcpSocket>
#include <memory>
#include <sys/socket.h>

QByteArray WireServer::Request::header(const QByteArray &name) const
{
    const QByteArray start = "\r\n" + name.toLower() + ": ";
    const qsizetype at = head.toLower().indexOf(start);
    return at < 0 ? QByteArray() : head.mid(at + start.size()).split('\r').first();
}

WireServer::WireServer(const Identity *identity) : secure(identity)
{
    answer = [](QTcpSocket &socket, const Request &) {
        respond(socket, "200 OK", "Content-Type: application/json\r\n", R"({"success":true})");
    };
    const auto accept = [this](QTcpServer &server) {
        connect(&server, &QTcpServer::pendingConnectionAvailable, this, [this, &server] {
            while (QTcpSocket *socket = server.nextPendingConnection())
                serve(socket);
        });
        server.listen(QHostAddress::LocalHost);
    };
    if (identity) {
        QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
        configuration.setLocalCertificate(identity->certificate);
        configuration.setPrivateKey(identity->key);
        tls.setSslConfiguration(configuration);
        accept(tls);
    } else {
        accept(plain);
    }
}

QString WireServer::url(const QString &path) const
{
    const quint16 port = secure ? tls.serverPort() : plain.serverPort();
    return QStringLiteral("%1://127.0.0.1:%2/%3")
        .arg(QLatin1String(secure ? "https" : "http"))
        .arg(port)
        .arg(path);
}

void WireServer::serve(QTcpSocket *socket)
{
    ++connections;
    auto buffer = std::make_shared<QByteArray>();
    connect(socket, &QTcpSocket::readyRead, this, [this, socket, buffer] { read(*socket, *buffer); });
    connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
    read(*socket, *buffer);
}

void WireServer::read(QTcpSocket &socket, QByteArray &buffer)
{
    buffer += socket.readAll();
    const qsizetype end = buffer.indexOf("\r\n\r\n");
    if (end < 0)
        return;
    Request request{buffer.left(end + 2), {}};
    const qsizetype length = request.header("content-length").toLongLong();
    if (buffer.size() < end + 4 + length)
        return;
    request.body = buffer.mid(end + 4, length);
    buffer.remove(0, end + 4 + length);
    requests.append(request);
    answer(socket, request);
}

void respond(QTcpSocket &socket, const QByteArray &status, const QByteArray &headers, const QByteArray &body)
{
    socket.write("HTTP/1.1 " + status + "\r\n" + headers +
                 "Content-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" + body);
}

void resetConnection(QTcpSocket &socket)
{
    const linger now{1, 0};
    setsockopt(static_cast<int>(socket.socketDescriptor()), SOL_SOCKET, SO_LINGER, &now, sizeof now);
    socket.abort();
}
