#pragma once

#include "account/screens/TZSignInCodeController.h"

/// The code of a new number, with an invitation code that may be left out; the nickname follows.
class TZRegisterController : public TZSignInCodeController {
    Q_OBJECT
    Q_PROPERTY(QString inviteCode READ inviteCode WRITE setInviteCode NOTIFY inviteCodeChanged)
public:
    explicit TZRegisterController(Router &router);

    QString inviteCode() const { return invitation; }
    void setInviteCode(const QString &code);

    void viewDidLoad() override;
    void viewWillDisappear() override;
    /// Half a second after the last of a burst of taps: `todoSomething`.
    void clickNextStepBtn() override;
    Q_INVOKABLE void clickAgreementBtn();

Q_SIGNALS:
    void inviteCodeChanged();

protected:
    bool isComplete() const override;

private:
    void todoSomething();
    void registerFinishController();

    Router &router;
    Timer pendingStep;
    QString invitation;
};
