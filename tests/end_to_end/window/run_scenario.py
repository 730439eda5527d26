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

SKIPPED = 77  # the exit code that ctest is told of
LIMIT = 80  # seconds; below the limit of ctest, so that everything started is ended here


def obstacle(module):
    """Why the scenarios of a module cannot run here; nothing when they can."""
    if not hasattr(module, "SCREEN_READER"):
        return None
    import screen_reader
    return screen_reader.obstacle()


def on_private_desktop(program, module, scenario):
    """Starts this file again where nothing disturbs it; its exit code."""
    from desktop import home, screen
    scenarios = importlib.import_module(f"scenarios.{module}")
    if obstacle(scenarios):
        print(f"SKIPPED: {obstacle(scenarios)}")
        return SKIPPED
    size = getattr(scenarios, "SCREEN", "1024x768")
    with screen(size) as display, home(display) as environment:
        session = ["dbus-run-session", "--", sys.executable, "-B", __file__, "--inside"]
        return subprocess.run([*session, program, module, scenario], env=environment,
                              check=False).returncode


def inside(executable, module, scenario):
    from desktop import window_manager
    from program import Program
    signal.alarm(LIMIT)
    signal.signal(signal.SIGALRM, give_up)
    scenarios = importlib.import_module(f"scenarios.{module}")
    with window_manager(), listener(scenarios) as reader:
        program = Program(executable, os.environ["HOME"])
        program.reader = reader
        try:
            getattr(scenarios, scenario)(program)
        finally:
            program.clean_up()
    return 0


def listener(module):
    """The screen reader where a module asks for it with SCREEN_READER, else nobody."""
    if not hasattr(module, "SCREEN_READER"):
        return contextlib.nullcontext()
    import screen_reader
    return screen_reader.screen_reader()


def give_up(*_):
    raise TimeoutError(f"the scenario took more than {LIMIT} s")


if __name__ == "__main__":
    if sys.argv[1] == "--inside":
        sys.exit(inside(*sys.argv[2:]))
    sys.exit(on_private_desktop(*sys.argv[1:]))
