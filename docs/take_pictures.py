#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""take_pictures.py PROGRAM FOLDER: takes the pictures of docs/pictures anew.

Each picture is taken on a desktop of its own, like the scenarios of tests/end_to_end/window, whose
harness is used here. Needs ImageMagick's `import` besides the tests' packages.

Example: docs/take_pictures.py build/release/bin/odmiennik docs/pictures
"""

import os
import pathlib
import subprocess
import sys

HARNESS = pathlib.Path(__file__).parent.parent / "tests" / "end_to_end" / "window"
sys.path.insert(0, str(HARNESS))

import keyboard  # noqa: E402
from desktop import home, screen, window_manager  # noqa: E402
from waiting import wait_for  # noqa: E402

B_VERBS = 329  # of the index
DESIGN = "800x600"  # the main window fills it
# A dark theme, as a desktop tells Qt of one.
DARK = {"XDG_CURRENT_DESKTOP": "KDE", "KDE_FULL_SESSION": "true", "KDE_SESSION_VERSION": "5"}
DARK_COLOURS = """[Colors:Window]
BackgroundNormal=42,46,50
ForegroundNormal=252,252,252
[Colors:View]
BackgroundNormal=27,30,32
ForegroundNormal=252,252,252
[Colors:Button]
BackgroundNormal=49,54,59
ForegroundNormal=252,252,252
[Colors:Selection]
BackgroundNormal=61,174,233
ForegroundNormal=252,252,252
"""


def conjugated(program, verb, form):
    """Conjugates a verb and waits for its form of the first person."""
    program.conjugate(verb)
    program.box("Indicatif présent, je").await_text(form)


def okno_parler(program):
    conjugated(program, "parler", "parle")


def okno_se_promener(program):
    conjugated(program, "se promener", "me promène")


def okno_ciemne(program):
    conjugated(program, "se promener", "me promène")


def edycja(program):
    conjugated(program, "payer", "paye/paie")
    program.menu_item("Czasownik", "Edytuj").press()
    program.await_title('Odmiennik - edycja "payer"')


def lista(program):
    program.menu_item("Czasownik", "Lista").press()
    window = program.window("Lista czasowników")
    wait_for(lambda: any(part.has("focused") for part in window.descendants()), "the focus")
    keyboard.keys("b")  # the choice of the letter has the focus
    wait_for(lambda: f"{B_VERBS}/7342" in program.dialog(window.name).texts(), "the list")


def znajdz_forme(program):
    keyboard.keys("ctrl+f")
    window = program.dialog("Znajdź formę")
    wait_for(window.is_active, "the window to come forward")
    keyboard.type_text("suis")
    wait_for(lambda: any(text.startswith("Możliwości: ") for text in window.texts()),
             "the readings")


def kolory(program):
    program.menu_item("Widok", "Kolory").press()
    program.dialog("Kolory")


def porada(program):
    program.menu_item("Pomoc", "Jak odmienić czasownik?").press()
    program.dialog("Porada dnia")


def pomoc(program):
    program.box("Indicatif passé composé, je").focus()
    keyboard.keys("F1")
    program.window("Odmiennik – pomoc")


def o_programie(program):
    conjugated(program, "finir", "finis")
    program.menu_item("Pomoc", "O programie...").press()
    program.dialog("O programie Odmiennik")


# Name: screen, caption of the one window that is taken (none: the whole screen), what to do.
PICTURES = {
    "okno-parler": (DESIGN, None, okno_parler),
    "okno-se-promener": (DESIGN, None, okno_se_promener),
    "okno-ciemne": (DESIGN, None, okno_ciemne),
    "edycja": (DESIGN, None, edycja),
    "lista": ("1366x768", "Lista czasowników", lista),
    "znajdz-forme": ("1366x768", "Znajdź formę", znajdz_forme),
    "kolory": (DESIGN, "Kolory", kolory),
    "porada": ("1366x768", "Porada dnia", porada),
    "pomoc": ("1024x768", "Odmiennik – pomoc", pomoc),
    "o-programie": (DESIGN, None, o_programie),
}


def outside(program, folder, name):
    """Starts this file again on a desktop of its own."""
    with screen(PICTURES[name][0]) as display, home(display) as environment:
        if name == "okno-ciemne":
            environment |= DARK
            colours = pathlib.Path(environment["HOME"], ".config", "kdeglobals")
            colours.parent.mkdir()
            colours.write_text(DARK_COLOURS, encoding="utf-8")
        session = ["dbus-run-session", "--", sys.executable, "-B", __file__, "--inside"]
        subprocess.run([*session, program, folder, name], env=environment, check=True)


def inside(executable, folder, name):
    from program import Program  # asks for the accessibility bus, which is only there by now
    _, caption, work = PICTURES[name]
    with window_manager():
        program = Program(executable, os.environ["HOME"])
        try:
            program.start()
            work(program)
            take(pathlib.Path(folder, name + ".png"), front_window(caption) if caption else "root")
        finally:
            program.clean_up()


def front_window(caption):
    """The window of that caption, once it is in front."""
    def front():
        number = output("xdotool", "getactivewindow").strip()
        return number if output("xdotool", "getwindowname", number).strip() == caption else None
    return wait_for(front, f"{caption!r} in front")


def output(*command):
    return subprocess.run(command, check=False, capture_output=True, text=True).stdout


def take(file, window):
    """Takes a picture once two in a row are the same: the window is painted and the caret rests."""
    command = ["import", "-frame", "-window", window, "-strip", "-colors", "256", "png8:-"]
    before = b""
    while True:
        picture = subprocess.run(command, check=True, capture_output=True).stdout
        if picture == before:
            break
        before = picture
    file.write_bytes(picture)


if __name__ == "__main__":
    if sys.argv[1] == "--inside":
        inside(*sys.argv[2:])
    else:
        for picture_name in PICTURES:
            outside(sys.argv[1], sys.argv[2], picture_name)
