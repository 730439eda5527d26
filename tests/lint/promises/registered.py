# SPDX-License-Identifier: GPL-3.0-or-later
"""The tests that a build has: those of ctest, and the functions of the window's suites."""

import json
import os
import pathlib
import subprocess
import tempfile

WINDOW = "window"  # the label of tests that run a suite of many functions
LIMIT = 60  # seconds
CONFIGURATION = "Ordinary"  # what ./test runs; other tests are for ./test --all alone


class Registered:
    """Asked with `fault(name)`; a suite is asked for its functions when first one is named."""

    def __init__(self, build, ctest="ctest"):
        self._tests = {test["name"]: test for test in _listing(build, ctest)}
        self._functions = {}

    def fault(self, name):
        """Why a test does not count; nothing when it is there and enabled."""
        suite, _, function = name.rpartition(".")
        if name in self._tests and not self._is_suite(name):
            return self._fault_of(name)
        if name in self._tests:
            return "is a whole suite; name one of its functions"
        if suite not in self._tests or not self._is_suite(suite):
            return "does not exist in ./test"
        if function not in self._functions_of(suite):
            return f"does not exist in {suite}"
        return self._fault_of(suite)

    def _fault_of(self, name):
        test = self._tests[name]
        if _property(test, "DISABLED"):
            return "is disabled"
        return None if test.get("command") else "is not built"

    def _is_suite(self, name):
        return WINDOW in (_property(self._tests[name], "LABELS") or [])

    def _functions_of(self, suite):
        if suite not in self._functions:
            self._functions[suite] = _functions(self._tests[suite])
        return self._functions[suite]


def _property(test, name):
    return next((p["value"] for p in test.get("properties", []) if p["name"] == name), None)


def _listing(build, ctest):
    """Listed from a folder beside the build: a second ctest in it takes the log of the first."""
    with tempfile.TemporaryDirectory() as beside:
        pathlib.Path(beside, "CTestTestfile.cmake").write_text(
            f'subdirs("{pathlib.Path(build).resolve().as_posix()}")\n', encoding="utf-8")
        told = subprocess.run([ctest, "--test-dir", beside, "-C", CONFIGURATION,
                               "--show-only=json-v1"],
                              check=True, capture_output=True, text=True, timeout=LIMIT).stdout
        return json.loads(told)["tests"]


def _functions(test):
    """The names that the suite's program tells, as "name()" in lines of their own."""
    if not test.get("command"):
        return set()
    told = subprocess.run([*test["command"], "-functions"], check=True, capture_output=True,
                          text=True, timeout=LIMIT,
                          env=os.environ | {"QT_QPA_PLATFORM": "offscreen"}).stdout
    return {line.removesuffix("()") for line in told.split() if line.endswith("()")}
