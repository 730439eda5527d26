# SPDX-License-Identifier: GPL-3.0-or-later
"""The window above all others."""

import re
import subprocess

from waiting import wait_equal, wait_for

ABOVE = "_NET_WM_STATE_ABOVE"


def _told(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def _window_id(program):
    name = program.main_window().name
    found = [line.split()[0] for line in _told("wmctrl", "-l").splitlines() if line.endswith(name)]
    assert len(found) == 1, found
    return found[0]


def _property(window, name):
    return _told("xprop", "-id", window, name)


def _is_above(window):
    return ABOVE in _property(window, "_NET_WM_STATE")


def _framed_place(program, window):
    """(left, top, width, height) of the main window with its frame."""
    extents = re.findall(r"\d+", _property(window, "_NET_FRAME_EXTENTS").split("=")[1])
    left, right, top, bottom = (int(extent) for extent in extents)
    x, y, width, height = program.main_window().bounds
    return x - left, y - top, width + left + right, height + top + bottom


def _switch(program, is_on):
    item = program.menu_item("Widok", "Zawsze na wierzchu")
    assert item.has("checked") != is_on
    item.press()
    wait_for(lambda: item.has("checked") == is_on, "the check mark to follow")


def the_window_stays_above_and_covers_the_screen(program):
    program.start()
    window = _window_id(program)
    assert not _is_above(window)
    _switch(program, True)
    wait_for(lambda: _is_above(window), "the window to be above")
    # A little beyond the corner, as large as the screen.
    wait_equal(lambda: _framed_place(program, window), (-4, -4, 1024, 768), "place of the window")
    assert _window_id(program) == window, "the same window as before"
    program.conjugate("finir")
    program.box("Indicatif présent, je").await_text("finis")


def from_maximised_it_is_as_large_as_from_any_other_size(program):
    program.start()
    window = _window_id(program)
    subprocess.run(["wmctrl", "-i", "-r", window, "-b", "add,maximized_vert,maximized_horz"],
                   check=True)
    wait_for(lambda: "MAXIMIZED_VERT" in _property(window, "_NET_WM_STATE"), "the full size")
    _switch(program, True)
    wait_for(lambda: _is_above(window), "the window to be above")
    wait_equal(lambda: _framed_place(program, window), (-4, -4, 1024, 768), "place of the window")
    _switch(program, False)
    wait_equal(lambda: _framed_place(program, window), (0, 0, 1024, 768), "place of the window")


def switched_off_it_moves_into_the_corner(program):
    program.start()
    window = _window_id(program)
    _switch(program, True)
    wait_for(lambda: _is_above(window), "the window to be above")
    _switch(program, False)
    wait_for(lambda: not _is_above(window), "the window to be like others")
    wait_equal(lambda: _framed_place(program, window), (0, 0, 1024, 768), "place of the window")
