#pragma once

#include <QString>

/// The session's keys in the settings store. Cache keys stand beside the tools that own them.
namespace SettingsKeys {
inline const QString user = QStringLiteral("user");
inline const QString needTradePwd = QStringLiteral("needTradePwd");
inline const QString networkStatus = QStringLiteral("networkStatus");
inline const QString infoVersion = QStringLiteral("info_version");
/// The platform's standard name; holds the build version for which the guide was last shown.
inline const QString bundleVersion = QStringLiteral("CFBundleVersion");
inline const QString isFirstSeeSpeedCapital = QStringLiteral("isFirstSeeSpeedCapital");
inline const QString isFirstSeeMyCapital = QStringLiteral("isFirstSeeMyCapital");
inline const QString firstEnterCommissions = QStringLiteral("firstEnterCommissions");
} // namespace SettingsKeys
