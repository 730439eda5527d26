# SPDX-License-Identifier: GPL-3.0-or-later
"""A learner asks how a form came to be, with the keyboard alone."""

import keyboard
from program import ENTRY
from waiting import wait_equal, wait_for

CAPTION = "Skąd ta forma?"
PLACE = "Indicatif présent, nous"
STORY = "nous mangeons\nreguła -ger (wzór: manger)\ntemat mang-, e przed o, końcówka -ons"


def _ask(program):
    keyboard.keys("shift+F1")
    window = program.dialog(CAPTION)
    wait_for(window.is_active, "the window to come forward")
    return window


def _conjugate(program):
    program.start()
    program.conjugate("manger")
    wait_equal(lambda: program.box(PLACE).text, "mangeons", "the form")
    program.box(PLACE).focus()


def a_form_is_explained_and_escape_leads_back_to_it(program):
    _conjugate(program)
    window = _ask(program)
    window.part(PLACE).await_text(STORY)
    keyboard.keys("Escape")
    window.await_end()
    wait_for(lambda: program.box(PLACE).has("focused"), "the focus in the box")


def the_next_verb_closes_it(program):
    _conjugate(program)
    window = _ask(program)
    program.box(ENTRY).click()
    program.conjugate("parler")
    window.await_end()
