#pragma once

#include "account/screens/TZFormController.h"
#include "core/shell/TradePasswordDigits.h"

#include <QVariantMap>

/// Six digits typed into a hidden field behind six dots. What the two screens that set the trade password
/// have in common.
class TZPasswordController : public TZFormController {
    Q_OBJECT
    /// What is written is cleaned first; with the sixth digit the screen goes on.
    Q_PROPERTY(QString input READ input WRITE setInput NOTIFY inputChanged)
    Q_PROPERTY(QString countText READ countText NOTIFY inputChanged)
    // Whether each dot is lit.
    Q_PROPERTY(bool button1 READ button1 NOTIFY inputChanged)
    Q_PROPERTY(bool button2 READ button2 NOTIFY inputChanged)
    Q_PROPERTY(bool button3 READ button3 NOTIFY inputChanged)
    Q_PROPERTY(bool button4 READ button4 NOTIFY inputChanged)
    Q_PROPERTY(bool button5 READ button5 NOTIFY inputChanged)
    Q_PROPERTY(bool button6 READ button6 NOTIFY inputChanged)
    Q_PROPERTY(QString heading READ heading CONSTANT)
    Q_PROPERTY(QString caption READ caption CONSTANT)
public:
    /// A forgotten password is replaced; otherwise the first one is set.
    bool isResetPassword = false;
    /// Presented in a stack of its own by a step of the account's opening.
    bool isFirstShow = false;
    /// What the reset has collected on its way. Keys: "bizCode", "userInput", "idCard".
    QVariantMap requestData;

    QString input() const { return digits.text(); }
    void setInput(const QString &text);
    QString countText() const { return digits.countText(); }
    bool button1() const { return digits.isLit(0); }
    bool button2() const { return digits.isLit(1); }
    bool button3() const { return digits.isLit(2); }
    bool button4() const { return digits.isLit(3); }
    bool button5() const { return digits.isLit(4); }
    bool button6() const { return digits.isLit(5); }
    virtual QString heading() const = 0;
    virtual QString caption() const = 0;

Q_SIGNALS:
    void inputChanged();

protected:
    void clearInput();
    /// Six digits were typed.
    virtual void inputCompleted() = 0;

private:
    TradePasswordDigits digits;
};
