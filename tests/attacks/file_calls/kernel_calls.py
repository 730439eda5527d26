# SPDX-License-Identifier: GPL-3.0-or-later
"""kernel_calls.py LIBRARY DRIVER: the calls that are counted are those that the kernel gets.

Each life is run under strace; what the kernel was asked of the folder and of the library's counting
have to be the same list, so that no call is left out of a sweep.
"""

import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

import orders
from lives import LIVES
from sweep import Folder, require

SKIPPED = 77

# What a counted call is to the kernel. The C library reads a folder in pieces of its own, and follows
# a link by asking for each of its parts: these are left out on both sides.
TO_THE_KERNEL = {"stat": ["newfstatat"], "open": ["openat"], "opendir": ["openat", "newfstatat"],
                 "closedir": ["close"], "readdir": [], "realpath": []}
UNCOUNTED = ("getdents64", "readlink", "execve")
SAME = {"renameat2": "rename", "faccessat2": "access", "fstat": "newfstatat"}


def asked_of_the_kernel(trace, folder):
    calls = []
    for line in trace.read_text(errors="replace").splitlines():
        call = re.match(r"\w+", line)
        is_below = f'"{folder}' in line or f"<{folder}" in line
        if call and is_below and call[0] not in UNCOUNTED:
            calls.append(SAME.get(call[0], call[0]))
    return calls


def expected_of(counted):
    return [asked for call in counted for asked in TO_THE_KERNEL.get(call, [call])]


def can_trace(work):
    """Whether there is strace, and it may be used here."""
    if shutil.which("strace") is None:
        return False
    tried = subprocess.run(["strace", "-o", f"{work}/tried", "true"], capture_output=True,
                           check=False)
    return tried.returncode == 0


def main(library, driver):
    with tempfile.TemporaryDirectory(prefix="odmiennik-") as work:
        if not can_trace(work):
            print("SKIPPED: strace (Debian package strace) is missing or may not be used here")
            return SKIPPED
        folder = Folder(pathlib.Path(work, "folder"))
        folder.path.mkdir()
        given = orders.Orders(library, f"{work}/orders", folder.path, f"{work}/log")
        for life in LIVES:
            folder.fill(life.files)
            given.give(orders.COUNT)
            told = [f"-E{name}={value}" for name, value in given.environment.items()]
            subprocess.run(["strace", "-y", "-s", "200", "-o", f"{work}/trace", *told, driver,
                            str(folder.path), *life.steps], check=True, stdout=subprocess.DEVNULL)
            counted = expected_of(given.calls())
            asked = asked_of_the_kernel(pathlib.Path(work, "trace"), folder.path)
            require(len(asked) > 20 and asked == counted,
                    f"{life.name}:\nkernel  {asked}\ncounted {counted}")
    return 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
