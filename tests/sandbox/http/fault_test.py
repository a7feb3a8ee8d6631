"""Calls that go wrong on demand: exactly what is lost, late or spoilt, and whether its work is done."""
import http.client
import json
import threading
import time
import unittest

from wire import WireTest


class FaultTest(WireTest):
    def setUp(self):
        super().setUp()
        self.other = self.sandbox.another()
        self.addCleanup(self.other.hang_up)

    def add(self, kind, path="entrust/createBuy", **more):
        self.assertTrue(self.post("sandbox/fault", kind=kind, path=path, **more)["success"])

    def answer(self):
        """Of a buy that rests; None when there is none."""
        try:
            return self.buy(tradePassword="123456")
        except (OSError, http.client.HTTPException):
            return None

    def spoilt(self, kind, **more):
        self.add(kind, **more)
        return self.answer()

    def open_orders(self):
        return len(self.other.get("callBackPage", self.token)["data"])

    def expect_open(self, count):
        self.assertEqual(self.open_orders(), count)

    def test_what_is_dropped_before_acceptance_is_not_in_the_books_and_what_is_dropped_after_it_is(self):
        self.add("drop-before", count=25)
        self.assertEqual([self.answer() for _ in range(25)], [None] * 25)
        self.expect_open(0)
        self.add("drop-after", "entrust/*", count=25, delay=5)
        self.assertEqual([self.answer() for _ in range(25)], [None] * 25)
        self.assertTrue(self.answer())
        self.assertEqual(len(self.sandbox.state()["users"][0]["orders"]), 26)

    def test_a_late_answer_is_of_an_order_that_was_taken_at_once_unless_its_acceptance_is_late(self):
        for kind, meanwhile, at_last in (("delay", 1, 1), ("delay-before", 1, 2)):
            self.add(kind, delay=700)
            late = threading.Thread(target=self.answer)
            late.start()
            seen = []
            while late.is_alive():
                seen.append(self.open_orders())
                time.sleep(0.02)
            self.assertEqual(seen[len(seen) // 2], meanwhile, kind)
            self.expect_open(at_last)

    def test_answers_are_spoilt_as_asked_after_the_order_was_taken_or_instead_of_it(self):
        self.assertEqual(self.spoilt("status", status=503).status, 503)
        self.assertEqual(json.loads(self.spoilt("refuse", message="维护中").body)["message"], "维护中")
        self.expect_open(0)
        with self.assertRaises(ValueError):
            json.loads(self.spoilt("garbage").body)
        self.assertEqual(self.spoilt("content-type").headers["Content-Type"], "application/octet-stream")
        self.assertIsNone(self.spoilt("truncate"))
        self.expect_open(3)

    def test_counts_down_and_is_cleared(self):
        def status(path):
            return self.sandbox.request("GET", path, token=self.token).status

        self.add("status", "userIndex", count=2, status=500)
        self.assertEqual([status("userIndex") for _ in range(3)], [500, 500, 200])
        self.add("status", "*", count=100)
        self.assertEqual((status("userIndex"), status("sandbox/state")), (500, 200))
        self.add("clear", "")
        self.assertEqual(status("userIndex"), 200)
        self.assertFalse(self.post("sandbox/fault", kind="earthquake")["success"])

    def test_a_stopping_service_does_not_wait_for_delayed_calls(self):
        self.add("delay", delay=60_000)
        late = threading.Thread(target=self.answer)
        late.start()
        time.sleep(0.1)
        began = time.monotonic()
        self.sandbox.stop()
        late.join()
        self.assertLess(time.monotonic() - began, 5)


if __name__ == "__main__":
    unittest.main()
