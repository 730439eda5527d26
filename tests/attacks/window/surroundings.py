# SPDX-License-Identifier: GPL-3.0-or-later
"""Surroundings that nobody plans for. Each case is a function; its first line says what is expected.

run(program, TABLE, CASE…)
"""

import contextlib
import os
import pathlib
import signal
import subprocess

import keyboard
from desktop import ended, screen
from program import ENTRY, Program
from waiting import wait_for

FORM = "Indicatif présent, nous"
FILE = "Czasowniki.dat"
NOT_SAVED = "Nie można zapisać pliku czasowników użytkownika."
UNREADABLE = "Nie można odczytać pliku czasowników użytkownika."
SETTINGS_UNREADABLE = ("Wystąpił błąd podczas odczytywania pliku konfiguracyjnego. Program może "
                       "działać niepoprawnie.")
SETTINGS_UNWRITTEN = ("Wystąpił błąd podczas tworzenia pliku konfiguracyjnego. Aktualne ustawienia "
                      "mogą zostać niezapisane.")


# What the cases share

def conjugates(program, verb="finir", form="finissons"):
    program.conjugate(verb)
    program.box(FORM).await_text(form)


def change(program, verb, form):
    """Leaves the verb in edit mode with another form, not yet saved."""
    program.conjugate(verb)
    wait_for(lambda: program.box(ENTRY).selection == verb, "the conjugated verb")
    keyboard.keys("F2")
    program.await_title(f'Odmiennik - edycja "{verb}"')
    program.box(FORM).write(form)
    program.box(FORM).await_text(form)


def save(program, verb, form):
    change(program, verb, form)
    program.menu_item("Plik", "Zapisz Czasownik").press()
    program.await_title("Odmiennik")


def cannot_save(program, verb):
    """A save is refused with its message, and nothing typed is lost."""
    change(program, verb, "inna forma")
    program.menu_item("Plik", "Zapisz Czasownik").press()
    program.message(NOT_SAVED).answer("OK")
    assert program.box(FORM).text == "inna forma"
    assert program.main_window().name == f'Odmiennik - edycja "{verb}"'


def quit_with(program, *answers):
    """Leaves the program; each message with its answer."""
    program.menu_item("Plik", "Koniec").press()
    for text, answer in (("Czy na pewno chcesz zakończyć program?", "Tak"), *answers):
        program.message(text).answer(answer)
    program.await_end()


def verbs(folder):
    content = (folder / FILE).read_bytes()
    assert content.endswith(b"\r\n")
    return [line.split(b",")[96].decode("cp1252") for line in content.split(b"\r\n")[:-1]]


def save_through_the_bus(program, verb, form):
    """The same without the keyboard, which two programs would have to share."""
    program.box(ENTRY).write(verb)
    program.box(ENTRY).await_text(verb)
    program.menu_item("Czasownik", "Odmień").press()
    wait_for(lambda: program.box("Infinitif passé").text == f"avoir {verb[:-2]}é", verb)
    edit = next(part for part in program.menu_item("Czasownik", "Odmień").beside()
                if part.name.startswith("Edytuj"))
    edit.press()
    program.await_title(f'Odmiennik - edycja "{verb}"')
    program.box(FORM).write(form)
    program.menu_item("Plik", "Zapisz Czasownik").press()
    program.await_title("Odmiennik")


# The cases

def without_a_display(program):
    """The program ends at once and says that there is no screen."""
    program.environment = {"DISPLAY": "", "WAYLAND_DISPLAY": ""}
    program.launch()
    wait_for(lambda: not program.is_running(), "the end")
    assert b"display" in program.log(), program.log()


def without_a_home(program):
    """The window works, and its folder is the one that was given."""
    program.environment = {"HOME": ""}
    program.user_store.unlink()
    program.launch()
    program.dialog("Porada dnia").answer("OK")
    conjugates(program)
    program.quit()
    assert program.settings()[4] == "11"


def in_a_turkish_locale(program):
    """Capital I becomes i with a dot, in verbs and in names of files."""
    program.environment = {"LC_ALL": "tr_TR.UTF-8", "LANG": "tr_TR.UTF-8"}
    program.start()
    save(program, "finir", "finissons!")
    program.quit()
    (program.folder / FILE).rename(program.folder / "CZASOWNIKI.DAT")
    program.start()
    conjugates(program, "FINIR", "finissons!")


def with_closed_streams(program):
    """What is saved holds the verb and nothing that was meant for a stream."""
    program.wrapper = ["sh", "-c", 'exec "$@" <&- >&- 2>&-', "sh"]
    program.start()
    save(program, "finir", "finissons!")
    program.quit()
    assert verbs(program.folder) == ["finir"] and len(program.settings()) == 5


def with_full_streams(program):
    """The window works."""
    program.wrapper = ["sh", "-c", 'exec "$@" </dev/full >/dev/full 2>&1', "sh"]
    program.start()
    save(program, "finir", "finissons!")
    program.quit()
    assert verbs(program.folder) == ["finir"]


def in_a_folder_that_takes_no_files(program):
    """Each of settings and verbs is told as not written; verbs are conjugated."""
    program.folder = pathlib.Path("/sys/kernel")
    program.launch()
    program.message(SETTINGS_UNWRITTEN).answer("OK")
    program.message(SETTINGS_UNREADABLE).answer("OK")
    conjugates(program)
    cannot_save(program, "aimer")
    quit_with(program, ("Zapisać edytowany czasownik - 'aimer'?", "Nie"), (SETTINGS_UNWRITTEN, "OK"))


