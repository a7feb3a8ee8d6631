#pragma once

#include "core/platform/FeedbackService.h"

class Pasteboard;
class UrlOpener;

/// Feedback as a mail draft to the service; where nothing opens it, the address goes to the pasteboard.
class MailFeedback : public FeedbackService {
public:
    MailFeedback(Pasteboard &pasteboard, UrlOpener &urlOpener, QString mailAddress, QString mailSubject);

    void start(const QString &) override {}
    void show() override;

private:
    Pasteboard &board;
    UrlOpener &opener;
    const QString address;
    const QString subject;
};
