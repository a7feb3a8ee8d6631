"""The console in the browser: its pages, its forms, and whom it turns away."""
import unittest

from wire import DEMO, WireTest


class ConsoleTest(WireTest):
    def page(self, path):
        answer = self.sandbox.request("GET", path)
        if answer.status == 303:
            return self.page(answer.headers["Location"][1:])
        self.assertEqual(answer.status, 200, path)
        return answer.body.decode()

    def submit(self, form, **fields):
        """Posts a form and answers the page that it leads to."""
        return self.page(self.sandbox.console(form, **fields))

    def cash(self):
        return self.sandbox.state()["users"][0]["availableMoney"]

    def test_shows_its_pages_and_those_of_the_client(self):
        for path, text in (("", self.sandbox.code_for(DEMO)), ("users", "体验用户"), ("user?id=1", "Holdings"),
                           ("market", "trading day"), ("faults", "drop-after"), ("style.css", "focus-visible")):
            shown = self.page("sandbox/" + path)
            self.assertIn(text, shown, path)
            self.assertNotIn(self.token, shown, path)
        for name in ("recharge_by_bank", "recharge_by_alipay", "about_withdraw_charge", "stock_buy_rules", "super_partner",
                     "guide_pay", "guide_recharge", "guide_supplement_earnest", "software_permission_agreement"):
            self.assertRegex(self.page(f"mobile/{name}.html"), "(?s)<h1>.*getArgs|getArgs.*<h1>")

    def test_its_forms_act(self):
        before = self.sandbox.now()
        self.assertIn("frozen", self.submit("clock", action="minute"))
        self.assertEqual(self.sandbox.now(), before + 60_000)
        self.sandbox.restart()
        self.assertEqual(self.sandbox.now(), before + 60_000)
        self.submit("deposit", user=1, amount="1234.56")
        self.assertEqual(self.cash(), "201234.56")
        unread = self.data("msg/count")
        self.submit("message", user=1, source=200, title="活动", content="内容")
        self.assertEqual(self.data("msg/count"), unread + 1)

    def test_drawn_loss_lines_reach_the_warnings_and_the_state_of_the_account(self):
        def expect(state, warn, close_out):
            self.assertEqual(self.data("userIndex")["userAccountStatus"], state)
            self.assertEqual(self.data("warnInfo"), {"warnLine": warn, "closeOutLine": close_out})
            self.assertEqual(self.data("warn")["warnLine"], warn)

        expect("0", "0.00", "0.00")
        self.submit("lines", user=1, warnLine="900000", closeOutLine="1000.5")
        expect("1", "900000.00", "1000.50")
        self.sandbox.restart()
        expect("1", "900000.00", "1000.50")
        self.submit("lines", user=1, warnLine="900000", closeOutLine="800000")
        expect("2", "900000.00", "800000.00")

    def test_a_bad_entry_comes_back_as_a_note_and_changes_nothing(self):
        before = self.sandbox.now(), self.cash()
        for form, fields in (("deposit", {"user": 1, "amount": "-5"}), ("deposit", {"user": 77, "amount": "5"}),
                             ("lines", {"user": 1, "warnLine": "1", "closeOutLine": "2"}),
                             ("price", {"stockCode": "nope", "price": "1"}), ("clock", {"action": "backwards"}),
                             *(("clock", {"action": "to", "time": time})
                               for time in ("", "2020-01-01T10:00", "2999-01-01T10:00", "2027-02-30T10:00"))):
            self.assertIn("note bad", self.submit(form, **fields), (form, fields))
        self.assertEqual((self.sandbox.now(), self.cash()), before)

    def test_texts_of_users_are_shown_and_not_executed(self):
        self.post("user/set_nick", nick="<b>\"x\"&'y'")
        shown = self.page("sandbox/users?note=%3Cscript%3E")
        self.assertNotIn('<b>"x"', shown)
        self.assertIn("&lt;b&gt;&quot;x&quot;&amp;&#39;y&#39;", shown)
        self.assertIn("&lt;script&gt;", shown)

    def test_refuses_forms_of_other_sites_and_foreign_host_names(self):
        for path in ("deposit", "fault"):
            for origin in ("https://evil.example", "null", "http://127.0.0.1"):
                answer = self.sandbox.request("POST", "sandbox/" + path, {"kind": "clear"}, headers={"Origin": origin})
                self.assertEqual(answer.status, 403, (path, origin))
        for host, status in (("evil.example", 403), ("127.0.0.1.evil.example", 403), ("", 403), ("localhost:8443", 200)):
            self.assertEqual(self.sandbox.request("GET", "sandbox/", headers={"Host": host}).status, status, host)
        own = {"Origin": f"https://127.0.0.1:{self.sandbox.port}"}
        self.assertEqual(self.sandbox.request("POST", "sandbox/clock", {"action": "minute"}, headers=own).status, 303)


if __name__ == "__main__":
    unittest.main()
