#pragma once

#include "core/platform/Timer.h"
#include "core/shell/Router.h"
#include "core/shell/TZBaseTableViewController.h"
#include "core/util/Amount.h"
#include "core/util/RowListModel.h"
#include "home/api/TZLoanOverviewModel.h"
#include "home/api/TZUserIndexModel.h"
#include "home/screens/AmountsSwitch.h"
#include "home/screens/TZBoardcastCell.h"
#include "home/screens/TZHomeHeaderView.h"

#include <QVariantMap>

/// The first page. Signed out it tells how many trade with borrowed capital and shows loans going by; signed
/// in it is the user's asset summary. Which of the two is decided anew each time it appears.
class TZHomeViewController : public TZBaseTableViewController {
    Q_OBJECT
    Q_PROPERTY(Face face READ face NOTIFY faceChanged)
    /// The signed-out head line and the amount below it, in yuan.
    Q_PROPERTY(UnitText overviewTitle READ overviewTitle NOTIFY overviewChanged)
    Q_PROPERTY(QString overviewAmount READ overviewAmount NOTIFY overviewChanged)
    Q_PROPERTY(TZHomeHeaderView header READ header NOTIFY headerChanged)
    Q_PROPERTY(AmountsSwitch *amounts READ amounts CONSTANT)
    Q_PROPERTY(QString custodyText READ custodyText CONSTANT)
    /// Rows of TZBoardcastCell, and the one the ticker stands at, -1 before the first.
    Q_PROPERTY(GadgetListModel *boardcastArr READ boardcastArr CONSTANT)
    Q_PROPERTY(int selectedBoardcast READ selectedBoardcast NOTIFY selectedBoardcastChanged)
public:
    enum class Face { None, SignedOut, SignedIn };
    Q_ENUM(Face)

    explicit TZHomeViewController(Router &router);

    Face face() const { return shownFace; }
    UnitText overviewTitle() const;
    QString overviewAmount() const;
    TZHomeHeaderView header() const { return loginView; }
    AmountsSwitch *amounts() { return &amountsSwitch; }
    QString custodyText() const { return QStringLiteral("账户托管至新浪支付"); }
    RowListModel<TZBoardcastCell> *boardcastArr() { return &boardcasts; }
    int selectedBoardcast() const { return selected; }

    void viewDidLoad() override;
    void viewWillAppear() override;
    void viewWillDisappear() override;

    void refreshHomeData();
    void getHomeDataWithRequest();
    void getUnloginHomeDataWithRequest();
    void getMessageCountRequest();

    void leftItemClick() override;
    void rightItemClick() override;
    Q_INVOKABLE void capitalBtnDidClick();
    Q_INVOKABLE void transactionBtnClick();
    /// Opens what a badge with that title warns of.
    Q_INVOKABLE void seeDetailStatus(const QString &title);

Q_SIGNALS:
    void faceChanged();
    void overviewChanged();
    void headerChanged();
    void selectedBoardcastChanged();

protected:
    void refreshData() override;

private:
    void setFace(Face face);
    void showHome(const QVariantMap &answer);
    void showHeader();
    void showOverview(const QVariantMap &answer);
    void beginBroadcast();
    void stopBroadcast();
    void getRecentLoans();
    void showBoardcast();
    void showMessageButton(const QString &image);
    /// Does `action` now, or once the user has signed in.
    void whenSignedIn(std::function<void()> action);
    void toStockCapitalController();
    void toRealTradingController();
    void toMessageController();

    Router &router;
    TZUserIndexModel userIndexModel;
    TZUserIndexAssetModel userIndexAssetModel;
    TZLoanOverviewModel loanOverviewModel;
    TZHomeHeaderView loginView;
    AmountsSwitch amountsSwitch;
    RowListModel<TZBoardcastCell> boardcasts;
    Timer boardcastTimer;
    int boardcastNum = 0;
    int selected = -1;
    bool broadcastDue = true;
    bool appeared = false;
    bool overviewKnown = false;
    bool assetKnown = false;
    Face shownFace = Face::None;
};
