# SPDX-License-Identifier: GPL-3.0-or-later
"""What a blind learner hears in the help, said by the real Orca."""

import keyboard
from program import ENTRY

SCREEN_READER = True

WELCOME = "Witaj w Odmienniku"
SECOND_LINE = "Odmiennik odmienia czasowniki francuskie."


def _open_help(program):
    """F1 in the entry box; the welcome page has been announced and the keyboard is in it."""
    program.start()
    program.reader.await_said(ENTRY)
    keyboard.keys("F1")
    program.reader.await_said(WELCOME)


def a_page_says_its_title_and_is_read_line_by_line(program):
    _open_help(program)
    keyboard.keys("Down")
    program.reader.await_said(SECOND_LINE)
    keyboard.keys("Up")
    program.reader.await_said("Witaj")


def the_link_that_tab_leads_to_is_said_and_so_is_the_page_behind_it(program):
    reader = program.reader
    _open_help(program)
    keyboard.keys("Tab")
    reader.await_said("Odsyłacz: Jak odmienić czasownik")
    keyboard.keys("Tab")
    reader.await_said("Odsyłacz: Czasowniki posiłkowe")
    keyboard.keys("Return")
    reader.await_said("Czasowniki posiłkowe: avoir czy être")


def arrows_in_the_contents_say_the_page_that_they_open(program):
    reader = program.reader
    _open_help(program)
    keyboard.keys("ctrl+t")
    reader.await_said("Rozdziały i strony")
    keyboard.keys("Down")
    reader.await_said("Jak odmienić czasownik")
    keyboard.keys("Down", "Down")
    reader.await_said("Lista czasowników")


def a_search_says_what_came_of_it(program):
    reader = program.reader
    _open_help(program)
    keyboard.keys("ctrl+f")
    reader.await_said("Szukaj na stronie")
    keyboard.type_text("qqq")
    reader.await_said("Nie znaleziono.")
    keyboard.keys("ctrl+shift+f")
    reader.await_said("Szukaj na wszystkich stronach")
    keyboard.type_text("qqq")
    reader.await_said("Nie znaleziono")
