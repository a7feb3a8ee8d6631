"""Who may trade: the trade password of a session, and everybody's orders his own."""
import json
import unittest

from wire import NEWCOMER, WireTest


class TradingTest(WireTest):
    def code(self, **more):
        return json.loads(self.buy(**more).body).get("code", "")

    def test_one_right_password_serves_the_session_and_another_sign_in_or_a_restart_needs_its_own(self):
        self.assertEqual(self.code(), "12000")
        self.assertEqual(self.code(tradePassword="000000"), "12002")
        self.assertEqual(self.data("callBackPage"), [])
        for password in ({"tradePassword": "123456"}, {}):
            self.assertTrue(json.loads(self.buy(**password).body)["success"])
        first, self.token = self.token, self.sandbox.sign_in("13800138000")
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


if __name__ == "__main__":
    unittest.main()
