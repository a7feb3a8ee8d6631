#include "exchange/Brokerage.h"

#include "exchange/Exchange.h"
#include "exchange/OrderCheck.h"
#include "ledger/Books.h"
#include "market/Market.h"
#include "store/Database.h"

#include <algorithm>
#include <mutex>
#include <stdexcept>
#include <utility>

namespace sandbox {

namespace {

constexpr int kFinishedDays = 250;
constexpr const char *kWorkedUntil = "worked until";

/** Takes the stored setting, or stores the wanted one in new books; the two must agree. */
void settle(Books &books, const std::string &key, std::int64_t wanted, const std::string &complaint)
{
    const auto stored = books.setting(key);
    if (!stored)
        books.setSetting(key, wanted);
    else if (*stored != wanted)
        throw std::runtime_error(complaint);
}

std::string lineKey(const std::string &line, UserId user)
{
    return line + " line of user " + std::to_string(user);
}

std::optional<std::int64_t> orderIdOf(const std::string &number)
{
    const auto value = parseShares(number);
    const std::int64_t first = std::stoll(entrustNo(0));
    return value && *value > first ? std::optional(*value - first) : std::nullopt;
}

} // namespace

struct Brokerage::Parts {
    Parts(const BrokerageOptions &options, Clock &theClock)
        : database(options.databasePath), books(database), clock(theClock),
          market(options.seed, options.marketHours), exchange(market, books)
    {
        database.check();
        Transaction transaction(database);
        settle(books, "seed", static_cast<std::int64_t>(options.seed),
               "the database was made with another seed; give that seed, or another database");
        settle(
            books, "market hours", options.marketHours,
            "the database was made with another choice of market hours; keep it, or give another database");
        restoreClock();
        for (const PriceMove &move : books.priceMoves())
            market.prices().add(move);
        workedUntil = books.setting(kWorkedUntil).value_or(clock.now());
        if (books.lastDay() == 0)
            books.record(workedUntil, DayBegan{today()});
        books.setSetting(kWorkedUntil, workedUntil);
        transaction.commit();
    }

    void restoreClock()
    {
        const auto simulated = books.setting("clock simulated");
        if (simulated)
            clock.restore({books.setting("clock real").value_or(0), *simulated,
                           static_cast<int>(books.setting("clock speed percent").value_or(100))});
    }

    int today() const { return market.calendar().dateOf(market.calendar().dayOf(workedUntil)); }

    /** Works the market through up to now, in a transaction of its own; answers now. */
    Millis catchUp()
    {
        const Millis now = std::max(clock.now(), workedUntil);
        if (now == workedUntil)
            return now;
        const bool newDay = market.calendar().dayOf(now) != market.calendar().dayOf(workedUntil);
        if (newDay || !books.openOrders().empty()) {
            Transaction transaction(database);
            exchange.advance(workedUntil, now);
            books.setSetting(kWorkedUntil, now);
            transaction.commit();
        }
        workedUntil = now;
        return now;
    }

    /** Runs a change in one transaction, at `now`. */
    template <typename Change> void change(Millis now, Change &&work)
    {
        Transaction transaction(database);
        work();
        books.setSetting(kWorkedUntil, now);
        transaction.commit();
    }

    void recordClock()
    {
        const ClockState state = clock.state();
        change(workedUntil, [&] {
            books.record(workedUntil, ClockSet{state.real, state.simulated, state.speedPercent});
        });
    }

    std::vector<Holding> holdings(UserId user, Millis now)
    {
        std::vector<Holding> found;
        for (const Position &position : books.positions(user)) {
            const Stock &stock = *market.stocks().find(position.stock);
            found.push_back(holdingOf(position, stock, market.spot(stock, now).price));
        }
        return found;
    }

    Outcome<Cents> move(const std::string &stockCode, PriceMove::Kind kind, Cents price)
    {
        const Millis now = catchUp();
        const Stock *stock = market.stocks().find(stockCode);
        if (!stock)
            return Refusal{Rule::UnknownStock, "证券代码不存在"};
        if (stock->suspended)
            return Refusal{Rule::Suspended, "该股票已停牌"};
        const Calendar &calendar = market.calendar();
        const int day = calendar.dayOf(now);
        // What was traded before a break or an auction keeps its price.
        const int moment = calendar.momentOf(day, now) + (calendar.phase(now) == Phase::Continuous ? 0 : 1);
        if (moment == calendar.momentCount())
            return Refusal{Rule::Session, "当前休市，价格不变"};
        const Cents shift =
            kind == PriceMove::Kind::Shift ? price - market.prices().unmovedPrice(*stock, day, moment) : 0;
        const PriceMove move{stockCode, day, moment, kind, shift};
        change(now, [&] {
            books.record(now, PriceMoved{stockCode, day, moment, static_cast<int>(kind), shift});
            market.prices().add(move);
            exchange.rematch(stockCode, now);
        });
        return market.prices().spotAt(*stock, day, moment).price;
    }

