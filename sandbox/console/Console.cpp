#include "console/Console.h"

#include "console/Html.h"
#include "http/Local.h"

namespace sandbox::console {
namespace {

using http::Answer;
using http::Call;
using http::Service;

std::string purposeName(const std::string &purpose)
{
    if (purpose == identity::purpose::registration)
        return "registration";
    if (purpose == identity::purpose::signIn)
        return "sign-in";
    return purpose == identity::purpose::passwordReset ? "password reset" : "card binding";
}

Answer inbox(Service &service, const Call &call)
{
    std::vector<std::vector<std::string>> rows;
    for (const identity::Sms &sms : service.sms.inbox(50))
        rows.push_back({dateTime(sms.sentAt), escape(sms.cell), "<code>" + escape(sms.code) + "</code>",
                        purposeName(sms.purpose), sms.open ? "valid" : "used or expired"});
    return page(call, "SMS inbox",
                "<p class=\"hint\">Codes are valid for five minutes. This page reloads by itself.</p>" +
                    table("Codes sent", {"Time", "Number", "Code", "For", "State"}, rows),
                "<meta http-equiv=\"refresh\" content=\"5\">");
}

Answer userList(Service &service, const Call &call)
{
    std::vector<std::vector<std::string>> rows;
    for (const identity::User &user : service.users.all()) {
        const AccountSummary account = service.brokerage.accountSummary(user.id);
        rows.push_back(
            {"<a href=\"/sandbox/user?id=" + std::to_string(user.id) + "\">" + escape(user.cell) + "</a>",
             escape(user.nick), yuanText(account.available), yuanText(account.frozen),
             yuanText(account.stockValue), yuanText(account.totalAsset)});
    }
    return page(
        call, "Users",
        table("Accounts, yuan", {"Number", "Nickname", "Available", "Frozen", "Stocks", "Total"}, rows));
}

std::string statusName(OrderStatus status)
{
    switch (status) {
    case OrderStatus::Held:
        return "held for the session";
    case OrderStatus::Accepted:
        return "open";
    case OrderStatus::CancelRequested:
    case OrderStatus::CancelRequestedPartlyFilled:
        return "cancel requested";
    case OrderStatus::PartlyCancelled:
        return "partly cancelled";
    case OrderStatus::Cancelled:
        return "cancelled";
    case OrderStatus::PartlyFilled:
        return "partly filled";
    case OrderStatus::Filled:
        return "filled";
    case OrderStatus::Rejected:
        return "rejected";
    }
    return {};
}

std::string holdingTable(Service &service, UserId user)
{
    std::vector<std::vector<std::string>> rows;
    for (const Holding &holding : service.brokerage.holdings(user))
        rows.push_back({escape(holding.stockCode), escape(holding.stockName), std::to_string(holding.shares),
                        std::to_string(holding.availableShares), holding.costPerShare,
                        yuanText(holding.currentPrice), yuanText(holding.profit)});
    return table("Holdings", {"Code", "Name", "Shares", "Sellable", "Cost", "Price", "Profit"}, rows);
}

std::string orderTable(Service &service, UserId user)
{
    const std::string owner = hidden("user", std::to_string(user));
    std::vector<std::vector<std::string>> rows;
    for (const Order &order : service.brokerage.ordersToday(user, 0)) {
        const std::string number = owner + hidden("entrustNo", entrustNo(order.id));
        const std::string subject = "order " + entrustNo(order.id);
        std::string actions = form("sandbox/push-order", number, "Push", subject);
        if (isOpen(order.status))
            actions += form("sandbox/reject", number, "Reject", subject);
        rows.push_back({entrustNo(order.id), clockTime(order.createdAt), escape(order.stockCode),
                        order.side == Side::Buy ? "buy" : "sell", yuanText(order.price),
                        std::to_string(order.shares), std::to_string(order.filled), statusName(order.status),
                        "<div class=\"row\">" + actions + "</div>"});
    }
    return table("Latest orders of today",
                 {"Number", "Time", "Code", "Side", "Price", "Shares", "Filled", "State", "Actions"}, rows);
}

std::string dealTable(Service &service, UserId user)
{
    std::vector<std::vector<std::string>> rows;
    for (const Deal &deal : service.brokerage.dealsToday(user, 0))
        rows.push_back({std::to_string(deal.id), clockTime(deal.time), entrustNo(deal.orderId),
                        escape(deal.stockCode), yuanText(deal.price), std::to_string(deal.shares),
                        yuanText(deal.commission), yuanText(deal.stampTax), yuanText(deal.transferFee)});
    return table(
        "Latest deals of today",
        {"Deal", "Time", "Order", "Code", "Price", "Shares", "Commission", "Stamp tax", "Transfer fee"},
        rows);
}

Answer userBooks(Service &service, const Call &call)
{
    const auto user = service.users.byId(call.number("id", 0, 0, INT_MAX));
    if (!user)
        return redirect("sandbox/users", "There is no such user.", true);
    const AccountSummary account = service.brokerage.accountSummary(user->id);
    const std::string owner = hidden("user", std::to_string(user->id));
    const std::string body =
        table("Money, yuan", {"Available", "Frozen", "Withdrawable", "Stocks", "Total", "Profit"},
              {{yuanText(account.available), yuanText(account.frozen), yuanText(account.withdrawable),
                yuanText(account.stockValue), yuanText(account.totalAsset), yuanText(account.profit)}}) +
        holdingTable(service, user->id) + orderTable(service, user->id) + dealTable(service, user->id) +
        "<h2>Pay money in</h2>" +
        form("sandbox/deposit",
             owner + field("Amount, yuan", "amount", "10000", "inputmode=decimal required"), "Pay in") +
        "<h2>Loss lines</h2><p class=\"hint\">Where the total falls to the warning line the account is at "
        "warning, at the close-out line at risk. 0: no line.</p>" +
        form("sandbox/lines",
             owner +
                 field("Warning line, yuan", "warnLine", yuanText(account.lines.warn),
                       "inputmode=decimal required") +
                 field("Close-out line, yuan", "closeOutLine", yuanText(account.lines.closeOut),
                       "inputmode=decimal required"),
             "Draw the lines") +
        "<h2>Send a message</h2>" +
        form("sandbox/message",
             owner + choice("Kind", "source", {{"100", "System notice"}, {"200", "Activity"}}) +
                 field("Title", "title", "", "maxlength=100 required") +
                 field("Text", "content", "", "maxlength=2000 size=50 required"),
             "Send");
    return page(call, user->cell + " " + user->nick, body);
}

std::string phaseName(Phase phase)
{
    switch (phase) {
    case Phase::Closed:
        return "closed";
    case Phase::OpeningAuction:
        return "opening auction";
    case Phase::OpeningLocked:
        return "opening auction, no cancels";
    case Phase::BeforeContinuous:
        return "before continuous trading";
    case Phase::Continuous:
        return "continuous trading";
    case Phase::Lunch:
        return "lunch";
    case Phase::ClosingAuction:
        return "closing auction, no cancels";
    }
    return {};
}

std::string speedName(int percent)
{
    if (percent == 0)
        return "frozen";
    return percent == 100 ? "in real time" : std::to_string(percent / 100) + " times as fast";
}

std::string clockSection(Service &service)
{
    const auto button = [](const std::string &action, const std::string &text) {
        return form("sandbox/clock", hidden("action", action), text);
    };
    return "<p>It is <b>" + dateTime(service.brokerage.now()) + "</b>, trading day " +
           std::to_string(service.brokerage.tradingDay()) + ": " + phaseName(service.brokerage.phase()) +
           ". The clock is " + speedName(service.clock.state().speedPercent) + ".</p><div class=\"row\">" +
           button("freeze", "Freeze") + button("run", "Real time") + button("fast", "60 times") +
           button("second", "+1 second") + button("minute", "+1 minute") + button("close", "To 14:57") +
           button("tomorrow", "To the next trading day") + "</div>" +
           form("sandbox/clock",
                hidden("action", "to") + field("Date and time, Shanghai", "time",
                                               dateTime(service.brokerage.now()).replace(10, 1, "T"),
                                               "type=datetime-local step=1 required"),
                "Go there");
}

std::string quoteTable(Service &service, const std::string &code)
{
    if (code.empty())
        return {};
    const auto quote = service.brokerage.quote(code);
    if (!quote)
        return "<p class=\"note bad\">There is no such stock.</p>";
    return table(
        quote->name + " " + quote->code, {"Last", "Previous close", "Limit up", "Limit down", "Bid", "Ask"},
        {{yuanText(quote->last), yuanText(quote->previousClose), yuanText(quote->upperLimit),
          yuanText(quote->lowerLimit), yuanText(quote->bids[0].price), yuanText(quote->asks[0].price)}});
}

std::string codeField(const Call &call, const std::string &name)
{
    return field("Stock code", name, call.text("code"), "inputmode=numeric maxlength=6 required");
}

Answer market(Service &service, const Call &call)
{
    const std::string code = codeField(call, "stockCode");
    return page(
        call, "Clock and prices",
        "<h2>Clock</h2>" + clockSection(service) + "<h2>Prices</h2>" +
            quoteTable(service, call.text("code")) +
            question("sandbox/market", codeField(call, "code"), "Look it up") +
            form("sandbox/price", code + field("Price, yuan", "price", "", "inputmode=decimal required"),
                 "Move the price") +
            form("sandbox/seal",
                 code +
                     choice(
                         "Board", "seal",
                         {{"up", "Sealed at limit up"}, {"down", "Sealed at limit down"}, {"none", "Free"}}),
                 "Set the board") +
            "<h2>Not simulated</h2><p class=\"hint\">Orders do not move the price. There are no dividends, "
            "no new "
            "listings, no Beijing exchange, no trading at the closing price after hours, no delayed quotes. "
            "A "
            "suspended company stays suspended.</p>");
}

Answer faults(Service &service, const Call &call)
{
    std::vector<std::vector<std::string>> rows;
    for (const http::Fault &fault : service.faults.pending())
        rows.push_back({escape(fault.path), http::faultName(fault.kind), std::to_string(fault.count),
                        std::to_string(fault.delay.count()) + " ms"});
    std::vector<std::pair<std::string, std::string>> kinds;
    for (const std::string &name : http::faultNames())
        kinds.emplace_back(name, name);
    return page(
        call, "Faults",
        "<p class=\"hint\">The next calls of a path go wrong. A path may end in * to cover all that begin "
        "so. drop-before, status and refuse keep the work of the call from being done, delay-before lets it "
        "wait; "
        "with the others it is done at once, and the delay holds its answer back.</p>" +
            table("Waiting", {"Path", "Kind", "Calls left", "Delay"}, rows) +
            form("sandbox/add-fault",
                 choice("Kind", "kind", kinds) + field("Path", "path", "entrust/createBuy", "required") +
                     field("Calls", "count", "1", "type=number min=1") +
                     field("Delay, ms", "delay", "0", "type=number min=0 max=600000") +
                     field("Status", "status", "500", "type=number min=200 max=599") +
                     field("Message", "message", "", "maxlength=100"),
                 "Add") +
            form("sandbox/add-fault", hidden("kind", "clear"), "Remove all"));
}

} // namespace

void addConsole(http::Router &router, http::Service &service)
{
    const auto add = [&](const std::string &path, Answer (*handler)(Service &, const Call &)) {
        router.page("GET", path, [&service, handler](const Call &call) {
            http::requireLocal(call);
            return handler(service, call);
        });
    };
    add("sandbox/", inbox);
    add("sandbox/users", userList);
    add("sandbox/user", userBooks);
    add("sandbox/market", market);
    add("sandbox/faults", faults);
    router.page("GET", "sandbox/style.css", [](const Call &) {
        Answer answer;
        answer.contentType = "text/css; charset=utf-8";
        answer.body = styleSheet();
        return answer;
    });
    addActions(router, service);
}

} // namespace sandbox::console
