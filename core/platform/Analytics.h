#pragma once

#include <QString>

/// The kit of an analytics vendor.
class Analytics {
public:
    virtual ~Analytics() = default;
    virtual void start(const QString &applicationKey, int reportPolicy, const QString &channel) = 0;
    /// Asks the vendor's service whether a newer version of the client exists.
    virtual void checkUpdate() = 0;
    virtual void beginLogPageView(const QString &page) = 0;
    virtual void endLogPageView(const QString &page) = 0;
};
