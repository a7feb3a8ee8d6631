#pragma once

#include <QObject>

class KRWindow;

/// What is shown modally over every screen. Owned by the window; `view()` names the picture of it.
class KRDialog : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString view READ view CONSTANT)
public:
    using QObject::QObject;
    virtual QString view() const = 0;
    KRWindow *window() const { return hostWindow; }
    /// Esc, or the back button of the device.
    Q_INVOKABLE virtual void cancel() = 0;

Q_SIGNALS:
    /// It is no longer on its window; it may still be seen to go.
    void removed();

protected:
    /// Removes the dialog from the window; it is deleted later.
    void removeFromWindow();

private:
    friend class KRWindow;
    KRWindow *hostWindow = nullptr;
};
