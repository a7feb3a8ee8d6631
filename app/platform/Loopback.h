#pragma once

#include <QHostAddress>
#include <QUrl>

/// Whether the URL's host is this machine.
inline bool isLoopback(const QUrl &url)
{
    return url.host() == QLatin1String("localhost") || QHostAddress(url.host()).isLoopback();
}
