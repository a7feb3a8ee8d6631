"""The sandbox as a process of its own, and calls to it over HTTPS."""
import http.client
import json
import os
import signal
import ssl
import subprocess
import time
import urllib.parse


class Sandbox:
    """zorvane-sandbox on a free port. Its clock is changed by to() and clock() only once it is frozen."""

    def __init__(self, program, folder, seed=1, market_hours=False):
        self.folder = folder
        self.command = [program, "--data-dir", folder, "--port", "0", "--seed", str(seed), "--quiet"]
        if market_hours:
            self.command.append("--market-hours")
        self.start()

    def start(self):
        self.process = subprocess.Popen(self.command, stdout=subprocess.PIPE, text=True)
        self.sms = {}
        while not (line := self.process.stdout.readline()).startswith("ready "):
            if not line:
                raise RuntimeError("the sandbox did not start")
        self.port = int(line.split()[1].rstrip("/").rsplit(":", 1)[1])
        self.context = ssl.create_default_context(cafile=line.split()[3])
        self.connection = None

    def stop(self, how=signal.SIGTERM):
        self.process.send_signal(how)
        self.process.wait(timeout=20)
        self.process.stdout.close()

    def restart(self, how=signal.SIGTERM):
        self.stop(how)
        self.start()

    @property
    def database(self):
        return os.path.join(self.folder, "sandbox.db")

    def request(self, method, path, fields=None, token=None):
        """Status and body of an answer; raises OSError or http.client.HTTPException when there is none."""
        if self.connection is None:
            self.connection = http.client.HTTPSConnection("127.0.0.1", self.port, context=self.context, timeout=20)
        headers = {"api_token": token} if token else {}
        body = None
        if method == "GET" and fields:
            path += "?" + urllib.parse.urlencode(fields)
        elif method != "GET":
            body = urllib.parse.urlencode(fields or {})
            headers["Content-Type"] = "application/x-www-form-urlencoded"
        try:
            self.connection.request(method, "/" + path, body=body, headers=headers)
            answer = self.connection.getresponse()
            return answer.status, answer.read()
        except (OSError, http.client.HTTPException):
            self.connection.close()
            self.connection = None
            raise

    def get(self, path, token=None, **fields):
        return json.loads(self.request("GET", path, fields, token)[1])

    def post(self, path, token=None, **fields):
        return json.loads(self.request("POST", path, fields, token)[1])

    def console(self, path, **fields):
        """Posts a form of the console; it must not be refused by the way it is sent."""
        status, body = self.request("POST", "sandbox/" + path, fields)
        assert status == 303, (path, status, body)

    def state(self):
        return self.get("sandbox/state")["data"]

    def now(self):
        return int(self.state()["clock"]["now"])

    def freeze(self):
        self.console("clock", action="freeze")

    def pass_time(self, milliseconds):
        self.to(self.now() + milliseconds)

    def to(self, milliseconds):
        moment = time.gmtime(milliseconds / 1000 + 8 * 3600)
        self.console("clock", action="to", time=time.strftime("%Y-%m-%dT%H:%M:%S", moment))

    def sign_in(self, cell):
        """Answers the token; registers a new number."""
        started = self.post("user/start", cell=cell)
        line = self.process.stdout.readline()
        while not line.startswith(f"SMS {cell}: "):
            line = self.process.stdout.readline()
        verified = self.post("user/verify", bizCode=started["bizCode"], userInput=line.split(": ")[1].strip())
        return verified["data"]["api_token"]
