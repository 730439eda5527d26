# SPDX-License-Identifier: GPL-3.0-or-later
"""The file calls of the real window, struck in turn: of a save, a delete, an exit, a reset, a start.

run(program, LIBRARY, DRIVER, TABLE, EVERY, ACTION…): every call in every way where EVERY is 1, else
each EVERYth of these cases. After each case the window works on or has ended, nothing is lost, what
it told is true, and a program started in the folder has every record and saves another.
"""

import os
import pathlib
import shutil
import subprocess

import orders
from element import gone
from program import ENTRY
from sweep import ALL_CASES, require
from waiting import Late, wait_for

FORM = "Indicatif présent, nous"
FILE = "Czasowniki.dat"
SETTINGS = "Werbolin.cfg"
KEPT = ("aimer", "finir", "rendre")
NOT_SAVED = "Nie można zapisać pliku czasowników użytkownika."
UNWRITTEN = ("Wystąpił błąd podczas tworzenia pliku konfiguracyjnego. Aktualne ustawienia mogą zostać "
             "niezapisane.")
EXIT_QUESTION = "Czy na pewno chcesz zakończyć program?"
RESET_QUESTION = "Ustawienia zostaną zresetowane, a program zamknięty."
BEFORE = b"3\r\n255\r\n65280\r\n7\r\n1112\r\n"


def record(verb, form=""):
    slots = [""] * 101
    slots[3], slots[96] = form, verb
    return ("".join(slot + "," for slot in slots) + " 1\r\n").encode("ascii")


RECORDS = b"".join(record(verb) for verb in KEPT)


class Window:
    """The program, its folder and the orders to it."""

    def __init__(self, program, library, driver):
        home = pathlib.Path(os.environ["HOME"])
        self.program, self.driver = program, driver
        self.orders = orders.Orders(library, home / "orders", program.folder, home / "calls")
        program.environment = self.orders.environment
        self.messages = []  # told in this case

    def fill(self, **files):
        for file in self.program.folder.iterdir():
            file.unlink()
        for name, content in ({FILE: RECORDS, SETTINGS: BEFORE} | files).items():
            if content is not None:
                (self.program.folder / name).write_bytes(content)

    def read(self, name):
        file = self.program.folder / name
        return file.read_bytes() if file.exists() else None

    def is_running(self):
        return self.program.was_started() and self.program.is_running()

    def ensure_running(self):
        if not self.is_running():
            self.program.start()

    def conjugate(self, verb):
        self.program.box(ENTRY).write(verb)
        self.program.box(ENTRY).await_text(verb)
        self.program.menu_item("Czasownik", "Odmień").press()

    def settle(self, is_over):
        """Answers what is told until the act is over or the program has ended."""
        def is_done():
            try:
                return not self.is_running() or answered()
            except (*gone(), Late):
                return not self.is_running()  # asked while it was going

        def answered():
            for box in self.program.messages():
                texts = box.texts()
                known = next((text for text in (NOT_SAVED, UNWRITTEN) if text in texts), None)
                if known or any("Wystąpił błąd" in text or "Nie można" in text for text in texts):
                    self.messages.append(known or texts[0])
                    box.answer("OK")
            return is_over()
        wait_for(is_done, "the end of the act")