def with_a_limit_for_the_size_of_files(program):
    """A verb too long for it is told as not saved, and what was typed stays."""
    program.wrapper = ["sh", "-c", 'ulimit -f 1; exec "$@"', "sh"]
    program.start()
    cannot_save(program, "finir")
    assert sorted(file.name for file in program.folder.iterdir()) == ["Werbolin.cfg"]
    assert program.is_running()


def with_its_folder_removed(program):
    """Verbs are conjugated; that nothing can be saved is told."""
    program.start()
    conjugates(program)
    for file in program.folder.iterdir():
        file.unlink()
    program.folder.rmdir()
    conjugates(program, "aimer", "aimons")
    cannot_save(program, "aimer")
    quit_with(program, ("Zapisać edytowany czasownik - 'aimer'?", "Nie"), (SETTINGS_UNWRITTEN, "OK"))


def _with_something_in_place_of_the_file(program, make):
    program.start()
    save(program, "finir", "finissons!")
    (program.folder / FILE).unlink()
    make(program.folder / FILE)
    program.conjugate("aimer")
    program.message(UNREADABLE).answer("OK")
    program.box(FORM).await_text("aimons")
    cannot_save(program, "aimer")


def with_its_file_turned_into_a_folder(program):
    """The file is told as unreadable, and not replaced."""
    _with_something_in_place_of_the_file(program, os.mkdir)
    assert (program.folder / FILE).is_dir()


def with_its_file_turned_into_a_pipe(program):
    """The file is told as unreadable, nothing is waited for, and it is not replaced."""
    _with_something_in_place_of_the_file(program, os.mkfifo)
    assert (program.folder / FILE).is_fifo()


def with_its_screen_killed(program):
    """The program ends; what was saved is there, and at the next start as well."""
    with contextlib.ExitStack() as stack:
        display = stack.enter_context(screen("1024x768"))
        program.environment["DISPLAY"] = display
        program.launch()
        wait_for(lambda: program.windows(), "the window")
        owner = subprocess.run(["pgrep", "-P", str(os.getpid()), "Xvfb"], capture_output=True,
                               text=True, check=True).stdout.split()
        os.kill(int(owner[0]), signal.SIGKILL)
        wait_for(lambda: not program.is_running(), "the end")
    del program.environment["DISPLAY"]
    program.start()
    save(program, "finir", "finissons!")
    program.quit()
    assert verbs(program.folder) == ["finir"]


def without_fonts(program):
    """The program's own font is enough."""
    empty = program.folder / "fonts.conf"
    empty.write_text('<?xml version="1.0"?><!DOCTYPE fontconfig SYSTEM "fonts.dtd"><fontconfig/>')
    program.environment = {"FONTCONFIG_FILE": str(empty)}
    program.start()
    conjugates(program)
    assert program.box(FORM).bounds[2] > 20


def without_a_clipboard(program):
    """Pasting is not offered, and does nothing."""
    program.start()
    conjugates(program)
    assert not program.menu_item("Edycja", "Wklej").has("enabled")
    program.box(ENTRY).focus()
    keyboard.keys("ctrl+v")
    conjugates(program, "aimer", "aimons")


def with_files_of_other_years(program):
    """A clock that was wrong for years changes nothing: no verb is lost or found twice."""
    program.start()
    for year, verb in ((1971, "finir"), (2099, "aimer"), (1990, "rendre")):
        save(program, verb, f"{verb}!")
        seconds = (year - 1970) * 31_556_952
        os.utime(program.folder / FILE, (seconds, seconds))
        os.utime(program.folder, (seconds, seconds))
    program.quit()
    assert verbs(program.folder) == ["finir", "aimer", "rendre"] and program.settings()[0] == "3"


def started_with_twenty_files(program):
    """The program works or ends by itself; it does not hang, and what was saved stays."""
    (program.folder / FILE).write_bytes(b"kept")
    program.wrapper = ["sh", "-c", 'ulimit -n 20; exec "$@"', "sh"]
    program.launch()
    wait_for(lambda: program.windows() or not program.is_running(), "a window or the end")
    assert (program.folder / FILE).read_bytes() == b"kept"


def beside_another_program(program):
    """Each keeps what the other has saved, and both count it."""
    other = Program(program.executable, program.folder.with_name("other"))
    other.folder = program.folder
    other.environment = dict(program.environment)
    try:
        program.start()
        other.launch()
        wait_for(lambda: other.box(ENTRY).selection == "infinitif", "the start")
        for one, verb in ((other, "aimer"), (program, "parler"), (other, "donner")):
            save_through_the_bus(one, verb, f"{verb}!")
        other.quit()
        program.quit()
    finally:
        other.clean_up()
    assert verbs(program.folder) == ["aimer", "parler", "donner"] and program.settings()[0] == "3"


def run(program, table, *cases):
    """Each case with a program and a home of its own; all are tried, whatever falls."""
    told, fallen = [], []
    for case in cases:
        home = pathlib.Path(os.environ["HOME"], case)
        home.mkdir()
        (home / "runtime").mkdir(mode=0o700)
        one = Program(program.executable, home)
        one.environment = {"HOME": str(home)}
        try:
            globals()[case](one)
        except Exception as fault:  # whatever it is, the next case is tried
            fallen.append(f"FALLEN {case}: {fault!r}")
        finally:
            one.clean_up()
        told.append(f"  {case.replace('_', ' ')}: {globals()[case].__doc__.splitlines()[0]}")
    lines = [f"hostile surroundings: {len(cases)} cases, {len(fallen)} fallen", *told, *fallen]
    pathlib.Path(table).write_text("\n".join(lines) + "\n", encoding="utf-8")
    assert not fallen, "\n".join(fallen)
