#!/usr/bin/env python3
"""Computes the sandbox's books again from its event log and compares them with what the service says.

usage: recompute.py sandbox.db [state.json]

state.json is an answer of "GET sandbox/state" taken at the same moment; without it only the log itself is checked.
Shares no code with the sandbox: the rules are written down here once more. After every event it checks that cash
and shares are conserved, nothing available is below zero, no deal is outside its order's price, the day's limits or
the session, and nothing bought on a day is sold on it. Ends with status 1 and a line for each difference.
"""
import collections
import dataclasses
import json
import sqlite3
import sys

SHANGHAI = 8 * 3600 * 1000
DAY = 24 * 3600 * 1000
BUY, SELL = 1, 2
HELD, ACCEPTED, CANCEL_ASKED, CANCEL_ASKED_PARTLY, PARTLY_CANCELLED, CANCELLED, PARTLY, FILLED, REJECTED = (
    0, 2, 3, 4, 5, 6, 7, 8, 9)
OPEN = {HELD, ACCEPTED, CANCEL_ASKED, CANCEL_ASKED_PARTLY, PARTLY}


class Broken(Exception):
    """An event that the rules do not allow."""


def half_up(numerator, denominator):
    return (2 * numerator + denominator) // (2 * denominator)


def fees(side, money):
    """Commission, stamp tax and transfer fee of one order that traded so many cents in all."""
    if money == 0:
        return (0, 0, 0)
    commission = max(500, half_up(money * 3, 10_000))
    stamp_tax = half_up(money * 5, 10_000) if side == SELL else 0
    return (commission, stamp_tax, half_up(money, 100_000))


def decimals(numerator, denominator, places):
    """The quotient as text, rounded half away from zero."""
    if denominator == 0:
        return f"{0:.{places}f}"
    scaled = half_up(abs(numerator) * 10**places, denominator)
    sign = "-" if numerator < 0 < scaled else ""
    return f"{sign}{scaled // 10**places}.{scaled % 10**places:0{places}d}"


def yuan(cents):
    return decimals(cents, 100, 2)


def cents(text):
    sign = -1 if text.startswith("-") else 1
    whole, fraction = text.lstrip("-").split(".")
    return sign * (int(whole) * 100 + int(fraction))


@dataclasses.dataclass
class Account:
    available: int = 0
    frozen: int = 0
    paid_in: int = 0
    unsettled: int = 0


@dataclasses.dataclass
class Position:
    shares: int = 0
    bought_today: int = 0
    frozen: int = 0
    cost: int = 0
    buy_cost: int = 0
    buy_shares: int = 0
    sell_income: int = 0
    sell_shares: int = 0

    def sellable(self):
        return self.shares - self.bought_today - self.frozen


@dataclasses.dataclass
class Order:
    id: int
    user: int
    stock: str
    side: int
    price: int
    lower: int
    upper: int
    shares: int
    status: int
    day: int
    frozen: int
    filled: int = 0
    money: int = 0
    fees: tuple = (0, 0, 0)

    def remaining(self):
        return self.shares - self.filled


