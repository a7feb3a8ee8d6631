#!/usr/bin/env python3
"""Trades at random over HTTPS, through several days and restarts, and has the books computed again on the way.

usage: random_run.py zorvane-sandbox [--market-hours] [--seed N] [--steps N]
"""
import argparse
import collections
import os
import random
import signal
import sqlite3
import sys
import tempfile

import recompute
from service import Sandbox

PASSWORD = "123456"
LIMITS = {"60": 10, "00": 10, "30": 20, "68": 20}
DEMO = "13800138000"


class Run:
    def __init__(self, sandbox, seed):
        self.sandbox = sandbox
        self.random = random.Random(seed)
        self.answers = collections.Counter()
        self.refusals = collections.Counter()
        sandbox.freeze()
        sandbox.console("clock", action="tomorrow")
        self.tokens = {1: sandbox.sign_in(DEMO)}
        for user in (2, 3):
            token = sandbox.sign_in(f"1391234567{user}")
            sandbox.post("user/set_password", token, password=PASSWORD)
            sandbox.console("deposit", user=user, amount="5000000")
            self.tokens[user] = token
        self.stocks = [h["stockCode"] for h in sandbox.get("holding", self.tokens[1])["data"]]

    def step(self):
        actions = ((60, self.order), (14, self.cancel), (14, self.wait), (4, self.move), (2, self.seal),
                   (2, self.deposit), (1, self.reject), (1.5, self.next_day), (0.5, self.restart))
        self.random.choices([a for _, a in actions], [w for w, _ in actions])[0]()

    def anybody(self):
        return self.random.choice(list(self.tokens))

    def quote(self):
        stock = self.random.choice(self.stocks)
        quote = self.sandbox.get("timelyInfo/timelyOrderForm", stockCode=stock)["data"]
        close, percent = recompute.cents(quote["previousClose"]), LIMITS[stock[:2]]
        limits = [recompute.yuan(recompute.half_up(close * (100 + way * percent), 100)) for way in (-1, 1)]
        assert [quote["lowerLimit"], quote["upperLimit"]] == limits, quote
        return quote

    def order(self):
        quote = self.quote()
        lower, upper = (recompute.cents(quote[key]) for key in ("lowerLimit", "upperLimit"))
        around = recompute.cents(quote["match"] or quote["previousClose"])
        price = self.random.choice([around + self.random.randint(-8, 8)] * 8 +
                                   [self.random.randint(lower - 3, upper + 3), upper])
        shares = self.random.choice([100 * self.random.randint(1, 80)] * 9 + [self.random.randint(1, 900)])
        answer = self.sandbox.post("entrust/create" + self.random.choice(("Buy", "Sell")),
                                   self.tokens[self.anybody()], stockCode=quote["stockCode"],
                                   entrustPrice=recompute.yuan(price), entrustShares=shares,
                                   tradePassword=PASSWORD)
        self.answers["taken" if answer["success"] else "refused"] += 1
        if not answer["success"]:
            assert answer["message"], "a refusal names its rule"
            self.refusals[answer["message"][:6]] += 1
            if "非交易时间" in answer["message"]:
                self.next_day()

    def cancel(self):
        token = self.tokens[self.anybody()]
        rows = self.sandbox.get("callBackPage", token)["data"]
        if rows:
            self.sandbox.post("entrust/createCancel", token,
                              tradeEntrustNo=self.random.choice(rows)["entrustNo"])

    def wait(self):
        self.sandbox.pass_time(1000 * self.random.choice((1, 2, 5, 30, 300, 3600)))

    def move(self):
        quote = self.quote()
        lower, upper = (recompute.cents(quote[key]) for key in ("lowerLimit", "upperLimit"))
        self.sandbox.console("price", stockCode=quote["stockCode"],
                             price=recompute.yuan(self.random.randint(lower, upper)))

    def seal(self):
        self.sandbox.console("seal", stockCode=self.random.choice(self.stocks),
                             seal=self.random.choice(("up", "down", "none")))

    def deposit(self):
        self.sandbox.console("deposit", user=self.anybody(),
                             amount=recompute.yuan(self.random.randint(1, 1_000_000)))

    def reject(self):
        user = self.anybody()
        rows = self.sandbox.get("callBackPage", self.tokens[user])["data"]
        if rows:
            self.sandbox.console("reject", user=user, entrustNo=self.random.choice(rows)["entrustNo"])

    def next_day(self):
        self.sandbox.console("clock", action="tomorrow")

    def restart(self):
        before = self.sandbox.state()["users"]
        self.sandbox.restart(self.random.choice((signal.SIGTERM, signal.SIGKILL)))
        assert self.sandbox.state()["users"] == before, "a restart changed the books"
        for user, token in self.tokens.items():
            assert self.sandbox.get("userIndex", token)["success"], "a restart signed a user out"

    def compare(self):
        """Answers the books; raises AssertionError where they and the service disagree."""
        state = self.sandbox.state()
        books = recompute.read(self.sandbox.database)
        differences = books.compare(state)
        assert not differences, "\n".join(differences)
        for told in state["users"]:
            token = self.tokens[int(told["id"])]
            page = self.sandbox.get("zorvanePage", token)["data"]
            profit = sum(recompute.cents(h["profitMoney"]) for h in told["holdings"])
            assert page["profit"] == recompute.yuan(profit), "the profit is not the sum of the holdings'"
            assert page["stocks"] == told["holdings"] == self.sandbox.get("holding", token)["data"]
            assert page["availableMoney"] == self.sandbox.get("buyPage", token)["data"] == told["availableMoney"]
        return books


def expect_noticed(database):
    """The program that computes again must not agree with just anything."""
    forgeries = ("UPDATE event SET payload = json_set(payload, '$.commission', 499) WHERE kind = 'OrderFilled'",
                 "UPDATE event SET payload = json_set(payload, '$.frozenDelta', 0) WHERE kind = 'OrderFilled'",
                 "DELETE FROM event WHERE kind = 'OrderClosed'")
    for forgery in forgeries:
        with tempfile.TemporaryDirectory() as folder:
            copy = os.path.join(folder, "forged.db")
            with sqlite3.connect(copy) as forged:
                sqlite3.connect(database).backup(forged)
                forged.execute(forgery)
            try:
                recompute.read(copy)
            except recompute.Broken:
                continue
            raise AssertionError(forgery + " went unnoticed")


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("program")
    parser.add_argument("--market-hours", action="store_true")
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--steps", type=int, default=600)
    options = parser.parse_args()
    with tempfile.TemporaryDirectory() as folder:
        sandbox = Sandbox(options.program, folder, options.seed, options.market_hours)
        try:
            run = Run(sandbox, options.seed)
            for step in range(1, options.steps + 1):
                run.step()
                if step % 50 == 0:
                    books = run.compare()
        finally:
            sandbox.stop()
        expect_noticed(sandbox.database)
    days = len({day for *_, day in books.deals})
    print(f"{books.events} events, {len(books.orders)} orders, {len(books.deals)} deals on {days} days; "
          f"{dict(run.answers)}; refusals {dict(run.refusals)}")
    assert len(books.deals) > options.steps / 10 and days > 1, "too little was traded to say anything"
    return 0


if __name__ == "__main__":
    sys.exit(main())
