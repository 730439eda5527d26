# SPDX-License-Identifier: GPL-3.0-or-later
"""check.py registered BUILD PAGE | check.py ran RESULTS… PAGE

Fails when the page of promises names a test that the build BUILD has not, or that did not run and
pass in the runs that wrote RESULTS: those of ctest (--output-junit RESULTS
--test-output-size-passed 1000000), and those of test programs run whole (--gtest_output=xml:RESULTS).
"""

import argparse
import sys

import page
from ran import Ran
from registered import Registered

LEAST = 150  # promises; fewer are a page that is not read as it is meant


def faults_of(promises, tests):
    """(line, sentence) for every named test that does not count."""
    for promise in promises:
        for test in promise.tests:
            fault = tests.fault(test)
            if fault:
                yield promise.line, f"{test} {fault}"


def check(path, tests, least):
    promises, faults = page.read(path)
    faults = [*faults, *faults_of(promises, tests)]
    if len(promises) < least:
        faults.append((1, f"{len(promises)} promises are fewer than {least}"))
    for line, fault in sorted(faults):
        print(f"{path}:{line}: {fault}", file=sys.stderr)
    if not faults:
        named = {test for promise in promises for test in promise.tests}
        print(f"{len(promises)} promises, shown by {len(named)} tests")
    return 1 if faults else 0


def main(arguments):
    parser = argparse.ArgumentParser(usage=__doc__)
    parser.add_argument("question", choices=("registered", "ran"))
    parser.add_argument("sources", nargs="+")
    parser.add_argument("page")
    parser.add_argument("--ctest", default="ctest")
    parser.add_argument("--least", type=int, default=LEAST)
    asked = parser.parse_args(arguments)
    tests = (Registered(asked.sources[0], asked.ctest) if asked.question == "registered"
             else Ran(asked.sources))
    return check(asked.page, tests, asked.least)


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
