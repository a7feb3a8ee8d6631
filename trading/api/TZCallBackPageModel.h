#pragma once

#include <QObject>
#include <QString>

/// One entrust that can still be cancelled.
struct TZCallBackPageModel {
    Q_GADGET
    Q_PROPERTY(QString id MEMBER id)
    Q_PROPERTY(QString stockCode MEMBER stockCode)
    Q_PROPERTY(QString stockName MEMBER stockName)
    Q_PROPERTY(QString entrustNo MEMBER entrustNo)
    Q_PROPERTY(QString entrustPrice MEMBER entrustPrice)
    Q_PROPERTY(QString type MEMBER type)
    Q_PROPERTY(QString status MEMBER status)
    Q_PROPERTY(QString businessShares MEMBER businessShares)
    Q_PROPERTY(QString entrustShares MEMBER entrustShares)
    Q_PROPERTY(QString isForced MEMBER isForced)
public:
    QString id;
    QString stockCode;
    QString stockName;
    QString entrustNo;
    QString entrustPrice;
    QString type;
    QString status;
    QString businessShares;
    QString entrustShares;
    QString isForced;
};
