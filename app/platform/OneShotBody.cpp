#include "app/platform/OneShotBody.h"

#include <algorithm>
#include <cstring>

OneShotBody::OneShotBody(QByteArray body, QObject *parent) : QIODevice(parent), bytes(std::move(body))
{
    open(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

qint64 OneShotBody::readData(char *data, qint64 maxSize)
{
    const qint64 count = std::min(maxSize, bytes.size() - pos());
    if (count > 0) {
        std::memcpy(data, bytes.constData() + pos(), static_cast<size_t>(count));
        taken = true;
    }
    return count;
}
