#pragma once

#include "account/screens/TZFormController.h"
#include "account/screens/TZSmsCell.h"
#include "core/util/OwnedAction.h"

#include <QVariantMap>

/// Takes the code of a text message and has another one sent. What the code is for is a matter of the screens
/// derived from this.
class TZSmsCodeController : public TZFormController {
    Q_OBJECT
    Q_PROPERTY(QString headerText READ headerText NOTIFY headerTextChanged)
    Q_PROPERTY(QString code READ code NOTIFY codeChanged)
    Q_PROPERTY(TZSmsCell *smsCell READ smsCell CONSTANT)
    /// Whether the next-step button looks ready; it can be pressed in any case and then says what is missing.
    Q_PROPERTY(bool nextStepLit READ nextStepLit NOTIFY nextStepLitChanged)
public:
    /// The business code of an answer: at its top level or, when that is empty, in "data".
    static QString bizCodeOf(const QVariantMap &answer);
    /// Whether the answer says that a code was sent: a success, or one that is silent about "success" and has
    /// a business code.
    static bool wasSent(const QVariantMap &answer);
    /// Says that something is wrong with an answer that says nothing itself.
    static void sayIfSilent(const QVariantMap &answer);

    /// Handed on from step to step. Keys: "bizCode" (of the answer that told of the code), and what the
    /// screens derived from this add.
    QVariantMap requestData;

    virtual QString headerText() const = 0;
    QString code() const { return codeText; }
    TZSmsCell *smsCell() { return &sms; }
    bool nextStepLit() const { return lit; }

    void viewDidLoad() override;
    /// Asks for another code; `complete` runs once it was sent.
    virtual void sendSms(const OwnedAction &complete);
    Q_INVOKABLE void clickTimeBtn();
    Q_INVOKABLE virtual void clickNextStepBtn() = 0;
    Q_INVOKABLE void textFiledEditChanged(const QString &text);

Q_SIGNALS:
    void headerTextChanged();
    void codeChanged();
    void nextStepLitChanged();

protected:
    static QString sentTo(const QString &cell);
    /// Has a code sent.
    virtual Operation askForCode(Success success, Failure andError) = 0;
    /// Refreshes the button's look a moment after the last change.
    void delayToChangeBtnStyle();
    virtual bool isComplete() const;
    /// The first problem of what was typed; empty when there is none.
    virtual QString inputProblem() const;
    /// Shows the first problem, if there is one.
    bool checkInput() const;
    /// What verifies the typed code. Keys: "bizCode", "userInput".
    QVariantMap verification() const;

private:
    QString bizCode() const;

    TZSmsCell sms;
    Timer styleDelay;
    QString codeText;
    bool lit = false;
};
