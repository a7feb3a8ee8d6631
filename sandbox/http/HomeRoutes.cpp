#include "http/Routes.h"

#include <array>

namespace sandbox::http {
namespace {

/// How an account stands to its lines: normal, at the warning line, at the close-out line.
std::string accountStatus(const AccountSummary &account)
{
    const auto fellTo = [&](Cents line) { return line > 0 && account.totalAsset <= line; };
    if (fellTo(account.lines.closeOut))
        return "2";
    return fellTo(account.lines.warn) ? "1" : "0";
}

Json userIndex(Service &service, const identity::User &user, const Call &)
{
    const AccountSummary account = service.brokerage.accountSummary(user.id);
    const std::string status = accountStatus(account);
    const Json asset{{"id", std::to_string(user.id)},
                     {"nick", user.nick},
                     {"accountStatus", status},
                     {"availableMoney", yuanText(account.available)},
                     {"frozenMoney", yuanText(account.frozen)},
                     {"stockValue", yuanText(account.stockValue)},
                     {"totalMoney", yuanText(account.totalMoney)},
                     {"totalAsset", yuanText(account.totalAsset)},
                     {"borrowMoney", "0.00"},
                     {"profitMoney", yuanText(account.profit)},
                     {"profitRate", account.profitRate}};
    return success({{"userAccountStatus", status}, {"asset", asset}});
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

Json safeMoney(Service &service, const identity::User &user, const Call &)
{
    const AccountSummary account = service.brokerage.accountSummary(user.id);
    return success({{"totalSafeMoney", "0.00"},
                    {"warnLine", yuanText(account.lines.warn)},
                    {"debtMoney", "0.00"},
                    {"closeSafeMoney", "0.00"},
                    {"asset", yuanText(account.totalAsset)},
                    {"planCashDeposit", "0.00"},
                    {"closeList", Json::array()}});
}

Json warn(Service &service, const identity::User &user, const Call &)
{
    const AccountSummary account = service.brokerage.accountSummary(user.id);
    return success({{"warnLine", yuanText(account.lines.warn)},
                    {"closeOutLine", yuanText(account.lines.closeOut)},
                    {"totalMoney", yuanText(account.totalAsset)},
                    {"loans", Json::array()}});
}

} // namespace

void addHomeRoutes(Router &router, Service &service)
{
    addUserRoute(router, service, "GET", "userIndex", userIndex);
    router.json("GET", "loanOverview", [](const Call &) { return loanOverview(); });
    router.json("GET", "recentLoans", [](const Call &) { return recentLoanList(); });
    addUserRoute(router, service, "GET", "safeMoney2Supplement", safeMoney);
    addUserRoute(router, service, "GET", "warn", warn);
}

} // namespace sandbox::http
