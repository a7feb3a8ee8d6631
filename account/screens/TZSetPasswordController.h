#pragma once

#include "account/screens/TZPasswordController.h"

/// The first entry of a new trade password; TZEnsurePasswordController has it typed again.
class TZSetPasswordController : public TZPasswordController {
    Q_OBJECT
public:
    TZSetPasswordController() = default;

    QString heading() const override;
    QString caption() const override;

    void viewDidLoad() override;
    void viewWillAppear() override;
    /// Asks before it leaves the flow.
    void leftItemClick() override;
    void backButtonClicked() override { leftItemClick(); }

protected:
    void inputCompleted() override;

private:
    void leaveFlow();
};
