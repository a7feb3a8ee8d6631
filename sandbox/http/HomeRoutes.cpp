#include "http/Routes.h"

#include <array>

namespace sandbox::http {
namespace {

Json userIndex(Service &service, const Call &call)
{
    const identity::User user = signedIn(service, call);
    const AccountSummary account = service.brokerage.accountSummary(user.id);
    const Json asset{{"id", std::to_string(user.id)},
                     {"nick", user.nick},
                     {"accountStatus", "0"},
                     {"availableMoney", yuanText(account.available)},
                     {"frozenMoney", yuanText(account.frozen)},
                     {"stockValue", yuanText(account.stockValue)},
                     {"totalMoney", yuanText(account.totalMoney)},
                     {"totalAsset", yuanText(account.totalAsset)},
                     {"borrowMoney", "0.00"},
                     {"profitMoney", yuanText(account.profit)},
                     {"profitRate", account.profitRate}};
    return success({{"userAccountStatus", "0"}, {"asset", asset}});
}

struct RecentLoan {
    const char *nick;
    int yuan;
};

/// The canned borrowers of the ticker: lending is not simulated.
constexpr std::array<RecentLoan, 8> recentLoans{{{"股海**", 50'000},
                                                 {"春江**", 12'000},
                                                 {"长线**", 200'000},
                                                 {"小陈**", 8'000},
                                                 {"牧云**", 36'000},
                                                 {"北岸**", 100'000},
                                                 {"听雨**", 5'000},
                                                 {"远山**", 66'000}}};

Json loanOverview()
{
    return success({{"loanUserAmount", "12846"}, {"totalLoanMoney", "318450000.00"}});
}

Json recentLoanList()
{
    Json list = Json::array();
    for (const RecentLoan &loan : recentLoans)
        list.push_back(
            {{"nick", loan.nick}, {"borrowMoney", yuanText(Cents{loan.yuan} * 100)}, {"image_id", ""}});
    return success(std::move(list));
}

Json safeMoney(Service &service, const Call &call)
{
    const AccountSummary account = service.brokerage.accountSummary(signedIn(service, call).id);
    return success({{"totalSafeMoney", "0.00"},
                    {"warnLine", "0.00"},
                    {"debtMoney", "0.00"},
                    {"closeSafeMoney", "0.00"},
                    {"asset", yuanText(account.totalAsset)},
                    {"planCashDeposit", "0.00"},
                    {"closeList", Json::array()}});
}

Json warn(Service &service, const Call &call)
{
    const AccountSummary account = service.brokerage.accountSummary(signedIn(service, call).id);
    return success({{"warnLine", "0.00"},
                    {"closeOutLine", "0.00"},
                    {"totalMoney", yuanText(account.totalAsset)},
                    {"loans", Json::array()}});
}

} // namespace

void addHomeRoutes(Router &router, Service &service)
{
    router.json("GET", "userIndex", [&service](const Call &call) { return userIndex(service, call); });
    router.json("GET", "loanOverview", [](const Call &) { return loanOverview(); });
    router.json("GET", "recentLoans", [](const Call &) { return recentLoanList(); });
    router.json("GET", "safeMoney2Supplement",
                [&service](const Call &call) { return safeMoney(service, call); });
    router.json("GET", "warn", [&service](const Call &call) { return warn(service, call); });
}

} // namespace sandbox::http
