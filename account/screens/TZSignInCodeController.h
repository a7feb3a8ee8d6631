#pragma once

#include "account/screens/TZSignInStep.h"
#include "account/screens/TZSmsCodeController.h"

/// The second step of the sign-in: the code sent to the number. What login and registration have in common.
/// `requestData` also has "cell", the number as typed.
class TZSignInCodeController : public TZSmsCodeController, public TZSignInStep {
    Q_OBJECT
public:
    QString headerText() const override { return sentTo(cell()); }
    void viewDidLoad() override;
    void viewDidDisappear() override;
    void sendSms(const OwnedAction &complete) override;

protected:
    Operation askForCode(Success success, Failure andError) override;
    QString inputProblem() const override;
    /// Sends "verify" with the code and `extra`; `verified` runs when the user is signed in. One at a time.
    void verify(const QVariantMap &extra, std::function<void()> verified);

private:
    QString cell() const;

    /// Owns what waits for the answer to "verify"; gone once the user has gone back, while the screen is
    /// still seen sliding away.
    std::unique_ptr<QObject> attempt;
};