class Save:
    """A verb is saved again with another form."""

    def __init__(self, window):
        self.window = window
        self.number = 0

    def prepare(self):
        window, program = self.window, self.window.program
        window.fill()
        window.ensure_running()
        self.number += 1
        self.form = f"forma{self.number}"
        window.conjugate("finir")
        wait_for(lambda: program.box("Infinitif passé").text == " -- ", "the verb of the file")
        next(part for part in program.menu_item("Czasownik", "Odmień").beside()
             if part.name.startswith("Edytuj")).press()
        program.await_title('Odmiennik - edycja "finir"')
        program.box(FORM).write(self.form)

    def act(self):
        program = self.window.program
        program.menu_item("Plik", "Zapisz Czasownik").press()
        self.window.settle(lambda: NOT_SAVED in self.window.messages or
                           "Odmiennik" in [window.name for window in program.windows()])

    def require_truth(self):
        window, found = self.window, self.window.read(FILE)
        new = record("aimer") + record("finir", self.form) + record("rendre")
        require(found in (RECORDS, new), "the file is neither old nor new")
        if not window.is_running():
            return
        if NOT_SAVED in window.messages:
            require(found == RECORDS, "told as not saved, but is")
            require(window.program.box(FORM).text == self.form, "what was typed is lost")
            window.program.menu_item("Plik", "Zapisz Czasownik").press()
            window.program.await_title("Odmiennik")
            found = window.read(FILE)
        require(found == new, "not saved, and not told")


class Delete:
    """The first verb is deleted in its window."""

    def __init__(self, window):
        self.window = window

    def prepare(self):
        window, program = self.window, self.window.program
        window.fill()
        window.ensure_running()
        program.menu_item("Czasownik", "Usuń").press()
        self.list = program.dialog("Usuń czasownik")
        wait_for(lambda: "3/7342" in self.list.texts(), "three verbs")

    def act(self):
        self.list.button("Usuń").press()
        # That the file cannot be read is told before: the verdict comes behind it.
        self.window.settle(lambda: NOT_SAVED in self.window.messages
                           or "2/7342" in self.list.texts())

    def require_truth(self):
        window, found = self.window, self.window.read(FILE)
        new = record("finir") + record("rendre")
        require(found in (RECORDS, new), "the file is neither old nor new")
        if window.is_running():
            is_told = NOT_SAVED in window.messages
            require(found == (RECORDS if is_told else new), "what was told is not so")
            self.list.answer("Zamknij")


class End:
    """What the ends of the program have in common: a program of its own for each case."""

    def __init__(self, window):
        self.window = window

    def prepare(self):
        self.window.program.kill()
        self.window.fill()
        self.window.program.start()
        self.ask()

    def act(self):
        self.question.button(self.answer).press()
        self.window.settle(lambda: False)

    def require_truth(self):
        found = self.window.read(SETTINGS)
        is_told = UNWRITTEN in self.window.messages
        require(found == BEFORE or self.is_new(found.split(b"\r\n")), f"the settings are {found}")
        require(self.window.read(FILE) == RECORDS, "the verbs have changed")
        if self.window.program.exit_code() == 0:
            require((found == BEFORE) == is_told, "what was told is not so")


class Exit(End):
    """The window is closed."""

    answer = "Tak"

    def ask(self):
        self.window.program.menu_item("Plik", "Koniec").press()
        self.question = self.window.program.message(EXIT_QUESTION)

    def is_new(self, lines):
        return lines == [b"3", b"255", b"65280", b"7", b"1113", b""]


class Reset(End):
    """The settings are reset."""

    answer = "OK"

    def ask(self):
        self.window.conjugate("resetuj")
        self.question = self.window.program.message(RESET_QUESTION)

    def is_new(self, lines):
        return len(lines) == 6 and (lines[0], lines[3], lines[4]) == (b"0", b"0", b"10")


class Start:
    """A start that puts back what a crash has left."""

    def __init__(self, window):
        self.window = window

    def prepare(self):
        self.window.program.kill()
        self.window.fill(**{FILE: None, "Czas.dat": RECORDS, FILE + ".new": b"half"})

    def act(self):
        program = self.window.program
        program.launch()
        wait_for(lambda: not program.is_running() or program.windows(), "the window")
        self.window.settle(lambda: program.box(ENTRY).has("focused") and
                           not program.messages())

    def require_truth(self):
        window = self.window
        found, left = window.read(FILE), window.read("Czas.dat")
        require(RECORDS in (found, left), "the verbs are lost")
        if window.is_running() and found is None:
            require(window.messages, "nothing is put back, and nothing told")


