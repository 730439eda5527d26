# SPDX-License-Identifier: GPL-3.0-or-later
"""The keyboard of the private screen."""

import contextlib
import subprocess


def keys(*names):
    """Presses keys one after the other: keys("Tab", "ctrl+s")."""
    subprocess.run(["xdotool", "key", "--clearmodifiers", *names], check=True)


def type_text(text):
    """Types letters of the keyboard's layout into whatever has the focus."""
    subprocess.run(["xdotool", "type", "--clearmodifiers", "--delay", "15", text], check=True)


@contextlib.contextmanager
def held(*names):
    """Keeps keys down, one after the other, and lets them go afterwards: held("alt", "c").

    What a compositor opens for a key it opens while the key is down.
    """
    for name in names:
        subprocess.run(["xdotool", "keydown", name], check=True)
    try:
        yield
    finally:
        for name in reversed(names):
            subprocess.run(["xdotool", "keyup", name], check=True)
