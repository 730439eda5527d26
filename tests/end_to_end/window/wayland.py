# SPDX-License-Identifier: GPL-3.0-or-later
"""A Wayland desktop: the compositor Weston in a window that covers the private screen."""

import contextlib
import glob
import os
import pathlib
import re
import shutil
import subprocess

from desktop import CannotRun, ended
from waiting import Late, wait_for

LIBRARIES = "/usr/lib/*/"
SOCKET = "wayland-odmiennik"
# Nothing that moves or comes up by itself; the panel is there as on a desktop of every day.
SETTINGS = """[core]
idle-time=0
[keyboard]
repeat-rate=0
[input-method]
path=
[shell]
background-color=0xff336699
panel-position=top
locking=false
animation=none
startup-animation=none
close-animation=none
"""
PANEL = 32  # pixels at the top
GROUND = (0x33, 0x66, 0x99)  # the colour behind the windows


def is_shown(picture):
    """Whether a window is seen in the picture, where the main window stands."""
    return any(colour != GROUND for colour in picture.row(picture.height // 2))


def obstacle():
    """Why there can be no Wayland desktop here; nothing when there can."""
    if shutil.which("weston") is None or not glob.glob(LIBRARIES + "libweston-*/x11-backend.so"):
        return "weston missing (Debian package weston)"
    if not glob.glob(LIBRARIES + "qt6/plugins/platforms/libqwayland-*.so"):
        return "Qt's Wayland platform missing (Debian package qt6-wayland)"
    return None


def _log():
    return pathlib.Path(os.environ["HOME"], "log of Weston")


def _started(scale):
    settings = pathlib.Path(os.environ["HOME"], "weston.ini")
    settings.write_text(SETTINGS, encoding="utf-8")
    width, height = (int(pixels) // scale for pixels in os.environ["SCREEN"].split("x"))
    return subprocess.Popen(
        ["weston", "--backend=x11-backend.so", "--use-pixman", f"--width={width}",
         f"--height={height}", f"--scale={scale}", f"--socket={SOCKET}", f"--config={settings}",
         f"--log={_log()}"],
        stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)


def _xdotool(*words):
    return subprocess.run(["xdotool", *words], capture_output=True, text=True, check=False).stdout


def _take_keyboard():
    """What xdotool types goes to the compositor's window; the pointer rests in a corner of it."""
    window = re.search(r"window id (\d+)", _log().read_text(encoding="utf-8"))
    if window is None:
        return False
    _xdotool("windowfocus", window[1], "mousemove", "1", "1")
    return _xdotool("getwindowfocus").strip() == window[1]


@contextlib.contextmanager
def compositor(scale):
    """The compositor, ready: it gives each new window the focus. What is started sees it alone, and is
    drawn `scale` times as large as usual.
    """
    weston = _started(scale)
    socket = pathlib.Path(os.environ["XDG_RUNTIME_DIR"], SOCKET)
    try:
        wait_for(lambda: socket.exists() or weston.poll() is not None, "Weston's start")
        wait_for(_take_keyboard, "Weston's window")
        os.environ |= {"WAYLAND_DISPLAY": SOCKET, "QT_QPA_PLATFORM": "wayland"}
        yield
    except Late as late:
        if weston.poll() is None:
            raise
        raise CannotRun(f"weston ended at once with {weston.returncode}") from late
    finally:
        ended(weston)
