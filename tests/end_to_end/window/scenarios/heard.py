# SPDX-License-Identifier: GPL-3.0-or-later
"""What a blind learner hears, said by the real Orca."""

import keyboard
from program import ENTRY
from waiting import wait_for

SCREEN_READER = True

FORM = "Impératif présent, tu"  # two Tabs from the entry box
FIRST_BOXES = ("Indicatif présent, je", "Subjonctif présent, je", "Conditionnel présent, je",
               "Impératif passé, tu", "Participe passé")


def _start(program):
    program.start()
    program.reader.await_said(ENTRY)


def _type(program, box, word):
    """Types over what is selected, and waits until the last letter is there, not only completed."""
    keyboard.type_text(word)
    box = program.box(box)
    wait_for(lambda: box.text == word and box.caret == len(word) and not box.selection,
             f"{word!r} to be typed")


def _open_list(program, hint=""):
    program.menu_item("Czasownik", "Lista").press()
    program.reader.await_said("Lista czasowników", hint)
    program.reader.await_said("Wprowadzone przez użytkownika")


def a_verb_is_conjugated_edited_saved_and_deleted(program):
    reader = program.reader
    _start(program)
    _type(program, ENTRY, "finir")
    keyboard.keys("Return")
    reader.await_said("finir: grupa druga, czasownik posiłkowy avoir")
    keyboard.keys("Tab", "Tab")
    reader.await_said(FORM)
    keyboard.keys("ctrl+i")
    reader.await_said("finir: grupa druga")
    keyboard.keys("ctrl+b")
    reader.await_said(ENTRY)
    keyboard.keys("F2")
    reader.await_said("Edycja czasownika finir")
    keyboard.keys("Tab", "Tab")
    reader.await_said(FORM)
    _type(program, FORM, "finix")
    keyboard.keys("ctrl+s")
    reader.await_said("Zapisano czasownik finir. Koniec edycji.", "Formy z Twojego pliku.")
    _open_list(program)
    keyboard.keys("Tab")
    reader.await_said("finir")
    keyboard.keys("alt+u")
    reader.await_said("Usunięto czasownik finir.")


def every_tense_is_announced_with_its_mood_and_person(program):
    _start(program)
    for box in program.boxes():
        assert box.labels() == [], f"{box.name!r} is labelled {box.labels()}"
    for name in FIRST_BOXES:
        program.box(name).focus()
        program.reader.await_said(name)


def the_new_caption_of_the_auxiliary_and_the_next_tip_are_said(program):
    reader = program.reader
    _start(program)
    _type(program, ENTRY, "monter")
    keyboard.keys("Return")
    reader.await_said("monter:", "avoir lub être")
    program.check_box().focus()
    reader.await_said("se conjugué avec avoir")
    keyboard.keys("space")
    reader.await_said("se conjugué avec être")
    program.menu_item("Pomoc", "Porada dnia").press()
    tip = program.dialog("Porada dnia")
    reader.await_said("Porada dnia")
    shown = tip.texts()
    keyboard.keys("alt+n")
    wait_for(lambda: tip.texts() != shown, "another tip")
    reader.await_said(max(tip.texts(), key=len).splitlines()[0][:40])
    keyboard.keys("Escape")
    tip.await_end()


def the_list_says_its_choice_and_each_verb(program):
    _start(program)
    _open_list(program, "Nie masz jeszcze własnych czasowników.")
    keyboard.keys("Down")
    program.reader.await_said("a")
    keyboard.keys("Tab")
    program.reader.await_said("abaisser")
    keyboard.keys("Down")
    program.reader.await_said("abandonner")


def a_form_is_looked_for_and_found_among_its_readings(program):
    reader = program.reader
    _start(program)
    keyboard.keys("ctrl+f")
    reader.await_said("Znajdź formę")
    keyboard.type_text("allions")
    reader.await_said("nous allions – aller, Indicatif imparfait, nous")
    keyboard.keys("Down")
    reader.await_said("que nous allions – aller, Subjonctif présent, nous")
    keyboard.keys("Return")
    reader.await_said("aller: grupa trzecia")
    wait_for(lambda: program.box("Subjonctif présent, nous").selection == "allions", "the form")


def a_form_is_asked_how_it_came_to_be(program):
    reader = program.reader
    _start(program)
    _type(program, ENTRY, "manger")
    keyboard.keys("Return")
    reader.await_said("manger: grupa pierwsza")
    program.box("Indicatif présent, nous").focus()
    reader.await_said("Indicatif présent, nous")
    keyboard.keys("shift+F1")
    reader.await_said("Skąd ta forma?")
    reader.await_said("nous mangeons; reguła -ger (wzór: manger); temat mang-, e przed o, końcówka -ons")


def a_form_that_departs_from_the_norm_tells_it(program):
    _start(program)
    _type(program, ENTRY, "lire")
    keyboard.keys("Return")
    program.reader.await_said("lire: grupa trzecia")
    program.box("Indicatif présent, il").focus()
    program.reader.await_said("Indicatif présent, il")
    program.reader.await_said("lir")
    program.reader.await_said("Dzisiejsza norma: lit")


def words_are_read_up_to_the_end_of_a_form(program):
    _start(program)
    _type(program, ENTRY, "se laver")
    keyboard.keys("Return")
    program.reader.await_said("se laver: grupa pierwsza")
    keyboard.keys("End", "ctrl+Left", "ctrl+Left", "ctrl+Right", "ctrl+Right")
    keyboard.keys("ctrl+i")
    program.reader.await_said("se laver: grupa pierwsza")
