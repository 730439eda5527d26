# SPDX-License-Identifier: GPL-3.0-or-later
"""sweep.py LIBRARY DRIVER TABLE [--all]: strikes each file call of each life, one after the other.

Whatever is struck, nothing is lost: the program ends by itself (or where it was ended), says what it
could not do, and started again has every record and can save another. TABLE tells the cases tried.
"""

import collections
import errno
import os
import pathlib
import signal
import subprocess
import sys
import tempfile

import orders
from lives import LIVES, record

LIMIT = 20  # seconds for a run of the driver, which takes a few thousandths of one
ERRORS = ("ENOSPC", "EIO", "EACCES", "EINTR", "EROFS", "ESTALE", "ENOMEM", "EMFILE", "EDQUOT")
MOVING = ("read", "write")  # the calls that may move fewer bytes than asked
FURTHER = "vivre"  # the verb that is saved after every restart

UNREADABLE_SETTINGS = "Wystąpił błąd podczas odczytywania pliku konfiguracyjnego."
NOT_SAVED = "Nie można zapisać pliku czasowników użytkownika."


class Fallen(AssertionError):
    """A case in which something was lost or remained unsaid."""


def require(holds, reason):
    if not holds:
        raise Fallen(reason)


class Folder:
    """The program's folder of one case."""

    def __init__(self, path):
        self.path = path

    def fill(self, files):
        for old in self.path.iterdir():
            old.unlink()
        for name, content in files.items():
            (self.path / name).write_bytes(content)

    def read(self, name):
        file = self.path / name
        return file.read_bytes() if file.exists() else None

    def names(self):
        return sorted(file.name for file in self.path.iterdir())

    def kept(self):
        """Everything in the verbs' file and in what was put aside before it lost records."""
        return b"".join(self.read(name) for name in self.names()
                        if name.lower() == "czasowniki.dat" or name.startswith("Czasowniki.bak"))


class Sweep:
    def __init__(self, library, driver, work):
        self._driver = driver
        self._folder = Folder(pathlib.Path(work, "folder"))
        self._folder.path.mkdir()
        self._orders = orders.Orders(library, pathlib.Path(work, "orders"), self._folder.path,
                                     pathlib.Path(work, "log"))
        self.tried = collections.Counter()
        self.failures = []

    def run(self, steps, environment=None):
        """What the driver says of the steps, line by line, and how it ended."""
        ended = subprocess.run([self._driver, str(self._folder.path), *steps], timeout=LIMIT,
                               env=environment or {}, capture_output=True, check=False)
        require(ended.stderr == b"", f"it wrote {ended.stderr[:300]} on the standard error")
        return ended.stdout.decode("utf-8").splitlines(), ended.returncode

    def live(self, life, *order, **values):
        """One life under an order."""
        self._folder.fill(life.files)
        self._orders.give(*order, **values)
        return self.run(life.steps, self._orders.environment)

    def sweep(self, life, cases):
        """Strikes every call of a life in every way of `cases`."""
        said, code = self.live(life, orders.COUNT)
        require(code == 0 and self.is_done(life, said), f"{life.name}: {said}")
        calls = self._orders.calls()
        require(len(calls) == self._orders.counted(), "a call was not written down")
        for case in cases:
            for point, call in enumerate(calls, 1):
                if case.concerns(call):
                    self.strike(life, case, point, calls)
        self.live(life, orders.END, len(calls) + 1)
        require(self._orders.struck() == 0 and self._orders.calls() == calls,
                f"{life.name}: there are more than {len(calls)} calls")

    def strike(self, life, case, point, calls):
        self.tried[life.name, case.name] += 1
        try:
            said, code = self.live(life, case.mode, point, case.times, case.value)
            self.require_that_it_struck(case, point, calls)
            expected = -signal.SIGKILL if case.mode == orders.END else 0
            require(code == expected, f"it ended with {code}")
            self.require_nothing_lost(life, said, code)
            self.require_a_further_life(life, said)
        except (Fallen, subprocess.TimeoutExpired, UnicodeDecodeError) as fall:
            self.failures.append(f"{life.name}, {case.name}, call {point} ({calls[point - 1]}): "
                                 f"{fall}")

    def require_that_it_struck(self, case, point, calls):
        made = self._orders.calls()
        require(made[:point] == calls[:point], "the calls before it were others")
        require(self._orders.struck() >= 1, "nothing was struck")
        if case.mode == orders.END:
            require(len(made) == point, "calls were made after the end")

    def is_done(self, life, said):
        return not any(line.startswith("message") for line in said) and \
            self._folder.read(life.spelling()) == life.after

    def require_nothing_lost(self, life, said, code):
        """Old or new, whole; what is said is true."""
        found = self._folder.read(life.spelling())
        is_blind = any(UNREADABLE_SETTINGS in line for line in said)
        before, kept = life.before or b"", self._folder.kept()
        if life.name == "start after a crash" and found is None:
            kept = self._folder.read("Czas.dat") or b""  # put back by the next start
            found = before
        old_or_new = (life.before, life.after)
        require(found in old_or_new or is_blind, f"the file is neither old nor new: {said}")
        for verb in verbs_of(before):
            is_asked_for = f"delete:{verb}" in life.steps
            require(record(verb) in kept or is_asked_for, f"{verb} is lost: {said}")
        if code == 0:
            self.require_truth(life, said, found, is_blind)

    def require_truth(self, life, said, found, is_blind):
        messages = [line for line in said if line.startswith("message")]
        for line in said:
            step, _, result = line.partition(" ")
            if result in ("appended", "replaced", "deleted"):
                require(found == life.after or is_blind, f"told as {line}, but is not: {said}")
            if result == "failed":
                require(found == life.before, f"told as {line}, but is not: {said}")
                require(any(NOT_SAVED in message for message in messages), f"not told: {said}")
        if "load missing" in said[:-1] or "load wrong" in said:
            require(messages, f"a verb is missing and nothing is told: {said}")

    def require_a_further_life(self, life, said):
        """The program starts again, undisturbed: all is there, and a verb can be saved."""
        held = self._folder.kept()
        if life.name == "start after a crash" and not held:
            held = self._folder.read("Czas.dat")
        said, code = self.run(("start", f"save:{FURTHER}", f"load:{FURTHER}", "list", "exit"))
        require(code == 0 and "save appended" in said, f"no further save: {said}")
        require("load found" in said, f"what was saved is not found: {said}")
        require(not any(line.startswith("message") for line in said), f"the restart says {said}")
        kept = self._folder.kept()
        for verb in (*verbs_of(held), FURTHER):
            require(record(verb) in kept, f"{verb} is lost after the restart")
        left = [name for name in self._folder.names() if ".new" in name]
        require(not left, f"{left} is left behind")


