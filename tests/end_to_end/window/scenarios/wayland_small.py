# SPDX-License-Identifier: GPL-3.0-or-later
"""A Wayland desktop of 800 by 600 pixels with a panel, of which the compositor tells nothing."""

from picture import settled
from wayland import GROUND, PANEL, is_shown

SCREEN = "800x600"
WAYLAND = True
TITLE_BAR, EDGE = 30, 3  # pixels, as Qt draws them


def the_window_leaves_room_for_panel_and_title_bar(program):
    program.start()
    _, _, width, height = program.main_window().bounds
    assert width <= 800 - 2 * EDGE and height <= 600 - PANEL - TITLE_BAR - EDGE, (width, height)


def nothing_of_the_window_is_off_the_screen(program):
    program.start()
    shown = settled(is_shown)
    assert set(shown.row(PANEL)) == {GROUND} == set(shown.row(shown.height - 1))
    # Both edges of its frame are seen, in one colour.
    assert shown.pixel(0, 300) == shown.pixel(shown.width - 1, 300)
