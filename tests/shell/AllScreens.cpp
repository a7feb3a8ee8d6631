#include "tests/shell/AllScreens.h"

#include "account/screens/TZCheckCellController.h"
#include "account/screens/TZEnsurePasswordController.h"
#include "account/screens/TZLoginController.h"
#include "account/screens/TZModifyNicknameController.h"
#include "account/screens/TZPersonalController.h"
#include "account/screens/TZRegisterController.h"
#include "account/screens/TZRegisterFinishController.h"
#include "account/screens/TZSetPasswordController.h"
#include "account/screens/TZVerifyIDController.h"
#include "account/screens/TZVerifyPhoneController.h"
#include "core/shell/TZPlainPageController.h"
#include "home/screens/TZHomeViewController.h"
#include "home/screens/TZMessageDetailController.h"
#include "home/screens/TZMoreViewController.h"
#include "home/screens/TZMyAccountController.h"
#include "trading/screens/TZBuyAndSellController.h"
#include "trading/screens/TZChooseSellStockController.h"
#include "trading/screens/TZDealAndEntrustController.h"
#include "trading/screens/TZDealDetailController.h"
#include "trading/screens/TZRealTradingController.h"
#include "trading/screens/TZSelectStockController.h"
#include "trading/screens/TZStockDetailController.h"
#include "trading/screens/TZWithdrawalsController.h"

const std::vector<AnyScreen> &allScreens()
{
    static const std::vector<AnyScreen> all{
        {"CheckCell", [](Router &router) { return std::make_unique<TZCheckCellController>(router); }},
        {"Login", [](Router &) { return std::make_unique<TZLoginController>(); }},
        {"Register", [](Router &router) { return std::make_unique<TZRegisterController>(router); }},
        {"RegisterFinish", [](Router &) { return std::make_unique<TZRegisterFinishController>(); }},
        {"Personal", [](Router &) { return std::make_unique<TZPersonalController>(); }},
        {"ModifyNickname", [](Router &) { return std::make_unique<TZModifyNicknameController>(); }},
        {"VerifyPhone", [](Router &) { return std::make_unique<TZVerifyPhoneController>(); }},
        {"VerifyID", [](Router &) { return std::make_unique<TZVerifyIDController>(); }},
        {"SetPassword", [](Router &) { return std::make_unique<TZSetPasswordController>(); }},
        {"EnsurePassword", [](Router &) { return std::make_unique<TZEnsurePasswordController>(); }},
        {"HomeView", [](Router &router) { return std::make_unique<TZHomeViewController>(router); }},
        {"MyAccount", [](Router &router) { return std::make_unique<TZMyAccountController>(router); }},
        {"MoreView", [](Router &router) { return std::make_unique<TZMoreViewController>(router); }},
        {"MessageDetail",
         [](Router &router) {
             return std::make_unique<TZMessageDetailController>(router, TZMessageModel{},
                                                                QStringLiteral("remote"));
         }},
        {"PlainPage",
         [](Router &) {
             return std::make_unique<TZPlainPageController>(QStringLiteral("充值"),
                                                            QStringLiteral("在这里为您的账户充值。"));
         }},
        {"RealTrading", [](Router &router) { return std::make_unique<TZRealTradingController>(router); }},
        {"Buy", [](Router &) { return std::make_unique<TZBuyAndSellController>(OrderSide::Buy); }},
        {"Sell", [](Router &) { return std::make_unique<TZBuyAndSellController>(OrderSide::Sell); }},
        {"ChooseSellStock", [](Router &) { return std::make_unique<TZChooseSellStockController>(); }},
        {"Withdrawals", [](Router &) { return std::make_unique<TZWithdrawalsController>(); }},
        {"DealAndEntrust", [](Router &) { return std::make_unique<TZDealAndEntrustController>(); }},
        {"DealDetail",
         [](Router &) {
             return std::make_unique<TZDealDetailController>(TZDealDetailController::dealTitle);
         }},
        {"EntrustDetail",
         [](Router &) {
             return std::make_unique<TZDealDetailController>(TZDealDetailController::entrustTitle);
         }},
        {"SelectStock", [](Router &) { return std::make_unique<TZSelectStockController>(nullptr, nullptr); }},
        {"StockDetail",
         [](Router &) {
             TZZorvanePageStocksModel stock;
             stock.stockName = QStringLiteral("海天精工");
             return std::make_unique<TZStockDetailController>(stock);
         }},
    };
    return all;
}
