#pragma once

#include "account/screens/TZFormController.h"

#include <QVariantMap>

/// The second step of resetting the trade password: the identity number given when the account was opened.
class TZVerifyIDController : public TZFormController {
    Q_OBJECT
    Q_PROPERTY(QString idCard READ idCard WRITE setIdCard NOTIFY idCardChanged)
    Q_PROPERTY(bool nextStepLit READ nextStepLit NOTIFY idCardChanged)
public:
    TZVerifyIDController() = default;

    /// What the reset has collected so far. Keys: "bizCode", "userInput".
    QVariantMap requestData;

    QString idCard() const { return number; }
    void setIdCard(const QString &number);
    bool nextStepLit() const;

    void viewDidLoad() override;
    Q_INVOKABLE void nextBtnClick();

Q_SIGNALS:
    void idCardChanged();

private:
    void openSetPassword(const QString &verifiedNumber);

    QString number;
};
