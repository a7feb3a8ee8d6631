#pragma once

#include "account/screens/TZSmsCodeController.h"

/// The code of a number that is registered.
class TZLoginController : public TZSmsCodeController {
    Q_OBJECT
public:
    void viewDidLoad() override;
    void clickNextStepBtn() override;
};
