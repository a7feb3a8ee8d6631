#pragma once

#include "account/screens/TZSignInController.h"
#include "account/screens/TZSmsCell.h"
#include "core/net/Callbacks.h"

#include <QVariantMap>

/// The second step of the sign-in: the code sent to the number. What login and registration have in common.
class TZSmsCodeController : public TZSignInController {
    Q_OBJECT
    Q_PROPERTY(QString headerText READ headerText CONSTANT)
    Q_PROPERTY(QString code READ code NOTIFY codeChanged)
    Q_PROPERTY(TZSmsCell *smsCell READ smsCell CONSTANT)
    /// Whether the next-step button looks ready; it can be pressed in any case and then says what is missing.
    Q_PROPERTY(bool nextStepLit READ nextStepLit NOTIFY nextStepLitChanged)
public:
    /// The business code of an answer of "start": at its top level or, when that is empty, in "data".
    static QString bizCodeOf(const QVariantMap &answer);

    /// Handed on from step to step. Keys: "bizCode" (of the answer of "start"), "cell" (the number as typed).
    QVariantMap requestData;

    QString headerText() const;
    QString code() const { return codeText; }
    TZSmsCell *smsCell() { return &sms; }
    bool nextStepLit() const { return lit; }

    void viewDidLoad() override;
    /// Asks for another code; `complete` runs once it was sent.
    void sendSms(const OwnedAction &complete);
    Q_INVOKABLE void clickTimeBtn();
    Q_INVOKABLE virtual void clickNextStepBtn() = 0;
    Q_INVOKABLE void textFiledEditChanged(const QString &text);

Q_SIGNALS:
    void codeChanged();
    void nextStepLitChanged();

protected:
    /// Refreshes the button's look a moment after the last change.
    void delayToChangeBtnStyle();
    virtual bool isComplete() const;
    /// Shows the first problem of what was typed, if there is one.
    bool checkInput() const;
    /// Sends "verify" with the code and `extra`; `verified` runs when the user is signed in. One at a time.
    void verify(const QVariantMap &extra, std::function<void()> verified);

private:
    QString cell() const;
    QString bizCode() const;

    TZSmsCell sms;
    Timer styleDelay;
    QString codeText;
    bool lit = false;
    bool verifying = false;
};
