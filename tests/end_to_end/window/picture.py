# SPDX-License-Identifier: GPL-3.0-or-later
"""What is on the private screen."""

import os
import pathlib
import struct

from waiting import wait_for


class Picture:
    """The screen at this moment."""

    def __init__(self):
        self._data = pathlib.Path(os.environ["SHOWN"], "Xvfb_screen0").read_bytes()
        fields = struct.unpack(">25I", self._data[:100])  # the head of an X window dump
        self.width, self.height = fields[4:6]
        self._line = fields[12]
        colours, bytes_a_colour = fields[19], 12
        self._start = fields[0] + colours * bytes_a_colour

    def pixel(self, x, y):
        """(red, green, blue)"""
        place = self._start + y * self._line + 4 * x
        blue, green, red = self._data[place:place + 3]
        return red, green, blue

    def row(self, y):
        return [self.pixel(x, y) for x in range(self.width)]

    def __eq__(self, other):
        return self._data == other._data


def settled(is_there):
    """The first picture for which `is_there` and which is followed by one like it."""
    before = [Picture()]

    def is_settled():
        now = Picture()
        is_same = now == before[0]
        before[0] = now
        return is_same and is_there(now)

    wait_for(is_settled, "a picture that stays as it is")
    return before[0]
