#pragma once

#include <QObject>
#include <QString>

/// One of today's entrusts. `iinitDate` is the service's own spelling.
struct TZEntrustsTodayModel {
    Q_GADGET
    Q_PROPERTY(QString id MEMBER id)
    Q_PROPERTY(QString userId MEMBER userId)
    Q_PROPERTY(QString stockCode MEMBER stockCode)
    Q_PROPERTY(QString stockName MEMBER stockName)
    Q_PROPERTY(QString entrustNo MEMBER entrustNo)
    Q_PROPERTY(QString entrustPrice MEMBER entrustPrice)
    Q_PROPERTY(QString frozenMoney MEMBER frozenMoney)
    Q_PROPERTY(QString withdrawEntrustNos MEMBER withdrawEntrustNos)
    Q_PROPERTY(QString entrustTime MEMBER entrustTime)
    Q_PROPERTY(QString businessPrice MEMBER businessPrice)
    Q_PROPERTY(QString type MEMBER type)
    Q_PROPERTY(QString status MEMBER status)
    Q_PROPERTY(QString businessShares MEMBER businessShares)
    Q_PROPERTY(QString entrustShares MEMBER entrustShares)
    Q_PROPERTY(QString exchangeType MEMBER exchangeType)
    Q_PROPERTY(QString kidEntrustNo MEMBER kidEntrustNo)
    Q_PROPERTY(QString rootEntrustNo MEMBER rootEntrustNo)
    Q_PROPERTY(QString iinitDate MEMBER iinitDate)
    Q_PROPERTY(QString errorCode MEMBER errorCode)
    Q_PROPERTY(QString errorMsg MEMBER errorMsg)
    Q_PROPERTY(QString isForced MEMBER isForced)
    Q_PROPERTY(QString isTempWithdrawed MEMBER isTempWithdrawed)
    Q_PROPERTY(QString createdAt MEMBER createdAt)
    Q_PROPERTY(QString updatedAt MEMBER updatedAt)
public:
    QString id;
    QString userId;
    QString stockCode;
    QString stockName;
    QString entrustNo;
    QString entrustPrice;
    QString frozenMoney;
    QString withdrawEntrustNos;
    QString entrustTime;
    QString businessPrice;
    QString type;
    QString status;
    QString businessShares;
    QString entrustShares;
    QString exchangeType;
    QString kidEntrustNo;
    QString rootEntrustNo;
    QString iinitDate;
    QString errorCode;
    QString errorMsg;
    QString isForced;
    QString isTempWithdrawed;
    QString createdAt;
    QString updatedAt;
};
