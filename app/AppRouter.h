#pragma once

#include "core/shell/Router.h"

#include <memory>

class KRWindow;

/// The one place that knows the screens of every area.
class AppRouter : public Router {
public:
    explicit AppRouter(KRWindow &mainWindow) : window(mainWindow) {}

    void openSignIn(KRBaseController &from, ToSomeController toSomeController) override;
    void showHome(KRBaseController &from) override;
    void showMyAccount(KRBaseController &from) override;
    void showCommissions(KRBaseController &from) override;
    void setupSideMenuController() override;

    void openRealTrading(KRBaseController &from) override;
    void openStockCapital(KRBaseController &from, const TZUserIndexModel &userIndexModel) override;
    void openMessages(KRBaseController &from) override;
    void openWeb(KRBaseController &from, const TZWebModel &model) override;
    void openRechargeGate(KRBaseController &from) override;
    void openWithdraw(KRBaseController &from) override;
    void openFundRecords(KRBaseController &from) override;
    void openPersonal(KRBaseController &from) override;
    void openWarning(KRBaseController &from) override;
    void openMarginTopUp(KRBaseController &from) override;

    void presentMessageDetail(const QVariantMap &information) override;
    void presentOrderDetail(const QVariantMap &information) override;

private:
    /// Nothing once `from` is no longer on top of its stack. It may be covered by the sign-in that was asked
    /// for on the way.
    static void push(const KRBaseController &from, std::unique_ptr<KRBaseController> screen);
    void showContent(std::unique_ptr<KRBaseController> root);

    KRWindow &window;
};
