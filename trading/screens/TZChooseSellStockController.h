#pragma once

#include "core/shell/TZBaseTableViewController.h"
#include "core/util/RowListModel.h"
#include "trading/api/TZZorvanePageStocksModel.h"
#include "trading/screens/HoldingRow.h"
#include "trading/screens/HoldingsDelegate.h"

/// The holdings, to pick the one to sell.
class TZChooseSellStockController : public TZBaseTableViewController, public HoldingsDelegate {
    Q_OBJECT
    /// Rows of HoldingRow.
    Q_PROPERTY(GadgetListModel *holdings READ holdings CONSTANT)
public:
    RowListModel<HoldingRow> *holdings() { return &holdingRows; }
    const QList<TZZorvanePageStocksModel> &holdingMArray() const { return stocks; }

    Q_INVOKABLE void selectHolding(int row);
    void getHoldingWithRequest();
    void reloadHoldingData() override { getHoldingWithRequest(); }

    void viewDidLoad() override;
    void viewWillAppear() override;

protected:
    void refreshData() override { getHoldingWithRequest(); }

private:
    void showHoldings(const QVariant &data);

    QList<TZZorvanePageStocksModel> stocks;
    RowListModel<HoldingRow> holdingRows;
};
