# SPDX-License-Identifier: GPL-3.0-or-later
"""What the library of faulty file calls is told to do, and what it has counted."""

import mmap
import pathlib
import struct

COUNT, END, FAIL, SHORTEN = range(4)
UNTIL_THE_END = 0xFFFFFFFF

_NUMBERS = struct.Struct("<IIIiIII")  # the same layout as in faulty_calls.cpp
_SIZE = _NUMBERS.size + 1000 + 1000


class Orders:
    """The orders to the programs that are started in `environment`.

    They count the calls below `folder` and write the names of the calls into `log`.
    """

    def __init__(self, library, file, folder, log):
        self._log = pathlib.Path(log)
        self._folder = str(folder).encode()
        file = pathlib.Path(file)
        file.write_bytes(bytes(_SIZE))
        self.environment = {"LD_PRELOAD": str(library), "FILE_CALL_ORDERS": str(file)}
        with open(file, "r+b") as opened:
            self._memory = mmap.mmap(opened.fileno(), _SIZE)
        self.give(COUNT)

    def give(self, mode, point=0, times=1, value=0):
        """From now on: strikes `times` calls from the one of number `point` on, counted anew."""
        self._log.write_bytes(b"")
        self._memory[:_NUMBERS.size] = bytes(_NUMBERS.size)  # nothing while the rest is written
        texts = self._folder.ljust(1000, b"\0") + str(self._log).encode().ljust(1000, b"\0")
        self._memory[_NUMBERS.size:] = texts
        self._memory[:_NUMBERS.size] = _NUMBERS.pack(
            mode, point or UNTIL_THE_END, times, value, 0, 0, len(self._folder))

    def stop(self):
        """From now on nothing is struck; what was counted and written down stays."""
        self._memory[:4] = COUNT.to_bytes(4, "little")

    def calls(self):
        """The names of the calls made since the orders were given."""
        return self._log.read_text("ascii").splitlines()

    def counted(self):
        return _NUMBERS.unpack(self._memory[:_NUMBERS.size])[4]

    def struck(self):
        return _NUMBERS.unpack(self._memory[:_NUMBERS.size])[5]
