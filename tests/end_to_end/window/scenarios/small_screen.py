# SPDX-License-Identifier: GPL-3.0-or-later
"""A screen of 640 by 480 pixels, where every new size of the window is asked about."""

import subprocess

import keyboard
from program import ENTRY
from waiting import wait_equal, wait_for

SCREEN = "640x480"
QUESTION = ("Uwaga! Program może działać nieprawidłowo  w tej rozdzielczości. Zmień ją na 800x600 "
            "lub wyższą. Chcesz kontynuować?")
FORM = "Indicatif présent, je"
TIMES = 20


def _start(program):
    """Starts the program, whose window is fitted to the screen and so asked about."""
    program.launch()
    program.message(QUESTION).answer("Tak")
    wait_for(lambda: program.box(ENTRY).has("focused"), "the focus in the entry box")


def _maximise(program, action):
    """Asks the window manager, as a double click on the title bar does: action "add" or "remove"."""
    subprocess.run(["wmctrl", "-r", program.main_window().name, "-b",
                    f"{action},maximized_vert,maximized_horz"], check=True)


def _maximise_and_answer(program, answer):
    """Maximises the window or restores it, and answers the question."""
    _maximise(program, "toggle")
    program.message(QUESTION).answer(answer)


def _edit(program):
    """A verb one form of which is changed."""
    program.conjugate("aimer")
    program.box(FORM).await_text("aime")
    keyboard.keys("F2")
    program.await_title('Odmiennik - edycja "aimer"')
    program.box(FORM).focus()
    keyboard.keys("End")
    keyboard.type_text("change")
    program.box(FORM).await_text("aimechange")


def maximised_and_restored_twenty_times_an_edited_verb_is_kept(program):
    _start(program)
    _edit(program)
    for _ in range(TIMES):
        _maximise_and_answer(program, "Tak")
    assert program.box(FORM).text == "aimechange"
    keyboard.keys("ctrl+s")
    program.await_title("Odmiennik")
    record = (program.folder / "Czasowniki.dat").read_bytes()
    assert record.startswith(b"aimechange,")
    program.quit()


def answered_no_the_program_ends_twenty_times(program):
    for _ in range(TIMES // 2):
        for before in ([], ["Tak"]):
            _start(program)
            for answer in [*before, "Nie"]:
                _maximise_and_answer(program, answer)
            program.await_end()


def a_second_size_behind_the_question_is_asked_about_too(program):
    _start(program)
    _maximise(program, "add")
    first = program.message(QUESTION)
    _maximise(program, "remove")
    first.answer("Tak")
    wait_equal(lambda: len(program.messages()), 1, "the question of the second size")
    program.message(QUESTION).answer("Tak")
    program.quit()
