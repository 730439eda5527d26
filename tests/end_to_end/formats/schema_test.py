# SPDX-License-Identifier: GPL-3.0-or-later
"""The command's JSON is what docs/json-1.schema.json says of it, and the schema says something.

ODMIEN names the command, SCHEMA the schema.
"""

import copy
import json
import os
import string
import subprocess
import unittest

import jsonschema

LIMIT = 60  # seconds
EVERY = 12  # of the index's verbs one is asked for
SPECIAL = ["", "se laver", "s'en aller", "falloir", "haïr", "zzz", "resetuj", "etre", "parler\t|1|1|2|1",
           "parler\t", "żółw", "a" * 70000]


def said(arguments, lines=()):
    text = "".join(line + "\n" for line in lines)
    return subprocess.run([os.environ["ODMIEN"], *arguments], input=text, capture_output=True,
                          text=True, timeout=LIMIT).stdout.splitlines()


def answers(lines, *options):
    return [json.loads(line) for line in said(["--format", "json", *options], lines)]


class Schema(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        with open(os.environ["SCHEMA"], encoding="utf-8") as file:
            schema = json.load(file)
        jsonschema.Draft202012Validator.check_schema(schema)
        cls.validator = jsonschema.Draft202012Validator(schema)
        cls.parler = answers(["parler"])[0]

    def assert_described(self, found, expected):
        self.assertEqual(len(found), expected)
        for answer in found:
            faults = [fault.message for fault in self.validator.iter_errors(answer)]
            self.assertEqual(faults, [], answer["typed"][:80])

    def assert_refused(self, change):
        answer = copy.deepcopy(self.parler)
        change(answer)
        self.assertFalse(self.validator.is_valid(answer))

    def test_describes_the_verbs_of_the_index(self):
        verbs = [verb for letter in string.ascii_lowercase for verb in said(["--list", letter])]
        asked = verbs[::EVERY]
        self.assertGreater(len(asked), 600)
        self.assert_described(answers(asked), len(asked))

    def test_describes_what_is_special_or_refused(self):
        self.assert_described(answers(SPECIAL), len(SPECIAL))

    def test_describes_todays_norm_edited_verbs_and_another_auxiliary(self):
        asked = ["lire", "se laver", "dissoudre", "zzz"]
        for options in (["--norm"], ["--edit"], ["--auxiliary", "etre"]):
            self.assert_described(answers(asked, *options), len(asked))

    def test_refuses_a_table_of_another_length(self):
        self.assert_refused(lambda answer: answer["slots"].pop())
        self.assert_refused(lambda answer: answer["boxes"].append(""))
        self.assert_refused(lambda answer: answer["pronouns"].pop())

    def test_refuses_a_key_too_many_or_too_few(self):
        self.assert_refused(lambda answer: answer.update(more=1))
        for key in self.parler:
            self.assert_refused(lambda answer, key=key: answer.pop(key))
        for key in self.parler["labels"]:
            self.assert_refused(lambda answer, key=key: answer["labels"].pop(key))

    def test_refuses_a_value_of_another_kind(self):
        for key in self.parler:
            self.assert_refused(lambda answer, key=key: answer.update({key: None}))
        self.assert_refused(lambda answer: answer.update(source="network"))


if __name__ == "__main__":
    unittest.main()
