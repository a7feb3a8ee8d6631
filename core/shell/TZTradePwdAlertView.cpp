#include "core/shell/TZTradePwdAlertView.h"

#include "core/shell/KRWindow.h"
#include "core/util/Amount.h"

#include <utility>

using namespace std::chrono_literals;

namespace {
constexpr qsizetype passwordLength = 6;
constexpr std::chrono::milliseconds fadeIn = 250ms;
constexpr std::chrono::milliseconds fadeOut = 200ms;

QString cleaned(const QString &text)
{
    QString digits = clearSpaceAndWrap(text);
    digits.removeIf([](QChar c) { return c < u'0' || c > u'9'; });
    return digits.left(passwordLength);
}
} // namespace

TZTradePwdAlertView::TZTradePwdAlertView(const QObject &promptOwner, TZTradePwdAlertDelegate &promptDelegate)
    : owner(&promptOwner), delegate(promptDelegate)
{
    connect(&promptOwner, &QObject::destroyed, this, [this] { removeFromWindow(); });
}

TZTradePwdAlertView::~TZTradePwdAlertView()
{
    wipe();
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
    Q_EMIT shownChanged();
    ending.startOnce(fadeOut, [this] { removeFromWindow(); });
}

void TZTradePwdAlertView::setInputTextField(const QString &text)
{
    if (shown) {
        digits = cleaned(text);
        if (digits.size() == passwordLength) {
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
    wipe();
    removeFromWindow();
}

void TZTradePwdAlertView::sendTradePwd()
{
    QString password = std::exchange(digits, {});
    Q_EMIT inputChanged();
    removeFromWindow();
    if (owner)
        delegate.checkTradePwd(password);
    password.fill(u'\0');
}

void TZTradePwdAlertView::wipe()
{
    digits.fill(u'\0');
    digits.clear();
    Q_EMIT inputChanged();
}
