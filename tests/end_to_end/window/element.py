# SPDX-License-Identifier: GPL-3.0-or-later
"""What a screen reader knows of one part of a window."""

import subprocess

import gi

gi.require_version("Atspi", "2.0")
import pyatspi  # noqa: E402  (needs the version)
from gi.repository import Atspi, GLib  # noqa: E402

from waiting import wait_equal, wait_for  # noqa: E402

# The library's own 0.8 s are too few for a program that waits for its turn on a busy machine; one that
# has ended answers at once, by an error.
Atspi.set_timeout(15_000, 15_000)


class Element:
    """A box, button, menu item or window on the accessibility bus; asked anew at each question."""

    def __init__(self, accessible):
        self._accessible = accessible

    @property
    def name(self):
        return self._accessible.name

    @property
    def description(self):
        return self._accessible.description

    @property
    def role(self):
        return self._accessible.getRoleName()

    @property
    def text(self):
        text = self._accessible.queryText()
        return text.getText(0, text.characterCount)

    @property
    def selection(self):
        """The selected text."""
        text = self._accessible.queryText()
        if text.getNSelections() == 0:
            return ""
        start, end = text.getSelection(0)
        return text.getText(start, end)

    @property
    def caret(self):
        return self._accessible.queryText().caretOffset

    @property
    def bounds(self):
        """(x, y, width, height) on the screen."""
        extents = self._accessible.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
        return extents.x, extents.y, extents.width, extents.height

    def shows_its_whole_text(self):
        """Whether its last letter stands inside it, where its first one does not leave it either."""
        text = self._accessible.queryText()
        left, _, width, _ = self.bounds
        first, last = (text.getCharacterExtents(place, pyatspi.DESKTOP_COORDS)
                       for place in (0, text.characterCount - 1))
        return left <= first[0] and last[0] + last[2] <= left + width

    def has(self, state):
        """Whether a state is set: has("checked"), has("read only"), has("focused")."""
        wanted = getattr(pyatspi, "STATE_" + state.upper().replace(" ", "_"))
        return self._accessible.getState().contains(wanted)

    def selected_entry(self):
        """The name of the selected entry of a list; nothing when none is."""
        return next((entry.name for entry in self.children() if entry.has("selected")), None)

    def has_parts(self):
        return self._accessible.childCount > 0

    def children(self):
        """The parts that still exist; a window may go while it is being looked at."""
        for position in range(self._accessible.childCount):
            child = self._accessible.getChildAtIndex(position)
            if child is not None:
                yield Element(child)

    def beside(self):
        """The parts of the same menu or window, itself among them."""
        return Element(self._accessible.parent).children()

    def descendants(self):
        for child in self.children():
            yield child
            yield from child.descendants()

    def placed(self, above=()):
        """Every part within it, with its place: the numbers of the children that lead to it."""
        for position in range(self._accessible.childCount):
            child = self._accessible.getChildAtIndex(position)
            if child is not None:
                yield (*above, position), Element(child)
                yield from Element(child).placed((*above, position))

    def at(self, place):
        """The part at a place; nothing where there is none."""
        part = self._accessible
        for position in place:
            part = None if part is None else part.getChildAtIndex(position)
        return None if part is None else Element(part)

    def press(self):
        """What a click does: the button's or the menu item's own action."""
        self._accessible.queryAction().doAction(0)

    def click(self, times=1):
        """Clicks of the real mouse in its middle; the pointer stays there."""
        left, top, width, height = self.bounds
        subprocess.run(["xdotool", "mousemove", str(left + width // 2), str(top + height // 2),
                        "click", "--repeat", str(times), "--delay", "40", "1"], check=True)

    def focus(self):
        self._accessible.queryComponent().grabFocus()
        wait_for(lambda: self.has("focused"), f"the focus in {self.name!r}")

    def write(self, text):
        """Replaces the text, as a screen reader's dictation does."""
        self._accessible.queryEditableText().setTextContents(text)

    def labels(self):
        """The names of what labels it; a screen reader says them in the place of its own."""
        return [relation.getTarget(number).name
                for relation in self._accessible.getRelationSet()
                if relation.getRelationType() == pyatspi.RELATION_LABELLED_BY
                for number in range(relation.getNTargets())]

    def select_all(self):
        text = self._accessible.queryText()
        text.addSelection(0, text.characterCount)

    def await_text(self, expected):
        wait_equal(lambda: self.text, expected, f"text of {self.name!r}")


def gone():
    """The errors of asking a window that has just been closed."""
    return GLib.Error, LookupError, NotImplementedError, AttributeError
