#pragma once

#include "core/platform/ApplicationInfo.h"

class QtApplicationInfo : public ApplicationInfo {
public:
    /// `baseUrl` ends in "/"; `dataDirectory` exists.
    QtApplicationInfo(const QString &baseUrl, const QString &dataDirectory)
        : base(baseUrl), directory(dataDirectory)
    {
    }

    QString buildVersion() const override;
    QString apiBaseUrl() const override { return base; }
    QString documentsDirectory() const override { return directory; }
    double systemVersion() const override;

private:
    const QString base;
    const QString directory;
};
