# SPDX-License-Identifier: GPL-3.0-or-later
"""attack.py PROGRAM MODULE [ARGUMENT…]: runs one attack on the real window, on a desktop of its own.

An attack is a module of this folder with a function `run(program, *arguments)`; it fails with an
exception. Nothing is linked in: the window is driven as in tests/end_to_end/window.
"""

import importlib
import os
import pathlib
import signal
import subprocess
import sys

sys.path.insert(0, str(pathlib.Path(__file__).parents[2] / "end_to_end" / "window"))
sys.path.insert(0, str(pathlib.Path(__file__).parents[1] / "file_calls"))

PASSED_ON = ("ODMIENNIK_LIMIT", "QT_QPA_PLATFORM_PLUGIN_PATH")
LIMIT = int(os.environ.get("ODMIENNIK_LIMIT", "100"))  # seconds; below the limit of ctest


def on_private_desktop(words):
    """Starts this file again where nothing disturbs it; its exit code."""
    from desktop import home, screen
    with screen("1024x768") as display, home(display) as environment:
        kept = {name: os.environ[name] for name in PASSED_ON if name in os.environ}
        session = ["dbus-run-session", "--", sys.executable, "-B", __file__, "--inside"]
        return subprocess.run([*session, *words], env=environment | kept, check=False).returncode


def inside(executable, module, *arguments):
    from desktop import window_manager
    from program import Program
    signal.alarm(LIMIT)
    signal.signal(signal.SIGALRM, give_up)
    with window_manager() as manager:
        program = Program(executable, os.environ["HOME"])
        program.window_manager = manager
        try:
            importlib.import_module(module).run(program, *arguments)
        finally:
            program.clean_up()
    return 0


def give_up(*_):
    raise TimeoutError(f"the attack took more than {LIMIT} s")


if __name__ == "__main__":
    if sys.argv[1] == "--inside":
        sys.exit(inside(*sys.argv[2:]))
    sys.exit(on_private_desktop(sys.argv[1:]))
