#pragma once

#include "core/shell/TZBaseTableViewController.h"
#include "core/util/RowListModel.h"
#include "trading/api/TZDetailsTodayModel.h"
#include "trading/api/TZEntrustsTodayModel.h"

/// A line of a detail: its name, its value, and whether that says "卖出".
struct DetailRow {
    Q_GADGET
    Q_PROPERTY(QString label MEMBER label)
    Q_PROPERTY(QString value MEMBER value)
    Q_PROPERTY(bool isSell MEMBER isSell)
public:
    QString label;
    QString value;
    bool isSell = false;
};

/// The detail of a deal or of an entrust, the root of a presented stack. The title decides which of the two
/// is shown: `dealTitle` the deal, any other the entrust.
class TZDealDetailController : public TZBaseTableViewController {
    Q_OBJECT
    /// Rows of DetailRow.
    Q_PROPERTY(GadgetListModel *rows READ rows CONSTANT)
    /// Why an entrust was refused, in the service's words; "" when it says nothing.
    Q_PROPERTY(QString reason READ reason NOTIFY reasonChanged)
public:
    static inline const QString dealTitle = QStringLiteral("成交详情");
    static inline const QString entrustTitle = QStringLiteral("委托详情");

    explicit TZDealDetailController(const QString &title);

    void setEntrustsTodayModel(const TZEntrustsTodayModel &entrust);
    void setDetailsTodayModel(const TZDetailsTodayModel &deal);

    RowListModel<DetailRow> *rows() { return &shownRows; }
    QString reason() const;

    void viewDidLoad() override;
    void leftItemClick() override;

Q_SIGNALS:
    void reasonChanged();

private:
    void showRows();

    TZEntrustsTodayModel entrustsTodayModel;
    TZDetailsTodayModel detailsTodayModel;
    RowListModel<DetailRow> shownRows;
};
