"""What is on the private screen."""

import os
import pathlib
import struct


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