class Books:
    def __init__(self, market_hours):
        self.market_hours = market_hours
        self.day = 0
        self.accounts = {}
        self.positions = {}
        self.orders = {}
        self.deals = []
        self.events = 0
        self.time = 0

    def replay(self, rows):
        for seq, time, kind, payload in rows:
            what = json.loads(payload)
            try:
                require(time >= self.time, "the log goes back in time")
                getattr(self, "on_" + kind)(time, **what)
                self.check(what.get("user"))
            except Broken as broken:
                raise Broken(f"event {seq} {kind}: {broken}") from None
            self.events += 1
            self.time = time

    # What each kind of event means

    def on_AccountOpened(self, _time, user):
        self.accounts[user] = Account()

    def on_CashMoved(self, _time, user, amount, reason):
        account = self.accounts[user]
        require(amount > 0 or -amount <= account.available - account.unsettled,
                "more was taken out than can be withdrawn")
        account.available += amount
        account.paid_in += amount

    def on_SharesGranted(self, _time, user, stock, shares, cost):
        self.add_shares(user, stock, shares, cost, 0)

    def on_OrderTaken(self, time, order, user, stock, side, price, lowerLimit, upperLimit, shares, frozenCash,
                      status, queueAhead, day):
        require(order not in self.orders, "the order exists already")
        require(self.takes_orders(time), "orders are not taken at this time")
        require(day == self.day, "the order is of another day")
        require(lowerLimit <= price <= upperLimit, "the price is outside the limits")
        position = self.positions.get((user, stock))
        if side == SELL:
            require(position is not None and shares <= position.sellable(), "more is offered than can be sold")
            first = price * min(shares, 100)
            need = max(0, sum(fees(SELL, first)) - first)
            position.frozen += shares
        else:
            money = price * shares
            need = money + sum(fees(BUY, money))
        require(frozenCash == need, f"{frozenCash} frozen instead of {need}")
        self.orders[order] = Order(order, user, stock, side, price, lowerLimit, upperLimit, shares, status, day,
                                   frozenCash)
        self.freeze(user, frozenCash)

    def on_OrderQueued(self, _time, order, status, queueAhead):
        require(self.orders[order].status in OPEN, "the order is closed")
        self.orders[order].status = status

    def on_CancelAsked(self, time, order, status):
        require(self.takes_cancels(time), "cancels are not taken at this time")
        require(self.orders[order].status in OPEN, "the order is closed")
        self.orders[order].status = status

    def on_OrderFilled(self, time, deal, order, user, stock, side, price, shares, commission, stampTax, transferFee,
                       frozenDelta, availableDelta, costDelta, status, day, depthPrice, depthEpoch):
        o = self.orders[order]
        require((user, stock, side, day) == (o.user, o.stock, o.side, self.day), "the deal is not of its order")
        require(o.status in OPEN and o.status != HELD, "the order is not at the exchange")
        require(0 < shares <= o.remaining(), "more is filled than was left")
        require(o.lower <= price <= o.upper, "the deal is outside the limits")
        require(price <= o.price if side == BUY else price >= o.price, "the deal is worse than the order's price")
        require(self.trades(time), "nothing is traded at this time")
        o.filled += shares
        o.money += price * shares
        total = fees(side, o.money)
        mine = tuple(now - before for now, before in zip(total, o.fees))
        require(mine == (commission, stampTax, transferFee), f"fees {mine} expected")
        o.fees = total
        partly = CANCEL_ASKED_PARTLY if o.status in (CANCEL_ASKED, CANCEL_ASKED_PARTLY) else PARTLY
        require(status == (partly if o.remaining() else FILLED), f"status {status} after a deal")
        o.status = status
        if side == BUY:
            rest = o.price * o.remaining()
            still = rest + sum(fees(BUY, o.money + rest)) - sum(fees(BUY, o.money)) if rest else 0
            paid = price * shares + sum(mine)
            self.freeze(user, still - o.frozen)
            self.accounts[user].available -= paid
            self.add_shares(user, stock, shares, paid, shares)
        else:
            still = 0
            income = price * shares - sum(mine)
            self.freeze(user, -o.frozen)
            self.accounts[user].available += income
            self.accounts[user].unsettled += income
            paid = -self.remove_shares(user, stock, shares, income)
        require(costDelta == paid, f"the holding's cost changes by {paid}")
        require(frozenDelta == still - o.frozen, "another change of frozen cash expected")
        o.frozen = still
        self.deals.append((deal, order, price, shares, mine, day))

    def on_OrderClosed(self, _time, order, user, stock, status, releasedCash, releasedShares, note):
        o = self.orders[order]
        require(o.status in OPEN, "the order is closed already")
        require(releasedCash == o.frozen, f"{o.frozen} is to be released")
        require(status in ((PARTLY_CANCELLED,) if o.filled else (CANCELLED, REJECTED)), f"status {status} at the end")
        self.freeze(user, -o.frozen)
        if o.side == SELL:
            require(releasedShares == o.remaining(), f"{o.remaining()} shares are to be released")
            self.positions[user, stock].frozen -= releasedShares
        o.frozen = 0
        o.status = status

    def on_DayBegan(self, time, day):
        require(day > self.day, "days go on")
        require(not any(o.status in OPEN for o in self.orders.values() if o.day == self.day),
                "an order outlived its day")
        self.day = day
        for position in self.positions.values():
            position.bought_today = 0
        for account in self.accounts.values():
            account.unsettled = 0

    def on_PriceMoved(self, _time, **_):
        pass

    def on_ClockSet(self, _time, **_):
        pass

    # Money and shares

    def freeze(self, user, amount):
        self.accounts[user].available -= amount
        self.accounts[user].frozen += amount

    def add_shares(self, user, stock, shares, cost, bought_today):
        position = self.positions.setdefault((user, stock), Position())
        position.shares += shares
        position.bought_today += bought_today
        position.cost += cost
        position.buy_cost += cost
        position.buy_shares += shares

    def remove_shares(self, user, stock, shares, income):
        """Answers the part of the holding's cost that goes with them."""
        position = self.positions[user, stock]
        require(shares <= position.shares - position.bought_today, "what was bought today is sold today")
        part = half_up(position.cost * shares, position.shares)
        position.cost -= part
        position.shares -= shares
        position.frozen -= shares
        position.sell_income += income
        position.sell_shares += shares
        if position.shares == 0:
            del self.positions[user, stock]
        return part

    def check(self, user):
        account = self.accounts.get(user)
        if account is None:
            return
        require(account.available >= 0 and account.frozen >= 0, "money is below zero")
        for (owner, stock), position in self.positions.items():
            if owner == user:
                require(position.sellable() >= 0 and position.frozen >= 0, f"shares of {stock} are below zero")

    # The session

    def within(self, time, *spans):
        if not self.market_hours:
            return True
        clock = (time + SHANGHAI) % DAY
        date = (time + SHANGHAI) // DAY
        weekday = (date + 3) % 7  # 1 January 1970 was a Thursday
        return weekday < 5 and any(at(begin) <= clock < at(end) for begin, end in spans)

    def takes_orders(self, time):
        return self.within(time, ("9:15", "15:00"))

    def takes_cancels(self, time):
        return self.within(time, ("9:15", "9:20"), ("9:25", "14:57"))

    def trades(self, time):
        return self.within(time, ("9:25", "9:25:01"), ("9:30", "11:30"), ("13:00", "14:57"), ("15:00", "15:00:01"))

    # What the service says

    def totals(self):
        """Cash and shares once more, from the deals alone."""
        differences = []
        cash = {user: account.paid_in for user, account in self.accounts.items()}
        open_cash = collections.Counter()
        for order in self.orders.values():
            sign = 1 if order.side == SELL else -1
            cash[order.user] += sign * order.money - sum(order.fees)
            open_cash[order.user] += order.frozen
        for user, account in self.accounts.items():
            if account.available + account.frozen != cash[user]:
                differences.append(f"user {user}: cash is not conserved")
            if account.frozen != open_cash[user]:
                differences.append(f"user {user}: frozen cash is not that of the open orders")
        return differences

    def compare(self, state):
        differences = self.totals()

        def same(what, computed, told):
            if computed != told:
                differences.append(f"{what}: computed {computed}, told {told}")

        for told in state["users"]:
            user = int(told["id"])
            account = self.accounts[user]
            name = f"user {user}"
            same(f"{name} available", yuan(account.available), told["availableMoney"])
            same(f"{name} frozen", yuan(account.frozen), told["frozenMoney"])
            self.compare_holdings(name, user, told, same)
            self.compare_orders(name, user, told, same)
        return differences

    def compare_holdings(self, name, user, told, same):
        held = {stock: p for (owner, stock), p in self.positions.items() if owner == user}
        same(f"{name} stocks held", sorted(held), sorted(h["stockCode"] for h in told["holdings"]))
        value = 0
        for row in told["holdings"]:
            p = held.get(row["stockCode"], Position())
            worth = cents(row["currentPrice"]) * p.shares
            value += worth
            computed = {
                "shares": str(p.shares),
                "availableShares": str(p.sellable()),
                "costPerShare": decimals(p.cost, p.shares * 100, 3),
                "profitCostPerShare": decimals(p.buy_cost - p.sell_income, p.shares * 100, 3),
                "totalValue": yuan(worth),
                "profitMoney": yuan(worth - p.cost),
                "profitRate": decimals((worth - p.cost) * 100, p.cost, 2),
                "accumulatedBuyCost": yuan(p.buy_cost),
                "accumulatedBuyShares": str(p.buy_shares),
                "accumulatedSellIncome": yuan(p.sell_income),
                "accumulatedSellShares": str(p.sell_shares),
                "accumulatedProfitMoney": yuan(worth + p.sell_income - p.buy_cost),
            }
            for key, figure in computed.items():
                same(f"{name} {row['stockCode']} {key}", figure, row[key])
        account = self.accounts[user]
        same(f"{name} stockValue", yuan(value), told["stockValue"])
        same(f"{name} totalAsset", yuan(account.available + account.frozen + value), told["totalAsset"])

    def compare_orders(self, name, user, told, same):
        today = [o for o in self.orders.values() if o.user == user and o.day == self.day]
        same(f"{name} orders of today", sorted(o.id for o in today), sorted(int(o["id"]) for o in told["orders"]))
        for row in told["orders"]:
            o = self.orders[int(row["id"])]
            computed = (str(o.status), str(o.filled), str(o.shares), yuan(o.price), yuan(o.frozen),
                        decimals(o.money, o.filled * 100, 2))
            same(f"{name} order {o.id}", computed,
                 (row["status"], row["businessShares"], row["entrustShares"], row["entrustPrice"],
                  row["frozenMoney"], row["businessPrice"]))
        deals = sorted((d, o, price, shares, f) for d, o, price, shares, f, day in self.deals
                       if day == self.day and self.orders[o].user == user)
        listed = sorted((int(d["id"]), int(d["entrustId"]), cents(d["businessPrice"]), int(d["businessShares"]),
                         (cents(d["commission"]), cents(d["stampTax"]), cents(d["transferFee"])))
                        for d in told["deals"])
        same(f"{name} deals of today", deals, listed)


def at(text):
    hour, minute, *second = (int(part) for part in text.split(":"))
    return ((hour * 60 + minute) * 60 + (second[0] if second else 0)) * 1000


def require(holds, what):
    if not holds:
        raise Broken(what)


def read(database):
    """The books that the log of a sandbox.db gives. Raises Broken."""
    connection = sqlite3.connect(f"file:{database}?mode=ro", uri=True)
    try:
        hours, = connection.execute("SELECT value FROM setting WHERE key = 'market hours'").fetchone()
        books = Books(bool(hours))
        books.replay(connection.execute("SELECT seq, time, kind, payload FROM event ORDER BY seq"))
        return books
    finally:
        connection.close()


def main(arguments):
    if len(arguments) not in (1, 2):
        print(__doc__, file=sys.stderr)
        return 2
    try:
        books = read(arguments[0])
    except Broken as broken:
        print(broken)
        return 1
    if len(arguments) == 2:
        with open(arguments[1], encoding="utf-8") as file:
            differences = books.compare(json.load(file)["data"])
    else:
        differences = books.totals()
    print("\n".join(differences) or
          f"{books.events} events, {len(books.orders)} orders, {len(books.deals)} deals: the books agree")
    return 1 if differences else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
