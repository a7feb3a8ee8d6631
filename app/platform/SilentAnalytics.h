#pragma once

#include "core/platform/Analytics.h"

/// No vendor, nothing recorded.
class SilentAnalytics : public Analytics {
public:
    void start(const QString &, int, const QString &) override {}
    void checkUpdate() override {}
    void beginLogPageView(const QString &) override {}
    void endLogPageView(const QString &) override {}
};
