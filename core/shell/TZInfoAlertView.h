#pragma once

#include "core/platform/Timer.h"
#include "core/shell/KRDialog.h"
#include "core/util/OwnedAction.h"

/// The texts of an alert; an empty `leftTitle` leaves one button.
struct TZInfoAlertViewModel {
    QString titleText;
    QString ensureText;
    QString leftTitle;
    QString rightTitle;
};

/// A dialog with a title, a text and one or two buttons. A button's action runs after the dialog is
/// gone.
class TZInfoAlertView : public KRDialog {
    Q_OBJECT
    Q_PROPERTY(QString titleText READ titleText NOTIFY contentChanged)
    Q_PROPERTY(QString ensureText READ ensureText NOTIFY contentChanged)
    Q_PROPERTY(QString leftTitle READ leftTitle NOTIFY contentChanged)
    Q_PROPERTY(QString rightTitle READ rightTitle NOTIFY contentChanged)
public:
    TZInfoAlertView(TZInfoAlertViewModel alertModel, OwnedAction left, OwnedAction right);

    QString view() const override { return QStringLiteral("TZInfoAlertView"); }
    QString titleText() const { return model.titleText; }
    QString ensureText() const { return model.ensureText; }
    QString leftTitle() const { return model.leftTitle; }
    QString rightTitle() const { return model.rightTitle; }

    Q_INVOKABLE void leftBtnClick();
    Q_INVOKABLE void rightBtnClick();
    void cancel() override;

Q_SIGNALS:
    void contentChanged();

protected:
    /// Says something else while it is shown. For half a second its buttons do nothing then: a tap in that
    /// time was meant for what stood there before.
    void say(TZInfoAlertViewModel model, OwnedAction left, OwnedAction right);

private:
    void close(const OwnedAction &action);

    TZInfoAlertViewModel model;
    OwnedAction leftAction;
    OwnedAction rightAction;
    Timer settling;
};
