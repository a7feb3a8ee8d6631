"""The sandbox as a process of its own, and calls to it over HTTPS."""
import copy
import http.client
import json
import os
import signal
import ssl
import subprocess
import tempfile
import time
import urllib.parse


class Sandbox:
    """zorvane-sandbox on a free port. Its clock is changed by to() and clock() only once it is frozen."""

    def __init__(self, program, folder, seed=1, market_hours=False, *more):
        self.folder = folder
        self.command = [program, "--data-dir", folder, "--port", "0", "--seed", str(seed), *more]
        if market_hours:
            self.command.append("--market-hours")
        self.start()

    def start(self):
        self.output = tempfile.NamedTemporaryFile()
        self.process = subprocess.Popen(self.command, stdout=self.output)
        self.ready = self.printed("ready ")
        self.port = int(self.ready.split()[1].rstrip("/").rsplit(":", 1)[1])
        self.context = ssl.create_default_context(cafile=self.ready.split()[3])
        self.connection = None

    def stop(self, how=signal.SIGTERM):
        self.process.send_signal(how)
        status = self.process.wait(timeout=20)
        self.hang_up()
        assert status == 0 or how == signal.SIGKILL, status

    def restart(self, how=signal.SIGTERM):
        self.stop(how)
        self.start()

    def another(self):
        """The same service over a connection of its own."""
        other = copy.copy(self)
        other.connection = None
        return other

    def hang_up(self):
        connection, self.connection = self.connection, None
        if connection:
            connection.close()

    def printed(self, beginning):
        """The last line printed that begins so, without its end; waits for the first one."""
        for _ in range(1500):
            lines = [line for line in self.log() if line.startswith(beginning)]
            if lines:
                return lines[-1]
            if self.process.poll() is not None:
                break
            time.sleep(0.01)
        raise RuntimeError("the sandbox did not print " + beginning)

    def log(self):
        with open(self.output.name, encoding="utf-8") as output:
            return output.read().split("\n")[:-1]

    def code_for(self, cell):
        """The SMS code sent last to the number."""
        return self.printed(f"SMS {cell}: ").split(": ")[1]

    @property
    def database(self):
        return os.path.join(self.folder, "sandbox.db")

    def request(self, method, path, fields=None, token=None, headers=None):
        """The answer with its body read; raises OSError or http.client.HTTPException when there is none.

        The fields of a form are a dictionary, or bytes as they are to travel.
        """
        if self.connection is None:
            self.connection = http.client.HTTPSConnection("127.0.0.1", self.port, context=self.context, timeout=20)
        headers = {"api_token": token} | (headers or {}) if token else headers or {}
        form = fields if isinstance(fields, bytes) else urllib.parse.urlencode(fields or {}).encode()
        if method == "POST":
            headers = {"Content-Type": "application/x-www-form-urlencoded"} | headers
        elif form:
            path += "?" + form.decode()
        try:
            self.connection.request(method, "/" + path, body=form if method == "POST" else None, headers=headers)
            answer = self.connection.getresponse()
            answer.body = answer.read()
            return answer
        except (OSError, http.client.HTTPException):
            self.hang_up()
            raise

    def get(self, path, token=None, /, **fields):
        return json.loads(self.request("GET", path, fields, token).body)

    def post(self, path, token=None, /, **fields):
        return json.loads(self.request("POST", path, fields, token).body)

    def console(self, path, **fields):
        """Posts a form of the console and answers where it leads; it must not be refused by the way it is sent."""
        answer = self.request("POST", "sandbox/" + path, fields)
        assert answer.status == 303, (path, answer.status, answer.body)
        return answer.headers["Location"][1:]

    def state(self):
        return self.get("sandbox/state")["data"]

    def now(self):
        return int(self.state()["clock"]["now"])

    def freeze(self):
        self.console("clock", action="freeze")

    def to(self, milliseconds):
        moment = time.gmtime(milliseconds / 1000 + 8 * 3600)
        self.console("clock", action="to", time=time.strftime("%Y-%m-%dT%H:%M:%S", moment))

    def sign_in(self, cell):
        """Answers the token; registers a new number."""
        started = self.post("user/start", cell=cell)
        verified = self.post("user/verify", bizCode=started["bizCode"], userInput=self.code_for(cell))
        return verified["data"]["api_token"]
