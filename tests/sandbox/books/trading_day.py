#!/usr/bin/env python3
"""Plays a trading day and the next morning by the rules in docs/sandbox-market.md, through HTTPS alone.

usage: trading_day.py zorvane-sandbox
"""
import sys
import tempfile
import time

import recompute
from recompute import cents, fees, half_up, yuan
from service import Sandbox

PASSWORD = "123456"
CLOSED = "当前为非交易时间，委托时间为交易日9:15至11:30、13:00至15:00"
LOTS = "委托数量须为100股的整数倍"


class Trader:
    def __init__(self, sandbox, token):
        self.sandbox = sandbox
        self.token = token

    def order(self, side, stock, price, shares):
        return self.sandbox.post("entrust/create" + side, self.token, stockCode=stock, entrustPrice=price,
                                 entrustShares=shares, tradePassword=PASSWORD)

    def place(self, side, stock, price, shares):
        """The identifier of an order that must be taken; the price is in cents."""
        answer = self.order(side, stock, yuan(price), shares)
        assert answer["success"], answer
        return answer["data"]["id"]

    def refused(self, side, stock, price, shares, words):
        answer = self.order(side, stock, price, shares)
        assert not answer["success"] and answer["message"] == words, (words, answer)

    def entrust(self, number):
        return next(e for e in self.sandbox.get("entrustsToday", self.token)["data"] if e["id"] == number)

    def status(self, number):
        return int(self.entrust(number)["status"])

    def deals(self, number):
        """Of one order, oldest first: price, shares and the three fees."""
        rows = [d for d in self.sandbox.get("detailsToday", self.token)["data"] if d["entrustId"] == number]
        return [(cents(d["businessPrice"]), int(d["businessShares"]),
                 (cents(d["commission"]), cents(d["stampTax"]), cents(d["transferFee"]))) for d in rows[::-1]]

    def cancel(self, number):
        return self.sandbox.post("entrust/createCancel", self.token,
                                 tradeEntrustNo=self.entrust(number)["entrustNo"])

    def cancelled(self, number):
        return self.sandbox.post("entrust/queryWithDrawStatus", self.token, id=number)["data"]

    def money(self):
        page = self.sandbox.get("zorvanePage", self.token)["data"]
        return cents(page["availableMoney"]), cents(page["frozenMoney"])

    def holding(self, stock):
        rows = self.sandbox.get("holding", self.token)["data"]
        return next((h for h in rows if h["stockCode"] == stock), {"shares": "0", "availableShares": "0"})

    def withdrawable(self):
        return cents(self.sandbox.get("trade/show_withdraw", self.token)["data"]["availableMoney"])


