#pragma once

#include <QObject>
#include <QPointer>
#include <functional>

/// Something to do later that belongs to an owner: once the owner is gone, or when default-made, calling it
/// does nothing.
class OwnedAction {
public:
    OwnedAction() = default;
    OwnedAction(const QObject *actionOwner, std::function<void()> action)
        : owner(actionOwner), function(std::move(action))
    {
    }

    explicit operator bool() const { return function && owner; }
    void operator()() const
    {
        if (function && owner)
            function();
    }

private:
    QPointer<const QObject> owner;
    std::function<void()> function;
};
