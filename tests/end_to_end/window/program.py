# SPDX-License-Identifier: GPL-3.0-or-later
"""The program under test, run and asked from outside."""

import os
import pathlib
import shutil
import subprocess

import pyatspi
from gi.repository import Atspi

import keyboard
from element import Element, gone
from message import Message
from waiting import wait_equal, wait_for

ENTRY = "Infinitif présent"
TITLE = "Odmiennik"
# The tip of the day is switched off as the program itself does it.
NO_TIP = "[Ustawienia]\nPokazuj%20porad%U0119%20dnia=0\n"


class Program:
    """`odmiennik`, with a folder and a home of its own; ended with the scenario."""

    def __init__(self, executable, home):
        self.executable = executable
        self.reader = None  # Orca, in scenarios that ask for it
        self.window_manager = None  # for attacks, which may need another one
        self.environment = {}  # what the program shall see otherwise: {"PATH": "/tmp"}
        self.wrapper = []  # what starts it: ["sh", "-c", 'exec "$@"', "sh"]
        self.is_told_its_folder = True
        self.folder = pathlib.Path(home, "program folder")
        self.folder.mkdir(parents=True)
        self.user_store = pathlib.Path(home, ".config", "Odmiennik", "Odmiennik.conf")
        self.user_store.parent.mkdir(parents=True)
        self.user_store.write_text(NO_TIP, encoding="utf-8")
        self._log = open(pathlib.Path(home, "log"), "w+b")
        self._process = None
        self._known = {}
        self._places = {}

    # Starting and ending

    def launch(self):
        """Starts the process; the window may still be on its way, or a message before it."""
        self._known = {}
        told = ["--folder", str(self.folder)] if self.is_told_its_folder else []
        command = [*self.wrapper, self.executable, *told]
        self._process = subprocess.Popen(command, env=os.environ | self.environment,
                                         stdout=self._log, stderr=self._log)

    def start(self):
        """Starts the program and waits until a verb can be typed."""
        self.launch()
        wait_for(lambda: self.box(ENTRY).has("focused"), "the focus in the entry box")

    def forget_user_store(self):
        """Leaves nothing of the user's in the home, as on a new computer: the tip will show."""
        self.user_store.unlink()

    def leave_its_files_behind(self):
        """What is started from now on is a copy with nothing beside it, no help file either."""
        alone = self.folder.with_name("alone")
        alone.mkdir()
        self.executable = shutil.copy(self.executable, alone)

    def was_started(self):
        return self._process is not None

    def is_running(self):
        return self._process.poll() is None

    def exit_code(self):
        return self._process.returncode

    def kill(self):
        """Ends the process at once, if there is one."""
        if self.was_started() and self.is_running():
            self._process.kill()
            self._process.wait()

    def await_end(self):
        wait_for(lambda: not self.is_running(), "the program's end")
        assert self._process.returncode == 0, f"it ended with {self._process.returncode}"

    def terminate(self):
        """Asks the process to end, as a system does that shuts down."""
        self._process.terminate()

    def catches(self, signal):
        """Whether the process has its own answer to a signal."""
        status = pathlib.Path(f"/proc/{self._process.pid}/status").read_text()
        caught = next(line for line in status.splitlines() if line.startswith("SigCgt"))
        return bool(int(caught.split()[1], 16) & 1 << signal - 1)

    def process_id(self):
        return self._process.pid

    def log(self):
        """What it has written to its streams so far."""
        return pathlib.Path(self._log.name).read_bytes()

    def await_death(self, signal):
        """Waits for an end by a signal."""
        wait_for(lambda: not self.is_running(), "the process's end")
        assert self._process.returncode == -signal, f"it ended with {self._process.returncode}"

    def quit(self):
        """Closes the window and answers the exit question with Yes."""
        self.menu_item("Plik", "Koniec").press()
        self.message("Czy na pewno chcesz zakończyć program?").answer("Tak")
        self.await_end()

    def told(self):
        """What it has written so far where it was started."""
        return pathlib.Path(self._log.name).read_text(encoding="utf-8")

    def clean_up(self):
        self.kill()
        if self._log.closed:
            return
        self._log.seek(0)
        shutil.copyfileobj(self._log, open(2, "wb", closefd=False))
        self._log.close()

    # Finding

    def _application(self):
        desktop = pyatspi.Registry.getDesktop(0)
        desktop.set_cache_mask(Atspi.Cache.NONE)
        for position in range(desktop.childCount):
            application = desktop.getChildAtIndex(position)
            if application is not None and application.get_process_id() == self._process.pid:
                return Element(application)
        return None

    def windows(self):
        """The windows on the screen, the main window included."""
        try:
            application = self._application()
            parts = [] if application is None else list(application.children())
        except gone():
            return []
        return [window for window in parts if told_of(window, is_shown)]

    def window(self, name):
        """The window of that caption, waited for."""
        def is_sought(window):
            return window.name == name
        return wait_for(lambda: next((w for w in self.windows() if told_of(w, is_sought)), None),
                        f"the window {name!r}")

    def main_window(self):
        """The main window, whatever its caption."""
        if "main window" not in self._known:
            self._known["main window"] = wait_for(
                lambda: next((w for w in self.windows() if told_of(w, is_main)), None),
                "the main window")
        return self._known["main window"]

    def _find(self, kind, name, matches):
        def search():
            try:
                return self._search((kind, name), matches)
            except gone():
                return None
        if (kind, name) not in self._known:
            self._known[kind, name] = wait_for(search, f"{kind} {name!r} in the main window")
        return self._known[kind, name]

    def _search(self, sought, matches):
        """Looks first where it was in the program's last life: to walk the window takes long."""
        window = self.main_window()
        part = window.at(self._places[sought]) if sought in self._places else None
        if part is not None and matches(part):
            return part
        for place, part in window.placed():
            if matches(part):
                self._places[sought] = place
                return part
        return None

    def box(self, name):
        """The text box of that accessible name."""
        return self._find("box", name, lambda part: part.role == "text" and part.name == name)

    def boxes(self):
        """All text boxes of the main window, in its order."""
        return [part for part in self.main_window().descendants() if part.role == "text"]

    def button(self, name):
        return self._find("button", name, lambda part: part.role in ("push button", "button")
                          and part.name == name)

    def check_box(self):
        """The one that shows the auxiliary."""
        return self._find("check box", "", lambda part: part.role == "check box"
                          and part.has("showing"))

    def menu(self, name):
        return self._find("menu", name, lambda part: part.name == name
                          and part.role == "menu item" and part.has_parts())

    def menu_item(self, menu, name):
        """The item of that caption in that menu, also while the menu is closed."""
        opened = self.menu(menu)
        return wait_for(lambda: next((part for part in opened.descendants() if part.name == name),
                                     None), f"the item {name!r} of {menu!r}")

    def message(self, text):
        """The message box that says `text`, waited for."""
        def search():
            return next((box for box in self.messages() if text in box.texts()), None)
        try:
            return wait_for(search, f"the message {text!r}")
        except AssertionError as late:
            shown = [box.texts() for box in self.messages()]
            raise AssertionError(f"{late}; shown: {shown}") from None

    def messages(self):
        """All message boxes on the screen."""
        boxes = (told_of(window, message_of) for window in self.windows())
        return [box for box in boxes if box is not None]

    # Working

    def enter(self, text):
        """Types into the entry box, replacing what it says."""
        entry = self.box(ENTRY)
        entry.focus()
        keyboard.keys("ctrl+a")
        wait_equal(lambda: entry.selection, entry.text, "the selected text")
        keyboard.type_text(text)
        entry.await_text(text)

    def conjugate(self, verb):
        """Types a verb and presses Enter."""
        self.enter(verb)
        keyboard.keys("Return")

    def await_title(self, title):
        wait_equal(lambda: self.main_window().name, title, "caption of the main window")

    def dialog(self, title):
        """The secondary window of that caption."""
        return Message(self.window(title))

    def settings(self):
        """The lines of the settings file."""
        return (self.folder / "Werbolin.cfg").read_bytes().decode("ascii").split("\r\n")[:-1]


def is_main(window):
    return window.role == "frame"


def is_shown(window):
    return window.has("showing")


def message_of(window):
    """The window as a message; nothing when it is none."""
    return Message(window) if window.role in ("alert", "dialog") else None


def told_of(window, question):
    """The answer to a question about a window; nothing of one that has just been closed."""
    try:
        return question(window)
    except gone():
        return None

