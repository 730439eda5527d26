# SPDX-License-Identifier: GPL-3.0-or-later
"""A learner chooses other colours."""

import keyboard
from waiting import wait_equal, wait_for

COLOUR_WINDOW = "Kolory"
FIRST, SECOND = "Kolor pierwszy", "Kolor drugi"
GREEN, BROWN = "#007A33", "#7A4B00"


def _number(colour):
    """The settings file's number for "#RRGGBB"."""
    red, green, blue = (int(colour[at:at + 2], 16) for at in (1, 3, 5))
    return str(red + 256 * green + 65536 * blue)


def _open(program):
    program.menu_item("Widok", "Kolory").press()
    return program.dialog(COLOUR_WINDOW)


def _sample(colours, caption):
    return next(part for part in colours.parts()
                if part.name == caption and part.description.startswith("#"))


def _chooser(program, colours, caption):
    """The chooser for that colour, its text field holding the focus."""
    change = next(button for button in colours.buttons() if button.description == caption)
    change.press()
    chooser = program.dialog("Wybierz kolor")
    field = next(part for part in chooser.parts() if part.role == "text" and part.has("showing"))
    field.focus()
    return chooser, field


def _choose(program, colours, caption, colour):
    chooser, field = _chooser(program, colours, caption)
    keyboard.keys("ctrl+a")
    keyboard.type_text(colour)
    wait_equal(lambda: field.text.upper(), colour, "colour in the chooser")
    keyboard.keys("Return")
    chooser.await_end()
    wait_equal(lambda: _sample(colours, caption).description, colour, f"sample of {caption!r}")


def the_chosen_colours_are_kept(program):
    program.start()
    colours = _open(program)
    _choose(program, colours, FIRST, GREEN)
    _choose(program, colours, SECOND, BROWN)
    colours.answer("OK")
    program.quit()
    assert program.settings()[1:3] == [_number(GREEN), _number(BROWN)]

    program.start()
    colours = _open(program)
    assert _sample(colours, FIRST).description == GREEN
    assert _sample(colours, SECOND).description == BROWN
    colours.answer("Anuluj")


def cancelled_nothing_changes(program):
    program.start()
    colours = _open(program)
    design = _sample(colours, FIRST).description
    assert design != GREEN
    _choose(program, colours, FIRST, GREEN)
    colours.answer("Anuluj")
    colours = _open(program)
    assert _sample(colours, FIRST).description == design
    colours.answer("OK")
    program.quit()
    assert program.settings()[1] == _number(design)


def applied_colours_stay_when_the_window_is_cancelled(program):
    program.start()
    colours = _open(program)
    apply = colours.button("Zastosuj")
    assert not apply.has("enabled")
    _choose(program, colours, SECOND, BROWN)
    wait_for(lambda: apply.has("enabled"), "something to apply")
    apply.press()
    wait_for(lambda: not apply.has("enabled"), "nothing more to apply")
    colours.answer("Anuluj")
    program.quit()
    assert program.settings()[2] == _number(BROWN)


def a_cancelled_chooser_keeps_the_colour(program):
    program.start()
    colours = _open(program)
    before = _sample(colours, SECOND).description
    chooser, _ = _chooser(program, colours, SECOND)
    keyboard.keys("ctrl+a")
    keyboard.type_text(BROWN)
    keyboard.keys("Escape")
    chooser.await_end()
    assert _sample(colours, SECOND).description == before
    colours.answer("OK")
    program.quit()
    assert program.settings()[2] == _number(before)
