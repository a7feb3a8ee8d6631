#pragma once

#include <QObject>
#include <QVariant>
#include <functional>

/// Named notifications inside the client. Delivered at once, on the caller's thread (the main thread), in the
/// order of observing; an observer ends with its owner.
class NotificationCenter : public QObject {
    Q_OBJECT
public:
    using Receive = std::function<void(const QVariant &information)>;

    void post(const QString &name, const QVariant &information = {});
    void observe(const QObject *owner, const QString &name, Receive receive);
    void removeObserver(const QObject *owner);

Q_SIGNALS:
    void posted(const QString &name, const QVariant &information);
};
