#include "account/screens/TZSmsCell.h"

using namespace std::chrono_literals;

namespace {
QString countdownTitle(int seconds)
{
    return QStringLiteral("%1秒后重发").arg(seconds);
}
} // namespace

void TZSmsCell::justBeginTimer()
{
    seconds = 60;
    changeTimeButtonStyleWithIndex(TimeButton::Waiting, countdownTitle(seconds));
    timer.startRepeating(1s, [this] { timeLapse(); });
}

void TZSmsCell::timerCancel()
{
    timer.stop();
}

void TZSmsCell::timeLapse()
{
    --seconds;
    if (seconds > 0)
        return changeTimeButtonStyleWithIndex(TimeButton::Waiting, countdownTitle(seconds));
    timerCancel();
    changeTimeButtonStyleWithIndex(TimeButton::Ready, QStringLiteral("重发验证码"));
}

void TZSmsCell::changeTimeButtonStyleWithIndex(TimeButton index, const QString &title)
{
    style = index;
    text = title;
    Q_EMIT timeBtnChanged();
}
