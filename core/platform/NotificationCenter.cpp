#include "core/platform/NotificationCenter.h"

void NotificationCenter::post(const QString &name, const QVariant &information)
{
    Q_EMIT posted(name, information);
}

void NotificationCenter::observe(const QObject *owner, const QString &name, Receive receive)
{
    connect(this, &NotificationCenter::posted, owner,
            [name, receive = std::move(receive)](const QString &posted, const QVariant &information) {
                if (posted == name)
                    receive(information);
            });
}

void NotificationCenter::removeObserver(const QObject *owner)
{
    disconnect(this, &NotificationCenter::posted, owner, nullptr);
}
