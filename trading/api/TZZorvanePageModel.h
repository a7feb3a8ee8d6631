#pragma once

#include <QObject>
#include <QString>

/// The sub-account's summary on the trading page, in yuan.
struct TZZorvanePageModel {
    Q_GADGET
    Q_PROPERTY(QString profit MEMBER profit)
    Q_PROPERTY(QString availableMoney MEMBER availableMoney)
    Q_PROPERTY(QString stockValue MEMBER stockValue)
    Q_PROPERTY(QString frozenMoney MEMBER frozenMoney)
public:
    QString profit;
    QString availableMoney;
    QString stockValue;
    QString frozenMoney;
};
