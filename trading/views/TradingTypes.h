#pragma once

#include "trading/charts/CandleChart.h"
#include "trading/charts/IntradayChart.h"
#include "trading/screens/QuoteAge.h"
#include "trading/screens/TZBuyAndSellController.h"
#include "trading/screens/TZChooseSellStockController.h"
#include "trading/screens/TZDealAndEntrustController.h"
#include "trading/screens/TZDealDetailController.h"
#include "trading/screens/TZHandicapView.h"
#include "trading/screens/TZRealTradingController.h"
#include "trading/screens/TZSelectStockController.h"
#include "trading/screens/TZStockDetailController.h"
#include "trading/screens/TZWithdrawalsController.h"
#include "trading/screens/TodayList.h"
#include "ui/ViewType.h"

// The classes that this area's views know.
struct QuoteAgeForViews {
    Q_GADGET
    ZV_VIEW_TYPE(QuoteAge)
};
struct StockChartForViews {
    Q_GADGET
    ZV_VIEW_TYPE(StockChart)
};
struct TZBuyAndSellControllerForViews {
    Q_GADGET
    ZV_VIEW_TYPE(TZBuyAndSellController)
};
struct TZChooseSellStockControllerForViews {
    Q_GADGET
    ZV_VIEW_TYPE(TZChooseSellStockController)
};
struct TZDealAndEntrustControllerForViews {
    Q_GADGET
    ZV_VIEW_TYPE(TZDealAndEntrustController)
};
struct TZDealDetailControllerForViews {
    Q_GADGET
    ZV_VIEW_TYPE(TZDealDetailController)
};
struct TZHandicapViewForViews {
    Q_GADGET
    ZV_VIEW_TYPE(TZHandicapView)
};
struct TZRealTradingControllerForViews {
    Q_GADGET
    ZV_VIEW_TYPE(TZRealTradingController)
};
struct TZSelectStockControllerForViews {
    Q_GADGET
    ZV_VIEW_TYPE(TZSelectStockController)
};
struct TZStockDetailControllerForViews {
    Q_GADGET
    ZV_VIEW_TYPE(TZStockDetailController)
};
struct TZWithdrawalsControllerForViews {
    Q_GADGET
    ZV_VIEW_TYPE(TZWithdrawalsController)
};
struct TodayListForViews {
    Q_GADGET
    ZV_VIEW_TYPE(TodayList)
};
