#pragma once

#include "core/platform/FeedbackService.h"

class UrlOpener;

/// Feedback as a mail draft to the service.
class MailFeedback : public FeedbackService {
public:
    MailFeedback(UrlOpener &urlOpener, QString mailAddress, QString mailSubject);

    void start(const QString &) override {}
    void show() override;

private:
    UrlOpener &opener;
    const QString address;
    const QString subject;
};
