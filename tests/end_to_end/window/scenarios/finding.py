# SPDX-License-Identifier: GPL-3.0-or-later
"""A learner meets a form and looks for its verb, with the keyboard alone."""

import keyboard
from program import ENTRY
from waiting import wait_equal, wait_for

CAPTION = "Znajdź formę"


def _open(program):
    keyboard.keys("ctrl+f")
    window = program.dialog(CAPTION)
    wait_for(window.is_active, "the window to come forward")
    return window


def a_form_leads_to_its_verb_and_box(program):
    program.start()
    window = _open(program)
    keyboard.type_text("allions")
    wait_for(lambda: "Możliwości: 4" in window.texts(), "the readings")
    keyboard.keys("Down", "Return")
    wait_equal(lambda: program.box(ENTRY).text, "aller", "the verb")
    wait_equal(lambda: program.box("Subjonctif présent, nous").selection, "allions", "the form")


def a_refused_word_is_looked_for(program):
    program.start()
    program.enter("allions")
    keyboard.keys("Return")
    program.message("Podany czasownik nie został znaleziony i nie było możliwe odmienienie go "
                    "regularnie.").answer("OK")
    window = _open(program)
    wait_for(lambda: "Możliwości: 4" in window.texts(), "the readings")
    keyboard.keys("Escape")
    window.await_end()
