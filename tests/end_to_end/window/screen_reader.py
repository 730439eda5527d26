# SPDX-License-Identifier: GPL-3.0-or-later
"""The screen reader Orca beside the program, and what it says."""

import contextlib
import importlib.util
import os
import pathlib
import subprocess
import sys

from desktop import ended
from waiting import Late, wait_for

LIMIT = 40  # seconds; a slow machine speaks late


def obstacle():
    """Why there can be no screen reader here; nothing when there can."""
    missing = [module for module in ("orca", "pyatspi", "gi")
               if importlib.util.find_spec(module) is None]
    return f"{', '.join(missing)} missing (Debian package orca)" if missing else None


class ScreenReader:
    """What is said, in the order of the sentences."""

    def __init__(self, log):
        self._log = log
        self._mark = 0

    def all_said(self):
        """Every sentence since the beginning."""
        return self._log.read_text(encoding="utf-8").splitlines()

    def said(self):
        """The sentences since the last one waited for."""
        return self.all_said()[self._mark:]

    def await_said(self, *parts):
        """Waits until one sentence holds all `parts`; it and those before it count as heard."""
        def is_said():
            for position, sentence in enumerate(self.said()):
                if all(part in sentence for part in parts):
                    self._mark += position + 1
                    return sentence
            return None
        try:
            return wait_for(is_said, f"Orca saying {parts}", LIMIT)
        except Late as late:
            raise Late(f"{late}; it said: {self.said()}") from None


@contextlib.contextmanager
def screen_reader():
    """Orca, ready to speak."""
    home = pathlib.Path(os.environ["HOME"])
    says = home / "said by Orca"
    says.touch()
    starter = pathlib.Path(__file__).with_name("start_orca.py")
    with open(home / "log of Orca", "wb") as log:
        orca = subprocess.Popen(
            [sys.executable, "-B", starter, home / "orca"], stdout=log, stderr=log,
            env=os.environ | {"ORCA_SAYS": str(says), "GSETTINGS_BACKEND": "memory"})
    reader = ScreenReader(says)
    try:
        reader.await_said("Screen reader on")
        yield reader
    finally:
        ended(orca)
        print("\n".join(reader.all_said()))
