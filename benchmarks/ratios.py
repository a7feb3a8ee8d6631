#!/usr/bin/env python3
"""Reads the benchmarks' JSON on standard input and prints floor, figure and ratio of each pair NAME/floor and NAME/ours."""
import json
import sys

medians = {}
for entry in json.load(sys.stdin)["benchmarks"]:
    if entry.get("aggregate_name") == "median":
        medians[entry["run_name"]] = (entry["real_time"], entry["time_unit"])
for name, (figure, unit) in sorted(medians.items()):
    if "/ours" not in name:
        continue
    floor = medians[name.replace("/ours", "/floor")][0]
    print(f"{name.replace('/ours', ''):<44} {floor:>12.1f} {figure:>12.1f} {unit:<3} {figure / floor:>6.2f} x")
