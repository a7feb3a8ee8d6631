#pragma once

#include "core/platform/ShareService.h"

#include <QList>

/// What a deployment puts its own values in.
namespace Configuration {
/// The applications' keys at the vendors; empty where the desktop's stand-ins need none.
inline const QString umengKey;
inline const QString pushKey;

inline const QList<ShareTarget> shareTargets{
    {QStringLiteral("WeChat"), {}, {}, {}},
    {QStringLiteral("QQ"), {}, {}, {}},
    {QStringLiteral("Weibo"), {}, {}, {}},
};

/// The client's identifier in the application store.
inline const QString storeIdentifier = QStringLiteral("000000000");
inline const QString servicePhone = QStringLiteral("400-000-0000");
inline const QString serviceMail = QStringLiteral("service@zorvane.example");
inline const QString webSite = QStringLiteral("https://www.zorvane.example/");
} // namespace Configuration
