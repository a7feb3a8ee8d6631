#pragma once

#include <QObject>
#include <QString>

/// One level of the order book. `title` is the client's own: "买1", "卖1" and so on.
struct TZHandicapModel {
    Q_GADGET
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString price MEMBER price)
    Q_PROPERTY(QString volume MEMBER volume)
public:
    QString title;
    QString price;
    QString volume;
};
