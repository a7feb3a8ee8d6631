#pragma once

#include "core/platform/Timer.h"
#include "core/shell/KRDialog.h"
#include "core/shell/TradePasswordDigits.h"

#include <QPointer>

/// Receives the password typed into the prompt, once for each prompt.
class TZTradePwdAlertDelegate {
public:
    virtual void checkTradePwd(const QString &password) = 0;

protected:
    ~TZTradePwdAlertDelegate() = default;
};

/// The box that asks for the six-digit trade password before an order or a withdrawal. With the sixth digit
/// it hides, and one second after hiding began it hands the password to its delegate and is gone; until then
/// it still covers the window, so that no second prompt can be asked for meanwhile. It goes without a call
/// when it is closed or its owner is destroyed.
class TZTradePwdAlertView : public KRDialog {
    Q_OBJECT
    /// The digits typed so far, 0 to 6 of them. What is written is cleaned first.
    Q_PROPERTY(QString inputTextField READ inputTextField WRITE setInputTextField NOTIFY inputChanged)
    Q_PROPERTY(QString countText READ countText NOTIFY inputChanged)
    /// The six dots, `aBtn` to `fBtn`: whether each is lit.
    Q_PROPERTY(QList<bool> btns READ btns NOTIFY inputChanged)
    Q_PROPERTY(bool shown READ isShown NOTIFY shownChanged)
    /// Milliseconds of the running fade: 250 in, 200 out. Changes before `shown`, with which the fade begins.
    Q_PROPERTY(int fadeDuration READ fadeDuration NOTIFY fadeDurationChanged)
public:
    enum class Animation { None, Fade };

    /// Shows a prompt on `window`, which owns it. `delegate` lives as long as `owner`: usually they are one
    /// screen.
    static TZTradePwdAlertView *showAlertView(KRWindow &window, const QObject &owner,
                                              TZTradePwdAlertDelegate &delegate);

    /// Fades out and is gone, no password handed over. Kept on purpose: without an animation it only ends
    /// editing.
    void hideAlertView(Animation animation);

    QString inputTextField() const { return input.text(); }
    void setInputTextField(const QString &text);
    QString countText() const { return input.countText(); }
    bool aBtn() const { return input.isLit(0); }
    bool bBtn() const { return input.isLit(1); }
    bool cBtn() const { return input.isLit(2); }
    bool dBtn() const { return input.isLit(3); }
    bool eBtn() const { return input.isLit(4); }
    bool fBtn() const { return input.isLit(5); }
    QList<bool> btns() const { return {aBtn(), bBtn(), cBtn(), dBtn(), eBtn(), fBtn()}; }
    bool isShown() const { return shown; }
    int fadeDuration() const;

    QString view() const override { return QStringLiteral("TZTradePwdAlertView"); }
    Q_INVOKABLE void closeBtnClick();
    void cancel() override { closeBtnClick(); }

Q_SIGNALS:
    void inputChanged();
    void fadeDurationChanged();
    void shownChanged();

private:
    TZTradePwdAlertView(const QObject &owner, TZTradePwdAlertDelegate &delegate);
    void sendTradePwd();

    QPointer<const QObject> owner;
    TZTradePwdAlertDelegate &delegate;
    TradePasswordDigits input;
    Timer ending;
    bool shown = true;
};
