#pragma once

#include <QObject>
#include <QString>

/// One of today's deals. The service sends both `entrutsId`, so spelled, and `entrustId`.
struct TZDetailsTodayModel {
    Q_GADGET
    Q_PROPERTY(QString id MEMBER id)
    Q_PROPERTY(QString userId MEMBER userId)
    Q_PROPERTY(QString entrutsId MEMBER entrutsId)
    Q_PROPERTY(QString entrustId MEMBER entrustId)
    Q_PROPERTY(QString stockCode MEMBER stockCode)
    Q_PROPERTY(QString stockName MEMBER stockName)
    Q_PROPERTY(QString entrustNo MEMBER entrustNo)
    Q_PROPERTY(QString entrustAmount MEMBER entrustAmount)
    Q_PROPERTY(QString entrustPrice MEMBER entrustPrice)
    Q_PROPERTY(QString type MEMBER type)
    Q_PROPERTY(QString entrustStatus MEMBER entrustStatus)
    Q_PROPERTY(QString entrustDate MEMBER entrustDate)
    Q_PROPERTY(QString businessShares MEMBER businessShares)
    Q_PROPERTY(QString businessPrice MEMBER businessPrice)
    Q_PROPERTY(QString businessMoney MEMBER businessMoney)
    Q_PROPERTY(QString businessNo MEMBER businessNo)
    Q_PROPERTY(QString dealDate MEMBER dealDate)
    Q_PROPERTY(QString dealTime MEMBER dealTime)
    Q_PROPERTY(QString stampTax MEMBER stampTax)
    Q_PROPERTY(QString commission MEMBER commission)
    Q_PROPERTY(QString transferFee MEMBER transferFee)
    Q_PROPERTY(QString errorPathinfo MEMBER errorPathinfo)
    Q_PROPERTY(QString exchangeType MEMBER exchangeType)
    Q_PROPERTY(QString createdAt MEMBER createdAt)
    Q_PROPERTY(QString updatedAt MEMBER updatedAt)
public:
    QString id;
    QString userId;
    QString entrutsId;
    QString entrustId;
    QString stockCode;
    QString stockName;
    QString entrustNo;
    QString entrustAmount;
    QString entrustPrice;
    QString type;
    QString entrustStatus;
    QString entrustDate;
    QString businessShares;
    QString businessPrice;
    QString businessMoney;
    QString businessNo;
    QString dealDate;
    QString dealTime;
    QString stampTax;
    QString commission;
    QString transferFee;
    QString errorPathinfo;
    QString exchangeType;
    QString createdAt;
    QString updatedAt;
};
