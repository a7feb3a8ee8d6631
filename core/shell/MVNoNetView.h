#pragma once

#include <QObject>

/// What the owner of a no-network panel offers for its reload button.
class MVNoNetViewDelegate {
public:
    virtual void reloadData() = 0;

protected:
    ~MVNoNetViewDelegate() = default;
};

/// The no-network panel of a screen, a member of it. Its button does nothing for a delegate that is no
/// MVNoNetViewDelegate.
class MVNoNetView : public QObject {
    Q_OBJECT
public:
    explicit MVNoNetView(QObject &delegateObject) : delegate(delegateObject) {}

    Q_INVOKABLE void clickReloadBtn()
    {
        if (auto *const reloading = dynamic_cast<MVNoNetViewDelegate *>(&delegate))
            reloading->reloadData();
    }

private:
    QObject &delegate;
};
