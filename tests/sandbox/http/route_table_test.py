"""Every route, called well and badly. Each row is a method, a path, and the form of a well-meant call."""
import http.client
import json
import os
import tempfile
import unittest
import urllib.parse

from wire import DEMO, PROGRAM, Sandbox

FOR_ALL = """
POST user/start cell=13912345678
POST user/verify bizCode=1001&userInput=123456&inviteCode=
GET index/bank_list
GET info
GET timelyInfo/timelyOrderForm stockCode=000001
GET stockDetailPage stockCode=000001
GET loanOverview
GET recentLoans
"""
FOR_USERS = """
POST user/set_nick nick=小雨
POST user/set_real_name realName=李小雨&idCard=110101199003071234
POST user/bind_card province=浙江&city=杭州&cardNo=6222021234567890&cell=13912345678&channelCode=CMB
POST user/verify_bind orderId=1&code=123456&cell=13912345678
POST user/set_password password=123456
POST user/update_password_sms
POST user/update_verify bizCode=1003&userInput=123456
POST user/verify_id_card idCard=110101199003071234
POST user/update_password password=123456
GET user/can_update_password
POST image/upload kind=portrait
GET zorvanePage
GET buyPage
GET holding
GET callBackPage
GET entrustsToday page=0
GET detailsToday page=0
GET warnInfo
POST entrust/createBuy stockCode=000001&entrustShares=100&entrustPrice=1&tradePassword=123456
POST entrust/createSell stockCode=000001&entrustShares=100&entrustPrice=1&tradePassword=123456
POST entrust/createCancel tradeEntrustNo=1
POST entrust/queryEntrustNo id=1
POST entrust/queryWithDrawStatus id=1
GET trade/recharge
POST trade/recharge amount=100&loanId=
POST trade/verify_recharge orderId=1
GET trade/show_withdraw
POST trade/withdraw amount=100&tradePass=123456
GET trade/query_order_status orderId=1
GET walletRecords page=1
GET commissions page=1
GET userIndex
GET safeMoney2Supplement
GET warn
GET msg/list pageIndex=1&pageSize=100&status=3&source=100
PUT msg/mark msgId=1
GET msg/count
"""
PROTOCOL = os.path.join(os.path.dirname(__file__), "../../../docs/protocol.md")


def rows(table):
    return [(line + " ").split(" ")[:3] for line in table.strip().split("\n")]


class RouteTableTest(unittest.TestCase):
    """One service for the whole table: it has to stand all of it."""

    @classmethod
    def setUpClass(cls):
        cls.folder = cls.enterClassContext(tempfile.TemporaryDirectory())
        cls.sandbox = Sandbox(PROGRAM, cls.folder)
        cls.addClassCleanup(cls.sandbox.stop)
        cls.token = cls.sandbox.sign_in(DEMO)

    def send(self, method, path, form, token=None, **headers):
        return self.sandbox.request(method, path, form.encode() if isinstance(form, str) else form,
                                    self.token if token is None else token, headers)

    def unknown(self):
        return self.sandbox.state()["unknown"]

    def nick(self):
        return self.sandbox.get("userIndex", self.token)["data"]["asset"]["nick"]

    def test_every_route_is_described_and_answers_with_an_envelope(self):
        with open(PROTOCOL, encoding="utf-8") as file:
            protocol = file.read()
        before = self.unknown()["count"]
        for method, path, form in rows(FOR_ALL + FOR_USERS.lstrip()):
            self.assertIn(f"`{method} {path}`", protocol)
            answer = self.send(method, path, form)
            envelope = json.loads(answer.body)
            self.assertEqual((answer.status, answer.headers["Content-Type"]), (200, "application/json; charset=utf-8"), path)
            self.assertIsInstance(envelope["success"], bool, path)
            self.assertTrue(envelope["success"] or path == "info" or envelope["message"], path)
        self.assertEqual(self.unknown()["count"], before)

    def test_signed_out_callers_are_asked_to_sign_in(self):
        for forged in ("", "stale", "0" * 64):
            for method, path, form in rows(FOR_USERS):
                envelope = json.loads(self.send(method, path, form, forged).body)
                self.assertEqual((envelope["success"], envelope["message"]), (False, "请先登录"), path)

    def test_no_route_breaks_on_missing_overlong_or_hostile_fields(self):
        long_text = "7" * 10_000
        values = ("", "  ", long_text, "-1", "9" * 20, "1e308", "\0", "'\";--", "😀", "１２", "0x10", "1.005")
        for method, path, form in rows(FOR_ALL + FOR_USERS.lstrip()):
            self.assertIsInstance(json.loads(self.send(method, path, "").body), dict, path)
            fields = dict(urllib.parse.parse_qsl(form, keep_blank_values=True))
            for name in fields:
                for value in values:
                    answer = self.send(method, path, urllib.parse.urlencode(fields | {name: value}))
                    self.assertTrue(answer.status == 200 or answer.status == 414 and value == long_text, (path, name))
                    self.assertIsInstance(json.loads(answer.body), dict, (path, name))
        self.assertTrue(self.sandbox.get("userIndex", self.token)["success"])

    def test_a_form_is_read_as_it_was_written_or_not_at_all(self):
        self.send("POST", "user/set_nick", "&=&nick=%E4%BD%A0+x=1&&nick=second")
        self.assertEqual(self.nick(), "你 x=1")
        for form in (b"nick=%", b"nick=%4", b"nick=%zz", b"nick=%ff%fe", b"nick=%C0%AF", b"nick=%ED%A0%80", b"nick=\xff"):
            answer = self.send("POST", "user/set_nick", form)
            self.assertEqual(answer.status, 400, form)
            self.assertTrue(json.loads(answer.body)["message"], form)
        for content_type, body, status in (("application/json", b'{"nick":"a"}', 415),
                                           ("multipart/form-data; boundary=x", b"--x\r\nbroken", 400)):
            answer = self.send("POST", "user/set_nick", body, **{"Content-Type": content_type})
            self.assertEqual(answer.status, status)
        try:
            self.assertEqual(self.send("POST", "user/set_nick", "nick=" + "a" * 9 * 1024 * 1024).status, 413)
        except (OSError, http.client.HTTPException):
            pass  # turned away before all of it was sent
        self.assertEqual(self.nick(), "你 x=1")

    def test_unknown_paths_and_methods_are_counted(self):
        before = self.unknown()["count"]
        for method, path, status in (("GET", "no/such/path", 404), ("GET", "entrust/createBuy", 405), ("POST", "nothing", 404),
                                     ("GET", "x" * 5000, 404), ("GET", "info/", 404)):
            self.assertEqual(self.send(method, path, "").status, status, path)
        unknown = self.unknown()
        self.assertEqual(unknown["count"], before + 5)
        self.assertEqual(unknown["latest"][-5], "GET no/such/path")

    def test_the_stock_list_comes_once_and_then_only_its_version(self):
        def info(version):
            return json.loads(self.send("GET", "info", "", "", info_version=version).body)

        stocks = info("0")
        self.assertEqual((stocks["success"], stocks["message"]), (False, ""))
        self.assertGreater(len(stocks["data"]), 4000)
        for row in stocks["data"]:
            self.assertTrue(len(row["c"]) == 6 and row["n"] and row["s"], row)
        same = info(stocks["code"])
        self.assertTrue(same["success"])
        self.assertNotIn("data", same)


if __name__ == "__main__":
    unittest.main()
