# SPDX-License-Identifier: GPL-3.0-or-later
"""A message box or another secondary window of the program."""

from element import gone
from waiting import wait_for


class Message:
    """A message box or another window with buttons on the screen."""

    def __init__(self, window):
        self._window = window
        self.title = window.name

    def texts(self):
        try:
            return [part.name for part in self._window.descendants() if part.role == "label"]
        except gone():
            return []

    def own_texts(self):
        """Those that stand in the window itself; a list in it is not looked through."""
        return [part.name for part in self._window.children() if part.role == "label"]

    def buttons(self):
        return [part for part in self._window.descendants()
                if part.role in ("push button", "button")]

    def button(self, caption):
        button = next((b for b in self.buttons() if b.name == caption), None)
        assert button is not None, f"{caption!r} is not among {[b.name for b in self.buttons()]}"
        return button

    def parts(self):
        return list(self._window.descendants())

    def part(self, name):
        """The first part of that accessible name, waited for."""
        def search():
            try:
                return next((p for p in self._window.descendants() if p.name == name), None)
            except gone():
                return None
        return wait_for(search, f"{name!r} in the window {self.title!r}")

    @property
    def bounds(self):
        return self._window.bounds

    def is_active(self):
        """Whether the keyboard's keys go to this window."""
        return self._window.has("active")

    def check_box(self):
        return next(part for part in self._window.descendants() if part.role == "check box")

    def answer(self, caption):
        """Presses a button and waits until the box is gone."""
        self.button(caption).press()
        self.await_end()

    def await_end(self):
        wait_for(self.is_gone, f"the end of the window {self.title!r}")

    def is_gone(self):
        try:
            return not self._window.has("showing")
        except gone():
            return True
