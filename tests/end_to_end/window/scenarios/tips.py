# SPDX-License-Identifier: GPL-3.0-or-later
"""The tip of the day, and the demonstrations that it offers."""

import subprocess

import keyboard
from program import ENTRY
from waiting import wait_equal, wait_for

SCREEN = "1920x1080"  # there is room beside the main window
TIP = "Porada dnia"
DEMONSTRATIONS = ["Pokaż 1!", "Pokaż 2!"]
ANNOUNCEMENT = "Odłóż na chwilę mysz i pozwól programowi zademonstrować swe działanie."
FORM = "Indicatif présent, je"
PLACE = (40, 900)  # of the pointer: outside every window
LIMIT = 40  # seconds; a demonstration takes its time


def _pointer():
    told = subprocess.run(["xdotool", "getmouselocation", "--shell"], check=True,
                          capture_output=True, text=True).stdout
    values = dict(line.split("=") for line in told.splitlines())
    return int(values["X"]), int(values["Y"])


def _is_pointed_at(element):
    left, top, width, height = element.bounds
    x, y = _pointer()
    return left <= x < left + width and top <= y < top + height


def _stands_beside(tip, window):
    """Whether their tops are level and only their frames are between them."""
    return tip[1] == window[1] and 0 <= tip[0] - (window[0] + window[2]) <= 10


def _tip(program):
    tip = program.dialog(TIP)
    wait_for(tip.is_active, "the tip to come forward")
    return tip


def _text(tip):
    """The tip itself, below its heading."""
    heading, text = (label for label in tip.texts() if label)
    assert heading == "Czy wiesz, że…"
    return text


def _offered(tip):
    return [button.name for button in tip.buttons()
            if button.name in DEMONSTRATIONS and button.has("showing")]


def _how_to(program):
    program.menu_item("Pomoc", "Jak odmienić czasownik?").press()
    return _tip(program)


def _demonstrate(program, caption):
    """The demonstration has been announced and begins, with the pointer at PLACE."""
    tip = _how_to(program)
    tip.button(caption).press()
    announcement = program.message(ANNOUNCEMENT)
    subprocess.run(["xdotool", "mousemove", *map(str, PLACE)], check=True)
    wait_equal(_pointer, PLACE, "place of the pointer")
    announcement.answer("OK")
    tip.await_end()


def _await_typing(program):
    """The demonstration's verb is being typed, and is not complete yet."""
    entry = program.box(ENTRY)
    wait_for(lambda: 2 <= len(entry.text) < len("chanter") and "chanter".startswith(entry.text),
             "the letters of the verb, one after the other")


def _await_pointer_back():
    wait_equal(_pointer, PLACE, "place of the pointer", LIMIT)


def _check_it_can_be_worked_on(program):
    """Nothing is left over: the keyboard is in the window, and beginnings are completed."""
    wait_for(lambda: program.main_window().has("active"), "the main window to be active")
    program.box(ENTRY).focus()
    keyboard.keys("ctrl+a", "a", "l", "l")
    program.box(ENTRY).await_text("allaiter")
    assert [window.role for window in program.windows()] == ["frame"]


def the_first_start_shows_a_tip_beside_the_window(program):
    program.forget_user_store()
    program.launch()
    tip = _tip(program)
    assert _text(tip).endswith("?")
    assert tip.check_box().has("checked")
    wait_for(lambda: _stands_beside(tip.bounds, program.main_window().bounds),
             "the tip to stand beside the window")
    keyboard.keys("Return")
    tip.await_end()
    wait_for(lambda: program.box(ENTRY).has("focused"), "the keyboard in the entry box")


def a_tip_switched_on_again_comes_at_the_next_start(program):
    program.start()
    program.menu_item("Pomoc", "Porada dnia").press()
    tip = _tip(program)
    switch = tip.check_box()
    assert not switch.has("checked")
    keyboard.keys("alt+w")
    wait_for(lambda: switch.has("checked"), "the tip to be switched on")
    tip.answer("OK")
    program.quit()
    program.launch()
    tip = _tip(program)
    assert tip.check_box().has("checked")
    tip.answer("OK")


def how_to_conjugate_offers_both_demonstrations(program):
    program.start()
    for _ in range(3):
        tip = _how_to(program)
        assert _text(tip).startswith("czasownik możesz odmienić na dwa sposoby:")
        assert _offered(tip) == DEMONSTRATIONS
        tip.answer("OK")


def the_next_tip_is_another_and_offers_nothing(program):
    program.start()
    tip = _how_to(program)
    how_to = _text(tip)

    def is_another():
        keyboard.keys("alt+n")
        return _text(tip) != how_to

    wait_for(is_another, "another tip")
    wait_for(lambda: _offered(tip) == (DEMONSTRATIONS if _text(tip) == how_to else []),
             "the buttons that belong to the tip")
    assert _text(tip).endswith("?")


def the_first_demonstration_types_a_verb_and_conjugates_it(program):
    program.start()
    _demonstrate(program, "Pokaż 1!")
    wait_for(lambda: _is_pointed_at(program.box(ENTRY)), "the pointer's way to the entry box")
    _await_typing(program)
    program.box(ENTRY).await_text("chanter")
    program.box(FORM).await_text("chante")
    _await_pointer_back()
    assert program.box(ENTRY).text == "chanter"
    _check_it_can_be_worked_on(program)


def the_second_demonstration_picks_a_verb_from_the_list(program):
    program.start()
    _demonstrate(program, "Pokaż 2!")
    item = program.menu_item("Czasownik", "Lista")
    wait_for(lambda: item.has("showing"), "the open menu")
    listed = program.dialog("Lista czasowników")
    verbs = listed.part("Czasowniki")
    wait_equal(verbs.selected_entry, "naître", "verb picked from the list", LIMIT)
    wait_for(lambda: _is_pointed_at(listed.button("Odmień")), "the pointer's way to the button")
    program.box(FORM).await_text("nais")
    listed.await_end()
    _await_pointer_back()
    assert program.box(ENTRY).text == "naître"
    _check_it_can_be_worked_on(program)


def a_key_stops_a_demonstration_and_does_nothing_else(program):
    program.start()
    _demonstrate(program, "Pokaż 1!")
    _await_typing(program)
    keyboard.keys("x")
    _await_pointer_back()
    program.box(ENTRY).await_text("infinitif")
    assert program.box(FORM).text == ""
    _check_it_can_be_worked_on(program)


def a_mouse_button_stops_a_demonstration(program):
    program.start()
    _demonstrate(program, "Pokaż 2!")
    wait_for(program.dialog("Lista czasowników").is_active, "the list")
    subprocess.run(["xdotool", "click", "1"], check=True)
    _await_pointer_back()
    wait_for(lambda: len(program.windows()) == 1, "the end of the list's window")
    assert program.box(ENTRY).text == "infinitif"
    _check_it_can_be_worked_on(program)


def in_edit_mode_a_demonstration_first_asks_whether_to_save(program):
    program.start()
    program.conjugate("aimer")
    form = program.box(FORM)
    form.await_text("aime")
    keyboard.keys("F2")
    program.await_title('Odmiennik - edycja "aimer"')
    form.focus()
    keyboard.keys("End", "x")
    form.await_text("aimex")
    _demonstrate(program, "Pokaż 1!")
    program.message("Zapisać edytowany czasownik - 'aimer'?").answer("Nie")
    program.box(ENTRY).await_text("chanter")
    form.await_text("chante")
    _await_pointer_back()
    assert program.main_window().name == "Odmiennik"
    assert not (program.folder / "Czasowniki.dat").exists()
