# SPDX-License-Identifier: GPL-3.0-or-later
"""A private desktop: a screen, a session bus, a window manager and a home that nobody else uses."""

import contextlib
import os
import pathlib
import subprocess
import tempfile

from waiting import wait_for

# A program started in this environment sees the private desktop alone.
KEPT = ("PATH", "LD_LIBRARY_PATH", "ASAN_OPTIONS", "UBSAN_OPTIONS")


class CannotRun(Exception):
    """What a scenario needs is installed but does not work here; says why."""


def ended(process, seconds=5):
    """Ends a process that was started here."""
    process.terminate()
    try:
        process.wait(seconds)
    except subprocess.TimeoutExpired:
        process.kill()
        process.wait()


@contextlib.contextmanager
def screen(size, shown=None):
    """A screen of `size` ("1024x768"), as the value of DISPLAY.

    It is not reset when its last client leaves: that would throw out the one just coming. What is
    on it is kept in the folder `shown`, for picture.py.
    """
    reading, writing = os.pipe()
    kept = [] if shown is None else ["-fbdir", shown]
    server = subprocess.Popen(
        ["Xvfb", "-displayfd", str(writing), "-screen", "0", f"{size}x24", "-nolisten", "tcp",
         "-noreset", *kept],
        pass_fds=[writing], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    os.close(writing)
    try:
        with os.fdopen(reading) as number:
            yield ":" + number.readline().strip()
    finally:
        ended(server)


@contextlib.contextmanager
def home(display):
    """An environment with a home of its own, in a folder that is gone afterwards."""
    with tempfile.TemporaryDirectory(prefix="odmiennik-") as folder:
        runtime = pathlib.Path(folder, "runtime")
        runtime.mkdir(mode=0o700)
        kept = {name: os.environ[name] for name in KEPT if name in os.environ}
        yield kept | {
            "DISPLAY": display, "HOME": folder, "XDG_RUNTIME_DIR": str(runtime),
            "LANG": "C.UTF-8", "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
            "QT_QPA_PLATFORM": "xcb", "NO_AT_BRIDGE": "0"}


class WindowManager:
    """The window manager of the screen in DISPLAY: it gives each new window the focus."""

    def __init__(self):
        self._ready = pathlib.Path(os.environ["HOME"], "window manager is ready")
        self._start()

    def _start(self):
        self._ready.unlink(missing_ok=True)
        self._process = subprocess.Popen(["openbox", "--startup", f"touch '{self._ready}'"],
                                         stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        wait_for(self._ready.exists, "the window manager")

    def renew(self):
        """Another one that knows no window.

        When a program is killed while its window comes, the window manager may keep that window for
        ever; the next program's has the same number and is never shown.
        """
        self.end()
        self._start()

    def end(self):
        ended(self._process)


@contextlib.contextmanager
def window_manager():
    """The window manager, ready; it ends with the block."""
    manager = WindowManager()
    try:
        yield manager
    finally:
        manager.end()
