#pragma once

#include "core/shell/Router.h"
#include "core/shell/TZBaseTableViewController.h"
#include "core/util/RowListModel.h"
#include "home/api/TZUserIndexModel.h"
#include "home/screens/AmountsSwitch.h"

#include <QVariantMap>

/// A row of my account: what it is, and the figure as the service sends it unless amounts are hidden.
struct AccountRow {
    Q_GADGET
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString value MEMBER value)
    Q_PROPERTY(bool hasInfo MEMBER hasInfo)
public:
    QString title;
    QString value;
    bool hasInfo = false;
};

/// The user's balance sheet, with the ways to put money in and take it out.
class TZMyAccountController : public TZBaseTableViewController {
    Q_OBJECT
    Q_PROPERTY(QString nick READ nick NOTIFY accountChanged)
    Q_PROPERTY(QString cell READ cell NOTIFY accountChanged)
    /// Rows of AccountRow.
    Q_PROPERTY(GadgetListModel *assetRows READ assetRows CONSTANT)
    Q_PROPERTY(QString assetsTitle READ assetsTitle CONSTANT)
    Q_PROPERTY(AmountsSwitch *amounts READ amounts CONSTANT)
    Q_PROPERTY(QString recordsTitle READ recordsTitle CONSTANT)
    Q_PROPERTY(QString withdrawalsTitle READ withdrawalsTitle CONSTANT)
    Q_PROPERTY(QString rechargeTitle READ rechargeTitle CONSTANT)
public:
    explicit TZMyAccountController(Router &router);

    QString nick() const;
    QString cell() const;
    RowListModel<AccountRow> *assetRows() { return &rows; }
    QString assetsTitle() const { return QStringLiteral("账户资产"); }
    AmountsSwitch *amounts() { return &amountsSwitch; }
    QString recordsTitle() const { return QStringLiteral("充值提现记录"); }
    QString withdrawalsTitle() const { return QStringLiteral(" 提现"); }
    QString rechargeTitle() const { return QStringLiteral(" 充值"); }

    void viewDidLoad() override;
    void viewWillAppear() override;

    void getHomeDataWithRequest();
    void leftItemClick() override;
    void rightItemClick() override;
    Q_INVOKABLE void rechargeBtnClick();
    Q_INVOKABLE void withdrawalsBtnClick();
    Q_INVOKABLE void clickAvailableBtn();
    Q_INVOKABLE void seePersonalInfo();
    Q_INVOKABLE void seeFundRecords();

Q_SIGNALS:
    void accountChanged();

protected:
    void refreshData() override { getHomeDataWithRequest(); }

private:
    void showAssets();

    Router &router;
    TZUserIndexAssetModel assetModel;
    AmountsSwitch amountsSwitch;
    RowListModel<AccountRow> rows;
};
