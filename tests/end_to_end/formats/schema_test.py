# SPDX-License-Identifier: GPL-3.0-or-later
"""The command's JSON is what the schemas in docs/ say of it, and the schemas say something.

ODMIEN names the command, SCHEMAS the folder of the schemas.
"""

import copy
import json
import os
import pathlib
import string
import subprocess
import unittest

import jsonschema

LIMIT = 60  # seconds
EVERY = 12  # of the index's verbs one is asked for
SPECIAL = ["", "se laver", "s'en aller", "falloir", "haïr", "zzz", "resetuj", "etre", "parler\t|1|1|2|1",
           "parler\t", "żółw", "a" * 70000]
FORMS = ["", "allions", "je paie", "preferais", "parlr", "mangées", "nous nous sommes lavés", "va-t'en",
         "s'évanouit", "lit", "il clot", "neiges", "j'ayant", "xyzzy", "żółw", "a" * 70000]


def said(arguments, lines=()):
    text = "".join(line + "\n" for line in lines)
    return subprocess.run([os.environ["ODMIEN"], *arguments], input=text, capture_output=True,
                          text=True, timeout=LIMIT).stdout.splitlines()


def answers(lines, *options):
    return [json.loads(line) for line in said(["--format", "json", *options], lines)]


def every_verb():
    return [verb for letter in string.ascii_lowercase for verb in said(["--list", letter])]


class Described:
    """What every schema is held to. NAME is its file, QUESTION is answered with objects of all kinds."""

    OPTIONS = ()

    @classmethod
    def setUpClass(cls):
        path = pathlib.Path(os.environ["SCHEMAS"]) / cls.NAME
        schema = json.loads(path.read_text(encoding="utf-8"))
        jsonschema.Draft202012Validator.check_schema(schema)
        cls.validator = jsonschema.Draft202012Validator(schema)
        cls.answer = answers([cls.QUESTION], *cls.OPTIONS)[0]

    def assert_described(self, found, expected):
        self.assertEqual(len(found), expected)
        for answer in found:
            faults = [fault.message for fault in self.validator.iter_errors(answer)]
            self.assertEqual(faults, [], answer["typed"][:80])

    def assert_refused(self, change):
        answer = copy.deepcopy(self.answer)
        change(answer)
        self.assertFalse(self.validator.is_valid(answer))

    def assert_each_key_counts(self, objectIn):
        """Of the object that `objectIn` takes from an answer no key may lack, change its kind or be added."""
        self.assert_refused(lambda answer: objectIn(answer).update(more=1))
        for key in objectIn(self.answer):
            self.assert_refused(lambda answer, key=key: objectIn(answer).pop(key))
            self.assert_refused(lambda answer, key=key: objectIn(answer).update({key: 3.5}))

    def test_describes_what_is_asked_here(self):
        self.assert_described([self.answer], 1)


class Conjugations(Described, unittest.TestCase):
    NAME = "json-1.schema.json"
    QUESTION = "parler"

    def test_describes_the_verbs_of_the_index(self):
        asked = every_verb()[::EVERY]
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

    def test_refuses_a_key_too_many_too_few_or_of_another_kind(self):
        self.assert_each_key_counts(lambda answer: answer)
        self.assert_each_key_counts(lambda answer: answer["labels"])
        self.assert_refused(lambda answer: answer.update(source="network"))


class Readings(Described, unittest.TestCase):
    NAME = "json-find-1.schema.json"
    OPTIONS = ("--find",)
    QUESTION = "allions"

    def test_describes_forms_of_all_kinds(self):
        self.assert_described(answers(FORMS, "--find"), len(FORMS))

    def test_describes_the_infinitives_of_the_index(self):
        asked = every_verb()[::EVERY]
        self.assert_described(answers(asked, "--find"), len(asked))

    def test_refuses_a_key_too_many_too_few_or_of_another_kind(self):
        self.assert_each_key_counts(lambda answer: answer)
        self.assert_each_key_counts(lambda answer: answer["readings"][0])
        self.assert_refused(lambda answer: answer["readings"][0].update(slot=101))


class Explanations(Described, unittest.TestCase):
    NAME = "json-explain-1.schema.json"
    OPTIONS = ("--explain",)
    QUESTION = "il lit"

    def test_describes_forms_of_all_kinds(self):
        self.assert_described(answers(FORMS, "--explain"), len(FORMS))
        self.assert_described(answers(FORMS, "--explain", "--norm"), len(FORMS))

    def test_describes_whole_verbs(self):
        asked = [verb for verb in SPECIAL if "\t" not in verb] + every_verb()[::EVERY]
        self.assert_described(answers(asked, "--explain"), len(asked))

    def test_refuses_a_key_too_many_too_few_or_of_another_kind(self):
        self.assert_each_key_counts(lambda answer: answer)
        self.assert_each_key_counts(lambda answer: answer["verbs"][0])
        self.assert_each_key_counts(lambda answer: answer["verbs"][0]["forms"][0])

    def test_refuses_remarks_that_say_nothing(self):
        self.assert_refused(lambda answer: answer["verbs"][0]["forms"][0]["remarks"].clear())


if __name__ == "__main__":
    unittest.main()
