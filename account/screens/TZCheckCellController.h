#pragma once

#include "account/screens/TZFormController.h"
#include "account/screens/TZSignInStep.h"

#include <QVariantMap>

/// The sign-in entry: takes the mobile number and has a code sent to it; the answer says whether login or
/// registration follows.
class TZCheckCellController : public TZFormController, public TZSignInStep {
    Q_OBJECT
    Q_PROPERTY(QString cell READ cell WRITE setCell NOTIFY cellChanged)
    Q_PROPERTY(bool nextStepLit READ nextStepLit NOTIFY cellChanged)
public:
    explicit TZCheckCellController(Router &router);

    QString cell() const { return number; }
    void setCell(const QString &cell);
    bool nextStepLit() const;

    void viewDidLoad() override;
    void leftItemClick() override;
    void backButtonClicked() override { leftItemClick(); }
    Q_INVOKABLE void clickNextStepBtn();

Q_SIGNALS:
    void cellChanged();

private:
    void openNextStep(const QString &cell, const QVariantMap &answer);

    Router &router;
    QString number;
};
