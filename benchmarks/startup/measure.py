#!/usr/bin/env python3
"""Measures start-up, memory and idle wake-ups of the client against a bare window of the same size.

usage: measure.py BARE CLIENT SANDBOX [RUNS]

Prints one row a figure: floor, figure, ratio (medians over RUNS alternating starts). The client starts signed in, on its
home page, against a sandbox of its own.
"""
import json
import os
import pathlib
import re
import signal
import ssl
import statistics
import subprocess
import sys
import tempfile
import time
import urllib.parse
import urllib.request

ENVIRONMENT = os.environ | {"QT_QPA_PLATFORM": "offscreen", "QT_QUICK_BACKEND": "software"}


def start(command):
    begun = time.monotonic_ns()
    process = subprocess.Popen(command, env=ENVIRONMENT, stdout=subprocess.PIPE, text=True)
    for line in process.stdout:
        found = re.match(r"first_frame_ns (\d+) rss_kb (\d+)", line)
        if found:
            return process, (int(found[1]) - begun) / 1e6, int(found[2]) / 1024
    raise SystemExit(f"{command[0]} ended without a first frame")


def stop(process):
    process.send_signal(signal.SIGTERM)
    process.wait()


def switches(process):
    total = 0
    for task in pathlib.Path(f"/proc/{process.pid}/task").iterdir():
        text = (task / "status").read_text()
        total += int(re.search(r"^voluntary_ctxt_switches:\s+(\d+)", text, re.M)[1])
    return total


def idle_wakeups(command, seconds=10):
    process, _, _ = start(command)
    time.sleep(8)  # let what the start has begun come to an end
    before = switches(process)
    time.sleep(seconds)
    after = switches(process)
    stop(process)
    return after - before


def sandbox(program, folder):
    process = subprocess.Popen([program, "--port", "0", "--data-dir", folder], stdout=subprocess.PIPE, text=True)
    for line in process.stdout:
        if line.startswith("ready"):
            return process, re.search(r"https://\S+", line)[0]
    raise SystemExit("the sandbox did not start")


def signed_in(server, url, authority):
    """Signs the demo user in, as the client does, and gives the token."""
    context = ssl.create_default_context(cafile=authority)

    def post(path, fields):
        body = urllib.parse.urlencode(fields).encode()
        with urllib.request.urlopen(url + path, body, context=context) as answer:
            return json.load(answer)

    post("user/start", {"cell": "13800138000"})
    for line in server.stdout:
        code = re.match(r"SMS 13800138000: (\d{6})", line)
        if code:
            return post("user/verify", {"bizCode": "1002", "userInput": code[1]})["data"]["api_token"]
    raise SystemExit("no code came")


def row(name, floor, figure, unit, budget):
    print(f"{name:<34} {floor:>10.1f} {figure:>10.1f} {unit:<3} {figure / floor:>7.2f} x   budget {budget} x")


def main():
    bare, client, service = sys.argv[1:4]
    runs = int(sys.argv[4]) if len(sys.argv) > 4 else 15
    with tempfile.TemporaryDirectory() as folder:
        server, url = sandbox(service, os.path.join(folder, "sandbox"))
        data = os.path.join(folder, "client")
        os.mkdir(data)
        authority = os.path.join(folder, "sandbox", "ca.pem")
        ours = [client, url, authority, data, signed_in(server, url, authority)]
        frames = {"bare": [], "ours": []}
        memory = {"bare": [], "ours": []}
        for _ in range(runs):
            for name, command in (("bare", [bare]), ("ours", ours)):
                process, milliseconds, megabytes = start(command)
                stop(process)
                frames[name].append(milliseconds)
                memory[name].append(megabytes)
        row("start to first frame of home", statistics.median(frames["bare"]), statistics.median(frames["ours"]), "ms", 1.5)
        row("resident memory on home", statistics.median(memory["bare"]), statistics.median(memory["ours"]), "MB", 1.6)
        floor, figure = idle_wakeups([bare]), idle_wakeups(ours)
        print(f"{'wake-ups of an idle home in 10 s':<34} {floor:>10} {figure:>10}")
        stop(server)


if __name__ == "__main__":
    main()
