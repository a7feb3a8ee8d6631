#pragma once

#include "core/shell/Router.h"
#include "core/shell/TZBaseTableViewController.h"
#include "core/util/RowListModel.h"
#include "trading/api/TZWarnInfoModel.h"
#include "trading/api/TZZorvanePageModel.h"
#include "trading/api/TZZorvanePageStocksModel.h"
#include "trading/screens/HoldingRow.h"

/// One of the four buttons above the holdings.
struct TradingAction {
    Q_GADGET
    Q_PROPERTY(int tag MEMBER tag)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString image MEMBER image)
public:
    int tag = 0;
    QString title;
    QString image;
};

/// The trading page of the financed sub-account: its money, its holdings, and what can be done with them.
class TZRealTradingController : public TZBaseTableViewController {
    Q_OBJECT
    /// Amounts in yuan, dashes until they are known.
    Q_PROPERTY(QString stockValue READ stockValue NOTIFY pageChanged)
    Q_PROPERTY(QString availableMoney READ availableMoney NOTIFY pageChanged)
    Q_PROPERTY(QString frozenMoney READ frozenMoney NOTIFY pageChanged)
    /// With dashes for the number until it is known.
    Q_PROPERTY(QString holdingsTitle READ holdingsTitle NOTIFY pageChanged)
    /// "" while the profit is not known; `profitTrend` 1 gain, 0 neither, -1 loss.
    Q_PROPERTY(QString profitText READ profitText NOTIFY pageChanged)
    Q_PROPERTY(int profitTrend READ profitTrend NOTIFY pageChanged)
    Q_PROPERTY(GadgetListModel *actions READ actions CONSTANT)
    /// Rows of HoldingRow.
    Q_PROPERTY(GadgetListModel *holdings READ holdings CONSTANT)
public:
    enum ActionTag { BuyTag = 10000, SellTag, CancelTag, SeeTag };

    explicit TZRealTradingController(Router &appRouter);

    QString stockValue() const;
    QString availableMoney() const;
    QString frozenMoney() const;
    QString holdingsTitle() const;
    QString profitText() const;
    int profitTrend() const { return signOf(pageModel.profit); }
    GadgetListModel *actions() { return &actionRows; }
    RowListModel<HoldingRow> *holdings() { return &holdingRows; }

    const TZZorvanePageModel &zorvanePageModel() const { return pageModel; }
    const QList<TZZorvanePageStocksModel> &holdsArray() const { return holds; }
    const TZWarnInfoModel &warnInfoModel() const { return warnInfo; }

    Q_INVOKABLE void actionBarClick(int tag);
    Q_INVOKABLE void selectHolding(int row);
    void rightItemClick() override;

    void viewDidLoad() override;
    void viewWillAppear() override;
    void viewWillDisappear() override;

Q_SIGNALS:
    void pageChanged();

protected:
    void refreshData() override;

private:
    void getWarningInfoWithRequest();
    void showPage(const QVariantMap &data);
    void buy();
    void showNoMoney();
    void goToStockCapital();
    void showWarning();

    Router &router;
    TZZorvanePageModel pageModel;
    bool pageKnown = false;
    QList<TZZorvanePageStocksModel> holds;
    TZWarnInfoModel warnInfo;
    RowListModel<TradingAction> actionRows;
    RowListModel<HoldingRow> holdingRows;
    Timer timer;
};
