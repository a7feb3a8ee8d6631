"""The program itself: its options, its data directory, its start and its end."""
import os
import ssl
import subprocess
import tempfile
import time
import unittest

from wire import DEMO, PROGRAM, Sandbox


class CommandLineTest(unittest.TestCase):
    def setUp(self):
        self.folder = self.enterContext(tempfile.TemporaryDirectory())
        self.data = ["--data-dir", self.folder, "--port", "0"]

    def start(self, *more, folder=None):
        sandbox = Sandbox(PROGRAM, folder or self.folder, 1, False, *more)
        self.addCleanup(sandbox.stop)
        return sandbox

    def complaint(self, arguments):
        """The one line with which the program gives up."""
        done = subprocess.run([PROGRAM, *arguments], capture_output=True, text=True, timeout=20)
        self.assertEqual((done.returncode, done.stdout, done.stderr.count("\n")), (2, "", 1), (arguments, done.stderr))
        self.assertTrue(done.stderr.startswith("zorvane-sandbox: "), done.stderr)
        return done.stderr

    def test_wrong_options_end_with_one_line(self):
        for arguments in (["--colour"], ["--port"], ["--port", "70000"], ["--port", "x"], ["--port", "-1"],
                          ["--seed", "1.5"], ["extra"], ["--data-dir", ""], ["--data-dir", "/dev/null/x"],
                          self.data + ["--host", "256.1.1.1"], self.data + ["--ready-file", "/no/such/folder/file"]):
            self.complaint(arguments)

    def test_a_damaged_database_is_named_and_left_alone(self):
        for begin in (0, 3 * 4096):
            with tempfile.TemporaryDirectory() as folder:
                sandbox = self.start(folder=folder)
                sandbox.stop()
                with open(sandbox.database, "r+b") as file:
                    file.seek(begin)
                    file.write(b"\xa5" * 8 * 4096)
                    file.seek(0)
                    damaged = file.read()
                self.assertIn("sandbox.db", self.complaint(["--data-dir", folder, "--port", "0"]))
                with open(sandbox.database, "rb") as file:
                    self.assertTrue(file.read() == damaged)

    def test_data_of_another_seed_or_of_other_hours_are_refused(self):
        self.start().stop()
        for other in (["--seed", "2"], ["--market-hours"]):
            self.assertIn("the database was made with", self.complaint(self.data + other))

    def test_a_used_port_and_a_used_folder_are_told_apart(self):
        port = self.start().port
        self.assertIn("another sandbox", self.complaint(self.data))
        with tempfile.TemporaryDirectory() as folder:
            self.assertIn("in use", self.complaint(["--data-dir", folder, "--port", str(port)]))

    def test_a_client_that_trusts_another_authority_gets_no_answer(self):
        trusting = self.start()
        with tempfile.TemporaryDirectory() as folder:
            trusting.context = self.start(folder=folder).context
            with self.assertRaises(ssl.SSLCertVerificationError):
                trusting.get("loanOverview")

    def test_starts_answers_and_ends_on_a_signal_while_a_client_is_connected(self):
        folder, ready_file = (os.path.join(self.folder, name) for name in ("new/data", "ready"))
        sandbox = self.start("--ready-file", ready_file, folder=folder)
        self.assertEqual(sandbox.ready, f"ready https://127.0.0.1:{sandbox.port}/ ca {folder}/ca.pem")
        with open(ready_file, encoding="utf-8") as file:
            self.assertEqual(file.read(), sandbox.ready + "\n")
        self.assertTrue(sandbox.get("loanOverview")["success"])
        began = time.monotonic()
        sandbox.stop()
        self.assertLess(time.monotonic() - began, 3)

    def test_log_lines_carry_no_query_and_no_secret(self):
        sandbox = self.start()
        token = sandbox.sign_in(DEMO)
        sandbox.get("timelyInfo/timelyOrderForm", token, stockCode="000001")
        sandbox.request("GET", "evil%0Apath%1b%5b31m", token=token)
        self.assertTrue(sandbox.printed("GET /timelyInfo/timelyOrderForm 200 "))
        for line in sandbox.log():
            self.assertRegex(line, r"^((GET|POST) /|SMS |ready )[^=\x00-\x1f]*$")
            self.assertNotIn(token, line)

    def test_a_kill_at_any_moment_of_the_first_start_leaves_data_that_the_next_start_makes_good(self):
        for moment in range(12):
            process = subprocess.Popen([PROGRAM, *self.data], stdout=subprocess.DEVNULL)
            time.sleep(moment * 0.012)
            process.kill()
            process.wait()
        user, = self.start().state()["users"]
        self.assertEqual((user["nick"], len(user["holdings"])), ("体验用户", 4))


if __name__ == "__main__":
    unittest.main()
