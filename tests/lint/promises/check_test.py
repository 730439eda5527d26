# SPDX-License-Identifier: GPL-3.0-or-later
"""The check of the page of promises refuses what it is there to refuse.

The tests are those of a build made up here, which the real ctest lists and runs.
"""

import contextlib
import io
import os
import pathlib
import subprocess
import tempfile
import unittest

import check

CTEST = os.environ.get("CTEST", "ctest")
HERE = pathlib.Path(__file__).parent

# A suite of the window: it tells its functions, or what became of each.
SUITE = """#!/bin/sh
if [ "$2" = -functions ]; then printf 'opens()\\ncloses()\\nisSkipped()\\nhasRows()\\n'; exit; fi
echo '********* Start testing of odmiennik::window_test::MenuSuite *********'
echo 'PASS   : odmiennik::window_test::MenuSuite::opens()'
echo 'PASS   : odmiennik::window_test::MenuSuite::closes()'
echo 'SKIP   : odmiennik::window_test::MenuSuite::isSkipped() nothing to print on'
echo 'PASS   : odmiennik::window_test::MenuSuite::hasRows(one)'
echo 'SKIP   : odmiennik::window_test::MenuSuite::hasRows(two) no printer'
"""
TESTS = """
add_test(folder.is_found "true")
add_test(folder.is_broken "false")
add_test(folder.is_disabled "true")
set_tests_properties(folder.is_disabled PROPERTIES DISABLED TRUE)
add_test(heard.needs_a_voice "sh" "-c" "exit 77")
set_tests_properties(heard.needs_a_voice PROPERTIES SKIP_RETURN_CODE 77)
add_test(slow.is_left_out "true")
set_tests_properties(slow.is_left_out PROPERTIES LABELS slow)
if(CTEST_CONFIGURATION_TYPE STREQUAL "All")
  add_test(attacks.are_made_in_full "true")
else()
  add_test(attacks.are_made_in_full NOT_AVAILABLE)
endif()
add_test(window.menu "{suite}" "menu")
set_tests_properties(window.menu PROPERTIES LABELS window)
"""
GOOD = "- A folder is found.\n  `folder.is_found`\n"


class Check(unittest.TestCase):
    others = ()  # results of other runs

    @classmethod
    def setUpClass(cls):
        cls._scratch = tempfile.TemporaryDirectory()
        cls.folder = pathlib.Path(cls._scratch.name)
        suite = cls.folder / "suite"
        suite.write_text(SUITE, encoding="utf-8")
        suite.chmod(0o755)
        listing = cls.folder / "CTestTestfile.cmake"
        listing.write_text(TESTS.replace("{suite}", str(suite)), encoding="utf-8")
        subprocess.run([CTEST, "--test-dir", cls.folder, "-C", "Ordinary", "-LE", "slow",
                        "--output-junit", cls.folder / "results.xml",
                        "--test-output-size-passed", "1000000"],
                       check=False, capture_output=True, timeout=60)

    @classmethod
    def tearDownClass(cls):
        cls._scratch.cleanup()

    def told(self, question, page, least=1):
        """(exit code, what is said) of the check of a page."""
        path = self.folder / "promises.md"
        path.write_text(page, encoding="utf-8")
        sources = ([self.folder / "results.xml", *self.others] if question == "ran"
                   else [self.folder])
        said = io.StringIO()
        with contextlib.redirect_stderr(said), contextlib.redirect_stdout(said):
            code = check.main([question, *map(str, sources), str(path), "--ctest", CTEST,
                               "--least", str(least)])
        return code, said.getvalue()

    def assert_passes(self, page):
        for question in ("registered", "ran"):
            self.assertEqual(self.told(question, page)[0], 0, self.told(question, page))

    def assert_refused(self, page, fault, questions=("registered", "ran"), **options):
        for question in questions:
            code, said = self.told(question, page, **options)
            self.assertEqual(code, 1, said)
            self.assertIn(fault, said)

    def shown_by(self, test):
        return f"{GOOD}- Another promise.\n  `{test}`\n"


