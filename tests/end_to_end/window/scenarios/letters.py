# SPDX-License-Identifier: GPL-3.0-or-later
"""French letters by the mouse, for keyboards that have none."""

import keyboard
from program import ENTRY
from waiting import wait_for


def a_letter_goes_where_the_caret_is(program):
    program.start()
    entry = program.box(ENTRY)
    program.enter("prfrer")
    keyboard.keys("Home", "Right", "Right")
    wait_for(lambda: entry.caret == 2, "the caret behind the second letter")
    program.button("é").press()
    entry.await_text("préfrer")
    wait_for(lambda: entry.has("focused") and entry.caret == 3, "the caret behind the new letter")
    keyboard.keys("Right")
    wait_for(lambda: entry.caret == 4, "the caret behind the next letter")
    program.button("é").press()
    entry.await_text("préférer")
    keyboard.keys("Return")
    program.box("Indicatif présent, je").await_text("préfère")


def a_letter_does_not_change_a_form(program):
    program.start()
    program.conjugate("finir")
    form = program.box("Indicatif présent, je")
    form.await_text("finis")
    form.focus()
    program.button("é").press()
    wait_for(lambda: form.has("focused"), "the focus back in the form")
    assert form.text == "finis"
    assert program.box(ENTRY).text == "finir"
