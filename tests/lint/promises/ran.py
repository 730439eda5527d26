# SPDX-License-Identifier: GPL-3.0-or-later
"""The tests that have run and passed, from the results that ctest and test programs write."""

import re
import xml.etree.ElementTree

PASSED = "run"  # ctest's word for a test that ran to its good end
# "PASS   : space::Suite::function(row)", as Qt Test prints it, and its other verdicts.
VERDICT = re.compile(r"^(PASS|FAIL!|SKIP|XFAIL|XPASS|BPASS|BFAIL|BXPASS|BXFAIL|BSKIP)\s*: "
                     r"(?:[^\s(]*::)?(\w+)\(", re.MULTILINE)
START = "********* Start testing of "


class Ran:
    """Asked with `fault(name)` like the tests that a build has."""

    def __init__(self, results):
        self._tests = {}
        self._functions = {}
        for path in results:
            root = xml.etree.ElementTree.parse(path).getroot()
            is_program = root.tag == "testsuites"
            for case in root.iter("testcase"):
                self._add(*(_of_program(case) if is_program else _of_ctest(case)))

    def _add(self, name, status, output):
        self._tests[name] = status
        self._functions[name] = _verdicts(output)

    def fault(self, name):
        """Why a test does not count; nothing when it ran and passed."""
        suite, _, function = name.rpartition(".")
        if name in self._tests and not self._functions[name]:
            return self._fault_of(name)
        if name in self._tests:
            return "is a whole suite; name one of its functions"
        if suite not in self._tests:
            return "did not run"
        if self._functions[suite].get(function) != {"PASS"}:
            found = sorted(self._functions[suite].get(function, []))
            return f"did not run and pass in {suite}: {', '.join(found) or 'nothing'} is told of it"
        return self._fault_of(suite)

    def _fault_of(self, name):
        status = self._tests[name]
        return None if status == PASSED else f"did not run and pass: its run says {status!r}"


def _of_ctest(case):
    return case.get("name"), case.get("status"), case.findtext("system-out") or ""


def _of_program(case):
    """GoogleTest's: what ran may have failed or skipped itself."""
    status = "failed" if case.find("failure") is not None else case.get("result")
    name = f"{case.get('classname')}.{case.get('name')}"
    return name, PASSED if status == "completed" else status, ""


def _verdicts(output):
    """What the last try of a suite tells of each function: {"opens": {"PASS"}}."""
    verdicts = {}
    for verdict, function in VERDICT.findall(output[output.rfind(START):]):
        verdicts.setdefault(function, set()).add(verdict)
    return verdicts