ACTIONS = {"save": Save, "delete": Delete, "exit": Exit, "reset": Reset, "start": Start}


def require_a_further_life(window):
    """A program started in the folder, undisturbed, has every record and saves another."""
    copy = window.program.folder.with_name("further life")
    shutil.rmtree(copy, ignore_errors=True)
    shutil.copytree(window.program.folder, copy)
    held = (window.read(FILE) or window.read("Czas.dat")).split(b"\r\n")[:-1]
    told = subprocess.run([window.driver, str(copy), "start", "save:vivre", "load:vivre", "exit"],
                          env={}, capture_output=True, text=True, check=True).stdout
    require("message" not in told and "load found" in told, f"the restart says {told}")
    kept = b"".join(file.read_bytes() for file in copy.iterdir()
                    if file.name == FILE or file.name.startswith("Czasowniki.bak"))
    require(all(line in kept for line in held), "a record is lost after the restart")
    require(not list(copy.glob("*.new*")), "something is left behind")


class WindowSweep:
    def __init__(self, window, every):
        self.window, self.every = window, every
        self.tried, self.fallen, self.again = {}, [], 0

    def sweep(self, name):
        action = ACTIONS[name](self.window)
        calls = self._perform(action, orders.COUNT)
        require(len(calls) == self.window.orders.counted() > 5, "the calls are not counted")
        require(not self.window.messages, f"undisturbed, it tells {self.window.messages}")
        cases = [(case, point) for case in ALL_CASES for point in range(1, len(calls) + 1)
                 if case.concerns(calls[point - 1])]
        for case, point in cases[::self.every]:
            fall = self._fall(action, case, point, calls)
            if fall:  # a busy machine misses a window; what is broken falls twice
                self.again += 1
                self.window.program.window_manager.renew()
                fall = self._fall(action, case, point, calls)
            if fall:
                self.fallen.append(f"FALLEN {name}, {case.name}, call {point} "
                                   f"({calls[point - 1]}): {fall!r}")
        self.tried[name] = (len(calls), len(cases), len(cases[::self.every]))

    def table(self):
        """What was tried so far, an action a line, and what fell."""
        lines = [f"file calls of the window, {name}: {calls} calls, {tried} of {cases} cases tried"
                 for name, (calls, cases, tried) in self.tried.items()]
        lines.append(f"{len(self.fallen)} fallen, {self.again} tried again")
        return "\n".join(lines + self.fallen) + "\n"

    def _fall(self, action, case, point, calls):
        """What was wrong in a case; nothing when all was well."""
        try:
            self._strike(action, case, point, calls)
        except (AssertionError, *gone()) as fall:
            self.window.program.kill()
            return fall
        return None

    def _perform(self, action, mode, point=0, times=1, value=0):
        """The act under an order; the calls that were made."""
        action.prepare()
        self.window.messages.clear()
        self.window.orders.give(mode, point, times, value)
        try:
            action.act()
        except gone():  # ended while it was spoken to
            wait_for(lambda: not self.window.is_running(), "the end of the program")
        finally:
            calls = self.window.orders.calls()
            self.struck = self.window.orders.struck()
            counted = self.window.orders.counted()
            self.window.orders.stop()
        require(len(calls) == counted, "a call was not written down")
        return calls

    def _strike(self, action, case, point, calls):
        made = self._perform(action, case.mode, point, case.times, case.value)
        require(made[:point] == calls[:point], "the calls before it were others")
        require(self.struck >= 1, "nothing was struck")
        require(case.mode != orders.END or len(made) == point, "calls were made after the end")
        action.require_truth()
        require_a_further_life(self.window)


def run(program, library, driver, table, every, *actions):
    sweep = WindowSweep(Window(program, library, driver), int(every))
    for name in actions:
        sweep.sweep(name)
        pathlib.Path(table).write_text(sweep.table(), encoding="utf-8")
    assert not sweep.fallen, "\n".join(sweep.fallen[:20])
