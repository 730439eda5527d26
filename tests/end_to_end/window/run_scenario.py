"""run_scenario.py PROGRAM MODULE SCENARIO: runs one scenario on a desktop of its own.

A scenario is a function of scenarios/MODULE.py that gets the program. It fails with an exception.
"""

import importlib
import os
import signal
import subprocess
import sys

LIMIT = 80  # seconds; below the limit of ctest, so that everything started is ended here


def on_private_desktop(program, module, scenario):
    """Starts this file again where nothing disturbs it; its exit code."""
    from desktop import home, screen
    size = getattr(importlib.import_module(f"scenarios.{module}"), "SCREEN", "1024x768")
    with screen(size) as display, home(display) as environment:
        session = ["dbus-run-session", "--", sys.executable, "-B", __file__, "--inside"]
        return subprocess.run([*session, program, module, scenario], env=environment,
                              check=False).returncode


def inside(executable, module, scenario):
    from desktop import window_manager
    from program import Program
    signal.alarm(LIMIT)
    signal.signal(signal.SIGALRM, give_up)
    with window_manager():
        program = Program(executable, os.environ["HOME"])
        try:
            getattr(importlib.import_module(f"scenarios.{module}"), scenario)(program)
        finally:
            program.clean_up()
    return 0


def give_up(*_):
    raise TimeoutError(f"the scenario took more than {LIMIT} s")


if __name__ == "__main__":
    if sys.argv[1] == "--inside":
        sys.exit(inside(*sys.argv[2:]))
    sys.exit(on_private_desktop(*sys.argv[1:]))
