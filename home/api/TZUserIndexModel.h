#pragma once

#include <QObject>
#include <QString>

/// The state of the user's account as a whole: "0" normal, "1" warning, "2" risk.
struct TZUserIndexModel {
    Q_GADGET
    Q_PROPERTY(QString userAccountStatus MEMBER userAccountStatus)
public:
    QString userAccountStatus;
};

/// The user's assets, amounts in yuan and the rate in per cent, as the service sends them.
struct TZUserIndexAssetModel {
    Q_GADGET
    Q_PROPERTY(QString availableMoney MEMBER availableMoney)
    Q_PROPERTY(QString stockValue MEMBER stockValue)
    Q_PROPERTY(QString totalAsset MEMBER totalAsset)
    Q_PROPERTY(QString profitMoney MEMBER profitMoney)
    Q_PROPERTY(QString profitRate MEMBER profitRate)
    Q_PROPERTY(QString accountStatus MEMBER accountStatus)
    Q_PROPERTY(QString borrowMoney MEMBER borrowMoney)
    Q_PROPERTY(QString frozenMoney MEMBER frozenMoney)
    Q_PROPERTY(QString id MEMBER id)
    Q_PROPERTY(QString nick MEMBER nick)
    Q_PROPERTY(QString totalMoney MEMBER totalMoney)
public:
    QString availableMoney;
    QString stockValue;
    QString totalAsset;
    QString profitMoney;
    QString profitRate;
    QString accountStatus;
    QString borrowMoney;
    QString frozenMoney;
    QString id;
    QString nick;
    QString totalMoney;
};
