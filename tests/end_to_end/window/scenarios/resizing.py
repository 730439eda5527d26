# SPDX-License-Identifier: GPL-3.0-or-later
"""The layout follows the window's size."""

import subprocess

from waiting import wait_for

SCREEN = "1366x900"


def _place(program):
    """The window's inside and all boxes, as (x, y, width, height)."""
    inside = next(part for part in program.main_window().children() if part.role == "filler")
    return inside.bounds, [box.bounds for box in program.boxes()]


def _resize(program, width, height):
    before = _place(program)
    subprocess.run(["wmctrl", "-r", program.main_window().name, "-e", f"0,20,20,{width},{height}"],
                   check=True)
    wait_for(lambda: _is_settled(program, before), f"the layout at {width}x{height}")
    return _place(program)


def _is_settled(program, before):
    """Whether the boxes have another size than before, and keep it."""
    now = _place(program)
    return now[1][0][2:] != before[1][0][2:] and now == _place(program)


def _overlap(one, other):
    return (one[0] < other[0] + other[2] and other[0] < one[0] + one[2]
            and one[1] < other[1] + other[3] and other[1] < one[1] + one[3])


def _check_nothing_overlaps(inside, boxes):
    for position, box in enumerate(boxes):
        assert inside[0] <= box[0] and box[0] + box[2] <= inside[0] + inside[2], box
        assert inside[1] <= box[1] and box[1] + box[3] <= inside[1] + inside[3], box
        for other in boxes[position + 1:]:
            assert not _overlap(box, other), (box, other)


def boxes_grow_with_the_window(program):
    program.start()
    inside, boxes = _place(program)
    grown_inside, grown = _resize(program, 1200, 800)
    across, down = grown_inside[2] / inside[2], grown_inside[3] / inside[3]
    assert across > 1.2 and down > 1.2
    for before, after in zip(boxes, grown):
        expected = ((before[0] - inside[0]) * across, (before[1] - inside[1]) * down,
                    before[2] * across, before[3] * down)
        found = (after[0] - grown_inside[0], after[1] - grown_inside[1], after[2], after[3])
        for wanted, got in zip(expected, found):
            assert abs(wanted - got) <= 1.5, (before, after)
    _check_nothing_overlaps(grown_inside, grown)


def growing_and_shrinking_leads_back(program):
    program.start()
    inside, boxes = _place(program)
    frame_height = 22
    for _ in range(3):
        _resize(program, 1200, 800)
        back_inside, back = _resize(program, inside[2], inside[3] + frame_height)
    for before, after in zip(boxes, back):
        for wanted, got in zip(before[2:], after[2:]):
            assert abs(wanted - got) <= 2, (before, after)
    _check_nothing_overlaps(back_inside, back)
