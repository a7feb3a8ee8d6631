#pragma once

#include "account/screens/TZNicknameController.h"
#include "account/screens/TZSignInStep.h"

/// The last step of a registration: the nickname. The user is signed in already; closing leaves the nickname
/// unset.
class TZRegisterFinishController : public TZNicknameController, public TZSignInStep {
    Q_OBJECT
public:
    TZRegisterFinishController() = default;

    void viewDidLoad() override;
    void leftItemClick() override { closeSignIn(*this); }
    void backButtonClicked() override { leftItemClick(); }
    Q_INVOKABLE void clickNextStepBtn() { saveNick(); }

protected:
    void nickSaved() override { finishSignIn(*this); }
};
