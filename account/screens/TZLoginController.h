#pragma once

#include "account/screens/TZSignInCodeController.h"

/// The code of a number that is registered.
class TZLoginController : public TZSignInCodeController {
    Q_OBJECT
public:
    void viewDidLoad() override;
    void clickNextStepBtn() override;
};
