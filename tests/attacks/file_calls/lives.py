# SPDX-License-Identifier: GPL-3.0-or-later
"""What a program does with its files from start to end: each life is swept call by call."""

import dataclasses

KEPT = ("aimer", "finir", "rendre")


def record(verb):
    """The line that the driver writes for a verb."""
    slots = [""] * 101
    slots[0] = verb + "e" * 40_000
    slots[96] = verb
    return ("".join(slot + "," for slot in slots) + " 1\r\n").encode("ascii")


def records(*verbs):
    return b"".join(record(verb) for verb in verbs)


def settings(count):
    return f"{count}\r\n255\r\n65280\r\n7\r\n1112\r\n".encode("ascii")


@dataclasses.dataclass(frozen=True)
class Life:
    """The folder before, the steps of the driver, and what the verbs' file holds after them."""

    name: str
    files: dict
    steps: tuple
    after: bytes
    before: bytes = records(*KEPT)  # what the verbs' file holds, or is put back to hold
    short: bool = False  # swept in the short sweep as well

    def spelling(self):
        """The name that the verbs' file has."""
        return next((name for name in self.files if name.lower() == "czasowniki.dat"),
                    "Czasowniki.dat")


def _ordinary(count=3):
    return {"Czasowniki.dat": records(*KEPT), "Werbolin.cfg": settings(count)}


LIVES = (
    Life("save a new verb", _ordinary(), ("start", "save:courir", "exit"),
         records(*KEPT, "courir"), short=True),
    Life("save a verb again", _ordinary() | {"Czas.dat": b"older"},
         ("start", "save:finir", "exit"), records(*KEPT)),
    Life("save the first verb", {}, ("start", "save:courir", "exit"), records("courir"),
         before=None),
    Life("save what is behind the count", _ordinary(count=2), ("start", "save:courir", "exit"),
         records("aimer", "finir", "courir")),
    Life("save under another spelling",
         {"CZASOWNIKI.DAT": records(*KEPT), "WERBOLIN.CFG": settings(3)},
         ("start", "save:courir", "exit"), records(*KEPT, "courir")),
    Life("delete a verb", _ordinary() | {"Czas.dat": b"older"},
         ("start", "delete:finir", "exit"), records("aimer", "rendre")),
    Life("reset the settings", _ordinary(), ("start", "reset"), records(*KEPT)),
    Life("start after a crash",
         {"Czas.dat": records(*KEPT), "Werbolin.cfg": settings(3), "Czasowniki.dat.new": b"half",
          "Werbolin.cfg.new": b"half"},
         ("start", "load:finir", "exit"), records(*KEPT), short=True),
    Life("read the verbs", _ordinary(), ("start", "list", "load:rendre", "load:vivre"),
         records(*KEPT)),
)
