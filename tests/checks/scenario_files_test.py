"""Scenario files say what a user sees, and can fail. Their commands are checked by running them."""
import pathlib
import re
import sys
import tempfile
import unittest

import tree

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "scenarios"))
import run_scenarios  # noqa: E402


def says_nothing(step):
    """Whether a step expects nothing, or what every command answers that could be carried out."""
    return not step.has_expected or step.expected in ({}, {"ok": True})


def complaints(path):
    """What is wrong with a scenario file, line by line."""
    try:
        steps = run_scenarios.read_steps(path)
    except ValueError as error:
        return [str(error)]
    found = []
    first = path.read_text(encoding="utf-8").partition("\n")[0]
    if not re.match(r"# \S+ \S+ \S+", first):
        found.append("line 1: a comment says what a user sees")
    if all(says_nothing(step) for step in steps):
        found.append("nothing is expected")
    return found


def complaints_about(text):
    """What is wrong with a scenario of this text."""
    with tempfile.TemporaryDirectory() as folder:
        path = pathlib.Path(folder) / "one.txt"
        path.write_text(text, encoding="utf-8")
        return complaints(path)


class ScenarioFiles(unittest.TestCase):
    def test_all_are_well_formed(self):
        for path in tree.files(".txt", below="tests/scenarios"):
            if path.name == "CMakeLists.txt":
                continue
            with self.subTest(file=tree.name(path)):
                self.assertEqual(complaints(path), [])

    def test_a_scenario_that_cannot_fail_is_found(self):
        for answer in ["", "=> {}\n", '=> {"ok":true}\n']:
            text = "# What a user sees\nstart\n" + answer
            self.assertEqual(complaints_about(text), ["nothing is expected"], answer)
        self.assertEqual(complaints_about('# What a user sees\nsnapshot\n=> {"entry":""}\n'), [])
