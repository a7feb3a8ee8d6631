#include "home/screens/TZMyAccountController.h"

#include "core/net/Callbacks.h"
#include "core/platform/NotificationCenter.h"
#include "core/platform/Platform.h"
#include "core/session/NotificationNames.h"
#include "core/session/TZUserModel.h"
#include "core/shell/KRNavigationController.h"
#include "core/shell/KRSideMenu.h"
#include "core/shell/KRWindow.h"
#include "core/shell/TZInfoAlertView.h"
#include "core/util/Text.h"
#include "home/api/TZHomeTool.h"
#include "home/screens/TZMoreViewController.h"

TZMyAccountController::TZMyAccountController(Router &appRouter) : router(appRouter) {}

QString TZMyAccountController::nick() const
{
    return TZUserModel::stored().nick;
}

QString TZMyAccountController::cell() const
{
    return TZUserModel::stored().cell;
}

void TZMyAccountController::viewDidLoad()
{
    TZBaseTableViewController::viewDidLoad();
    changeGrayBgColor();
    setTitle(QStringLiteral("我的账户"));
    createNavLeftItemWithTitle({}, QStringLiteral("home_left"), {}, QStringLiteral("icon_more"));
    setNoData(false);
    showAssets();
    connect(&amountsSwitch, &AmountsSwitch::changed, this, &TZMyAccountController::showAssets);
    NotificationCenter &notifications = Platform::current().notifications;
    notifications.observe(this, NotificationNames::refreshAccount,
                          [this](const QVariant &) { getHomeDataWithRequest(); });
    notifications.observe(this, NotificationNames::userChanged,
                          [this](const QVariant &) { Q_EMIT accountChanged(); });
}

void TZMyAccountController::viewWillAppear()
{
    TZBaseTableViewController::viewWillAppear();
    getHomeDataWithRequest();
}

void TZMyAccountController::getHomeDataWithRequest()
{
    refreshUntilAnswered(TZHomeTool::getHomeInfoWithParam(
        {},
        Success{this,
                [this](const Operation &, const QVariantMap &answer) {
                    assetModel = fromDictionary<TZUserIndexAssetModel>(
                        answer.value(QStringLiteral("data")).toMap().value(QStringLiteral("asset")));
                    showAssets();
                }},
        Failure{}));
}

void TZMyAccountController::leftItemClick()
{
    if (window() && window()->sideMenu())
        window()->sideMenu()->presentLeftMenu();
}

void TZMyAccountController::rightItemClick()
{
    navigationController()->push(std::make_unique<TZMoreViewController>(router));
}

void TZMyAccountController::rechargeBtnClick()
{
    router.openRechargeGate(*this);
}

void TZMyAccountController::withdrawalsBtnClick()
{
    router.openWithdraw(*this);
}

void TZMyAccountController::clickAvailableBtn()
{
    window()->show(std::make_unique<TZInfoAlertView>(
        TZInfoAlertViewModel{QStringLiteral("可用于购买股票的金额"),
                             QStringLiteral("您的充值金额、配资保证金及配资借款金额未使用的部分"),
                             {},
                             QStringLiteral("知道了")},
        OwnedAction(), OwnedAction()));
}

void TZMyAccountController::seePersonalInfo()
{
    router.openPersonal(*this);
}

void TZMyAccountController::seeFundRecords()
{
    router.openFundRecords(*this);
}

void TZMyAccountController::showAssets()
{
    const auto value = [this](const QString &amount) { return amountsSwitch.shown(amount); };
    rows.setRows({{QStringLiteral("可用余额"), value(assetModel.availableMoney), true},
                  {QStringLiteral("  冻结资金"), value(assetModel.frozenMoney), false},
                  {QStringLiteral(" 借款总额"), value(assetModel.borrowMoney), false},
                  {QStringLiteral("持仓市值"), value(assetModel.stockValue), false}});
}
