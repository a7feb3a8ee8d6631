"""Who may trade: the trade password of a session, and everybody's orders his own."""
import contextlib
import http.client
import json
import signal
import sqlite3
import threading
import time
import unittest

from wire import DEMO, NEWCOMER, WireTest
import recompute


class TradingTest(WireTest):
    def code(self, **more):
        return json.loads(self.buy(**more).body).get("code", "")

    def test_one_right_password_serves_the_session_and_another_sign_in_or_a_restart_needs_its_own(self):
        self.assertEqual(self.code(), "12000")
        self.assertEqual(self.code(tradePassword="000000"), "12002")
        self.assertEqual(self.data("callBackPage"), [])
        for password in ({"tradePassword": "123456"}, {}):
            self.assertTrue(json.loads(self.buy(**password).body)["success"])
        first, self.token = self.token, self.sandbox.sign_in(DEMO)
        self.assertEqual(self.code(), "12000")
        self.token = first
        self.sandbox.restart()
        self.assertEqual(self.code(), "12000")

    def test_five_wrong_passwords_lock_trading_with_a_message_instead_of_the_code(self):
        for _ in range(4):
            self.assertEqual(self.code(tradePassword="000000"), "12002")
        locked = json.loads(self.buy(tradePassword="000000").body)
        self.assertNotIn("code", locked)
        self.assertIn("15分钟", locked["message"])
        self.assertEqual(self.code(tradePassword="123456"), "")

    def test_a_deal_tells_its_order_under_both_names(self):
        order = json.loads(self.buy("upperLimit", tradePassword="123456").body)["data"]["id"]
        deal = self.data("detailsToday", page=0)[0]
        self.assertEqual((deal["entrustId"], deal["entrutsId"]), (order, order))

    def test_nobody_sees_or_cancels_the_orders_of_another(self):
        order = json.loads(self.buy(tradePassword="123456").body)["data"]
        stranger = self.sandbox.sign_in(NEWCOMER)
        self.assertEqual(self.sandbox.get("entrustsToday", stranger)["data"], [])
        for path, fields in (("createCancel", {"tradeEntrustNo": order["entrustNo"]}),
                             ("queryWithDrawStatus", {"id": order["id"]}), ("queryEntrustNo", {"id": order["id"]})):
            self.assertFalse(self.sandbox.post("entrust/" + path, stranger, **fields)["success"], path)
        self.assertEqual(len(self.data("callBackPage")), 1)

    def sound_books(self):
        books = recompute.read(self.sandbox.database)
        self.assertEqual(books.compare(self.sandbox.state()), [])
        return books

    def test_a_killed_service_has_lost_nothing_that_it_answered(self):
        def trade(caller):
            with contextlib.suppress(OSError, http.client.HTTPException):
                while True:
                    order = json.loads(self.buy(caller=caller, tradePassword="123456").body)["data"]
                    answered.append(int(order["id"]))
                    caller.post("entrust/createCancel", self.token, tradeEntrustNo=order["entrustNo"])
                    caller.console("reject", entrustNo=order["entrustNo"])

        answered = []
        for moment in range(12):
            crowd = [threading.Thread(target=trade, args=[self.sandbox.another()]) for _ in range(4)]
            for caller in crowd:
                caller.start()
            while len(answered) < 8 * (moment + 1):
                time.sleep(0.001)
            self.sandbox.process.kill()
            for caller in crowd:
                caller.join()
            self.sandbox.restart(signal.SIGKILL)
            self.assertLessEqual(set(answered), set(self.sound_books().orders))

    def test_many_callers_at_once_lose_no_order_and_no_change_is_seen_by_halves(self):
        def trade(caller):
            for _ in range(40):
                order = json.loads(self.buy("match", caller, tradePassword="123456").body)["data"]
                caller.post("entrust/createCancel", self.token, tradeEntrustNo=order["entrustNo"])
                caller.console("clock", action="second")
            caller.hang_up()

        self.sandbox.console("deposit", user=1, amount="10000000")
        crowd = [threading.Thread(target=trade, args=[self.sandbox.another()]) for _ in range(4)]
        for caller in crowd:
            caller.start()
        with contextlib.closing(sqlite3.connect(self.sandbox.database)) as reader:
            while any(caller.is_alive() for caller in crowd):
                told, listed = reader.execute("SELECT (SELECT count(*) FROM event WHERE kind = 'OrderTaken'), "
                                              "(SELECT count(*) FROM entrust)").fetchone()
                self.assertEqual(told, listed, "a reader saw half of a change")
        self.assertEqual(len(self.sound_books().orders), 160)


if __name__ == "__main__":
    unittest.main()
