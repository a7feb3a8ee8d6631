#include "home/screens/TZHomeViewController.h"

#include "core/net/Callbacks.h"
#include "core/platform/NotificationCenter.h"
#include "core/platform/Platform.h"
#include "core/session/NotificationNames.h"
#include "core/shell/KRSideMenu.h"
#include "core/shell/KRWindow.h"
#include "core/util/Service.h"
#include "core/util/Text.h"
#include "home/api/TZHomeTool.h"
#include "home/api/TZMessageTool.h"

using namespace std::chrono_literals;

namespace {
const QString dataKey = QStringLiteral("data");
const QString noMessage = QStringLiteral("no_message");
} // namespace

TZHomeViewController::TZHomeViewController(Router &appRouter) : router(appRouter) {}

UnitText TZHomeViewController::overviewTitle() const
{
    if (!overviewKnown)
        return {};
    return setAttributeWithText(
        QStringLiteral("%1位用户在操盘（元）").arg(integerValue(loanOverviewModel.loanUserAmount)));
}

QString TZHomeViewController::overviewAmount() const
{
    return labelAmount(loanOverviewModel.totalLoanMoney);
}

void TZHomeViewController::viewDidLoad()
{
    TZBaseTableViewController::viewDidLoad();
    setTitle(QStringLiteral("首页"));
    setTitleImage(QStringLiteral("home_nav"));
    showMessageButton(noMessage);
    setNoData(false);
    Platform::current().notifications.observe(this, NotificationNames::refreshHome,
                                              [this](const QVariant &) { refreshHomeData(); });
    connect(&amountsSwitch, &AmountsSwitch::changed, this, &TZHomeViewController::showHeader);
}

void TZHomeViewController::viewWillAppear()
{
    TZBaseTableViewController::viewWillAppear();
    appeared = true;
    // Before its own readings, which may have something to say.
    Service::hideAlertView();
    refreshHomeData();
    if (Service::isLogin())
        getMessageCountRequest();
}

void TZHomeViewController::viewWillDisappear()
{
    TZBaseTableViewController::viewWillDisappear();
    appeared = false;
    stopBroadcast();
}

void TZHomeViewController::refreshData()
{
    refreshHomeData();
    if (shownFace == Face::SignedOut)
        endRefreshing();
}

void TZHomeViewController::refreshHomeData()
{
    if (Service::isLogin()) {
        stopBroadcast();
        setFace(Face::SignedIn);
        getHomeDataWithRequest();
    } else {
        setFace(Face::SignedOut);
        getUnloginHomeDataWithRequest();
    }
}

void TZHomeViewController::getHomeDataWithRequest()
{
    refreshUntilAnswered(TZHomeTool::getHomeInfoWithParam(
        {}, Success{this, [this](const Operation &, const QVariantMap &answer) { showHome(answer); }},
        Failure{}));
}

void TZHomeViewController::getUnloginHomeDataWithRequest()
{
    TZHomeTool::getHomeLoanOverviewWithParam(
        {}, Success{this, [this](const Operation &, const QVariantMap &answer) { showOverview(answer); }},
        Failure{});
}

void TZHomeViewController::getMessageCountRequest()
{
    TZMessageTool::getUnReadMessagesSuccess(
        Success{this,
                [this](const Operation &, const QVariantMap &answer) {
                    showMessageButton(integerValue(answer.value(dataKey)) < 1 ? noMessage
                                                                              : QStringLiteral("message"));
                }},
        Failure{});
}

void TZHomeViewController::leftItemClick()
{
    if (window() && window()->sideMenu())
        window()->sideMenu()->presentLeftMenu();
}

void TZHomeViewController::rightItemClick()
{
    whenSignedIn([this] { toMessageController(); });
}

void TZHomeViewController::capitalBtnDidClick()
{
    whenSignedIn([this] { toStockCapitalController(); });
}

void TZHomeViewController::transactionBtnClick()
{
    whenSignedIn([this] { toRealTradingController(); });
}

void TZHomeViewController::seeDetailStatus(const QString &title)
{
    if (title.endsWith(u"预警"))
        router.openWarning(*this);
    else if (title.endsWith(u"风险"))
        router.openMarginTopUp(*this);
}

void TZHomeViewController::setFace(Face face)
{
    if (shownFace == face)
        return;
    shownFace = face;
    Q_EMIT faceChanged();
}

void TZHomeViewController::showHome(const QVariantMap &answer)
{
    const QVariantMap data = answer.value(dataKey).toMap();
    userIndexModel = fromDictionary<TZUserIndexModel>(data);
    userIndexAssetModel = fromDictionary<TZUserIndexAssetModel>(data.value(QStringLiteral("asset")));
    assetKnown = true;
    showHeader();
}

void TZHomeViewController::showHeader()
{
    if (!assetKnown)
        return;
    loginView.setModels(userIndexModel, userIndexAssetModel, amountsSwitch);
    Q_EMIT headerChanged();
}

void TZHomeViewController::showOverview(const QVariantMap &answer)
{
    loanOverviewModel = fromDictionary<TZLoanOverviewModel>(answer.value(dataKey));
    overviewKnown = true;
    Q_EMIT overviewChanged();
    beginBroadcast();
}

void TZHomeViewController::beginBroadcast()
{
    // The answer that starts the ticker may come when the page is covered, or after a sign-in.
    if (!broadcastDue || !appeared || shownFace != Face::SignedOut)
        return;
    broadcastDue = false;
    getRecentLoans();
    boardcastTimer.startRepeating(2s, [this] { showBoardcast(); });
}

void TZHomeViewController::stopBroadcast()
{
    boardcastTimer.stop();
    broadcastDue = true;
}

void TZHomeViewController::getRecentLoans()
{
    TZHomeTool::getHomeRecentLoansWithParam(
        {},
        Success{this,
                [this](const Operation &, const QVariantMap &answer) {
                    QList<TZBoardcastCell> rows;
                    for (const auto &loan : fromArray<TZRecentLoansModel>(answer.value(dataKey)))
                        rows.append(TZBoardcastCell::of(loan));
                    boardcasts.setRows(rows);
                }},
        Failure{});
}

void TZHomeViewController::showBoardcast()
{
    if (boardcastNum >= boardcasts.count()) {
        // Kept on purpose: the first three rows are shown once only, and this tick shows none.
        boardcastNum = 3;
        return;
    }
    selected = boardcastNum++;
    Q_EMIT selectedBoardcastChanged();
}

void TZHomeViewController::showMessageButton(const QString &image)
{
    createNavLeftItemWithTitle({}, QStringLiteral("home_left"), {}, image);
}

void TZHomeViewController::whenSignedIn(std::function<void()> action)
{
    if (Service::isLogin())
        action();
    else
        router.openSignIn(*this, {this, std::move(action)});
}

void TZHomeViewController::toStockCapitalController()
{
    router.openStockCapital(*this, userIndexModel);
}

void TZHomeViewController::toRealTradingController()
{
    router.openRealTrading(*this);
}

void TZHomeViewController::toMessageController()
{
    router.openMessages(*this);
}
