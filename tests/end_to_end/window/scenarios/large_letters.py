# SPDX-License-Identifier: GPL-3.0-or-later
"""Screens that show everything, or the texts alone, half as large again or twice as large."""

import os
import pathlib

import keyboard
import screens
from waiting import wait_equal, wait_for

SCREEN = "1366x768"
WIDTH, HEIGHT = 1366, 768
LONG = "Subjonctif plus-que-parfait, nous"
WINDOWS = [("Lista czasowników", "Czasownik", "Lista"), ("Usuń czasownik", "Czasownik", "Usuń"),
           ("Kolory", "Widok", "Kolory"), ("Page Setup", "Plik", "Ustawienia drukarki"),
           ("Porada dnia", "Pomoc", "Jak odmienić czasownik?"),
           ("O programie Odmiennik", "Pomoc", "O programie..."),
           ("Odmiennik – pomoc", "Pomoc", "Tematy pomocy")]


def _outside():
    """The windows that are not wholly on the screen, and where they stand."""
    return {name: place for name, place in screens.frames().items()
            if place[0] < 0 or place[1] < 0 or place[2] > WIDTH or place[3] > HEIGHT}


def _check_it_is_whole(program, caption):
    window = program.dialog(caption)
    wait_for(window.is_active, f"{caption!r} in front")
    wait_equal(_outside, {}, "windows that are not on the screen")
    wait_equal(lambda: screens.cut_parts(window), [], f"parts of {caption!r} that are cut")
    return window


def _close(window):
    keyboard.keys("Escape")
    window.await_end()


def _every_window_is_whole(program):
    program.start()
    wait_equal(_outside, {}, "windows that are not on the screen")
    program.conjugate("s'enorgueillir")
    program.box(LONG).await_text("nous fussions enorgueilli(e)s")
    for caption, menu, item in WINDOWS:
        program.menu_item(menu, item).press()
        _close(_check_it_is_whole(program, caption))
    program.menu_item("Widok", "Kolory").press()
    colours = _check_it_is_whole(program, "Kolory")
    colours.button("Zmień").press()
    _close(_check_it_is_whole(program, "Wybierz kolor"))
    _close(colours)
    keyboard.keys("ctrl+q")
    _close(_check_it_is_whole(program, "Odmiennik"))
    assert program.messages() == []


def everything_is_whole_drawn_half_as_large_again(program):
    screens.enlarge(144)
    _every_window_is_whole(program)


def everything_is_whole_drawn_twice_as_large(program):
    screens.enlarge(192)
    _every_window_is_whole(program)


def _enlarge_texts(program, points):
    """The size of texts alone, as Plasma lets the user choose it; 10 points are the usual one."""
    program.environment |= {"XDG_CURRENT_DESKTOP": "KDE", "KDE_FULL_SESSION": "true",
                            "KDE_SESSION_VERSION": "5"}
    pathlib.Path(os.environ["HOME"], ".config", "kdeglobals").write_text(
        f"[General]\nfont=Liberation Sans,{points},-1,5,50,0,0,0,0,0\n", encoding="utf-8")


def everything_is_whole_with_texts_half_as_large_again(program):
    _enlarge_texts(program, 15)
    _every_window_is_whole(program)


def everything_is_whole_with_texts_twice_as_large(program):
    _enlarge_texts(program, 20)
    _every_window_is_whole(program)
