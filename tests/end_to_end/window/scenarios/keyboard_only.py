# SPDX-License-Identifier: GPL-3.0-or-later
"""A learner without a mouse."""

import keyboard
from program import ENTRY
from waiting import wait_for

HINT = "Wpisz bezokolicznik w polu 'Infinitif' i naciśnij klawisz Enter"


def tab_goes_through_all_boxes_without_a_message(program):
    program.start()
    program.conjugate("finir")
    program.box("Indicatif présent, nous").await_text("finissons")
    boxes = program.boxes()
    assert len(boxes) == 101
    assert len({box.name for box in boxes}) == 101
    for box in boxes[1:]:
        keyboard.keys("Tab")
        wait_for(lambda box=box: box.has("focused"), f"Tab's way to {box.name!r}")
    assert program.messages() == []


def shift_and_tab_go_back(program):
    program.start()
    keyboard.keys("Tab")
    wait_for(lambda: program.box("Infinitif passé").has("focused"), "Tab's way to the next box")
    keyboard.keys("shift+Tab")
    wait_for(lambda: program.box(ENTRY).has("focused"), "the way back")


def a_verb_is_conjugated_and_the_program_left_by_keys_alone(program):
    program.start()
    keyboard.type_text("finir")
    program.box(ENTRY).await_text("finir")
    keyboard.keys("ctrl+o")
    program.box("Indicatif présent, nous").await_text("finissons")
    keyboard.keys("ctrl+q")
    exit_question = program.message("Czy na pewno chcesz zakończyć program?")
    keyboard.keys("alt+t")
    exit_question.await_end()
    program.await_end()


def _choose(program, window, *names):
    """Chooses a menu item by its keys; the window that it opens, in front."""
    wait_for(lambda: program.main_window().has("active"), "the main window in front")
    keyboard.keys(*names)
    opened = program.dialog(window)
    wait_for(opened.is_active, f"{window!r} in front")
    return opened


def every_window_is_opened_used_and_left_by_keys_alone(program):
    program.start()
    colours = _choose(program, "Kolory", "alt+w", "k")
    keyboard.keys("Tab", "Tab")  # past the end of the order
    wait_for(lambda: colours.button("Zmień").has("focused"), "Tab's way to the first colour")
    keyboard.keys("space")
    chooser = program.dialog("Wybierz kolor")
    wait_for(chooser.is_active, "the chooser in front")
    keyboard.keys("Escape")
    chooser.await_end()
    wait_for(lambda: colours.button("Zastosuj").has("enabled"), "a colour to apply")
    keyboard.keys("alt+z")
    wait_for(lambda: not colours.button("Zastosuj").has("enabled"), "the colour to be applied")
    keyboard.keys("Escape")
    colours.await_end()

    tip = _choose(program, "Porada dnia", "alt+p", "Left", "p")
    keyboard.keys("alt+w")
    wait_for(lambda: tip.check_box().has("checked"), "the tip to be switched on")
    keyboard.keys("alt+n", "Return")
    tip.await_end()

    about = _choose(program, "O programie Odmiennik", "alt+p", "Left", "o")
    keyboard.keys("Return")
    about.await_end()

    help_window = _choose(program, "Odmiennik – pomoc", "alt+p", "Left", "t")
    keyboard.keys("ctrl+f")
    keyboard.type_text("zzz")
    wait_for(lambda: "Nie znaleziono." in help_window.texts(), "the answer of the search")
    keyboard.keys("Escape")
    help_window.await_end()

    deleting = _choose(program, "Usuń czasownik", "alt+c", "s")
    keyboard.keys("alt+z")
    deleting.await_end()

    printers = _choose(program, "Page Setup", "alt+p", "u")
    keyboard.keys("Escape")
    printers.await_end()


def letters_are_typed_with_a_key_and_arrows(program):
    program.start()
    entry = program.box(ENTRY)
    keyboard.type_text("fler")
    entry.await_text("fler")
    keyboard.keys("Left", "Left", "Left", "F6")
    wait_for(lambda: program.button("à").has("focused"), "F6's way to the letters")
    keyboard.keys(*["Right"] * 12, "space")
    entry.await_text("fûler")
    wait_for(lambda: entry.has("focused"), "the focus in the entry box")


def a_letter_typed_into_a_form_gives_the_hint(program):
    program.start()
    program.conjugate("finir")
    form = program.box("Indicatif présent, nous")
    form.await_text("finissons")
    form.focus()
    keyboard.keys("x")
    program.message(HINT).answer("OK")
    assert form.text == "finissons"


def a_beginning_is_completed_and_backspace_takes_the_rest_away(program):
    program.start()
    keyboard.keys("a", "l", "l")
    entry = program.box(ENTRY)
    entry.await_text("allaiter")
    wait_for(lambda: entry.selection == "aiter", "the selection of what was added")
    keyboard.keys("BackSpace")
    entry.await_text("all")


def the_menu_switches_completion_off(program):
    program.start()
    switch = program.menu_item("Czasownik", "Autouzupełnianie")
    wait_for(lambda: switch.has("checked"), "the switch that is on at first")
    switch.press()
    wait_for(lambda: not switch.has("checked"), "the switch to be off")
    keyboard.keys("a", "l", "l")
    program.box(ENTRY).await_text("all")
    keyboard.keys("Return")
    program.message("Podany czasownik nie został znaleziony "
                    "i nie było możliwe odmienienie go regularnie.").answer("OK")
    assert program.box(ENTRY).text == "all"


def the_menu_opens_with_f10_and_the_list_with_its_key(program):
    program.start()
    listed = _choose(program, "Lista czasowników", "F10", "Right", "Right", "l")
    keyboard.keys("Escape")
    listed.await_end()
    listed = _choose(program, "Lista czasowników", "ctrl+l")
    keyboard.keys("Escape")
    listed.await_end()
