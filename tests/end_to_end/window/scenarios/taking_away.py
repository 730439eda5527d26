# SPDX-License-Identifier: GPL-3.0-or-later
"""A teacher takes conjugations along, with the keyboard alone."""

import subprocess

import html5lib
import keyboard
from waiting import wait_equal, wait_for


def _save_as(program, path, caption="Zapisz odmianę jako"):
    window = program.dialog(caption)
    wait_for(window.is_active, "the dialog to come forward")
    keyboard.keys("ctrl+a")
    keyboard.type_text(str(path))
    keyboard.keys("Return")
    window.await_end()


def a_page_for_class_is_saved(program):
    program.start()
    program.enter("finir")
    keyboard.keys("Return", "ctrl+shift+s")
    path = program.folder / "finir.pdf"
    _save_as(program, program.folder / "finir")
    wait_for(path.exists, "the file")
    text = subprocess.run(["pdftotext", "-layout", str(path), "-"], capture_output=True, check=True,
                          timeout=60).stdout.decode()
    for phrase in ("grupa: druga", "nous finissons", "qu'ils aient fini"):
        assert phrase in text, phrase
    wait_equal(lambda: text.count("\f"), 1, "pages")


def a_page_for_browsers_is_saved(program):
    program.start()
    program.enter("finir")
    keyboard.keys("Return", "ctrl+shift+s")
    path = program.folder / "finir.html"
    _save_as(program, path)
    wait_for(path.exists, "the file")
    page = html5lib.HTMLParser(strict=True, namespaceHTMLElements=False).parse(path.read_text())
    cells = ["".join(cell.itertext()) for cell in page.iter("td")]
    assert "nous finissons" in cells


def a_list_is_saved(program):
    program.start()
    keyboard.keys("ctrl+l")
    wait_for(program.dialog("Lista czasowników").is_active, "the list to come forward")
    keyboard.keys("k", "alt+s")
    program.message("Zapisać cały spis, 7342 czasowniki? Odpowiedź „Nie” zapisze tylko czasowniki "
                    "na literę „k”.").answer("Nie")
    path = program.folder / "k.csv"
    _save_as(program, path, "Zapisz listę jako")
    wait_for(path.exists, "the file")
    lines = path.read_bytes().split(b"\r\n")
    wait_equal(lambda: len(lines) % 101, 2, "lines over")  # the head, and nothing behind the end
