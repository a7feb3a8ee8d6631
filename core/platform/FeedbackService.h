#pragma once

#include <QString>

/// The kit of a feedback vendor.
class FeedbackService {
public:
    virtual ~FeedbackService() = default;
    virtual void start(const QString &applicationKey) = 0;
    virtual void show() = 0;
};
