#pragma once

#include <QObject>
#include <QString>

/// The margin that has to be put up, in yuan.
struct TZSafeMoneySupplementModel {
    Q_GADGET
    Q_PROPERTY(QString totalSafeMoney MEMBER totalSafeMoney)
    Q_PROPERTY(QString warnLine MEMBER warnLine)
    Q_PROPERTY(QString debtMoney MEMBER debtMoney)
    Q_PROPERTY(QString closeSafeMoney MEMBER closeSafeMoney)
    Q_PROPERTY(QString asset MEMBER asset)
    Q_PROPERTY(QString planCashDeposit MEMBER planCashDeposit)
public:
    QString totalSafeMoney;
    QString warnLine;
    QString debtMoney;
    QString closeSafeMoney;
    QString asset;
    QString planCashDeposit;
};

/// A suspended stock that margin has to be put up for.
struct TZSafeMoneySupplementAssetModel {
    Q_GADGET
    Q_PROPERTY(QString stockCode MEMBER stockCode)
    Q_PROPERTY(QString planCashDeposit MEMBER planCashDeposit)
    Q_PROPERTY(QString frozenCashDeposit MEMBER frozenCashDeposit)
    Q_PROPERTY(QString completed MEMBER completed)
    Q_PROPERTY(QString price MEMBER price)
    Q_PROPERTY(QString shares MEMBER shares)
    Q_PROPERTY(QString stockName MEMBER stockName)
public:
    QString stockCode;
    QString planCashDeposit;
    QString frozenCashDeposit;
    QString completed;
    QString price;
    QString shares;
    QString stockName;
};
