"""The keyboard of the private screen."""

import subprocess


def keys(*names):
    """Presses keys one after the other: keys("Tab", "ctrl+s")."""
    subprocess.run(["xdotool", "key", "--clearmodifiers", *names], check=True)


def type_text(text):
    """Types letters of the keyboard's layout into whatever has the focus."""
    subprocess.run(["xdotool", "type", "--clearmodifiers", "--delay", "15", text], check=True)
