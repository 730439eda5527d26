#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Times programs from their start to the first pixel of their window, side by side.

window_start.py [-n RUNS] [--most RATIO] PROGRAM... starts the programs in turns on an X server of
its own (Xvfb, no window manager), those for Windows (.exe) under Wine, and prints the medians of
each (by the clock, on the processor, memory) and its ratio to the first one. With --most, a ratio
above it is exit code 1.

Example: window_start.py --most 1.5 build/bin/bare_window build/bin/odmiennik
"""
import argparse
import ctypes
import glob
import os
import signal
import statistics
import subprocess
import sys
import tempfile
import time

WINE = os.path.join(os.path.dirname(__file__), "..", "packaging", "windows", "wine")
WIDTH, HEIGHT = 1024, 768
LIMIT_SECONDS = 60


class Screen:
    """Reads pixels of an X server's screen, which is black where no window has painted."""

    ALL_PLANES, Z_PIXMAP = 0xFFFFFFFF, 2

    def __init__(self, display):
        self.x11 = ctypes.CDLL("libX11.so.6")
        self.x11.XOpenDisplay.restype = ctypes.c_void_p
        self.x11.XDefaultRootWindow.restype = ctypes.c_ulong
        self.x11.XGetImage.restype = ctypes.POINTER(XImage)
        self.connection = ctypes.c_void_p(self.x11.XOpenDisplay(display.encode()))
        if not self.connection:
            sys.exit("the X server cannot be reached")
        self.root = ctypes.c_ulong(self.x11.XDefaultRootWindow(self.connection))

    def is_painted(self):
        """Whether a pixel of the row in the screen's middle is not black."""
        image = self.x11.XGetImage(self.connection, self.root, 0, HEIGHT // 2, WIDTH, 1,
                                   ctypes.c_ulong(self.ALL_PLANES), self.Z_PIXMAP)
        row = ctypes.string_at(image.contents.data, image.contents.bytes_per_line)
        self.x11.XDestroyImage(image)
        return any(row)


class XImage(ctypes.Structure):
    _fields_ = [("width", ctypes.c_int), ("height", ctypes.c_int), ("xoffset", ctypes.c_int),
                ("format", ctypes.c_int), ("data", ctypes.c_void_p), ("byte_order", ctypes.c_int),
                ("bitmap_unit", ctypes.c_int), ("bitmap_bit_order", ctypes.c_int),
                ("bitmap_pad", ctypes.c_int), ("depth", ctypes.c_int),
                ("bytes_per_line", ctypes.c_int)]


def wait_until(condition):
    end = time.monotonic() + LIMIT_SECONDS
    while not condition():
        if time.monotonic() > end:
            sys.exit("nothing appeared on the screen")


def resident_megabytes(process):
    with open(f"/proc/{process.pid}/status", encoding="ascii") as status:
        line = next(line for line in status if line.startswith("VmRSS"))
    return int(line.split()[1]) / 1024


def cpu_milliseconds(process):
    """Time on a processor so far, all threads: steadier than the clock on a busy machine."""
    threads = glob.glob(f"/proc/{process.pid}/task/*/schedstat")
    return sum(int(open(thread, encoding="ascii").read().split()[0]) for thread in threads) / 1e6


def command(program):
    return [WINE, program] if program.endswith(".exe") else [program]


def run_once(program, screen, environment):
    wait_until(lambda: not screen.is_painted())
    start = time.monotonic()
    process = subprocess.Popen(command(program), env=environment)
    try:
        wait_until(screen.is_painted)
        milliseconds = (time.monotonic() - start) * 1000
        return milliseconds, cpu_milliseconds(process), resident_megabytes(process)
    finally:
        process.terminate()
        process.wait()


def start_server():
    reading, writing = os.pipe()
    server = subprocess.Popen(
        ["Xvfb", "-displayfd", str(writing), "-screen", "0", f"{WIDTH}x{HEIGHT}x24", "-noreset"],
        pass_fds=[writing], stderr=subprocess.DEVNULL)
    os.close(writing)
    with os.fdopen(reading) as pipe:
        return server, ":" + pipe.readline().strip()


def measure(programs, runs, display, home):
    environment = {**os.environ, "DISPLAY": display, "QT_QPA_PLATFORM": "xcb", "HOME": home,
                   "XDG_RUNTIME_DIR": home}
    screen = Screen(display)
    figures = {program: [] for program in programs}
    for program in programs:  # warms the file cache
        run_once(program, screen, environment)
    for _ in range(runs):
        for program in programs:
            figures[program].append(run_once(program, screen, environment))
    return figures


def report(figures):
    worst, floor = 0, None
    for program, runs in figures.items():
        middle, cpu, memory = (statistics.median(column) for column in zip(*runs))
        floor = floor or middle
        worst = max(worst, middle / floor)
        print(f"{os.path.basename(program):16} {middle:7.1f} ms  {cpu:7.1f} ms on the processor"
              f"  {memory:5.1f} MB  {middle / floor:.2f} x")
    return worst


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("-n", type=int, default=25, dest="runs")
    parser.add_argument("--most", type=float)
    parser.add_argument("programs", nargs="+")
    options = parser.parse_args()
    server, display = start_server()
    try:
        with tempfile.TemporaryDirectory() as home:
            worst = report(measure(options.programs, options.runs, display, home))
    finally:
        server.send_signal(signal.SIGTERM)
        server.wait()
    return 1 if options.most and worst > options.most else 0


if __name__ == "__main__":
    sys.exit(main())