class Day:
    def __init__(self, sandbox):
        self.sandbox = sandbox
        sandbox.freeze()
        self.find_trading_day()
        self.demo = Trader(sandbox, sandbox.sign_in("13800138000"))
        self.rich = self.newcomer("13912345678")
        self.poor = self.newcomer("13912345679")
        sandbox.console("deposit", user=2, amount="600000000")
        held = {h["stockCode"][:2]: h["stockCode"] for h in sandbox.get("holding", self.demo.token)["data"]}
        self.main, self.sealed, self.chinext, self.star = (held[board] for board in ("60", "00", "30", "68"))

    def newcomer(self, cell):
        token = self.sandbox.sign_in(cell)
        self.sandbox.post("user/set_password", token, password=PASSWORD)
        return Trader(self.sandbox, token)

    def find_trading_day(self):
        """Goes on to 9:10 of the next day that is neither in a weekend nor a holiday."""
        now = self.sandbox.now() + recompute.SHANGHAI
        self.midnight = now - now % recompute.DAY - recompute.SHANGHAI
        date = None
        while date != self.sandbox.state()["tradingDay"]:
            self.midnight += recompute.DAY
            self.at("9:10")
            date = time.strftime("%Y%m%d", time.gmtime((self.midnight + recompute.DAY // 2) / 1000))

    def at(self, clock):
        self.sandbox.to(self.midnight + recompute.at(clock))

    def quote(self, stock):
        return self.sandbox.get("timelyInfo/timelyOrderForm", stockCode=stock)["data"]

    def price(self, stock, key):
        return cents(self.quote(stock)[key])

    def level(self, stock, side, line=0):
        row = self.quote(stock)[side + "Pankou"][line]
        return cents(row["price"]), int(row["volume"])

    def play(self):
        self.before_the_auction()
        self.opening_auction()
        self.before_continuous_trading()
        self.refusals()
        self.odd_remainder()
        self.the_last_cent()
        self.the_book()
        self.cancels()
        self.sealed_board()
        self.lunch()
        self.closing_auction()
        self.next_day()
        self.users_among_themselves()

    def before_the_auction(self):
        self.demo.refused("Buy", self.main, "x", 150, CLOSED)
        assert self.quote(self.main)["match"] == "", "no price before the first trade"

    def opening_auction(self):
        self.sandbox.console("seal", stockCode=self.sealed, seal="up")
        self.at("9:15")
        sealed = self.rich.place("Buy", self.sealed, self.price(self.sealed, "upperLimit"), 200_000)
        lower, upper = self.price(self.main, "lowerLimit"), self.price(self.main, "upperLimit")
        modest = self.demo.place("Buy", self.main, lower, 100)
        need = lower * 100 + sum(fees(recompute.BUY, lower * 100))
        assert self.demo.money() == (200_000_00 - need, need), "price x shares and the most its fees can be"
        assert self.demo.cancel(modest)["success"]
        self.at("9:15:01")
        assert self.demo.status(modest) == recompute.CANCELLED and self.demo.money() == (200_000_00, 0)
        many = min(1_000_000, 10_000_000_00 // upper // 100 * 100)
        wants = ((self.demo, 200), (self.rich, many))
        eager = [trader.place("Buy", self.main, upper, shares) for trader, shares in wants]
        modest = self.demo.place("Buy", self.main, lower, 100)

        self.at("9:19:59")
        assert self.rich.cancel(self.rich.place("Buy", self.main, lower, 100))["success"]
        self.at("9:20")
        assert "9:20至9:25" in self.demo.cancel(modest)["message"]
        late = self.demo.place("Buy", self.main, upper, 100)
        self.at("9:24:59")
        assert self.demo.status(late) == recompute.ACCEPTED, "nothing trades before 9:25"
        self.at("9:25")
        price = self.price(self.main, "match")
        for trader, number, shares in ((self.demo, eager[0], 200), (self.rich, eager[1], many),
                                       (self.demo, late, 100)):
            assert [(p, s) for p, s, _ in trader.deals(number)] == [(price, shares)], "one price, in full"
        assert self.demo.status(modest) == recompute.ACCEPTED
        self.modest = modest
        quote = self.quote(self.sealed)
        assert quote["match"] == quote["upperLimit"] and self.level(self.sealed, "sell") == (0, 0), "opens sealed"
        assert self.rich.status(sealed) in (recompute.ACCEPTED, recompute.PARTLY), "at the price there is not enough"
        assert self.rich.cancel(sealed)["success"]

    def before_continuous_trading(self):
        self.at("9:26")
        assert self.demo.cancel(self.modest)["success"]
        held = self.rich.place("Buy", self.main, self.level(self.main, "sell", 3)[0], 100)
        price = self.price(self.star, "match")
        self.sandbox.console("price", stockCode=self.star, price=yuan(price + 9))
        self.at("9:29:59")
        assert self.price(self.star, "match") == price, "the auction's price stands until trading goes on"
        assert not self.demo.cancelled(self.modest), "taken, but not worked on before 9:30"
        assert self.rich.status(held) == recompute.HELD
        self.at("9:30")
        assert self.demo.cancelled(self.modest) and self.demo.status(self.modest) == recompute.CANCELLED
        assert self.rich.status(held) != recompute.HELD
        assert self.price(self.star, "match") == price + 9

    def refusals(self):
        """Each names its rule, of several broken ones the first, and leaves no trace."""
        self.at("10:00")
        quote = self.quote(self.main)
        last, upper, lower = quote["match"], cents(quote["upperLimit"]), cents(quote["lowerLimit"])
        suspended = next(stock["c"] for stock in self.sandbox.get("info")["data"]
                         if self.quote(stock["c"])["suspended"] == "1")
        limits = f"委托价格超出涨跌停范围（{yuan(lower)}至{yuan(upper)}元）"
        odd = "不足100股的余额须一次性卖出，零股为37股"
        before = self.demo.money(), self.sandbox.get("entrustsToday", self.demo.token)["data"]
        for side, stock, price, shares, words in (
                ("Buy", "999999", "x", 150, "证券代码不存在"), ("Buy", suspended, "x", 150, "该股票已停牌，不能交易"),
                ("Buy", self.main, "x", 1_000_150, "单笔委托数量不得超过1000000股"),
                ("Buy", self.chinext, "x", 300_150, "单笔委托数量不得超过300000股"),
                ("Buy", self.star, "x", 100_001, "单笔委托数量不得超过100000股"),
                ("Buy", self.star, "x", 199, "单笔委托数量不得少于200股，以1股递增"),
                ("Buy", self.main, "x", 150, LOTS), ("Sell", self.main, "x", 50, LOTS),
                ("Sell", self.chinext, "x", 36, odd), ("Sell", self.chinext, "x", 1250, odd),
                ("Buy", self.main, "0.001", 900_000, "委托价格须为0.01元的整数倍"),
                ("Buy", self.main, yuan(upper + 1), 900_000, limits),
                ("Sell", self.main, yuan(lower - 1), 5_000, limits),
                ("Sell", self.main, last, 5_000, "可卖股份不足，当前可卖2000股"),
                ("Sell", self.main, last, 2_100, "当日买入的股票下一交易日才能卖出（T+1），当前可卖2000股"),
                ("Buy", self.main, "x", "", "请输入委托数量"), ("Buy", self.main, "", 150, "请输入委托价格"),
                *(("Buy", self.main, "x", shares, "委托数量不正确")
                  for shares in ("0", "-100", "1e2", "１００", "100.0", "9" * 20)),
                *(("Buy", self.main, price, 900_000, "委托价格不正确") for price in ("0", "0.00", "-1", "x", "1,000"))):
            self.demo.refused(side, stock, price, shares, words)
        assert before == (self.demo.money(), self.sandbox.get("entrustsToday", self.demo.token)["data"])
        caged = self.demo.place("Buy", self.main, upper, 100)
        assert self.demo.status(caged) == recompute.REJECTED and "有效申报价格范围" in self.demo.entrust(caged)["errorMsg"]

    def odd_remainder(self):
        alone = self.demo.place("Sell", self.chinext, self.price(self.chinext, "upperLimit"), 137)
        assert self.demo.holding(self.chinext)["availableShares"] == "1100"
        self.demo.refused("Sell", self.chinext, "20.00", 37, LOTS)
        self.demo.cancel(alone)
        self.at("10:00:01")
        whole = self.demo.place("Sell", self.chinext, self.level(self.chinext, "buy", 2)[0], 1237)
        assert self.demo.status(whole) != recompute.REJECTED

    def the_last_cent(self):
        price = self.price(self.main, "lowerLimit")
        need = price * 1000 + sum(fees(recompute.BUY, price * 1000))
        self.sandbox.console("deposit", user=3, amount=yuan(need - 1))
        self.poor.refused("Buy", self.main, yuan(price), 1000,
                          f"可用资金不足，本次委托需冻结{yuan(need)}元（含费用），可用{yuan(need - 1)}元")
        self.sandbox.console("deposit", user=3, amount="0.01")
        self.poor.place("Buy", self.main, price, 1000)
        assert self.poor.money() == (0, need)

    def the_book(self):
        levels = [self.level(self.main, "sell", line) for line in range(3)]
        wanted = levels[0][1] + levels[1][1] + 300
        taken = self.rich.place("Buy", self.main, levels[1][0], wanted)
        deals = self.rich.deals(taken)
        assert [(p, s) for p, s, _ in deals] == levels[:2], "best first, each at its price"
        assert self.rich.status(taken) == recompute.PARTLY
        self.sandbox.restart()
        assert self.level(self.main, "sell") == levels[2], "what was taken stays taken, over a restart too"
        late = self.demo.place("Buy", self.main, levels[1][0], 100)
        assert self.demo.status(late) == recompute.ACCEPTED and self.demo.cancel(late)["success"], "nothing is left"
        money = sum(p * s for p, s, _ in deals)
        assert tuple(map(sum, zip(*(f for *_, f in deals)))) == fees(recompute.BUY, money), "fees of the whole order"
        assert self.rich.cancel(taken)["success"] and self.rich.status(taken) == recompute.CANCEL_ASKED_PARTLY
        self.at("10:00:02")
        assert self.rich.status(taken) == recompute.PARTLY_CANCELLED

    def cancels(self):
        bid = self.level(self.star, "buy", 9)[0]
        lost = self.rich.place("Buy", self.star, bid, 201)
        assert self.rich.cancel(lost)["success"] and not self.rich.cancelled(lost)
        assert not self.rich.cancel(lost)["success"], "asked for once"
        self.sandbox.console("price", stockCode=self.star, price=yuan(bid - 5))
        assert self.rich.cancelled(lost) and self.rich.status(lost) == recompute.FILLED, "the fill came first"
        assert {p for p, *_ in self.rich.deals(lost)} == {bid}, "a resting order trades at its own price"
        assert not self.rich.cancel(lost)["success"]

    def sealed_board(self):
        self.sandbox.console("seal", stockCode=self.star, seal="up")
        upper = self.price(self.star, "upperLimit")
        assert self.level(self.star, "sell") == (0, 0) and self.level(self.star, "buy")[0] == upper
        before, withdrawable = self.demo.money()[0], self.demo.withdrawable()
        sold = self.demo.place("Sell", self.star, upper, 600)
        assert self.demo.status(sold) == recompute.FILLED, "there are buyers enough"
        assert self.demo.money()[0] == before + upper * 600 - sum(fees(recompute.SELL, upper * 600))
        assert self.demo.withdrawable() == withdrawable, "what a sale brought is withdrawn tomorrow"
        self.sandbox.console("seal", stockCode=self.star, seal="none")
        assert self.level(self.star, "sell") != (0, 0)

    def lunch(self):
        self.at("11:29:59")
        taken = self.demo.place("Buy", self.main, self.level(self.main, "sell", 2)[0], 100)
        assert self.demo.status(taken) == recompute.FILLED
        self.at("11:30")
        book = self.quote(self.main) | {"time": ""}
        held = self.demo.place("Buy", self.main, self.level(self.main, "sell", 2)[0], 100)
        assert self.demo.status(held) == recompute.HELD
        self.at("12:59:59")
        assert self.demo.status(held) == recompute.HELD and self.quote(self.main) | {"time": ""} == book
        self.at("13:00")
        assert self.demo.status(held) != recompute.HELD

    def closing_auction(self):
        self.ten_yuan = next(stock["c"] for stock in self.sandbox.get("info")["data"]
                             if stock["c"].startswith("60") and 980 < self.price(stock["c"], "previousClose") < 1020
                             and self.level(stock["c"], "sell") != (0, 0))
        self.rich.place("Buy", self.ten_yuan, self.level(self.ten_yuan, "sell", 3)[0], 1000)
        self.at("14:56:59")
        assert self.demo.cancel(self.demo.place("Buy", self.main, self.price(self.main, "lowerLimit"), 100))["success"]
        self.at("14:57")
        eager = self.demo.place("Buy", self.main, self.price(self.main, "upperLimit"), 100)
        self.expiring = self.demo.place("Buy", self.main, self.price(self.main, "lowerLimit"), 100)
        assert "14:57至15:00" in self.demo.cancel(self.expiring)["message"]
        self.at("14:59:59")
        assert not self.demo.deals(eager)
        self.at("15:00")
        close = self.price(self.main, "match")
        assert [(p, s) for p, s, _ in self.demo.deals(eager)] == [(close, 100)], "the closing price"
        expired = self.demo.entrust(self.expiring)
        assert int(expired["status"]) == recompute.CANCELLED and expired["errorMsg"], "day orders expire"
        assert self.demo.money()[1] == 0 and self.rich.money()[1] == 0
        self.demo.refused("Buy", self.main, yuan(close), 100, CLOSED)
        self.at("23:59:59")
        assert self.demo.holding(self.main)["availableShares"] == "2000", "T+1"

    def next_day(self):
        closes = {stock: self.price(stock, "match") for stock in (self.main, self.sealed, self.star)}
        self.sandbox.console("clock", action="tomorrow")
        self.midnight = self.sandbox.now() - recompute.at("9:15")
        assert closes == {stock: self.price(stock, "previousClose") for stock in closes}, "moved by hand or not"
        held = self.demo.holding(self.main)
        assert held["availableShares"] == held["shares"] != "2000"
        assert self.demo.withdrawable() == self.demo.money()[0]
        assert self.sandbox.get("entrustsToday", self.demo.token)["data"] == []
        self.at("10:00")
        bid = self.level(self.main, "buy")[0]
        sold = self.demo.place("Sell", self.main, bid, 100)
        assert self.demo.status(sold) == recompute.FILLED
        self.sandbox.console("price", stockCode=self.ten_yuan, price="9.95")
        before = self.rich.money()[0]
        sold = self.rich.place("Sell", self.ten_yuan, 1000, 1000)
        self.sandbox.console("price", stockCode=self.ten_yuan, price="10.05")
        assert {p for p, *_ in self.rich.deals(sold)} == {1000} and self.rich.status(sold) == recompute.FILLED
        assert self.rich.money()[0] - before == 9_989_90, "10,000.00 less 5.00, 5.00 and 0.10"

    def users_among_themselves(self):
        """By price, then time, behind what is displayed, at the price of who was there first."""
        (ask, displayed), (dearer, _) = (self.level(self.main, "sell", line) for line in range(2))
        second, third = (trader.place("Sell", self.main, ask, 500) for trader in (self.demo, self.rich))
        dear = self.demo.place("Sell", self.main, dearer, 400)
        assert self.level(self.main, "sell") == (ask, displayed + 1000), "the book shows them"
        self.sandbox.console("deposit", user=3, amount="600000000")
        taken = self.poor.place("Buy", self.main, ask, displayed + 600)
        assert self.poor.status(taken) == recompute.FILLED and {p for p, *_ in self.poor.deals(taken)} == {ask}
        filled = [int(trader.entrust(number)["businessShares"])
                  for trader, number in ((self.demo, second), (self.rich, third), (self.demo, dear))]
        assert filled == [500, 100, 0] and self.level(self.main, "sell") == (ask, 400)
        taken = self.poor.place("Buy", self.main, dearer, 400)
        assert [(p, s) for p, s, _ in self.poor.deals(taken)] == [(ask, 400)], "the better price first"


def main(program):
    with tempfile.TemporaryDirectory() as folder:
        sandbox = Sandbox(program, folder, seed=1, market_hours=True)
        try:
            Day(sandbox).play()
            differences = recompute.read(sandbox.database).compare(sandbox.state())
            assert not differences, "\n".join(differences)
        finally:
            sandbox.stop()


if __name__ == "__main__":
    main(sys.argv[1])
