# SPDX-License-Identifier: GPL-3.0-or-later
"""Two screens side by side, the right one of which shows everything twice as large."""

import subprocess

import keyboard
import screens
from waiting import wait_equal, wait_for

SCREEN = "2732x768"
WIDTH, HEIGHT = 1366, 768
LONG = "Subjonctif plus-que-parfait, nous"


def _start(program):
    screens.divide(left=(0, 0, WIDTH, HEIGHT), right=(WIDTH, 0, WIDTH, HEIGHT))
    program.environment["QT_SCREEN_SCALE_FACTORS"] = "left=1;right=2"
    program.start()
    program.conjugate("s'enorgueillir")
    program.box(LONG).await_text("nous fussions enorgueilli(e)s")


def _move(caption, x, y):
    """Moves a window's corner there, as the user does who drags its title bar."""
    subprocess.run(["wmctrl", "-F", "-r", caption, "-e", f"0,{x},{y},-1,-1"], check=True)


def _size(caption):
    left, top, right, bottom = screens.frames()[caption]
    return right - left, bottom - top


def _is_on_the_right(caption):
    left, top, right, bottom = screens.frames()[caption]
    return WIDTH <= left and right <= 2 * WIDTH and 0 <= top and bottom <= HEIGHT


def _await_right(caption):
    wait_for(lambda: _is_on_the_right(caption), f"{caption!r} on the right screen: "
             f"{screens.frames()[caption]}")


def the_main_window_keeps_its_boxes_usable_and_stays_on_the_screen(program):
    _start(program)
    caption = program.main_window().name
    width, height = _size(caption)
    _move(caption, 2 * WIDTH - width - 20, HEIGHT - height - 20)
    # Three quarters of the designed width, in the larger pixels.
    wait_for(lambda: _size(caption)[0] > 2 * 598, "the window to grow")
    _await_right(caption)
    assert program.messages() == []


def back_on_the_first_screen_it_is_whole_too(program):
    _start(program)
    caption = program.main_window().name
    _move(caption, WIDTH + 100, 50)
    wait_for(lambda: _size(caption)[0] > 2 * 598, "the window to grow")
    _move(caption, 20, 20)
    wait_for(lambda: screens.frames()[caption][2] <= WIDTH, "the window on the left screen")
    wait_equal(lambda: screens.cut_parts(program.dialog(caption)), [], "parts that are cut")


def _clipped_forms(program):
    """The boxes of which a letter is not seen."""
    boxes = (part for part in program.main_window().descendants() if part.role == "text")
    return [box.name for box in boxes if box.text and not box.shows_its_whole_text()]


def the_forms_are_fitted_anew_there_and_back(program):
    _start(program)
    caption = program.main_window().name
    wait_equal(lambda: _clipped_forms(program), [], "forms that are cut at first")
    _move(caption, WIDTH + 10, 50)
    wait_for(lambda: _size(caption)[0] > 2 * 598, "the window to grow")
    wait_equal(lambda: _clipped_forms(program), [], "forms that are cut on the right screen")
    _move(caption, 20, 20)
    wait_for(lambda: screens.frames()[caption][2] <= WIDTH, "the window on the left screen")
    wait_equal(lambda: _clipped_forms(program), [], "forms that are cut on the left screen")


def _check_it_is_whole(program, menu, item, caption, least):
    """Opens a window on the left screen and moves it to the right one: it has `least` times as many
    pixels or more, and nothing in it is cut, there and back.
    """
    program.menu_item(menu, item).press()
    window = program.dialog(caption)
    wait_for(window.is_active, f"{caption!r} in front")
    width = _size(caption)[0]
    _move(caption, WIDTH + 20, 50)
    wait_for(lambda: _size(caption)[0] >= least * width, f"{caption!r} to grow from {width} pixels")
    _await_right(caption)
    wait_equal(lambda: screens.cut_parts(window), [], f"parts of {caption!r} that are cut")
    _move(caption, 20, 20)
    wait_for(lambda: screens.frames()[caption][2] <= WIDTH, f"{caption!r} on the left screen")
    wait_equal(lambda: screens.cut_parts(window), [], f"parts of {caption!r} that are cut again")
    keyboard.keys("Escape")
    window.await_end()


def _check_it_grows(program, menu, item, caption):
    _check_it_is_whole(program, menu, item, caption, least=1.8)


def the_list_grows_with_its_letters(program):
    _start(program)
    _check_it_grows(program, "Czasownik", "Lista", "Lista czasowników")


def the_colours_grow_with_their_letters(program):
    _start(program)
    _check_it_grows(program, "Widok", "Kolory", "Kolory")


def a_message_grows_with_its_letters(program):
    _start(program)
    _check_it_grows(program, "Plik", "Koniec", "Odmiennik")


def the_printers_grow_with_their_letters(program):
    _start(program)
    _check_it_grows(program, "Plik", "Ustawienia drukarki", "Page Setup")


def the_tip_grows_with_its_letters(program):
    _start(program)
    _check_it_grows(program, "Pomoc", "Jak odmienić czasownik?", "Porada dnia")


def the_help_is_whole_where_it_has_less_room(program):
    _start(program)
    _check_it_is_whole(program, "Pomoc", "Tematy pomocy", "Odmiennik – pomoc", least=1)
