"""Messages as lists, and messages and orders as they come over the push stream."""
import http.client
import json
import time
import unittest

from wire import NEWCOMER, WireTest


class Stream:
    """A push stream that is open, or turned away with a status."""

    def __init__(self, sandbox, alias):
        self.connection = http.client.HTTPSConnection("127.0.0.1", sandbox.port, context=sandbox.context, timeout=5)
        self.connection.request("GET", "/sandbox/push", headers={"alias": alias})
        self.answer = self.connection.getresponse()
        self.status = self.answer.status
        if self.status == 200:
            self.answer.readline()  # the first heartbeat, an empty line

    def event(self):
        """The next one; None at the end of the stream."""
        while line := self.answer.readline():
            if line.strip():
                return json.loads(line)
        return None

    def close(self):
        self.answer.close()
        self.connection.close()


class PushTest(WireTest):
    def stream(self, alias):
        stream = Stream(self.sandbox, alias)
        self.addCleanup(stream.close)
        return stream

    def send(self, title, user=1):
        self.sandbox.console("message", user=user, source=100, title=title, content="正文")

    def test_messages_are_listed_by_page_marked_read_and_counted(self):
        demo, self.token = self.token, self.sandbox.sign_in(NEWCOMER)
        self.assertEqual(self.data("msg/count"), 1)
        for number in range(4):
            self.send(f"通知{number}", user=2)

        def page(index, size=3, status=3, source=100):
            return self.data("msg/list", pageIndex=index, pageSize=size, status=status, source=source)

        first, second = page(1), page(2)
        self.assertEqual((first["hasNext"], first["page"], first["data"][0]["title"]), (True, 1, "通知3"))
        self.assertEqual((second["hasNext"], len(second["data"])), (False, 2))
        self.assertEqual(page(1, 100, source=200)["data"], [])
        newest = first["data"][0]["id"]
        self.assertFalse(json.loads(self.sandbox.request("PUT", "msg/mark", {"msgId": newest}, demo).body)["success"])
        self.assertEqual(self.data("msg/count"), 5)
        self.sandbox.request("PUT", "msg/mark", {"msgId": newest}, self.token)
        self.assertEqual(self.data("msg/count"), 4)
        self.assertEqual([message["id"] for message in page(1, 10, status=2)["data"]], [newest])

    def test_messages_and_orders_reach_their_user_only_and_twice_on_demand(self):
        mine, others = self.stream(self.token), self.stream(self.sandbox.sign_in(NEWCOMER))
        self.post("sandbox/fault", kind="duplicate-push")
        self.send("你好")
        order = json.loads(self.buy("upperLimit", tradePassword="123456").body)["data"]
        self.sandbox.console("push-order", user=1, entrustNo=order["entrustNo"])
        first, again, pushed = (mine.event() for _ in range(3))
        self.assertEqual((first["pageId"], first["data"]["title"]), (2, "你好"))
        self.assertEqual(again, first)
        self.assertEqual((pushed["pageId"], pushed["data"]["id"], pushed["data"]["status"]), (3, order["id"], "8"))
        self.sandbox.restart()
        self.assertIsNone(others.event(), "a stream ends with the service")

    def test_streams_are_turned_away_when_forged_or_too_many_and_end_with_their_client(self):
        self.assertEqual(self.stream("off_line").status, 401)
        streams = [self.stream(self.token) for _ in range(32)]
        self.assertEqual({stream.status for stream in streams}, {200})
        self.assertEqual(self.stream(self.token).status, 503)
        self.assertTrue(self.get("loanOverview")["success"], "streams do not starve requests")
        for stream in streams:
            stream.close()
        waiting = time.monotonic() + 5
        while self.sandbox.state()["pushStreams"] > 0 and time.monotonic() < waiting:
            time.sleep(0.01)
        self.assertEqual(self.sandbox.state()["pushStreams"], 0)


if __name__ == "__main__":
    unittest.main()