class NamedTests(Check):
    def test_a_page_of_tests_that_are_there_and_ran_passes(self):
        self.assert_passes(GOOD + "- A menu opens.\n  `window.menu.opens`\n  `window.menu.closes`\n")

    def test_a_wrong_name_is_refused_with_its_line(self):
        self.assert_refused(self.shown_by("folder.is_lost"), "promises.md:3: folder.is_lost d")

    def test_the_beginning_of_a_name_is_no_name(self):
        self.assert_refused(self.shown_by("folder.is_foun"), "folder.is_foun d")
        self.assert_refused(self.shown_by("folder"), "folder d")

    def test_a_name_in_another_case_is_no_name(self):
        self.assert_refused(self.shown_by("folder.Is_found"), "folder.Is_found d")

    def test_a_function_that_a_suite_has_not_is_refused(self):
        self.assert_refused(self.shown_by("window.menu.open"), "window.menu.open d")

    def test_a_function_of_what_is_no_suite_is_refused(self):
        self.assert_refused(self.shown_by("folder.is_found.opens"), "folder.is_found.opens d")

    def test_a_whole_suite_is_refused(self):
        self.assert_refused(self.shown_by("window.menu"), "window.menu is a whole suite")

    def test_a_disabled_test_is_refused(self):
        self.assert_refused(self.shown_by("folder.is_disabled"), "folder.is_disabled is disabled",
                            ["registered"])
        self.assert_refused(self.shown_by("folder.is_disabled"), "its run says 'disabled'", ["ran"])

    def test_a_test_of_another_configuration_is_refused(self):
        self.assert_refused(self.shown_by("attacks.are_made_in_full"), "does not exist in ./test",
                            ["registered"])
        self.assert_refused(self.shown_by("attacks.are_made_in_full"), "did not run", ["ran"])

    def test_one_wrong_name_among_good_ones_is_refused(self):
        self.assert_refused("- A promise.\n  `folder.is_found`\n  `folder.is_lost`\n",
                            "promises.md:1: folder.is_lost d")


class TestsThatDidNotRun(Check):
    def assert_not_ran(self, test, fault):
        self.assertEqual(self.told("registered", self.shown_by(test))[0], 0)
        self.assert_refused(self.shown_by(test), fault, ["ran"])

    def test_a_test_that_the_run_left_out_is_refused(self):
        self.assert_not_ran("slow.is_left_out", "slow.is_left_out did not run")

    def test_a_skipped_test_is_refused(self):
        self.assert_not_ran("heard.needs_a_voice", "heard.needs_a_voice did not run and pass")

    def test_a_failed_test_is_refused(self):
        self.assert_not_ran("folder.is_broken", "folder.is_broken did not run and pass")

    def test_a_skipped_function_is_refused(self):
        self.assert_not_ran("window.menu.isSkipped", "did not run and pass in window.menu: SKIP")

    def test_a_function_with_a_skipped_row_is_refused(self):
        self.assert_not_ran("window.menu.hasRows", "in window.menu: PASS, SKIP")

    def test_without_results_nothing_passes(self):
        page = self.folder / "promises.md"
        page.write_text(GOOD, encoding="utf-8")
        with self.assertRaises(FileNotFoundError):
            check.main(["ran", str(self.folder / "nowhere.xml"), str(page), "--least", "1"])

    def test_results_without_tests_refuse_every_name(self):
        (self.folder / "nothing.xml").write_text("<testsuite/>", encoding="utf-8")
        page = self.folder / "promises.md"
        page.write_text(GOOD, encoding="utf-8")
        with contextlib.redirect_stderr(io.StringIO()):
            self.assertEqual(check.main(["ran", str(self.folder / "nothing.xml"), str(page),
                                         "--least", "1"]), 1)

    def test_a_build_without_tests_refuses_every_name(self):
        with tempfile.TemporaryDirectory() as empty, contextlib.redirect_stderr(io.StringIO()):
            page = pathlib.Path(empty, "promises.md")
            page.write_text(GOOD, encoding="utf-8")
            self.assertEqual(check.main(["registered", empty, str(page), "--ctest", CTEST,
                                         "--least", "1"]), 1)


