"""What the tests over the wire have in common. Each file of tests: FILE zorvane-sandbox [unittest options]"""
import os
import sys
import tempfile
import unittest

sys.path.insert(0, os.path.join(os.path.dirname(__file__), "..", "books"))
from service import Sandbox

DEMO, NEWCOMER = "13800138000", "13912345678"
PROGRAM = sys.argv.pop(1)


class WireTest(unittest.TestCase):
    """A sandbox of its own, whose clock stands still, and the demo user signed in."""

    def setUp(self):
        self.folder = self.enterContext(tempfile.TemporaryDirectory())
        self.sandbox = Sandbox(PROGRAM, self.folder)
        self.addCleanup(self.sandbox.stop)
        self.sandbox.freeze()
        self.token = self.sandbox.sign_in(DEMO)
        self.stock = self.data("holding")[0]["stockCode"]

    def get(self, path, **fields):
        return self.sandbox.get(path, self.token, **fields)

    def data(self, path, **fields):
        return self.get(path, **fields)["data"]

    def post(self, path, /, **fields):
        return self.sandbox.post(path, self.token, **fields)

    def buy(self, price="lowerLimit", caller=None, **more):
        """Buys a stock that the demo user holds, at one of its quote's prices; at the lowest it rests."""
        caller = caller or self.sandbox
        quote = caller.get("timelyInfo/timelyOrderForm", stockCode=self.stock)["data"]
        return caller.request("POST", "entrust/createBuy",
                              {"stockCode": self.stock, "entrustPrice": quote[price], "entrustShares": 100} | more,
                              self.token)
