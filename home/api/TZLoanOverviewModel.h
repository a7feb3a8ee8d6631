#pragma once

#include <QObject>
#include <QString>

/// How many users trade on borrowed capital, and how much it is, in yuan.
struct TZLoanOverviewModel {
    Q_GADGET
    Q_PROPERTY(QString loanUserAmount MEMBER loanUserAmount)
    Q_PROPERTY(QString totalLoanMoney MEMBER totalLoanMoney)
public:
    QString loanUserAmount;
    QString totalLoanMoney;
};

/// A loan taken lately by some user; the amount in yuan.
struct TZRecentLoansModel {
    Q_GADGET
    Q_PROPERTY(QString nick MEMBER nick)
    Q_PROPERTY(QString borrowMoney MEMBER borrowMoney)
    Q_PROPERTY(QString image_id MEMBER image_id)
public:
    QString nick;
    QString borrowMoney;
    QString image_id;
};
