#pragma once

#include "core/platform/ApplicationInfo.h"

class QtApplicationInfo : public ApplicationInfo {
public:
    /// `baseUrl` as it was configured, with or without "/" at its end; `dataDirectory` is made when it is
    /// missing, for its owner only.
    QtApplicationInfo(const QString &baseUrl, const QString &dataDirectory);

    QString buildVersion() const override;
    QString apiBaseUrl() const override { return base; }
    QString documentsDirectory() const override { return directory; }
    double systemVersion() const override;

private:
    const QString base;
    const QString directory;
};
