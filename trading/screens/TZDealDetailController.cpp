#include "trading/screens/TZDealDetailController.h"

#include "core/shell/KRNavigationController.h"
#include "core/util/Service.h"
#include "trading/api/EntrustStatus.h"
#include "trading/screens/TradeTexts.h"

namespace {
DetailRow sideRow(const QString &type)
{
    return {QStringLiteral("委托类型"), TradeTexts::side(type), TradeTexts::isSell(type)};
}

QList<DetailRow> dealRows(const TZDetailsTodayModel &deal)
{
    return {
        {QStringLiteral("证券名称"), deal.stockName},
        {QStringLiteral("证券代码"), deal.stockCode},
        sideRow(deal.type),
        {QStringLiteral("委托价格"), deal.entrustPrice},
        {QStringLiteral("成交价格"), deal.businessPrice},
        {QStringLiteral("成交数量"), deal.businessShares},
        {QStringLiteral("成交总额"), deal.businessMoney},
        {QStringLiteral("成交时间"), TradeTexts::time(deal.updatedAt)},
        {QStringLiteral("市场类别"), deal.exchangeType},
    };
}

QList<DetailRow> entrustRows(const TZEntrustsTodayModel &entrust)
{
    return {
        {QStringLiteral("证券名称"), entrust.stockName},
        {QStringLiteral("证券代码"), entrust.stockCode},
        sideRow(entrust.type),
        {QStringLiteral("委托价格"), entrust.entrustPrice},
        {QStringLiteral("委托数量"), entrust.entrustShares},
        {QStringLiteral("委托时间"), TradeTexts::time(entrust.createdAt)},
        {QStringLiteral("当前状态"), EntrustStatus::of(entrust.status).text},
    };
}
} // namespace

TZDealDetailController::TZDealDetailController(const QString &title)
{
    setTitle(title);
    showRows();
    connect(this, &KRBaseController::titleChanged, this, &TZDealDetailController::showRows);
}

void TZDealDetailController::setEntrustsTodayModel(const TZEntrustsTodayModel &entrust)
{
    entrustsTodayModel = entrust;
    showRows();
}

void TZDealDetailController::setDetailsTodayModel(const TZDetailsTodayModel &deal)
{
    detailsTodayModel = deal;
    showRows();
}

void TZDealDetailController::viewDidLoad()
{
    TZBaseTableViewController::viewDidLoad();
    createNavLeftItemWithTitle({}, QStringLiteral("common_close_gray"), {}, {});
}

void TZDealDetailController::leftItemClick()
{
    navigationController()->dismiss();
}

void TZDealDetailController::showRows()
{
    shownRows.setRows(title() == dealTitle ? dealRows(detailsTodayModel) : entrustRows(entrustsTodayModel));
    Q_EMIT reasonChanged();
}

QString TZDealDetailController::reason() const
{
    const QString &told = entrustsTodayModel.errorMsg;
    return title() == dealTitle || Service::whetherAnEmptyString(told) ? QString() : told;
}
