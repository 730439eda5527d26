# SPDX-License-Identifier: GPL-3.0-or-later
"""A learner looks up verbs."""

import keyboard
from program import ENTRY

UNKNOWN = "Podany czasownik nie został znaleziony, ale został odmieniony regularnie."
IMPOSSIBLE = ("Podany czasownik nie został znaleziony "
              "i nie było możliwe odmienienie go regularnie.")


def a_typed_verb_fills_the_boxes(program):
    program.start()
    program.conjugate("finir")
    program.box("Indicatif présent, nous").await_text("finissons")
    assert program.box("Participe passé").text == "fini"
    assert program.box("Indicatif passé composé, je").text == "ai fini"
    assert program.box(ENTRY).selection == "finir"


def the_button_conjugates_like_enter(program):
    program.start()
    program.enter("aller")
    program.button("Odmień").press()
    program.box("Indicatif présent, je").await_text("vais")


def the_auxiliary_is_toggled_there_and_back(program):
    program.start()
    program.conjugate("monter")
    composed = program.box("Indicatif passé composé, je")
    composed.await_text("ai monté")
    auxiliary = program.check_box()
    assert auxiliary.has("checked")
    auxiliary.press()
    composed.await_text("suis monté(e)")
    assert not auxiliary.has("checked")
    auxiliary.press()
    composed.await_text("ai monté")
    assert auxiliary.has("checked")
    auxiliary.focus()
    keyboard.keys("space")
    composed.await_text("suis monté(e)")


def an_unknown_verb_is_conjugated_by_rule_and_says_so(program):
    program.start()
    program.conjugate("blublir")
    message = program.message(UNKNOWN)
    assert message.title == "Odmiennik"
    message.answer("OK")
    program.box("Indicatif présent, nous").await_text("blublissons")


def what_is_no_verb_is_refused(program):
    program.start()
    program.conjugate("xyz")
    program.message(IMPOSSIBLE).answer("OK")
    program.box("Indicatif présent, nous").await_text(" -- ")


def a_form_is_copied_without_a_message(program):
    program.start()
    program.conjugate("finir")
    form = program.box("Indicatif présent, nous")
    form.await_text("finissons")
    form.focus()
    keyboard.keys("ctrl+a", "ctrl+c")
    entry = program.box(ENTRY)
    entry.focus()
    keyboard.keys("ctrl+a", "ctrl+v")
    entry.await_text("finissons")
    assert program.messages() == []


def a_form_stays_as_it_is_when_a_screen_reader_writes_into_it(program):
    program.start()
    program.conjugate("finir")
    form = program.box("Indicatif présent, nous")
    form.await_text("finissons")
    form.write("autre chose")
    form.await_text("finissons")
