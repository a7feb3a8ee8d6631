#!/usr/bin/env python3
"""Trades at random over HTTPS, through several days and restarts, and has the books computed again on the way. Then
lives through the same once more, with the time passing in many steps and more restarts: the log must be the same.

usage: random_run.py zorvane-sandbox [--market-hours] [--seed N] [--steps N]
"""
import argparse
import collections
import itertools
import os
import random
import shutil
import signal
import sqlite3
import sys
import tempfile

import recompute
from service import Sandbox

PASSWORD = "123456"
LIMITS = {"60": 10, "00": 10, "30": 20, "68": 20}
DEMO = "13800138000"


def prepare(sandbox):
    """A demo user and two with nothing but money, all signed in; the clock stands still at a day's opening."""
    sandbox.freeze()
    sandbox.console("clock", action="tomorrow")
    tokens = {1: sandbox.sign_in(DEMO)}
    for user in (2, 3):
        tokens[user] = sandbox.sign_in(f"1391234567{user}")
        sandbox.post("user/set_password", tokens[user], password=PASSWORD)
        sandbox.console("deposit", user=user, amount="5000000")
    return tokens


class Run:
    def __init__(self, sandbox, tokens, seed, interrupted):
        self.sandbox = sandbox
        self.tokens = tokens
        self.interrupted = interrupted
        self.random = random.Random(seed)
        self.answers = collections.Counter()
        self.refusals = collections.Counter()
        self.stocks = [h["stockCode"] for h in sandbox.get("holding", tokens[1])["data"]]

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
        seconds = self.random.choice((1, 2, 5, 30, 300, 3600, 20_000))
        end = self.sandbox.now() + 1000 * seconds
        if self.interrupted:
            for part in range(1, min(seconds, 7)):
                self.sandbox.to(end - 1000 * (seconds - seconds * part // 7))
            if seconds > 60:
                self.sandbox.restart(signal.SIGKILL)
        self.sandbox.to(end)

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
            turned_down = self.random.choice(rows)
            self.sandbox.console("reject", user=user, entrustNo=turned_down["entrustNo"])
            orders = next(told["orders"] for told in self.sandbox.state()["users"] if told["id"] == str(user))
            status = next(o["status"] for o in orders if o["id"] == turned_down["id"])
            assert (int(status) == recompute.REJECTED) == (turned_down["businessShares"] == "0"), status

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


def play(options, folder, tokens, interrupted):
    """Answers the log without what tells how the clock was set, the books, and what was answered."""
    sandbox = Sandbox(options.program, folder, options.seed, options.market_hours)
    try:
        run = Run(sandbox, tokens, options.seed, interrupted)
        for step in range(1, options.steps + 1):
            run.step()
            if step % 50 == 0:
                books = run.compare()
    finally:
        sandbox.stop()
    with sqlite3.connect(sandbox.database) as database:
        log = database.execute("SELECT time, kind, payload FROM event WHERE kind <> 'ClockSet' ORDER BY seq").fetchall()
    return log, books, run


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("program")
    parser.add_argument("--market-hours", action="store_true")
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--steps", type=int, default=600)
    options = parser.parse_args()
    with tempfile.TemporaryDirectory() as folder:
        once, again = os.path.join(folder, "once"), os.path.join(folder, "again")
        sandbox = Sandbox(options.program, once, options.seed, options.market_hours)
        try:
            tokens = prepare(sandbox)
        finally:
            sandbox.stop()
        shutil.copytree(once, again)
        log, books, run = play(options, once, tokens, interrupted=False)
        differ = next((pair for pair in itertools.zip_longest(log, play(options, again, tokens, interrupted=True)[0])
                       if pair[0] != pair[1]), None)
        assert differ is None, f"the log depends on how often time was looked at: {differ}"
        expect_noticed(os.path.join(once, "sandbox.db"))
    days = len({day for *_, day in books.deals})
    print(f"{books.events} events, {len(books.orders)} orders, {len(books.deals)} deals on {days} days; "
          f"{dict(run.answers)}; refusals {dict(run.refusals)}")
    assert len(books.deals) > options.steps / 10 and days > 1, "too little was traded to say anything"
    return 0


if __name__ == "__main__":
    sys.exit(main())