    Outcome<Order> find(UserId user, const std::string &number)
    {
        const auto id = orderIdOf(number);
        auto order = id ? books.order(*id) : std::nullopt;
        if (!order || order->user != user)
            return Refusal{Rule::UnknownOrder, "委托不存在"};
        return *order;
    }

    std::mutex mutex;
    Database database;
    Books books;
    Clock &clock;
    Market market;
    Exchange exchange;
    Millis workedUntil = 0;
};

Brokerage::Brokerage(BrokerageOptions options, Clock &clock)
    : m_parts(std::make_unique<Parts>(options, clock))
{
}

Brokerage::~Brokerage() = default;

void Brokerage::tick()
{
    const std::lock_guard lock(m_parts->mutex);
    m_parts->catchUp();
}

void Brokerage::createAccount(UserId user)
{
    const std::lock_guard lock(m_parts->mutex);
    const Millis now = m_parts->catchUp();
    if (!m_parts->books.account(user))
        m_parts->change(now, [&] { m_parts->books.record(now, AccountOpened{user}); });
}

Outcome<Cents> Brokerage::deposit(UserId user, Cents amount, const std::string &reason)
{
    const std::lock_guard lock(m_parts->mutex);
    const Millis now = m_parts->catchUp();
    if (!m_parts->books.account(user))
        return Refusal{Rule::Account, "交易账户不存在"};
    if (amount <= 0)
        return Refusal{Rule::Cash, "金额不正确"};
    m_parts->change(now, [&] { m_parts->books.record(now, CashMoved{user, amount, reason}); });
    return m_parts->books.account(user)->available;
}

Outcome<Shares> Brokerage::grantShares(UserId user, const std::string &stockCode, Shares shares, Cents cost)
{
    const std::lock_guard lock(m_parts->mutex);
    const Millis now = m_parts->catchUp();
    if (!m_parts->books.account(user))
        return Refusal{Rule::Account, "交易账户不存在"};
    if (!m_parts->market.stocks().find(stockCode))
        return Refusal{Rule::UnknownStock, "证券代码不存在"};
    if (shares <= 0 || cost < 0)
        return Refusal{Rule::Quantity, "数量不正确"};
    m_parts->change(now, [&] { m_parts->books.record(now, SharesGranted{user, stockCode, shares, cost}); });
    return m_parts->books.position(user, stockCode)->shares;
}

void Brokerage::createDemoAccount(UserId user)
{
    const std::lock_guard lock(m_parts->mutex);
    const Millis now = m_parts->catchUp();
    if (m_parts->books.account(user))
        return;
    struct Grant {
        Board board;
        Shares shares;
        int costPercent; ///< of the price of the day, so that some holdings gain and some lose
    };
    constexpr Grant grants[] = {{Board::ShanghaiMain, 2000, 93},
                                {Board::ShenzhenMain, 1500, 108},
                                {Board::ChiNext, 1237, 97},
                                {Board::Star, 600, 102}};
    m_parts->change(now, [&] {
        m_parts->books.record(now, AccountOpened{user});
        m_parts->books.record(now, CashMoved{user, 200'000'00, "demo"});
        for (const Grant &grant : grants) {
            const auto &all = m_parts->market.stocks().all();
            const auto stock = std::find_if(all.begin(), all.end(), [&](const Stock &candidate) {
                return candidate.board == grant.board && !candidate.suspended && !candidate.specialTreatment;
            });
            const Cents price = m_parts->market.spot(*stock, now).price;
            m_parts->books.record(now, SharesGranted{user, stock->code, grant.shares,
                                                     price * grant.shares * grant.costPercent / 100});
        }
    });
}

AccountSummary Brokerage::accountSummary(UserId user)
{
    const std::lock_guard lock(m_parts->mutex);
    const Millis now = m_parts->catchUp();
    AccountSummary summary =
        summaryOf(m_parts->books.account(user).value_or(Account{}), m_parts->holdings(user, now));
    summary.lines = {m_parts->books.setting(lineKey("warning", user)).value_or(0),
                     m_parts->books.setting(lineKey("close-out", user)).value_or(0)};
    return summary;
}

Outcome<LossLines> Brokerage::setLossLines(UserId user, LossLines lines)
{
    const std::lock_guard lock(m_parts->mutex);
    const Millis now = m_parts->catchUp();
    if (!m_parts->books.account(user))
        return Refusal{Rule::Account, "交易账户不存在"};
    if (lines.closeOut > lines.warn)
        return Refusal{Rule::Cash, "平仓线不得高于警告线"};
    m_parts->change(now, [&] {
        m_parts->books.setSetting(lineKey("warning", user), lines.warn);
        m_parts->books.setSetting(lineKey("close-out", user), lines.closeOut);
    });
    return lines;
}

Cents Brokerage::usableMoney(UserId user)
{
    const std::lock_guard lock(m_parts->mutex);
    m_parts->catchUp();
    const auto account = m_parts->books.account(user);
    return account ? account->available : 0;
}

std::vector<Holding> Brokerage::holdings(UserId user)
{
    const std::lock_guard lock(m_parts->mutex);
    const Millis now = m_parts->catchUp();
    return m_parts->holdings(user, now);
}

Outcome<Order> Brokerage::placeOrder(const OrderRequest &request)
{
    const std::lock_guard lock(m_parts->mutex);
    const Millis now = m_parts->catchUp();
    const auto checked = checkOrder(request, m_parts->market, m_parts->books, now);
    if (const auto *refusal = std::get_if<Refusal>(&checked))
        return *refusal;
    std::int64_t id = 0;
    m_parts->change(now, [&] { id = m_parts->exchange.take(std::get<CheckedOrder>(checked), now); });
    return *m_parts->books.order(id);
}

Outcome<Order> Brokerage::cancelOrder(UserId user, const std::string &number)
{
    const std::lock_guard lock(m_parts->mutex);
    const Millis now = m_parts->catchUp();
    auto found = m_parts->find(user, number);
    if (std::holds_alternative<Refusal>(found))
        return found;
    const Order &order = std::get<Order>(found);
    if (!isOpen(order.status))
        return Refusal{Rule::NotOpen,
                       order.status == OrderStatus::Filled ? "委托已成交，不能撤单" : "委托已结束，不能撤单"};
    if (order.cancelRequestedAt != 0)
        return Refusal{Rule::NotOpen, "撤单申请已提交，请勿重复提交"};
    const Phase phase = m_parts->market.calendar().phase(now);
    if (phase == Phase::OpeningLocked || phase == Phase::ClosingAuction)
        return Refusal{Rule::CancelWindow, "9:20至9:25、14:57至15:00不接受撤单申请"};
    m_parts->change(now, [&] { m_parts->exchange.askCancel(order, now); });
    return *m_parts->books.order(order.id);
}

std::optional<CancelProgress> Brokerage::cancelProgress(UserId user, std::int64_t orderId)
{
    const auto found = order(user, orderId);
    if (!found)
        return std::nullopt;
    if (found->status == OrderStatus::Cancelled || found->status == OrderStatus::PartlyCancelled)
        return CancelProgress::Done;
    if (found->cancelRequestedAt == 0)
        return CancelProgress::NotAsked;
    return isOpen(found->status) ? CancelProgress::Pending : CancelProgress::TooLate;
}

std::optional<Order> Brokerage::order(UserId user, std::int64_t orderId)
{
    const std::lock_guard lock(m_parts->mutex);
    m_parts->catchUp();
    auto found = m_parts->books.order(orderId);
    return found && found->user == user ? found : std::nullopt;
}

std::optional<Order> Brokerage::orderByEntrustNo(UserId user, const std::string &number)
{
    const auto id = orderIdOf(number);
    return id ? order(user, *id) : std::nullopt;
}

std::vector<Order> Brokerage::openOrders(UserId user)
{
    const std::lock_guard lock(m_parts->mutex);
    m_parts->catchUp();
    std::vector<Order> orders = m_parts->books.openOrders(user);
    std::reverse(orders.begin(), orders.end());
    return orders;
}

std::vector<Order> Brokerage::ordersToday(UserId user, int page)
{
    const std::lock_guard lock(m_parts->mutex);
    m_parts->catchUp();
    return m_parts->books.ordersOf(user, m_parts->today(), kPageSize, std::max(0, page) * kPageSize);
}

std::vector<Deal> Brokerage::dealsToday(UserId user, int page)
{
    const std::lock_guard lock(m_parts->mutex);
    m_parts->catchUp();
    return m_parts->books.dealsOf(user, m_parts->today(), kPageSize, std::max(0, page) * kPageSize);
}

Outcome<Order> Brokerage::rejectOrder(const std::string &number, const std::string &reason)
{
    const std::lock_guard lock(m_parts->mutex);
    const Millis now = m_parts->catchUp();
    const auto id = orderIdOf(number);
    const auto order = id ? m_parts->books.order(*id) : std::nullopt;
    if (!order)
        return Refusal{Rule::UnknownOrder, "委托不存在"};
    if (!isOpen(order->status) || order->filled > 0)
        return Refusal{Rule::NotOpen, "委托已成交或已结束，不能作废"};
    m_parts->change(now, [&] { m_parts->exchange.reject(*order, reason, now); });
    return *m_parts->books.order(order->id);
}

const StockList &Brokerage::stocks() const
{
    return m_parts->market.stocks();
}

std::optional<Quote> Brokerage::quote(const std::string &stockCode)
{
    const std::lock_guard lock(m_parts->mutex);
    const Millis now = m_parts->catchUp();
    const Stock *stock = m_parts->market.stocks().find(stockCode);
    if (!stock)
        return std::nullopt;
    Quote quote = m_parts->market.quote(*stock, now, m_parts->books.depthUsed(stockCode));
    m_parts->exchange.show(quote, now);
    return quote;
}

std::optional<StockDetail> Brokerage::stockDetail(const std::string &stockCode)
{
    const std::lock_guard lock(m_parts->mutex);
    const Millis now = m_parts->catchUp();
    const Stock *stock = m_parts->market.stocks().find(stockCode);
    if (!stock)
        return std::nullopt;
    StockDetail detail =
        m_parts->market.detail(*stock, now, m_parts->books.depthUsed(stockCode), kFinishedDays);
    m_parts->exchange.show(detail.quote, now);
    return detail;
}

Outcome<Cents> Brokerage::movePrice(const std::string &stockCode, Cents price)
{
    const std::lock_guard lock(m_parts->mutex);
    return m_parts->move(stockCode, PriceMove::Kind::Shift, price);
}

Outcome<Cents> Brokerage::sealBoard(const std::string &stockCode, Seal seal)
{
    const std::lock_guard lock(m_parts->mutex);
    const auto kind = seal == Seal::LimitUp     ? PriceMove::Kind::SealUp
                      : seal == Seal::LimitDown ? PriceMove::Kind::SealDown
                                                : PriceMove::Kind::Release;
    return m_parts->move(stockCode, kind, 0);
}

Millis Brokerage::now() const
{
    return m_parts->clock.now();
}

void Brokerage::freezeClock()
{
    setClockSpeedPercent(0);
}

void Brokerage::setClockSpeedPercent(int percent)
{
    const std::lock_guard lock(m_parts->mutex);
    m_parts->clock.setSpeedPercent(percent);
    m_parts->catchUp();
    m_parts->recordClock();
}

void Brokerage::stepClock(Millis duration)
{
    jumpClock(now() + std::max<Millis>(0, duration));
}

bool Brokerage::jumpClock(Millis time)
{
    const std::lock_guard lock(m_parts->mutex);
    if (!m_parts->clock.jumpTo(time))
        return false;
    m_parts->catchUp();
    m_parts->recordClock();
    return true;
}

Millis Brokerage::nextTradingDay() const
{
    const Calendar &calendar = m_parts->market.calendar();
    return calendar.opens(calendar.dayOf(now()) + 1);
}

Phase Brokerage::phase() const
{
    return m_parts->market.calendar().phase(now());
}

int Brokerage::tradingDay() const
{
    const Calendar &calendar = m_parts->market.calendar();
    return calendar.dateOf(calendar.dayOf(now()));
}

std::string exchangeName(const Stock &stock)
{
    return stock.board == Board::ShanghaiMain || stock.board == Board::Star ? "上海A股" : "深圳A股";
}

} // namespace sandbox
