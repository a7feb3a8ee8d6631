#pragma once

#include "core/platform/Timer.h"

#include <QObject>

/// The code row of the sign-in screens: its button that asks for a code again, with the countdown on it.
class TZSmsCell : public QObject {
    Q_OBJECT
    /// Seconds until a code may be asked for again.
    Q_PROPERTY(int leftTime READ leftTime NOTIFY timeBtnChanged)
    Q_PROPERTY(QString title READ title NOTIFY timeBtnChanged)
    Q_PROPERTY(bool enabled READ enabled NOTIFY timeBtnChanged)
public:
    enum class TimeButton { Waiting, Ready };

    using QObject::QObject;

    int leftTime() const { return seconds; }
    QString title() const { return text; }
    bool enabled() const { return style == TimeButton::Ready; }

    void justBeginTimer();
    void timerCancel();
    bool isCounting() const { return timer.isActive(); }
    /// One second passed.
    void timeLapse();
    void changeTimeButtonStyleWithIndex(TimeButton index, const QString &title);

Q_SIGNALS:
    void timeBtnChanged();

private:
    Timer timer;
    int seconds = 0;
    TimeButton style = TimeButton::Ready;
    QString text = QStringLiteral("获取验证码");
};
