#include "http/Routes.h"

namespace sandbox::http {
namespace {

constexpr const char *noRecharge = "模拟环境暂未接入充值通道，请在控制台为账户入金";
constexpr const char *noWithdrawal = "模拟环境暂未接入提现通道";

Json rechargeInfo(Service &service, const identity::User &user, const Call &)
{
    const AccountSummary account = service.brokerage.accountSummary(user.id);
    return success({{"next_step", user.nextStep()},
                    {"minRechargeLimit", "100"},
                    {"maxLimitPerTime", "50000"},
                    {"maxLimitPerDay", "200000"},
                    {"amount", yuanText(account.available)},
                    {"bankName", user.card ? user.card->bankName : ""},
                    {"endNumber", user.card ? user.card->tail : ""},
                    {"notice", ""}});
}

Json withdrawInfo(Service &service, const identity::User &user, const Call &)
{
    const AccountSummary account = service.brokerage.accountSummary(user.id);
    return success({{"availableMoney", yuanText(account.withdrawable)},
                    {"canWithdraw", "0"},
                    {"freeWithdrawMoney", "0.00"},
                    {"perDay", "200000"},
                    {"perTrade", "50000"},
                    {"withdrawFeeRate", "0.003"},
                    {"bankName", user.card ? user.card->bankName : ""},
                    {"tail", user.card ? user.card->tail : ""}});
}

Json emptyRecords(Service &, const identity::User &, const Call &call)
{
    return success(
        {{"data", Json::array()}, {"hasNext", false}, {"page", call.number("page", 1, 1, 100'000)}});
}

Json emptyCommissions(Service &, const identity::User &, const Call &call)
{
    return success({{"currDayTotalMoney", "0.00"},
                    {"currWeekTotalMoney", "0.00"},
                    {"currMonthTotalMoney", "0.00"},
                    {"totalMoney", "0.00"},
                    {"page", call.number("page", 1, 1, 100'000)},
                    {"commissionDetails", Json::array()}});
}

} // namespace

void addFundRoutes(Router &router, Service &service)
{
    const auto add = [&](const char *method, const std::string &path, UserHandler handler) {
        addUserRoute(router, service, method, path, std::move(handler));
    };
    const auto refuse = [&](const char *method, const std::string &path, const char *message) {
        add(method, path, [message](auto &&...) -> Json { throw Refusal(message); });
    };
    add("GET", "trade/recharge", rechargeInfo);
    add("GET", "trade/show_withdraw", withdrawInfo);
    add("GET", "walletRecords", emptyRecords);
    add("GET", "commissions", emptyCommissions);
    refuse("POST", "trade/recharge", noRecharge);
    refuse("POST", "trade/verify_recharge", noRecharge);
    refuse("GET", "trade/query_order_status", "充值订单不存在");
    refuse("POST", "trade/withdraw", noWithdrawal);
}

} // namespace sandbox::http
