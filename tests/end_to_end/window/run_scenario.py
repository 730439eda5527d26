# SPDX-License-Identifier: GPL-3.0-or-later
"""run_scenario.py PROGRAM MODULE SCENARIO: runs one scenario on a desktop of its own.

A scenario is a function of scenarios/MODULE.py that gets the program. It fails with an exception,
and is skipped where what it needs is not installed.
"""

import contextlib
import importlib
import os
import signal
import subprocess
import sys
import tempfile

SKIPPED = 77  # the exit code that ctest is told of
LIMIT = 220  # seconds; below the limit of ctest, so that everything started is ended here


# What the scenarios of a file ask for by a name of theirs, and the module that has it.
PARTS = {"SCREEN_READER": "screen_reader", "WAYLAND": "wayland"}


def parts_of(module):
    """What a file of scenarios asks for beyond a program on a screen."""
    return {name: importlib.import_module(part) for name, part in PARTS.items()
            if hasattr(module, name)}


def obstacle(module):
    """Why the scenarios of a file cannot run here; nothing when they can."""
    return next(filter(None, (part.obstacle() for part in parts_of(module).values())), None)


def skipped(why):
    print(f"SKIPPED: {why}", flush=True)
    return SKIPPED


def on_private_desktop(program, module, scenario):
    """Starts this file again where nothing disturbs it; its exit code."""
    from desktop import home, screen
    scenarios = importlib.import_module(f"scenarios.{module}")
    if obstacle(scenarios):
        return skipped(obstacle(scenarios))
    size = getattr(scenarios, "SCREEN", "1024x768")
    with tempfile.TemporaryDirectory(prefix="odmiennik-") as shown, \
            screen(size, shown) as display, home(display) as environment:
        environment |= {"SHOWN": shown, "SCREEN": size}
        session = ["dbus-run-session", "--", sys.executable, "-B", __file__, "--inside"]
        return subprocess.run([*session, program, module, scenario], env=environment,
                              check=False).returncode


def inside(executable, module, scenario):
    from desktop import CannotRun
    signal.alarm(LIMIT)
    signal.signal(signal.SIGALRM, give_up)
    scenarios = importlib.import_module(f"scenarios.{module}")
    try:
        with manager(scenarios), listener(scenarios) as reader:
            run(executable, getattr(scenarios, scenario), reader)
    except CannotRun as why:
        return skipped(why)
    return 0


def run(executable, scenario, reader):
    from program import Program
    program = Program(executable, os.environ["HOME"])
    program.reader = reader
    try:
        scenario(program)
    finally:
        program.clean_up()


def manager(module):
    """Who places the windows: Wayland where a file asks for it with WAYLAND, else a window manager."""
    from desktop import window_manager
    wayland = parts_of(module).get("WAYLAND")
    if wayland is None:
        return window_manager()
    return wayland.compositor(getattr(module, "SCALE", 1))


def listener(module):
    """The screen reader where a file asks for it with SCREEN_READER, else nobody."""
    reader = parts_of(module).get("SCREEN_READER")
    return contextlib.nullcontext() if reader is None else reader.screen_reader()


def give_up(*_):
    raise TimeoutError(f"the scenario took more than {LIMIT} s")


if __name__ == "__main__":
    if sys.argv[1] == "--inside":
        sys.exit(inside(*sys.argv[2:]))
    sys.exit(on_private_desktop(*sys.argv[1:]))
