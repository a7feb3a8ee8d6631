#pragma once

#include "account/screens/TZSignInController.h"

/// The last step of a registration: the nickname. The user is signed in already; closing leaves the nickname
/// unset.
class TZRegisterFinishController : public TZSignInController {
    Q_OBJECT
    Q_PROPERTY(QString nick READ nick NOTIFY nickChanged)
public:
    TZRegisterFinishController() = default;

    QString nick() const { return nickname; }

    void viewDidLoad() override;
    void leftItemClick() override;
    void backButtonClicked() override { leftItemClick(); }
    Q_INVOKABLE void textFiledEditChanged(const QString &text);
    Q_INVOKABLE void clickNextStepBtn();

Q_SIGNALS:
    void nickChanged();

private:
    QString nickname;
    bool sending = false;
};
