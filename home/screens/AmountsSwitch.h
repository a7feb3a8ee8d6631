#pragma once

#include <QObject>

/// The button that hides the user's amounts and shows them again. Every screen with one follows the same
/// choice.
class AmountsSwitch : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool hidden READ isHidden NOTIFY changed)
    /// What a press would do.
    Q_PROPERTY(QString title READ title NOTIFY changed)
public:
    AmountsSwitch();

    bool isHidden() const { return hidden; }
    QString title() const;
    Q_INVOKABLE void toggle();
    /// The amount, or what stands for one that is hidden.
    QString shown(const QString &amount) const;

Q_SIGNALS:
    void changed();

private:
    bool hidden;
};
