# SPDX-License-Identifier: GPL-3.0-or-later
"""HTML, CSV and cards are what strict parsers of others take, hostile verbs included. ODMIEN names the
command."""

import csv
import io
import os
import subprocess
import unittest

import html5lib

LIMIT = 60  # seconds
VERBS = ["parler", "se laver", "falloir", "haïr", "a<b>&\"c,cer", "par\x1bler", "zzz"]
TABLED = 6  # all but the last are conjugated


def printed(form, verbs):
    return subprocess.run([os.environ["ODMIEN"], "--format", form, "--", *verbs],
                          capture_output=True, timeout=LIMIT).stdout


class Html(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        parser = html5lib.HTMLParser(strict=True, namespaceHTMLElements=False)
        cls.page = parser.parse(printed("html", VERBS).decode())

    def texts(self, tag):
        return ["".join(element.itertext()) for element in self.page.iter(tag)]

    def test_a_strict_parser_finds_every_verb(self):
        titles = self.texts("h1")
        self.assertEqual(len(titles), TABLED)
        self.assertEqual(titles[0], "parler")
        self.assertEqual(titles[4], "a<b>&\"c,cer")

    def test_its_cells_are_the_phrases(self):
        cells = self.texts("td")
        for phrase in ("je parle", "que nous nous lavions", "qu'il fallût", "ayant parlé"):
            self.assertIn(phrase, cells)

    def test_its_french_is_said_to_be_french(self):
        self.assertEqual(self.page.get("lang"), "pl")
        for tag in ("h1", "h2", "table"):
            self.assertEqual({element.get("lang") for element in self.page.iter(tag)}, {"fr"})

    def test_nothing_is_run_and_nothing_fetched(self):
        self.assertEqual([element.tag for element in self.page.iter()
                          if element.tag in ("script", "link", "img", "iframe")], [])

    def test_without_a_verb_it_is_a_page_still(self):
        html5lib.HTMLParser(strict=True).parse(printed("html", ["zzz"]).decode())


class Csv(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        text = printed("csv", VERBS).decode()
        cls.rows = list(csv.reader(io.StringIO(text, newline=""), strict=True))

    def test_every_row_has_the_fields_of_the_header(self):
        self.assertEqual(self.rows[0][0], "infinitive")
        self.assertEqual({len(row) for row in self.rows}, {len(self.rows[0])})
        self.assertEqual(len(self.rows), 1 + TABLED * 101)

    def test_a_verb_of_commas_and_quotation_marks_comes_back(self):
        self.assertEqual(self.rows[1 + 4 * 101][0], "a<b>&\"c,cer")

    def test_its_last_field_is_the_phrase(self):
        self.assertEqual(self.rows[1 + 101 + 51][-1], "que nous nous lavions")


class Anki(unittest.TestCase):
    """By the rules of its import: lines of a header, comments, fields between quotation marks."""

    HOSTILE = VERBS + ["#parler", "a\"b\"er"]

    @classmethod
    def setUpClass(cls):
        lines = printed("anki", cls.HOSTILE).decode().split("\n")
        cls.header = dict(line[1:].split(":", 1) for line in lines if line.startswith("#"))
        rest = "\n".join(line for line in lines if not line.startswith("#"))
        cls.cards = list(csv.reader(io.StringIO(rest, newline=""), delimiter="\t", strict=True))

    def test_its_header_names_what_the_import_asks_for(self):
        self.assertEqual(self.header, {"separator": "tab", "html": "false",
                                       "columns": "Front\tBack\tTags", "tags column": "3"})

    def test_every_card_has_a_question_an_answer_and_tags(self):
        for card in self.cards:
            self.assertEqual(len(card), 3, card)
            self.assertTrue(all(card), card)
            self.assertEqual([tag.split("::")[0] for tag in card[2].split(" ")], ["odmiennik"] * 2)

    def test_no_two_cards_ask_the_same_since_the_import_would_take_them_for_one(self):
        questions = [card[0] for card in self.cards]
        self.assertEqual(len(questions), len(set(questions)))

    def test_no_verb_is_taken_for_a_comment(self):
        answers = {card[0]: card[1] for card in self.cards}
        self.assertEqual(answers.get("#parler, imparfait, nous"), "nous #parlions")


if __name__ == "__main__":
    unittest.main()
