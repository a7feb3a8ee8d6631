#include "console/Console.h"
#include "console/Html.h"
#include "http/FaultForm.h"
#include "http/Local.h"
#include "http/Shapes.h"

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
    constexpr Millis hour = 3600 * 1000;
    constexpr Millis shanghai = 8 * hour;
    const Millis midnight = (now + shanghai) / (24 * hour) * (24 * hour) - shanghai;
    return midnight + 14 * hour + 57 * 60 * 1000;
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
    else if (action == "close") {
        if (!brokerage.jumpClock(closingAuction(brokerage.now())))
            throw Refusal("It is after 14:57 already.");
    } else if (action == "tomorrow")
        brokerage.jumpClock(brokerage.nextTradingDay());
    else
        throw Refusal("There is no such action.");
    return "It is now " + dateTime(brokerage.now()) + ".";
}

std::string movePrice(Service &service, const Call &call)
{
    const Cents price =
        http::accepted(service.brokerage.movePrice(call.text("stockCode"), amount(call, "price")));
    return "The price of " + call.text("stockCode") + " is " + yuanText(price) + ".";
}

std::string sealBoard(Service &service, const Call &call)
{
    const std::string seal = call.text("seal");
    const auto wanted = seal == "up"     ? Brokerage::Seal::LimitUp
                        : seal == "down" ? Brokerage::Seal::LimitDown
                                         : Brokerage::Seal::None;
    const Cents price = http::accepted(service.brokerage.sealBoard(call.text("stockCode"), wanted));
    return "The price of " + call.text("stockCode") + " is " + yuanText(price) + ".";
}

std::string deposit(Service &service, const Call &call)
{
    const Cents cents = amount(call, "amount");
    const Cents available = http::accepted(service.brokerage.deposit(owner(service, call), cents, "console"));
    return "Paid in; " + yuanText(available) + " yuan available.";
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
    add("sandbox/message", ownPage, sendMessage);
    add("sandbox/push-order", ownPage, pushOrder);
    add("sandbox/reject", ownPage, rejectOrder);
    add(
        "sandbox/add-fault", [](const Call &) { return std::string("sandbox/faults"); }, addFault);
}

} // namespace sandbox::console
