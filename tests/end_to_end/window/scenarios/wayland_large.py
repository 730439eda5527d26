# SPDX-License-Identifier: GPL-3.0-or-later
"""A Wayland desktop that draws everything twice as large on 1366 by 768 pixels."""

import keyboard
from picture import settled
from waiting import wait_for
from wayland import GROUND, PANEL, is_shown

SCREEN = "1366x768"
SCALE = 2
WAYLAND = True


def every_window_fits_below_the_panel(program):
    program.start()
    shown = settled(is_shown)
    assert set(shown.row(SCALE * PANEL)) == {GROUND} == set(shown.row(shown.height - 1))
    room = shown.width // SCALE, shown.height // SCALE - PANEL
    keyboard.keys("ctrl+l")
    listed = program.dialog("Lista czasowników")
    wait_for(listed.is_active, "the list to come forward")
    _, _, width, height = listed.bounds
    assert width <= room[0] and height <= room[1], (width, height)
    assert program.told() == ""
