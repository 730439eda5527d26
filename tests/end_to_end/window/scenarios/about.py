# SPDX-License-Identifier: GPL-3.0-or-later
"""What the program tells of itself."""

import pathlib

from waiting import wait_for

TITLE = "O programie Odmiennik"
SYSTEM_INFORMATION = "Informacje o systemie..."
MISSING = "Informacje o systemie są niedostępne."


def _open(program):
    program.menu_item("Pomoc", "O programie...").press()
    return program.dialog(TITLE)


def the_version_is_that_of_the_caption(program):
    program.start()
    version = program.main_window().name.removeprefix("Odmiennik v.")
    assert version.count(".") == 2, version
    about = _open(program)
    assert f"Wersja {version}" in about.texts()
    about.answer("OK")


def one_verb_and_one_run_are_told_in_the_singular(program):
    program.start()
    program.conjugate("finir")
    program.box("Indicatif présent, nous").await_text("finissons")
    about = _open(program)
    assert "Statystyka: odmieniono 1 czasownik po 1 uruchomieniu." in about.texts()
    about.answer("OK")


def the_second_run_counts_on(program):
    program.start()
    for verb, form in (("finir", "finissons"), ("aimer", "aimons")):
        program.conjugate(verb)
        program.box("Indicatif présent, nous").await_text(form)
    program.quit()
    program.start()
    about = _open(program)
    assert "Statystyka: odmieniono 2 czasowniki po 2 uruchomieniach." in about.texts()
    about.answer("OK")


def without_a_tool_the_system_tells_nothing(program):
    program.environment["PATH"] = str(program.folder)
    program.start()
    about = _open(program)
    about.button(SYSTEM_INFORMATION).press()
    message = program.message(MISSING)
    assert message.title == "Odmiennik"
    message.answer("OK")
    about.answer("OK")


def behind_the_message_it_stays_open(program):
    program.environment["PATH"] = str(program.folder)
    program.start()
    about = _open(program)
    about.button(SYSTEM_INFORMATION).press()
    message = program.message(MISSING)
    about.button("OK").press()
    message.answer("OK")
    about.answer("OK")
    assert program.is_running()
    program.quit()


def the_systems_tool_is_started(program):
    started = pathlib.Path(program.folder, "started")
    tool = pathlib.Path(program.folder, "hardinfo")
    tool.write_text(f"#!/bin/sh\necho > '{started}'\n", encoding="utf-8")
    tool.chmod(0o755)
    program.environment["PATH"] = str(program.folder)
    program.start()
    about = _open(program)
    about.button(SYSTEM_INFORMATION).press()
    wait_for(started.exists, "the start of the tool")
    about.answer("OK")
    assert program.messages() == []
