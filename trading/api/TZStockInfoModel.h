#pragma once

#include <QObject>
#include <QString>

/// One listed stock: `c` the six-digit code, `n` the name, `s` the pinyin initials of the name.
struct TZStockInfoModel {
    Q_GADGET
    Q_PROPERTY(QString c MEMBER c)
    Q_PROPERTY(QString n MEMBER n)
    Q_PROPERTY(QString s MEMBER s)
public:
    QString c;
    QString n;
    QString s;
};
