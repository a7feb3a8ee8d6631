#pragma once

#include "account/screens/TZNicknameController.h"

/// Sets the nickname that the account lacks, or changes it.
class TZModifyNicknameController : public TZNicknameController {
    Q_OBJECT
public:
    TZModifyNicknameController() = default;

    /// The account has none yet.
    bool isSetNickname = false;
    /// Presented in a stack of its own, which goes with this screen.
    bool isFirstShow = false;

    void viewDidLoad() override;
    void leftItemClick() override;
    void backButtonClicked() override { leftItemClick(); }
    Q_INVOKABLE void saveBtnClick() { saveNick(); }

protected:
    void nickSaved() override;
};
