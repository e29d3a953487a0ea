"""Scenario files are well-formed: anyone can read them, and every line is run."""
import json
import pathlib
import re
import sys
import tempfile
import unittest

import tree

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "scenarios"))
import run_scenarios  # noqa: E402

WINDOW = r"frm(Calc|Annuity|About)"
CONTROL = r"[A-Za-z]\w*(\.[A-Za-z]\w*)?(\(\d+\))?"
INTEGER = r"-?\d+"
TEXT = r'"(?:[^"\\]|\\.)*"'
WORD = r"[A-Za-z]\w*"
KEY = (r"(Enter|Backspace|Delete|(Shift\+)?Tab|Escape|Space|Up|Down|(Shift\+)?(Left|Right|Home|End)"
       r"|(Ctrl|Alt)\+[A-Z])")
PROPERTY = (r"(Text|SelStart|SelLength|Caption|Visible|Enabled|Left|Top|Width|Height|BackColor|ToolTip"
            r"|Focused|Value|Checked|Shortcut|Alignment|Loaded|WindowState|OnTop)")

# The commands of the driver, and what follows each.
COMMANDS = {
    "start": r"( %s)?" % WORD,
    "close": " " + WINDOW,
    "window": " " + WINDOW,
    "type": " " + TEXT,
    "roll": " " + TEXT,
    "press": " " + KEY,
    "click": " " + CONTROL,
    "dblclick": " " + CONTROL,
    "focus": " " + CONTROL,
    "select": " %s %s %s" % (CONTROL, INTEGER, INTEGER),
    "mousepaste": " " + TEXT,
    "menu": " " + CONTROL,
    "resize": " %s %s %s" % (WINDOW, INTEGER, INTEGER),
    "move": " %s %s %s" % (WINDOW, INTEGER, INTEGER),
    "minimize": " " + WINDOW,
    "maximize": " " + WINDOW,
    "restore": " " + WINDOW,
    "clipboard": r" (set %s|get|clear)" % TEXT,
    "store": r" (set \S+ \S+ %s|(get|delete) \S+ \S+|clear|dump)" % TEXT,
    "answer": " [67]",
    "color": r" (%s|cancel)" % INTEGER,
    "programs": r"( %s)*" % TEXT,
    "registry": r" set %s %s %s" % (TEXT, TEXT, TEXT),
    "files": r"( %s)*" % TEXT,
    "call": r" (Pmt|PV|FV|NPer|Rate|Format|Value|Text)( (%s|[-+.\w]+))+" % TEXT,
    "get": " %s %s" % (CONTROL, PROPERTY),
    "snapshot": "",
    "events": "",
    "quit": "",
}
ONLY_IN_MEMORY_COMMANDS = {"programs", "registry", "files"}


def command_complaint(command):
    """Why a line is no command of the driver, or None."""
    word, _, _ = command.partition(" ")
    if word not in COMMANDS:
        return "no command: " + command
    if not re.fullmatch(COMMANDS[word], command[len(word):]):
        return "not how %s is written: %s" % (word, command)
    for text in re.findall(TEXT, command):
        try:
            json.loads(text)
        except ValueError:
            return "no JSON text: " + text
    return None


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
    for step in steps:
        refused = isinstance(step.expected, dict) and "error" in step.expected
        complaint = command_complaint(step.command)
        if complaint and not refused:
            found.append("line %d: %s" % (step.number, complaint))
        if (step.command.split(" ")[0] in ONLY_IN_MEMORY_COMMANDS
                and not run_scenarios.is_only_in_memory(path)):
            found.append("line %d: needs the line %r" % (step.number, run_scenarios.ONLY_IN_MEMORY))
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

    def test_commands_are_known(self):
        for command in ["start", "start Ledger", 'type "12+3"', "press Shift+Tab", "press Ctrl+V",
                        "click cmdNumber(7)", "select frmAnnuity.txtPmt 0 3", "menu mnuWinMode(0)",
                        'store set Settings frmCalcTop "12"', "call Pmt 0.01 12 1000 0 0",
                        'call Format "1E5" "##0.00"', "get frmCalc WindowState"]:
            self.assertIsNone(command_complaint(command), command)

    def test_a_line_that_is_no_command_is_found(self):
        for command in ["strat", "press F5", "type 12", r'type "\q"', "click", "get txtEntry text",
                        "resize frmCalc 100", "menu mnuWinMode(0) twice", "answer 1"]:
            self.assertIsNotNone(command_complaint(command), command)

    def test_a_scenario_that_cannot_fail_is_found(self):
        for answer in ["", "=> {}\n", '=> {"ok":true}\n']:
            text = "# What a user sees\nstart\n" + answer
            self.assertEqual(complaints_about(text), ["nothing is expected"], answer)
        self.assertEqual(complaints_about('# What a user sees\nsnapshot\n=> {"entry":""}\n'), [])


if __name__ == "__main__":
    unittest.main()
