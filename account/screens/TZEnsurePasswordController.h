#pragma once

#include "account/screens/TZPasswordController.h"

/// The second entry of a new trade password, which is sent when it is the same as the first.
class TZEnsurePasswordController : public TZPasswordController {
    Q_OBJECT
public:
    TZEnsurePasswordController() = default;
    ~TZEnsurePasswordController() override;

    /// The first entry.
    QString prePassword;

    QString heading() const override { return QStringLiteral("请再次输入交易密码"); }
    QString caption() const override { return QStringLiteral("与上一步输入的六位数字一致"); }

    /// Not while the password is being changed: whether it was must be seen.
    bool canBeLeft() const override { return !isSending(); }

    void viewDidLoad() override;

protected:
    void inputCompleted() override;

private:
    void resetPassword();
    void setPassword();
};
