#include "trading/screens/TZDealAndEntrustController.h"

#include "core/shell/KRNavigationController.h"
#include "core/shell/KRWindow.h"
#include "trading/api/EntrustStatus.h"
#include "trading/api/TZTradeTool.h"
#include "trading/screens/TZDealDetailController.h"
#include "trading/screens/TradeTexts.h"

TodayRow TodayRow::of(const TZEntrustsTodayModel &entrust)
{
    const EntrustStatus status = EntrustStatus::of(entrust.status);
    return {TradeTexts::stock(entrust.stockName, entrust.stockCode),
            TradeTexts::side(entrust.type),
            TradeTexts::isSell(entrust.type),
            TradeTexts::time(entrust.createdAt),
            entrust.entrustPrice,
            entrust.entrustShares,
            status.text,
            QStringLiteral("委托"),
            status.tone == EntrustStatus::Dealt,
            status.tone == EntrustStatus::Waiting,
            entrust.id};
}

TodayRow TodayRow::of(const TZDetailsTodayModel &deal)
{
    return {TradeTexts::stock(deal.stockName, deal.stockCode),
            TradeTexts::side(deal.type),
            TradeTexts::isSell(deal.type),
            TradeTexts::time(deal.updatedAt),
            deal.businessPrice,
            deal.businessShares,
            deal.businessMoney,
            QStringLiteral("成交"),
            false,
            false,
            deal.id};
}

QString TodayRow::sentence() const
{
    return TradeTexts::sentence(
        stock + u' ' + side,
        {{QString(), time}, {QStringLiteral("价格"), price}, {sharesLabel, shares}, {QString(), result}});
}

// Kept on purpose: the first page of the entrusts, unlike that of the deals, is asked for without its number.
TZDealAndEntrustController::TZDealAndEntrustController()
    : entrusts(TZTradeTool::getEntrustsTodayWithParam, TodayList::FirstPage::Unnumbered),
      deals(TZTradeTool::getDetailsTodayWithParam, TodayList::FirstPage::Numbered)
{
}

void TZDealAndEntrustController::viewDidLoad()
{
    KRBaseController::viewDidLoad();
    setTitle(pageTitles().first());
    setShowBackButton(true);
    entrusts.attach(window());
    deals.attach(window());
    entrusts.beginRefreshing();
}

void TZDealAndEntrustController::viewDidDisappear()
{
    KRBaseController::viewDidDisappear();
    entrusts.endRefreshing();
    deals.endRefreshing();
}

void TZDealAndEntrustController::titleBtnClick(int tag)
{
    showPage(tag - EntrustTag);
}

void TZDealAndEntrustController::showPage(int index)
{
    if (index == pageIndex || index < 0 || index >= pageTitles().size())
        return;
    pageIndex = index;
    setTitle(pageTitles().at(index));
    Q_EMIT currentPageChanged();
    if (index == 0 || shouldReloadDealData)
        return;
    shouldReloadDealData = true;
    deals.beginRefreshing();
}

void TZDealAndEntrustController::selectEntrust(int row)
{
    if (row < 0 || row >= entrustArr().size() || !isInFront())
        return;
    auto detail = std::make_unique<TZDealDetailController>(TZDealDetailController::entrustTitle);
    detail->setEntrustsTodayModel(entrustArr().at(row));
    window()->present(std::move(detail));
}

void TZDealAndEntrustController::selectDeal(int row)
{
    if (row < 0 || row >= dealsArr().size() || !isInFront())
        return;
    auto detail = std::make_unique<TZDealDetailController>(TZDealDetailController::dealTitle);
    detail->setDetailsTodayModel(dealsArr().at(row));
    window()->present(std::move(detail));
}
