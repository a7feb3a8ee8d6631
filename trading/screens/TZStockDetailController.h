#pragma once

#include "core/shell/KRBaseController.h"
#include "core/util/RowListModel.h"
#include "trading/api/TZZorvanePageStocksModel.h"
#include "trading/screens/TZDealDetailController.h"

/// A stock that the user holds: its price, the figures of the holding, and both sides of order entry.
class TZStockDetailController : public KRBaseController {
    Q_OBJECT
    Q_PROPERTY(QString stockText READ stockText CONSTANT)
    Q_PROPERTY(QString price READ price NOTIFY detailChanged)
    /// The change since yesterday's close, "" when unknown; `trend` is its sign.
    Q_PROPERTY(QString change READ change NOTIFY detailChanged)
    Q_PROPERTY(int trend READ trend NOTIFY detailChanged)
    /// Rows of DetailRow.
    Q_PROPERTY(GadgetListModel *rows READ rows CONSTANT)
public:
    explicit TZStockDetailController(TZZorvanePageStocksModel holding);

    QString stockText() const;
    QString price() const { return currentPrice; }
    QString change() const { return changeText; }
    int trend() const { return changeSign; }
    RowListModel<DetailRow> *rows() { return &holdingRows; }

    Q_INVOKABLE void buy();
    Q_INVOKABLE void sell();

    void viewDidLoad() override;

Q_SIGNALS:
    void detailChanged();

private:
    void showDetail(const QVariantMap &data);

    const TZZorvanePageStocksModel holding;
    QString currentPrice;
    QString changeText;
    int changeSign = 0;
    RowListModel<DetailRow> holdingRows;
};
