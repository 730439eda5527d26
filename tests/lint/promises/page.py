# SPDX-License-Identifier: GPL-3.0-or-later
"""docs/promises.md as data: what is promised, where it stands, and the tests that show it."""

import dataclasses
import re

TEST = re.compile(r"  `([^`]*)`")
NAME = re.compile(r"[\w.]+(/[\w.]+)*")
BEGIN = "- "
GO_ON = "  "


@dataclasses.dataclass
class Promise:
    line: int
    text: str
    tests: list[str]


class Reader:
    """Reads line by line; what is not written as the page says is a fault, so that nothing that
    looks like a promise is passed over."""

    def __init__(self):
        self.promises = []
        self.faults = []
        self._open = None

    def take(self, number, line):
        if line.startswith(BEGIN):
            self._open = Promise(number, line.removeprefix(BEGIN).strip(), [])
            self.promises.append(self._open)
        elif line.startswith(GO_ON):
            self._go_on(number, line)
        else:
            self._open = None
            if re.match(r"[*+] |\d+[.)] |\t|`[^`]*`$", line):
                self._tell(number, "promises begin with '- ' and tests with two blanks")

    def _go_on(self, number, line):
        test = TEST.fullmatch(line)
        if self._open is None:
            self._tell(number, "this line belongs to no promise")
        elif test and not NAME.fullmatch(test[1]):
            self._tell(number, f"{test[1]!r} cannot be the name of a test")
        elif test and test[1] in self._open.tests:
            self._tell(number, f"{test[1]} is named twice")
        elif test:
            self._open.tests.append(test[1])
        elif self._open.tests or "`" in line and "." in line.split("`")[1]:
            self._tell(number, "each test stands alone on its line, behind the whole promise")
        else:
            self._open.text += " " + line.strip()

    def finish(self):
        seen = {}
        for promise in self.promises:
            if not promise.tests:
                self._tell(promise.line, "no test shows this promise")
            if promise.text in seen:
                self._tell(promise.line, f"promised before, in line {seen[promise.text]}")
            seen.setdefault(promise.text, promise.line)

    def _tell(self, number, fault):
        self.faults.append((number, fault))


def read(path):
    """(promises, faults), a fault being (line, sentence)."""
    reader = Reader()
    with open(path, encoding="utf-8") as page:
        for number, line in enumerate(page, 1):
            reader.take(number, line.rstrip("\n"))
    reader.finish()
    return reader.promises, reader.faults
