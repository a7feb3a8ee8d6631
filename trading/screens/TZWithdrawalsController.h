#pragma once

#include "core/shell/TZBaseTableViewController.h"
#include "core/util/RowListModel.h"
#include "trading/api/TZCallBackPageModel.h"
#include "trading/screens/RepeatedRequest.h"

/// An entrust that can still be cancelled, as the list shows it.
struct WithdrawalRow {
    Q_GADGET
    Q_PROPERTY(QString stock MEMBER stock)
    Q_PROPERTY(QString side MEMBER side)
    Q_PROPERTY(bool isSell MEMBER isSell)
    Q_PROPERTY(QString price MEMBER price)
    Q_PROPERTY(QString shares MEMBER shares)
    Q_PROPERTY(QString dealt MEMBER dealt)
    Q_PROPERTY(QString status MEMBER status)
    /// False without the number by which it is cancelled.
    Q_PROPERTY(bool cancellable MEMBER cancellable)
    /// The row as one sentence.
    Q_PROPERTY(QString sentence READ sentence)
public:
    QString stock;
    QString side;
    bool isSell = false;
    QString price;
    QString shares;
    QString dealt;
    QString status;
    bool cancellable = false;
    /// Of the entrust; with nothing to cancel it by, what else the service calls it.
    QString number;

    static WithdrawalRow of(const TZCallBackPageModel &entrust);
    QString sentence() const;
    QString identity() const { return number; }
};

/// Cancels orders. After a cancellation was accepted it is asked every three seconds, without limit, whether
/// it is through; the waiting indicator stays until then.
class TZWithdrawalsController : public TZBaseTableViewController {
    Q_OBJECT
    /// Rows of WithdrawalRow.
    Q_PROPERTY(GadgetListModel *rows READ rows CONSTANT)
    /// What came of the latest cancellation, for those who do not see that its row is gone; "" for nothing
    /// yet.
    Q_PROPERTY(QString outcome READ outcome NOTIFY outcomeChanged)
public:
    RowListModel<WithdrawalRow> *rows() { return &shownRows; }
    const QList<TZCallBackPageModel> &withdrawalsArray() const { return entrusts; }
    QString outcome() const { return spokenOutcome; }
    QString orderId() const { return watchedOrder; }

    /// Half a second after the last tap one request is sent; at once when the screen is left before.
    Q_INVOKABLE void withdrawalsBtnDidClick(int row);

    void viewDidLoad() override;
    void viewWillAppear() override;
    void viewWillDisappear() override;
    void viewDidDisappear() override;

Q_SIGNALS:
    void outcomeChanged();

protected:
    void refreshData() override;

private:
    void showEntrusts(const QVariant &data);
    void withdrawals();
    void watchCancellation();
    void queryWithDrawStatus();
    void cancellationEnded();
    void readAgain();
    void sayOutcome(const QString &text);

    QList<TZCallBackPageModel> entrusts;
    TZCallBackPageModel callBackPageModel;
    QString watchedOrder;
    RowListModel<WithdrawalRow> shownRows;
    Timer pending;
    Timer timer;
    RepeatedRequest statusQuery;
    QString spokenOutcome;
    bool cancelled = false;
    bool shown = false;
    /// Something may have happened to the entrusts while the screen was covered.
    bool outdated = false;
};
