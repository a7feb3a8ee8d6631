#include "app/AppRouter.h"

#include "account/screens/TZCheckCellController.h"
#include "account/screens/TZModifyNicknameController.h"
#include "account/screens/TZPersonalController.h"
#include "account/screens/TZSetPasswordController.h"
#include "core/shell/KRNavigationController.h"
#include "core/shell/KRSideMenu.h"
#include "core/shell/KRWindow.h"
#include "core/shell/TZLeftMenuController.h"
#include "core/shell/TZPlainPageController.h"
#include "core/shell/TZWebModel.h"
#include "core/util/Text.h"
#include "home/screens/TZHomeViewController.h"
#include "home/screens/TZMessageDetailController.h"
#include "home/screens/TZMyAccountController.h"
#include "trading/api/TZTradeTool.h"
#include "trading/screens/TZDealDetailController.h"
#include "trading/screens/TZRealTradingController.h"

namespace {
std::unique_ptr<TZPlainPageController> plainPage(const QString &title, const QString &text)
{
    return std::make_unique<TZPlainPageController>(title, text);
}

std::unique_ptr<KRBaseController> nicknameStep()
{
    auto nickname = std::make_unique<TZModifyNicknameController>();
    nickname->isSetNickname = true;
    nickname->isFirstShow = true;
    return nickname;
}

std::unique_ptr<KRBaseController> passwordStep()
{
    auto password = std::make_unique<TZSetPasswordController>();
    password->isFirstShow = true;
    return password;
}

/// The first step that the account still lacks, by the "next_step" of the recharge information; with none
/// lacking, the recharge itself.
std::unique_ptr<KRBaseController> rechargeStep(qint64 nextStep)
{
    switch (nextStep) {
    case 1:
        return plainPage(QStringLiteral("手机验证"), QStringLiteral("在这里验证您的手机号码。"));
    case 2:
        return nicknameStep();
    case 3:
        return passwordStep();
    case 4:
        return plainPage(QStringLiteral("开通资金托管账户"), QStringLiteral("在这里开通您的资金托管账户。"));
    case 5:
        return plainPage(QStringLiteral("绑定银行卡"), QStringLiteral("在这里绑定用于充值和提现的银行卡。"));
    default:
        return plainPage(QStringLiteral("充值"), QStringLiteral("在这里为您的账户充值。"));
    }
}
} // namespace

void AppRouter::push(const KRBaseController &from, std::unique_ptr<KRBaseController> screen)
{
    if (from.isOnTop())
        from.navigationController()->push(std::move(screen));
}

void AppRouter::openSignIn(KRBaseController &from, ToSomeController toSomeController)
{
    if (!from.isInFront())
        return;
    auto entry = std::make_unique<TZCheckCellController>(*this);
    entry->setToSomeController(std::move(toSomeController));
    window.present(std::move(entry));
}

void AppRouter::showHome(KRBaseController &)
{
    showContent(std::make_unique<TZHomeViewController>(*this));
}

void AppRouter::showMyAccount(KRBaseController &)
{
    showContent(std::make_unique<TZMyAccountController>(*this));
}

void AppRouter::showCommissions(KRBaseController &)
{
    showContent(plainPage(QStringLiteral("超级合伙人"), QStringLiteral("在这里查看您的邀请码和佣金记录。")));
}

void AppRouter::showContent(std::unique_ptr<KRBaseController> root)
{
    KRSideMenu *const frame = window.sideMenu();
    if (!frame)
        return;
    frame->setContent(std::make_unique<KRNavigationController>(std::move(root)));
    frame->hideMenu();
}

void AppRouter::setupSideMenuController()
{
    auto home = std::make_unique<KRNavigationController>(std::make_unique<TZHomeViewController>(*this));
    window.setRoot(
        std::make_unique<KRSideMenu>(std::move(home), std::make_unique<TZLeftMenuController>(*this)));
}

void AppRouter::openRealTrading(KRBaseController &from)
{
    push(from, std::make_unique<TZRealTradingController>(*this));
}

void AppRouter::openStockCapital(KRBaseController &from, const TZUserIndexModel &)
{
    push(from, plainPage(QStringLiteral("我要配资"), QStringLiteral("在这里选择适合您的配资方案。")));
}

void AppRouter::openMessages(KRBaseController &from)
{
    push(from, plainPage(QStringLiteral("消息"), QStringLiteral("在这里查看系统通知和活动消息。")));
}

void AppRouter::openWeb(KRBaseController &from, const TZWebModel &model)
{
    push(from, plainPage(model.title, model.url));
}

void AppRouter::openRechargeGate(KRBaseController &from)
{
    const auto open = [this, &from](const Operation &, const QVariantMap &answer) {
        if (!from.isInFront())
            return;
        const QVariantMap data = answer.value(QStringLiteral("data")).toMap();
        window.present(rechargeStep(integerValue(data.value(QStringLiteral("next_step")))));
    };
    TZTradeTool::getTradeRechargeWithParam({}, Success{&from, open}, {});
}

void AppRouter::openWithdraw(KRBaseController &from)
{
    if (from.isInFront())
        window.present(
            plainPage(QStringLiteral("提现"), QStringLiteral("在这里把可用余额提现到您的银行卡。")));
}

void AppRouter::openFundRecords(KRBaseController &from)
{
    push(from, plainPage(QStringLiteral("充值提现记录"), QStringLiteral("在这里查看每一笔充值和提现。")));
}

void AppRouter::openPersonal(KRBaseController &from)
{
    push(from, std::make_unique<TZPersonalController>());
}

void AppRouter::openWarning(KRBaseController &from)
{
    push(from, plainPage(QStringLiteral("风险预警"), QStringLiteral("在这里查看触及预警线的借款。")));
}

void AppRouter::openMarginTopUp(KRBaseController &from)
{
    push(from,
         plainPage(QStringLiteral("补充保证金"), QStringLiteral("在这里为触及平仓线的借款补充保证金。")));
}

void AppRouter::presentMessageDetail(const QVariantMap &information)
{
    window.present(std::make_unique<TZMessageDetailController>(
        *this, fromDictionary<TZMessageModel>(information), QStringLiteral("remote")));
}

void AppRouter::presentOrderDetail(const QVariantMap &information)
{
    auto detail = std::make_unique<TZDealDetailController>(TZDealDetailController::entrustTitle);
    detail->setEntrustsTodayModel(fromDictionary<TZEntrustsTodayModel>(information));
    window.present(std::move(detail));
}
