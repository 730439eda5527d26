# SPDX-License-Identifier: GPL-3.0-or-later
"""The list of verbs beside the main window."""

from program import ENTRY
from waiting import wait_for

USER_VERBS_NONE = "0/7342"
MANY = 100_000
IN_TIME = 5  # seconds; it takes less than one, and hours if each verb had to look at the others


def _open(program):
    program.menu_item("Czasownik", "Lista").press()
    return program.dialog("Lista czasowników")


def without_own_verbs_the_list_is_empty(program):
    program.start()
    listed = _open(program)
    wait_for(lambda: USER_VERBS_NONE in listed.texts(), "the count of no verbs")
    for caption in ("Odmień", "Edytuj", "Usuń", "Drukuj"):
        assert not listed.button(caption).has("enabled"), caption
    assert listed.button("Nowy").has("enabled")
    listed.answer("Zamknij")


def deleting_needs_an_own_verb(program):
    program.start()
    program.menu_item("Czasownik", "Usuń").press()
    listed = program.dialog("Usuń czasownik")
    wait_for(lambda: USER_VERBS_NONE in listed.texts(), "the count of no verbs")
    assert not listed.button("Usuń").has("enabled")
    assert [b.name for b in listed.buttons() if b.has("showing")] == ["Usuń", "Zamknij"]
    listed.answer("Zamknij")
    assert program.box(ENTRY).text == "infinitif"


def a_file_of_a_hundred_thousand_verbs_is_listed_in_time(program):
    slots = ",".join([""] * 96 + ["v%05der"] + [""] * 4) + ", 1\r\n"
    (program.folder / "Czasowniki.dat").write_text("".join(slots % verb for verb in range(MANY)),
                                                   newline="")
    (program.folder / "Werbolin.cfg").write_text(f"{MANY}\r\n255\r\n255\r\n0\r\n10\r\n",
                                                 newline="")
    program.start()
    listed = _open(program)
    wait_for(lambda: f"{MANY}/7342" in listed.own_texts(), "the number of verbs", IN_TIME)
