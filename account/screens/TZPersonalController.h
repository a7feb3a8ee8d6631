#pragma once

#include "account/screens/TZFormController.h"

/// Who the user is, as stored on this device, and the ways to change the nickname and the trade password.
class TZPersonalController : public TZFormController {
    Q_OBJECT
    Q_PROPERTY(QString nick READ nick NOTIFY userChanged)
    /// Masked, as is the name.
    Q_PROPERTY(QString cell READ cell NOTIFY userChanged)
    Q_PROPERTY(QString name READ name NOTIFY userChanged)
    Q_PROPERTY(QString nickValue READ nickValue NOTIFY userChanged)
public:
    TZPersonalController() = default;

    QString nick() const;
    QString cell() const;
    QString name() const;
    /// The nickname, or that there is none.
    QString nickValue() const;

    void viewDidLoad() override;
    void viewWillAppear() override;
    Q_INVOKABLE void nickRowClick();
    /// Asks whether the password may be changed, then opens the reset.
    Q_INVOKABLE void tradePwdRowClick();

Q_SIGNALS:
    void userChanged();
};