def verbs_of(content):
    """The infinitives of whole records."""
    return list(dict.fromkeys(line.split(b",")[96].decode("ascii")
                              for line in content.split(b"\r\n") if line.count(b",") == 101))


class Case:
    """A way to strike a call."""

    def __init__(self, name, mode, value=0, times=1, only=None):
        self.name, self.mode, self.value, self.times, self.only = name, mode, value, times, only

    def concerns(self, call):
        return self.only is None or call in self.only


def failing(name, times):
    return Case(name if times == 1 else f"{name} twice", orders.FAIL, getattr(errno, name), times)


ENDED = Case("ended", orders.END)
SHORTENED = Case("shortened", orders.SHORTEN, only=MOVING)
SHORT_CASES = (ENDED, failing("EIO", 1), SHORTENED)
ALL_CASES = (ENDED, SHORTENED,
             Case("shortened to a byte", orders.SHORTEN, value=1, only=MOVING),
             *(failing(name, times) for times in (1, 2) for name in ERRORS))


def table(tried, failures):
    """The lines of the table: a row a life, a column a kind of case."""
    columns = {"ended": "ended", "shortened": "shortened", "shortened to a byte": "shortened"}
    rows = collections.defaultdict(collections.Counter)
    for (life, case), number in tried.items():
        rows[life][columns.get(case, "failed twice" if case.endswith("twice") else "failed")] += \
            number
    heads = ("ended", "failed", "failed twice", "shortened")
    yield f"{'file calls':32}" + "".join(f"{head:>14}" for head in heads)
    for life, numbers in rows.items():
        yield f"{life:32}" + "".join(f"{numbers[head]:14}" for head in heads)
    yield f"{sum(tried.values())} cases, {len(failures)} fallen"
    yield from (f"FALLEN: {failure}" for failure in failures[:40])


# Where there is one, in memory: nothing is asked of a disk but its calls, and a disk's fsync is slow.
MEMORY = "/dev/shm"


def main(library, driver, where, is_everything):
    memory = MEMORY if os.access(MEMORY, os.W_OK) else None
    with tempfile.TemporaryDirectory(prefix="odmiennik-", dir=memory) as work:
        sweep = Sweep(library, driver, work)
        for life in LIVES:
            if is_everything or life.short:
                sweep.sweep(life, ALL_CASES if is_everything else SHORT_CASES)
    told = "\n".join(table(sweep.tried, sweep.failures)) + "\n"
    pathlib.Path(where).write_text(told, encoding="utf-8")
    print(told, end="")
    return 1 if sweep.failures or not sweep.tried else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:4], sys.argv[4:] == ["--all"]))
