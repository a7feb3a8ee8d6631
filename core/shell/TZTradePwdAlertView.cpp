#include "core/shell/TZTradePwdAlertView.h"

#include "core/shell/KRWindow.h"

using namespace std::chrono_literals;

namespace {
constexpr std::chrono::milliseconds fadeIn = 250ms;
constexpr std::chrono::milliseconds fadeOut = 200ms;
} // namespace

TZTradePwdAlertView::TZTradePwdAlertView(const QObject &promptOwner, TZTradePwdAlertDelegate &promptDelegate)
    : owner(&promptOwner), delegate(promptDelegate)
{
    connect(&promptOwner, &QObject::destroyed, this, [this] { removeFromWindow(); });
}

TZTradePwdAlertView *TZTradePwdAlertView::showAlertView(KRWindow &window, const QObject &owner,
                                                        TZTradePwdAlertDelegate &delegate)
{
    window.endEditing();
    std::unique_ptr<TZTradePwdAlertView> prompt(new TZTradePwdAlertView(owner, delegate));
    TZTradePwdAlertView *const added = prompt.get();
    window.show(std::move(prompt));
    return added;
}

void TZTradePwdAlertView::hideAlertView(Animation animation)
{
    if (window())
        window()->endEditing();
    if (animation == Animation::None || !shown)
        return;
    shown = false;
    Q_EMIT fadeDurationChanged();
    Q_EMIT shownChanged();
    ending.startOnce(fadeOut, [this] { removeFromWindow(); });
}

void TZTradePwdAlertView::setInputTextField(const QString &text)
{
    if (shown) {
        input.setText(text);
        if (input.isComplete()) {
            hideAlertView(Animation::Fade);
            ending.startOnce(1s, [this] { sendTradePwd(); });
        }
    }
    // Also when nothing changed: the field has to drop what was just typed into it.
    Q_EMIT inputChanged();
}

int TZTradePwdAlertView::fadeDuration() const
{
    return static_cast<int>((shown ? fadeIn : fadeOut).count());
}

void TZTradePwdAlertView::closeBtnClick()
{
    if (!shown)
        return;
    input.wipe();
    Q_EMIT inputChanged();
    removeFromWindow();
}

void TZTradePwdAlertView::sendTradePwd()
{
    QString password = input.text();
    input.wipe();
    Q_EMIT inputChanged();
    removeFromWindow();
    if (owner)
        delegate.checkTradePwd(password);
    password.fill(u'\0');
}
