# SPDX-License-Identifier: GPL-3.0-or-later
"""The completions of each shell offer options, their values and verbs, as the command knows them.

FOLDER is where the command lies, COMPLETIONS where the shells' files are.
"""

import os
import re
import subprocess
import tempfile
import unittest

LIMIT = 30  # seconds


def run(*command):
    with tempfile.TemporaryDirectory() as home:
        environment = {"PATH": f"{os.environ['FOLDER']}:/usr/bin:/bin", "HOME": home,
                       "LANG": "C.UTF-8", "COMPLETIONS": os.environ["COMPLETIONS"]}
        told = subprocess.run(command, capture_output=True, text=True, timeout=LIMIT,
                              env=environment, cwd=home)
        assert told.stderr == "", told.stderr
        return told.stdout.splitlines()


class Completions:
    """What `offered` finds behind the words typed, the last of which Tab is pressed in."""

    def test_a_verb_is_found_by_its_beginning(self):
        found = self.offered("parle")
        self.assertIn("parler", found)
        self.assertIn("parlementer", found)
        self.assertNotIn("manger", found)

    def test_a_second_verb_is_found_too(self):
        self.assertIn("finir", self.offered("parler", "fini"))

    def test_nothing_is_offered_where_no_verb_begins_so(self):
        self.assertEqual(self.offered("xyz"), [])

    def test_every_option_is_offered(self):
        options = re.findall(r"^  (--[a-z]+)", "\n".join(run("odmien", "--help")), re.MULTILINE)
        self.assertGreater(len(options), 10)
        self.assertEqual(sorted(self.offered("--")), sorted(options))

    def test_an_option_is_found_by_its_beginning(self):
        self.assertEqual(self.offered("--form"), ["--format"])

    def test_the_formats_are_offered_behind_their_option(self):
        found = self.offered("--format", "")
        self.assertIn("json", found)
        self.assertIn("tsv", found)
        self.assertNotIn("parler", found)

    def test_tenses_are_offered_behind_their_option_without_blanks(self):
        found = self.offered("--tenses", "")
        self.assertEqual(len(found), 22)
        self.assertIn("passé-composé", found)
        self.assertEqual(self.offered("--tenses", "subjonctif-imp"), ["subjonctif-imparfait"])

    def test_a_second_value_is_offered_behind_a_comma(self):
        self.assertEqual(self.offered("--persons", "je,no"), ["je,nous"])
        self.assertEqual(self.offered("--tenses", "imparfait,passé-s"), ["imparfait,passé-simple"])

    def test_verbs_are_offered_behind_an_option_that_takes_one(self):
        self.assertIn("parler", self.offered("--record", "parle"))


class bash(Completions, unittest.TestCase):
    def offered(self, *words):
        script = ('source "$COMPLETIONS/odmien.bash"; COMP_WORDS=(odmien "$@"); COMP_CWORD=$#; '
                  '_odmien; ((${#COMPREPLY[@]})) && printf "%s\\n" "${COMPREPLY[@]}"; true')
        return run("bash", "--norc", "-c", script, "bash", *words)

    def test_a_format_is_offered_behind_an_equals_sign(self):
        self.assertEqual(self.offered("--format", "=", "js"), ["json"])

    def test_the_function_is_the_commands(self):
        self.assertEqual(run("bash", "--norc", "-c",
                             'source "$COMPLETIONS/odmien.bash"; complete -p odmien'),
                         ["complete -F _odmien odmien"])


class zsh(Completions, unittest.TestCase):
    def offered(self, *words):
        # compadd and _files belong to zsh's own completion, which needs a terminal.
        script = ('compadd() { local name=${@[-1]}; local -a all; all=(${(P)name}); '
                  '[[ $1 == -U ]] || all=(${(M)all:#${PREFIX}*}); '
                  '(($#all)) && print -rl -- $all; true }; '
                  'complete_it() { source "$COMPLETIONS/_odmien"; }; '
                  'words=(odmien "$@"); CURRENT=$#words; PREFIX=${words[-1]}; complete_it')
        return run("zsh", "-f", "-c", script, "zsh", *words)


class fish(Completions, unittest.TestCase):
    def offered(self, *words):
        line = " ".join(["odmien", *words[:-1], words[-1]])
        script = 'source $COMPLETIONS/odmien.fish; complete -C "$argv[1]"'
        return [row.split("\t")[0] for row in run("fish", "--no-config", "-c", script, line)]


if __name__ == "__main__":
    unittest.main()