class TestsOfAProgramRunWhole(Check):
    """As GoogleTest writes them down."""

    PROGRAM = """<testsuites><testsuite name="file">
      <testcase name="is_read" status="run" result="completed" classname="file"/>
      <testcase name="is_lost" status="run" result="completed" classname="file">
        <failure message="it is there"/></testcase>
      <testcase name="is_too_large" status="run" result="skipped" classname="file"/>
      <testcase name="is_left_out" status="notrun" result="suppressed" classname="file"/>
      </testsuite></testsuites>"""

    def setUp(self):
        path = self.folder / "program.xml"
        path.write_text(self.PROGRAM, encoding="utf-8")
        self.others = (path,)

    def test_one_that_passed_counts_beside_those_of_ctest(self):
        self.assertEqual(self.told("ran", self.shown_by("file.is_read"))[0], 0)

    def test_one_that_failed_is_refused(self):
        self.assert_refused(self.shown_by("file.is_lost"), "its run says 'failed'", ["ran"])

    def test_one_that_skipped_itself_is_refused(self):
        self.assert_refused(self.shown_by("file.is_too_large"), "its run says 'skipped'", ["ran"])

    def test_one_that_was_left_out_is_refused(self):
        self.assert_refused(self.shown_by("file.is_left_out"), "'suppressed'", ["ran"])


class Pages(Check):
    def test_a_promise_without_a_test_is_refused(self):
        self.assert_refused(GOOD + "- Another promise.\n", "promises.md:3: no test shows")

    def test_a_promise_made_twice_is_refused(self):
        self.assert_refused(GOOD + GOOD, "promised before, in line 1")

    def test_a_page_with_fewer_promises_than_it_must_have_is_refused(self):
        self.assert_refused(GOOD, "1 promises are fewer than 2", least=2)

    def test_an_empty_page_is_refused(self):
        self.assert_refused("# Promises\n", "0 promises are fewer than 1")

    def test_a_promise_under_another_mark_is_refused(self):
        for mark in ("* ", "+ ", "1. "):
            self.assert_refused(f"{GOOD}{mark}Another promise.\n", "promises begin with '- '")

    def test_a_test_outside_a_promise_is_refused(self):
        self.assert_refused(f"{GOOD}\n  `folder.is_lost`\n", "belongs to no promise")
        self.assert_refused(f"{GOOD}`folder.is_lost`\n", "tests with two blanks")

    def test_a_test_inside_the_text_of_a_promise_is_refused(self):
        self.assert_refused("- A promise,\n  shown by `folder.is_lost`\n  `folder.is_found`\n",
                            "each test stands alone on its line")

    def test_a_text_behind_the_tests_is_refused(self):
        self.assert_refused(GOOD + "  and more is promised\n", "each test stands alone on its line")

    def test_a_name_that_none_can_be_is_refused(self):
        self.assert_refused(self.shown_by("folder is_found"), "cannot be the name of a test")
        self.assert_refused(self.shown_by(""), "cannot be the name of a test")
        self.assert_refused(self.shown_by("folder.*"), "cannot be the name of a test")


@unittest.skipUnless("PAGE" in os.environ, "the real page and the real build are not named")
class ThePageItself(Check):
    """With one letter of one name changed, the real page does not pass in the real build."""

    def test_is_refused_with_one_wrong_name(self):
        lines = pathlib.Path(os.environ["PAGE"]).read_text(encoding="utf-8").splitlines()
        named = [number for number, line in enumerate(lines) if line.startswith("  `")]
        for number in (named[0], named[len(named) // 2], named[-1]):
            changed = [*lines[:number], lines[number][:-2] + "x`", *lines[number + 1:]]
            page = self.folder / "changed.md"
            page.write_text("\n".join(changed) + "\n", encoding="utf-8")
            said = io.StringIO()
            with contextlib.redirect_stderr(said):
                code = check.main(["registered", os.environ["BUILD"], str(page), "--ctest", CTEST])
            self.assertEqual(code, 1)
            self.assertIn(lines[number].strip(" `")[:-1] + "x does not exist", said.getvalue())


if __name__ == "__main__":
    unittest.main()
