#pragma once

#include "account/screens/TZSmsCodeController.h"

/// The first step of resetting the trade password: a code sent to the number of the signed-in user.
class TZVerifyPhoneController : public TZSmsCodeController {
    Q_OBJECT
public:
    TZVerifyPhoneController() = default;

    QString headerText() const override;
    /// Has a code sent at once.
    void viewDidLoad() override;
    void sendSms(const OwnedAction &complete) override;
    void clickNextStepBtn() override;

protected:
    Operation askForCode(Success success, Failure andError) override;

private:
    void openIdentityCheck(const QVariantMap &verified);

    bool sent = false;
};
