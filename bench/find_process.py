#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""The command that finds forms, as a whole process: processor time and memory.

    bench/find_process.py build/bench/bin/odmien
"""
import os
import statistics
import subprocess
import sys
import time

RUNS = 50
FORMS = ["allions", "mangeassent", "suis", "préférais", "finîmes", "paie", "eût", "parlâmes"]


def run(arguments, text=""):
    """Milliseconds of processor and of the clock of one run."""
    began = time.monotonic()
    process = subprocess.Popen(arguments, stdin=subprocess.PIPE, stdout=subprocess.DEVNULL)
    process.stdin.write(text.encode())
    process.stdin.close()
    _, _, used = os.wait4(process.pid, 0)
    clock = time.monotonic() - began
    return 1000 * (used.ru_utime + used.ru_stime), 1000 * clock


def tell(name, arguments, text=""):
    runs = [run(arguments, text) for _ in range(RUNS)]
    cpu, clock = (statistics.median(column) for column in zip(*runs))
    print(f"{name:24} {cpu:7.2f} ms CPU {clock:7.2f} ms")


def tell_memory(arguments):
    """The most memory of a run that has answered and waits for more."""
    process = subprocess.Popen(arguments, stdin=subprocess.PIPE, stdout=subprocess.PIPE)
    process.stdin.write(b"allions\n")
    process.stdin.flush()
    process.stdout.readline()
    with open(f"/proc/{process.pid}/status", encoding="utf-8") as status:
        most = next(line.split()[1] for line in status if line.startswith("VmHWM"))
    process.communicate()
    print(f"{'memory':24} {int(most) / 1024:7.1f} MB")


def main():
    odmien = sys.argv[1]
    many = "".join(FORMS[i % len(FORMS)] + "\n" for i in range(20_000))
    tell("--version", [odmien, "--version"])
    tell("--find allions", [odmien, "--find", "allions"])
    tell("20,000 forms, text", [odmien, "--find"], many)
    tell("20,000 forms, tsv", [odmien, "--find", "--format", "tsv"], many)
    tell_memory([odmien, "--find"])


main()
