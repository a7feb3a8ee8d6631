"""Registration, signing in, the trade password and its reset, and what is kept of them."""
import json
import os
import pathlib
import unittest

from wire import DEMO, NEWCOMER, WireTest

CARD_CELL = "13712345678"


class AccountTest(WireTest):
    def register(self, cell, sms=None, invite=""):
        if sms is None:
            self.assertEqual(self.post("user/start", cell=cell)["data"]["bizCode"], "1001")
            sms = self.sandbox.code_for(cell)
        answer = self.post("user/verify", bizCode="1001", userInput=sms, inviteCode=invite)
        if answer["success"]:
            self.token = answer["data"]["api_token"]
        return answer

    def expect_step(self, step):
        self.assertEqual(self.data("trade/recharge")["next_step"], step)

    def test_a_new_number_registers_takes_every_step_and_signs_in_again(self):
        registered = self.register(NEWCOMER)["data"]
        self.assertEqual((registered["has_register"], registered["cell"], registered["nick"]), ("0", NEWCOMER, ""))
        self.expect_step(2)
        self.post("user/set_nick", nick="小雨")
        self.expect_step(3)
        self.post("user/set_password", password="246810")
        self.assertFalse(self.post("user/set_password", password="111111")["success"])
        self.expect_step(4)
        self.post("user/set_real_name", realName="李小雨", idCard="11010119900307123x")
        self.expect_step(5)
        bound = self.post("user/bind_card", province="浙江省", city="杭州市", cardNo="6222021234567890", cell=CARD_CELL,
                          channelCode="CMB")
        self.post("user/verify_bind", orderId=bound["data"]["order_id"], code=self.sandbox.code_for(CARD_CELL),
                  cell=CARD_CELL)
        self.expect_step(6)
        self.assertEqual(self.data("trade/recharge")["endNumber"], "7890")
        self.assertEqual(self.post("user/start", cell=NEWCOMER)["bizCode"], "1002")
        again = self.post("user/verify", bizCode="1002", userInput=self.sandbox.code_for(NEWCOMER))["data"]
        self.assertEqual((again["has_register"], again["nick"]), ("1", "小雨"))

    def test_an_invite_code_must_belong_to_somebody_and_does_not_cost_the_sms_code(self):
        invite = self.register(NEWCOMER)["data"]["inviteCode"]
        self.assertFalse(self.register("13912345679", invite="NOBODYHAS")["success"])
        self.assertTrue(self.register("13912345679", self.sandbox.code_for("13912345679"), invite)["success"])

    def start_reset(self):
        self.post("user/update_password_sms")
        return {"bizCode": "1003", "userInput": self.sandbox.code_for(DEMO)}

    def test_a_forgotten_trade_password_is_reset_step_by_step_and_in_no_other_order(self):
        self.assertTrue(self.get("user/can_update_password")["success"])
        code = self.start_reset()
        identity, password = {"idCard": "110101199003070011"}, {"password": "654321"}
        for path, fields, taken in (("update_password", password, False), ("verify_id_card", identity, False),
                                    ("verify", code, False), ("update_verify", code, True),
                                    ("update_password", password, False),
                                    ("verify_id_card", {"idCard": "110101199003070029"}, False),
                                    ("verify_id_card", identity, True), ("update_password", {"password": "12345"}, False),
                                    ("update_password", password, True), ("update_password", password, False)):
            self.assertEqual(self.post("user/" + path, **fields)["success"], taken, path)
        self.assertEqual(self.buy(tradePassword="123456").status, 200)
        self.assertEqual(len(self.data("callBackPage")), 0)
        self.buy(tradePassword="654321")
        self.assertEqual(len(self.data("callBackPage")), 1)

    def test_a_reset_goes_on_after_a_restart_and_ends_with_the_fifth_wrong_identity_number(self):
        self.post("user/update_verify", **self.start_reset())
        self.sandbox.restart()
        wrong, start_again = {"idCard": "110101199003070029"}, "请先验证手机验证码"
        other = self.sandbox.sign_in(DEMO)
        self.assertEqual(self.sandbox.post("user/verify_id_card", other, **wrong)["message"], start_again)
        for left in range(4, 0, -1):
            self.assertEqual(self.post("user/verify_id_card", **wrong)["message"],
                             f"证件号码与实名认证时不一致，还可以输入{left}次")
        self.assertEqual(self.post("user/verify_id_card", **wrong)["message"], "证件号码错误次数过多，请重新验证手机")
        self.assertEqual(self.post("user/verify_id_card", idCard="110101199003070011")["message"], start_again)

    def test_an_identity_number_may_end_in_a_small_x(self):
        self.register(NEWCOMER)
        self.post("user/set_password", password="246810")
        self.post("user/set_real_name", realName="李小雨", idCard="11010119900307123x")
        self.post("user/update_password_sms")
        self.post("user/update_verify", bizCode="1003", userInput=self.sandbox.code_for(NEWCOMER))
        self.assertTrue(self.post("user/verify_id_card", idCard="11010119900307123X")["success"])

    def test_a_picture_is_kept_and_anything_else_refused(self):
        def upload(content):
            body = (b'--x\r\nContent-Disposition: form-data; name="kind"\r\n\r\nportrait\r\n--x\r\n'
                    b'Content-Disposition: form-data; name="file"; filename="me.png"\r\nContent-Type: image/png\r\n\r\n' +
                    content + b"\r\n--x--\r\n")
            return json.loads(self.sandbox.request("POST", "image/upload", body, self.token,
                                                   {"Content-Type": "multipart/form-data; boundary=x"}).body)

        kept = upload(b"\x89PNG\r\n\x1a\n" + bytes(100_000))
        self.assertTrue(os.path.exists(os.path.join(self.folder, "images", kept["data"]["image_id"] + ".png")))
        self.assertFalse(upload(b"#!/bin/sh")["success"])
        self.assertFalse(self.post("image/upload", kind="portrait")["success"])

    def test_neither_tokens_nor_identity_numbers_are_readable_in_the_database(self):
        stored = b"".join(pathlib.Path(self.sandbox.database + suffix).read_bytes() for suffix in ("", "-wal"))
        self.assertIn(DEMO.encode(), stored)
        self.assertNotIn(self.token.encode(), stored)
        self.assertNotIn(b"110101199003070011", stored)


if __name__ == "__main__":
    unittest.main()
