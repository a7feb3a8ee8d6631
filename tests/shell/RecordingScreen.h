#pragma once

#include "core/shell/KRBaseController.h"

#include <QStringList>
#include <functional>

/// A screen that writes down what it is told as "name call", and may do something on a call.
class RecordingScreen : public KRBaseController {
    Q_OBJECT
public:
    RecordingScreen(QString screenName, QStringList &log) : name(std::move(screenName)), calls(log) {}
    ~RecordingScreen() override { calls << name + QStringLiteral(" gone"); }

    void viewDidLoad() override
    {
        KRBaseController::viewDidLoad();
        tell(QStringLiteral("load"));
    }
    void viewWillAppear() override
    {
        KRBaseController::viewWillAppear();
        tell(QStringLiteral("willAppear"));
    }
    void viewDidAppear() override { tell(QStringLiteral("didAppear")); }
    void viewWillDisappear() override
    {
        KRBaseController::viewWillDisappear();
        tell(QStringLiteral("willDisappear"));
    }
    void viewDidDisappear() override { tell(QStringLiteral("didDisappear")); }

    /// Runs once, the next time the screen is told `call`.
    void on(const QString &call, std::function<void()> action)
    {
        awaited = call;
        act = std::move(action);
    }

private:
    void tell(const QString &call)
    {
        calls << name + u' ' + call;
        if (act && awaited == call)
            std::exchange(act, nullptr)();
    }

    const QString name;
    QStringList &calls;
    QString awaited;
    std::function<void()> act;
};
