#pragma once

#include <QObject>
#include <QString>

/// The loan summary above the trading page; money in yuan. No screen uses it.
struct TZRealTradingHeadModel {
    Q_GADGET
    Q_PROPERTY(QString renewApplyAheadDays MEMBER renewApplyAheadDays)
    Q_PROPERTY(QString totalBorrowMoney MEMBER totalBorrowMoney)
    Q_PROPERTY(QString totalLoanCount MEMBER totalLoanCount)
    Q_PROPERTY(QString totalMargin MEMBER totalMargin)
    Q_PROPERTY(QString hasLoan MEMBER hasLoan)
public:
    QString renewApplyAheadDays;
    QString totalBorrowMoney;
    QString totalLoanCount;
    QString totalMargin;
    QString hasLoan;
};
