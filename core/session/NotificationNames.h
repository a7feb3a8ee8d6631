#pragma once

#include <QString>

/// The notifications that screens of different areas share.
namespace NotificationNames {
inline const QString refreshHome = QStringLiteral("refreshHome");
inline const QString refreshAccount = QStringLiteral("refreshAccount");
inline const QString reachabilityChanged = QStringLiteral("kNetworkReachabilityChangedNotification");
inline const QString remoteMsg = QStringLiteral("remote_msg");
inline const QString remoteStock = QStringLiteral("remote_stock");
/// A user was stored, or the stored one has changed.
inline const QString userChanged = QStringLiteral("userChanged");
/// DisplaySettings has changed.
inline const QString displayChanged = QStringLiteral("displayChanged");
} // namespace NotificationNames
