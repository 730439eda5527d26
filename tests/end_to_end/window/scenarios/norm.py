# SPDX-License-Identifier: GPL-3.0-or-later
"""A learner sees where a form departs from today's norm, and asks for the norm."""

from waiting import wait_equal

ITEM = "Formy według dzisiejszej normy"
HE = "Indicatif présent, il"


def a_departing_form_says_its_norm_and_the_tick_shows_it(program):
    program.start()
    program.conjugate("lire")
    program.box(HE).await_text("lir")
    wait_equal(lambda: program.box(HE).description, "Dzisiejsza norma: lit", "what the box says")
    program.menu_item("Widok", ITEM).press()
    program.box(HE).await_text("lit")
    wait_equal(lambda: program.box(HE).description, "", "what the box says")
    program.quit()

    program.start()
    program.conjugate("lire")
    program.box(HE).await_text("lit")
    program.menu_item("Widok", ITEM).press()
    program.box(HE).await_text("lir")
