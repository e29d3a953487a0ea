"""The worked examples of the financial calculator are true: each is worked out again here."""

import math
import re
import unittest

from support import TOPICS, plain
from topic_source import Sample, Table

# Box, then the sign with which a kind of window sends the typed amount into the equation.
KINDS = {
    "Loan Amount": {"pv": 1, "pmt": -1, "fv": -1},
    "Dollars Invested Today": {"pv": -1, "pmt": -1, "fv": 1},
    "Present Value": {"pv": 1, "pmt": 1, "fv": 1},
}
BOXES = {
    "Length of Time": "term",
    "Term": "term",
    "Annual Interest Rate": "rate",
    "Monthly Payment": "pmt",
    "Monthly Investment": "pmt",
    "Loan Amount": "pv",
    "Dollars Invested Today": "pv",
    "Present Value": "pv",
    "Balloon Payment": "fv",
    "Future Value": "fv",
}
ANSWERS = {
    "Length of Time equals:": "term",
    "Interest Rate equals:": "rate",
    "Monthly Payment equals:": "pmt",
    "Monthly Investment equals:": "pmt",
    "Loan Amount equals:": "pv",
    "Dollars Invested Today =": "pv",
    "Future Value equals:": "fv",
    "Balloon Payment equals:": "fv",
}


def balance(values):
    """What is left when all flows are carried to the end; 0 for a true set of values."""
    rate, periods = values["rate"] / 1200, values["term"]
    growth = math.pow(1 + rate, periods)
    payments = periods if rate == 0 else (1 + rate * values["due"]) * (growth - 1) / rate
    return values["pv"] * growth + values["pmt"] * payments + values["fv"]


def solve(values, unknown):
    """The unknown by bisection on the balance alone, so by other means than the program's."""
    low, high = (0.0001, 600.0) if unknown in ("term", "rate") else (-1e9, 1e9)
    at_low = balance({**values, unknown: low})
    for _ in range(200):
        middle = (low + high) / 2
        if (balance({**values, unknown: middle}) > 0) == (at_low > 0):
            low = middle
        else:
            high = middle
    return low


class Example:
    """One table of boxes and its answer."""

    def __init__(self, rows):
        self.values, self.unknown = {"due": 0}, None
        for label, typed in rows[:-1]:
            if label == "Payments are due by":
                self.values["due"] = {"the end": 0, "the beginning": 1}[typed]
            elif typed == "(blank)":
                self.unknown = BOXES[label]
            else:
                self.values[BOXES[label]] = self._number(label, typed)
        self.signs = next(KINDS[label] for label, _ in rows if label in KINDS)
        self.answer_label, self.answer = rows[-1]

    @staticmethod
    def _number(label, typed):
        if BOXES[label] == "term":
            count, unit = typed.split()
            return float(count) * {"Months": 1, "Years": 12}[unit]
        return float(typed.replace(",", ""))

    def solved(self):
        values = {name: value * self.signs.get(name, 1) for name, value in self.values.items()}
        return solve(values, self.unknown) * self.signs.get(self.unknown, 1)

    def shown(self):
        answer = self.solved()
        if self.unknown == "term":
            return f"{answer:.2f} Months"
        if self.unknown == "rate":
            return f"{answer:.5f} %"
        return f"$ {answer:,.2f}" if answer >= 0 else f"-$ {-answer:,.2f}"


def examples(topic):
    for block in topic.blocks:
        if isinstance(block, Table) and plain(block.rows[0][0]) == "Box" and plain(block.rows[-1][0]) in ANSWERS:
            yield Example([tuple(plain(cell) for cell in row) for row in block.rows[1:]])


class ExamplesTest(unittest.TestCase):
    def test_answers_are_correct(self):
        for topic in TOPICS:
            for example in examples(topic):
                with self.subTest(topic.slug, answer=example.answer):
                    self.assertEqual(example.answer, example.shown())
                    self.assertEqual(ANSWERS[example.answer_label], example.unknown)

    def test_every_unknown_has_its_topic(self):
        topics = {topic.slug: topic for topic in TOPICS}
        for slug, unknown in {
            "finding-the-term": "term",
            "finding-the-rate": "rate",
            "finding-the-payment": "pmt",
            "finding-the-present-value": "pv",
            "finding-the-future-value": "fv",
        }.items():
            found = list(examples(topics[slug]))
            self.assertGreaterEqual(len(found), 1, slug)
            self.assertEqual({example.unknown for example in found}, {unknown})

    def test_every_example_has_five_boxes(self):
        for topic in TOPICS:
            for example in examples(topic):
                known = set(example.values) - {"due"}
                self.assertEqual(known | {example.unknown}, {"term", "rate", "pmt", "pv", "fv"})
                self.assertEqual(len(known), 4)

    def test_a_wrong_answer_is_noticed(self):
        rows = [("Length of Time", "48 Months"), ("Annual Interest Rate", "6.9"), ("Monthly Payment", "(blank)")]
        rows += [("Loan Amount", "18,000"), ("Balloon Payment", "0"), ("Monthly Payment equals:", "$ 430.21")]
        self.assertNotEqual(Example(rows).shown(), "$ 430.21")

    def test_the_term_in_years_is_the_term_in_months(self):
        topic = next(topic for topic in TOPICS if topic.slug == "finding-the-term")
        words = " ".join(plain(block.spans) for block in topic.blocks if hasattr(block, "spans"))
        years, months = map(float, re.search(r"([\d.]+) Years ([\d.]+) Months", words).groups())
        self.assertAlmostEqual(years * 12 + months, next(examples(topic)).solved(), delta=0.005)

    def test_the_record_shows_the_car_loan(self):
        topics = {topic.slug: topic for topic in TOPICS}
        car = next(examples(topics["finding-the-payment"]))
        record = next(block for block in topics["tape-record"].blocks if isinstance(block, Sample)).lines
        amounts = [car.values["pv"], car.values["fv"]]
        self.assertEqual(
            [line for line in record if not line.startswith(" ")],
            ["Annuity Calculation:", f"{car.values['term']:.0f} Months", f"% {car.values['rate'] * 100:.2f}"]
            + [f"$ {amount:,.2f}" for amount in amounts]
            + [car.answer],
        )
        self.assertEqual({len(line) for line in record if line.startswith(" ")}, {26})


if __name__ == "__main__":
    unittest.main()
