#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""take_pictures.py PROGRAM [PICTURE…]: takes the pictures of docs/pictures and help/obrazy anew.

Each picture is taken on a desktop of its own, like the scenarios of tests/end_to_end/window, whose
harness is used here. Needs ImageMagick's `import` besides the tests' packages.

Example: docs/take_pictures.py build/release/bin/odmiennik help/obrazy/znajdz-forme.png
"""

import os
import pathlib
import subprocess
import sys

PROJECT = pathlib.Path(__file__).resolve().parent.parent
HARNESS = PROJECT / "tests" / "end_to_end" / "window"
sys.path.insert(0, str(HARNESS))

import keyboard  # noqa: E402
from desktop import home, screen, window_manager  # noqa: E402
from waiting import wait_for  # noqa: E402

B_VERBS = 329  # of the index
DESIGN = "800x600"  # the main window fills it
WIDE = "1366x768"
HELP_WIDTH, HELP_HEIGHT = "420", "190"  # of a window on a page of the help: pages are narrow
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
    make_narrow()


def skad_ta_forma(program):
    conjugated(program, "manger", "mange")
    program.box("Indicatif présent, nous").focus()
    keyboard.keys("shift+F1")
    window = program.dialog("Skąd ta forma?")
    wait_for(window.is_active, "the window to come forward")
    keyboard.keys("Tab")  # the text shows no caret then


def make_narrow():
    output("xdotool", "getactivewindow", "windowsize", "--sync", HELP_WIDTH, HELP_HEIGHT)


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


# File: screen, caption of the one window that is taken (none: the whole screen), what to do.
PICTURES = {
    "docs/pictures/okno-parler.png": (DESIGN, None, okno_parler),
    "docs/pictures/okno-se-promener.png": (DESIGN, None, okno_se_promener),
    "docs/pictures/okno-ciemne.png": (DESIGN, None, okno_ciemne),
    "docs/pictures/edycja.png": (DESIGN, None, edycja),
    "docs/pictures/lista.png": (WIDE, "Lista czasowników", lista),
    "help/obrazy/znajdz-forme.png": (WIDE, "Znajdź formę", znajdz_forme),
    "help/obrazy/skad-ta-forma.png": (WIDE, "Skąd ta forma?", skad_ta_forma),
    "docs/pictures/kolory.png": (DESIGN, "Kolory", kolory),
    "docs/pictures/porada.png": (WIDE, "Porada dnia", porada),
    "docs/pictures/pomoc.png": ("1024x768", "Odmiennik – pomoc", pomoc),
    "docs/pictures/o-programie.png": (DESIGN, None, o_programie),
}
# Pictures of the help travel with the program.
COLOURS = {"docs": "256", "help": "32"}


def outside(program, name):
    """Starts this file again on a desktop of its own."""
    with screen(PICTURES[name][0]) as display, home(display) as environment:
        if PICTURES[name][2] is okno_ciemne:
            environment |= DARK
            colours = pathlib.Path(environment["HOME"], ".config", "kdeglobals")
            colours.parent.mkdir()
            colours.write_text(DARK_COLOURS, encoding="utf-8")
        session = ["dbus-run-session", "--", sys.executable, "-B", __file__, "--inside"]
        subprocess.run([*session, program, name], env=environment, check=True)


def inside(executable, name):
    from program import Program  # asks for the accessibility bus, which is only there by now
    _, caption, work = PICTURES[name]
    with window_manager():
        program = Program(executable, os.environ["HOME"])
        try:
            program.start()
            work(program)
            take(name, front_window(caption) if caption else "root")
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


def take(name, window):
    """Takes a picture once two in a row are the same: the window is painted and the caret rests."""
    colours = COLOURS[pathlib.PurePath(name).parts[0]]
    command = ["import", "-frame", "-window", window, "-strip", "+dither", "-colors", colours,
               "-define", "png:compression-level=9", "png8:-"]
    before = b""
    while True:
        picture = subprocess.run(command, check=True, capture_output=True).stdout
        if picture == before:
            break
        before = picture
    (PROJECT / name).write_bytes(picture)


if __name__ == "__main__":
    if sys.argv[1] == "--inside":
        inside(*sys.argv[2:])
    else:
        for picture_name in sys.argv[2:] or PICTURES:
            outside(sys.argv[1], picture_name)
