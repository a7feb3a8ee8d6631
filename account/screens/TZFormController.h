#pragma once

#include "core/net/Callbacks.h"
#include "core/shell/KRBaseController.h"

/// A screen with fields: leaving it ends editing, and it sends one request at a time, which
/// the indicator tells of whenever the screen is in front.
class TZFormController : public KRBaseController {
    Q_OBJECT
public:
    void viewWillAppear() override;

protected:
    TZFormController() = default;

    bool isSending() const { return sending; }
    /// Counts as sending until `operation` has ended, whatever came of it.
    void waitFor(const Operation &operation);
    /// Pushes `next` while this screen is on top: an answer that comes after the user went back leads
    /// nowhere.
    void pushNext(std::unique_ptr<KRBaseController> next);

private:
    void setSending(bool nowSending);

    bool sending = false;
};
