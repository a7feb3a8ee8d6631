#pragma once

#include "core/shell/Router.h"
#include "core/shell/TZWebModel.h"
#include "core/util/Service.h"
#include "home/api/TZUserIndexModel.h"

#include <QStringList>

/// Writes down each door that was asked for as one line, the function's name; a web page with its URL:
/// "openWeb https://…".
class RecordingRouter : public Router {
public:
    void openSignIn(KRBaseController &, ToSomeController action) override
    {
        toSomeController = std::move(action);
        calls.append(QStringLiteral("openSignIn"));
    }
    void showHome(KRBaseController &) override { calls.append(QStringLiteral("showHome")); }
    void showMyAccount(KRBaseController &) override { calls.append(QStringLiteral("showMyAccount")); }
    void showCommissions(KRBaseController &) override { calls.append(QStringLiteral("showCommissions")); }
    void setupSideMenuController() override
    {
        rebuiltSignedIn = Service::isLogin();
        calls.append(QStringLiteral("setupSideMenuController"));
    }
    void openRealTrading(KRBaseController &) override { calls.append(QStringLiteral("openRealTrading")); }
    void openStockCapital(KRBaseController &, const TZUserIndexModel &userIndexModel) override
    {
        accountStatus = userIndexModel.userAccountStatus;
        calls.append(QStringLiteral("openStockCapital"));
    }
    void openMessages(KRBaseController &) override { calls.append(QStringLiteral("openMessages")); }
    void openWeb(KRBaseController &, const TZWebModel &model) override
    {
        calls.append(QStringLiteral("openWeb ") + model.url);
    }
    void openRechargeGate(KRBaseController &) override { calls.append(QStringLiteral("openRechargeGate")); }
    void openWithdraw(KRBaseController &) override { calls.append(QStringLiteral("openWithdraw")); }
    void openFundRecords(KRBaseController &) override { calls.append(QStringLiteral("openFundRecords")); }
    void openPersonal(KRBaseController &) override { calls.append(QStringLiteral("openPersonal")); }
    void openWarning(KRBaseController &) override { calls.append(QStringLiteral("openWarning")); }
    void openMarginTopUp(KRBaseController &) override { calls.append(QStringLiteral("openMarginTopUp")); }
    void presentMessageDetail(const QVariantMap &information) override
    {
        pushed = information;
        calls.append(QStringLiteral("presentMessageDetail"));
    }
    void presentOrderDetail(const QVariantMap &information) override
    {
        pushed = information;
        calls.append(QStringLiteral("presentOrderDetail"));
    }

    QStringList calls;
    ToSomeController toSomeController;
    QVariantMap pushed;
    QString accountStatus;
    /// Whether somebody was still signed in when the frame was built anew.
    bool rebuiltSignedIn = false;
};
