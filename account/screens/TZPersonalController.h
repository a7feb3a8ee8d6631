#pragma once

#include "account/screens/TZFormController.h"

/// Who the user is, as stored on this device, and the ways to change the nickname and the trade password.
class TZPersonalController : public TZFormController {
    Q_OBJECT
    /// The nickname; without one the number.
    Q_PROPERTY(QString displayName READ displayName NOTIFY userChanged)
    // The number and the name are masked.
    Q_PROPERTY(QString cell READ cell NOTIFY userChanged)
    Q_PROPERTY(QString name READ name NOTIFY userChanged)
    Q_PROPERTY(QString nick READ nick NOTIFY userChanged)
public:
    TZPersonalController() = default;

    QString displayName() const;
    QString cell() const;
    QString name() const;
    QString nick() const;

    void viewDidLoad() override;
    Q_INVOKABLE void nickRowClick();
    /// Asks whether the password may be changed, then opens the reset.
    Q_INVOKABLE void tradePwdRowClick();

Q_SIGNALS:
    void userChanged();
};
