#pragma once

#include <QIODevice>

/// The body of a request that must not go out twice. The network library sends a request again by itself
/// after a reset connection; it rewinds the body first, and gives up when the body refuses, even an empty
/// one.
class OneShotBody : public QIODevice {
public:
    OneShotBody(QByteArray body, QObject *parent);

    bool reset() override { return false; }
    qint64 size() const override { return bytes.size(); }
    /// Some of it was taken to be sent, which happens once there is a connection.
    bool wasTaken() const { return taken; }

protected:
    qint64 readData(char *data, qint64 maxSize) override;
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    const QByteArray bytes;
    bool taken = false;
};
