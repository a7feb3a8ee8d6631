#include "console/Console.h"
#include "console/Html.h"
#include "http/FaultForm.h"
#include "http/Local.h"
#include "http/Shapes.h"
#include "market/Calendar.h"

#include <chrono>
#include <cstdio>

namespace sandbox::console {
namespace {

using http::Answer;
using http::Call;
using http::Refusal;
using http::Service;

UserId owner(Service &service, const Call &call)
{
    const auto user = service.users.byId(call.number("user", 0, 0, INT_MAX));
    if (!user)
        throw Refusal("There is no such user.");
    return user->id;
}

std::string ownPage(const Call &call)
{
    return "sandbox/user?id=" + std::to_string(call.number("user", 0, 0, INT_MAX));
}

Cents amount(const Call &call, std::string_view name)
{
    const auto cents = parseYuan(call.text(name));
    if (!cents)
        throw Refusal("That is not an amount of yuan.");
    return *cents;
}

/// 14:57 of the calendar day on the market's clock.
Millis closingAuction(Millis now)
{
    return now - timeOfDay(now) + (14 * 60 + 57) * kMinute;
}

/// The time of a field such as "2026-01-05T09:30" or "2026-01-05T09:30:15", on the market's clock.
Millis marketTime(const std::string &text)
{
    int year = 0, month = 0, day = 0, hour = 0, minute = 0, second = 0;
    const int read =
        std::sscanf(text.c_str(), "%4d-%2d-%2dT%2d:%2d:%2d", &year, &month, &day, &hour, &minute, &second);
    const std::chrono::year_month_day date{std::chrono::year(year), std::chrono::month(unsigned(month)),
                                           std::chrono::day(unsigned(day))};
    if (read < 5 || !date.ok() || hour > 23 || minute > 59 || second > 59)
        throw Refusal("That is not a date and a time.");
    const Millis midnight = std::chrono::sys_days(date).time_since_epoch().count() * kDay;
    return midnight + ((hour - 8) * 60 + minute) * kMinute + second * kSecond;
}

/// Refuses to go back, and further than a year: nobody waits for the days between to be worked through.
void jump(Brokerage &brokerage, Millis time)
{
    if (time > brokerage.now() + 366 * kDay)
        throw Refusal("That is more than a year away.");
    if (!brokerage.jumpClock(time))
        throw Refusal("It is after " + dateTime(time) + " already.");
}

std::string setClock(Service &service, const Call &call)
{
    Brokerage &brokerage = service.brokerage;
    const std::string action = call.text("action");
    if (action == "freeze")
        brokerage.freezeClock();
    else if (action == "run")
        brokerage.setClockSpeedPercent(100);
    else if (action == "fast")
        brokerage.setClockSpeedPercent(6000);
    else if (action == "second")
        brokerage.stepClock(1000);
    else if (action == "minute")
        brokerage.stepClock(60 * 1000);
    else if (action == "close")
        jump(brokerage, closingAuction(brokerage.now()));
    else if (action == "tomorrow")
        jump(brokerage, brokerage.nextTradingDay());
    else if (action == "to")
        jump(brokerage, marketTime(call.text("time")));
    else
        throw Refusal("There is no such action.");
    return "It is now " + dateTime(brokerage.now()) + ".";
}

std::string movePrice(Service &service, const Call &call)
{
    const Cents price =
        http::accepted(service.brokerage.movePrice(call.text("stockCode"), amount(call, "price")));
    return "The price of " + call.text("stockCode") + " is " + yuanText(price) + " as soon as it trades.";
}

std::string sealBoard(Service &service, const Call &call)
{
    const std::string seal = call.text("seal");
    const auto wanted = seal == "up"     ? Brokerage::Seal::LimitUp
                        : seal == "down" ? Brokerage::Seal::LimitDown
                                         : Brokerage::Seal::None;
    const Cents price = http::accepted(service.brokerage.sealBoard(call.text("stockCode"), wanted));
    return "The price of " + call.text("stockCode") + " is " + yuanText(price) + " as soon as it trades.";
}

std::string deposit(Service &service, const Call &call)
{
    const Cents cents = amount(call, "amount");
    const Cents available = http::accepted(service.brokerage.deposit(owner(service, call), cents, "console"));
    return "Paid in; " + yuanText(available) + " yuan available.";
}

std::string drawLines(Service &service, const Call &call)
{
    http::accepted(service.brokerage.setLossLines(owner(service, call),
                                                  {amount(call, "warnLine"), amount(call, "closeOutLine")}));
    return "The lines are drawn.";
}

std::string sendMessage(Service &service, const Call &call)
{
    messages::Message message;
    message.user = owner(service, call);
    message.source = call.text("source") == messages::source::activity ? messages::source::activity
                                                                       : messages::source::system;
    message.title = call.text("title");
    message.content = call.text("content", 2000);
    if (message.title.empty() || message.content.empty())
        throw Refusal("A message needs a title and a text.");
    message.summary = message.content;
    http::sendMessage(service, std::move(message));
    return "Sent.";
}

std::string pushOrder(Service &service, const Call &call)
{
    const UserId user = owner(service, call);
    const auto order = service.brokerage.orderByEntrustNo(user, call.text("entrustNo"));
    if (!order)
        throw Refusal("There is no such order.");
    http::push(service, user, 3, http::entrustJson(*order, service.brokerage.stocks()));
    return "Pushed.";
}

std::string rejectOrder(Service &service, const Call &call)
{
    http::accepted(service.brokerage.rejectOrder(call.text("entrustNo"), "交易所拒绝了该委托"));
    return "Rejected.";
}

std::string addFault(Service &service, const Call &call)
{
    http::applyFaultForm(service.faults, call);
    return "Done.";
}

} // namespace

void addActions(http::Router &router, http::Service &service)
{
    using Back = std::string (*)(const Call &);
    using Action = std::string (*)(Service &, const Call &);
    const auto add = [&](const std::string &path, Back back, Action action) {
        router.page("POST", path, [&service, back, action](const Call &call) {
            http::requireOwnPage(call);
            try {
                return redirect(back(call), action(service, call));
            } catch (const Refusal &refusal) {
                return redirect(back(call), refusal.what(), true);
            }
        });
    };
    const Back toMarket = [](const Call &call) {
        const std::string code = call.text("stockCode");
        return code.empty() ? std::string("sandbox/market") : "sandbox/market?code=" + queryEncode(code);
    };
    add("sandbox/clock", toMarket, setClock);
    add("sandbox/price", toMarket, movePrice);
    add("sandbox/seal", toMarket, sealBoard);
    add("sandbox/deposit", ownPage, deposit);
    add("sandbox/lines", ownPage, drawLines);
    add("sandbox/message", ownPage, sendMessage);
    add("sandbox/push-order", ownPage, pushOrder);
    add("sandbox/reject", ownPage, rejectOrder);
    add(
        "sandbox/add-fault", [](const Call &) { return std::string("sandbox/faults"); }, addFault);
}

} // namespace sandbox::console
