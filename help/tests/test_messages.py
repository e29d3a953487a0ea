import re
import unittest

from support import HELP, TOPICS, one_spaced

# Every message of the program, in the pieces between which it puts what the user typed.
MESSAGES = [
    (
        'Since you are in "Add Mode" you must first hit the plus or minus key for the current entry which is ',
        ".  If you do not want the current entry then enter zero and click plus and then click equals.",
    ),
    ("There must be an entry before running a square root function.",),
    ("The entry caused an error:  divide by zero.",),
    ("The entry caused an error:  result too large",),
    ("Error:5 Invalid procedure call or argument",),
    ("Error:6 Overflow",),
    ("Error:11 Division by zero",),
    ("Error:13 Type mismatch",),
    ("Pasted entry is not a valid number.",),
    ("Changing the padding works best when the tape is cleared first.",),
    (
        "Note: If pasting to a text file this option will work better if the Win | Pad Tape choice is selected from "
        "the main menu.  This choice must be selected before keying in the numbers.",
    ),
    (
        "Note: This option will work better if the Win | Pad Tape choice is selected from the main menu.  This "
        "choice must be selected before keying in the numbers.",
    ),
    ("Error finding or displaying NotePad.exe",),
    ("Tallyrex did not end normally the last time.  Its tape was kept.  Open it in Notepad?",),
    ("The help was not found. It belongs beside the program, as ...",),
    ("No program was found that shows the help. It can be read in ...",),
    (
        "This option copies the Tape Display to the clipboard and executes Notepad.  If you would like to use another "
        "program other than Notepad choose Edit from the main menu and then Copy Entire Tape.  Do you wish to "
        "continue?",
    ),
    (
        "On the next screen choose the color you would like as the background color for the text boxes. Choose Cancel "
        "on the next screen to quit.",
    ),
    ('You may want to turn off the "Always on Top" since this next screen is run independently.',),
    ("One of the boxes must be left blank while the others must contain numbers.",),
    ("Future Value box should be blank to calculate.",),
    ("The Term and Interest Rate must contain numbers for the Balloon Payment calculation.",),
    ("The Term and Interest Rate must contain numbers for the Future Value calculation.",),
    (
        "Either the Payment or Present Value must contain a number for this calculation and zero is allowed for one "
        "or the other but not both.",
    ),
    (
        "Error:5 Invalid procedure call or argument",
        "The answer is not obtainable using the current variables, try adjusting one or more of the numbers "
        "significantly.",
    ),
    (
        "Error:6 Overflow",
        "The answer is not obtainable using the current variables, try adjusting one or more of the numbers "
        "significantly.",
    ),
    (
        "Note: Each cash OUTFLOW amount needs to be entered as a negative number.  Examples include: payments, monthly "
        "deposits, monthly investments, or initial cash outlays. ",
        "Each cash INFLOW amount needs to entered as a positive number. Examples include:  loan amounts, dividend "
        "checks, and future available account balances.",
        "Do you wish to see this message again?",
    ),
    (
        "Note: The Monthly Payment amount and the Balloon Payment amount (if any) are set to be negatively signed in "
        "the background.",
        "Do you wish to see this message again?",
    ),
    (
        "Note: The Monthly Investment amount and the Dollars Invested Today are set to be negatively signed in the "
        "background.",
        "Do you wish to see this message again?",
    ),
    (
        "For this action to work correctly you must first reload Tallyrex then execute this again.  Do you wish to "
        "reload Tallyrex?",
    ),
    ("Cannot Find The External Program For System Information (MSINFO32.EXE)",),
]


def explains(shown, message):
    """Whether the text in a topic's header is this message, all its pieces in order."""
    at = 0
    for piece in message:
        found = shown.find(one_spaced(piece), at)
        if found < 0 or (at == 0 and found > 0):
            return False
        at = found + len(one_spaced(piece))
    return at == len(shown)


_LITERAL = re.compile(r'"((?:[^"\\]|\\.)*)"')
_BETWEEN_PIECES = re.compile(r'(?<!\\)"\s+"')


def messages_in(source):
    """The literal pieces of the messages that a C++ source shows."""
    pieces = []
    for call in source.split("showMessage(")[1:]:
        # The text ends where the statement does, or the next member of the message box begins.
        statement = re.split(r",\s*\.(?:buttons|icon|title)\b|\);", call, maxsplit=1)[0]
        joined = _BETWEEN_PIECES.sub("", statement)
        pieces += [literal.replace('\\"', '"') for literal in _LITERAL.findall(joined)]
    return pieces


class MessagesTest(unittest.TestCase):
    def setUp(self):
        self.shown = [(topic.slug, one_spaced(message)) for topic in TOPICS for message in topic.messages]

    def test_every_message_has_one_topic(self):
        for message in MESSAGES:
            found = [slug for slug, shown in self.shown if explains(shown, message)]
            self.assertEqual(len(found), 1, message)

    def test_no_topic_explains_a_message_that_does_not_exist(self):
        for slug, shown in self.shown:
            self.assertTrue(any(explains(shown, message) for message in MESSAGES), f"{slug}: {shown}")

    def test_every_message_in_the_sources_has_a_topic(self):
        found = 0
        for path in sorted((HELP.parent / "src").rglob("*.cpp")):
            for piece in messages_in(path.read_text(encoding="utf-8")):
                found += 1
                self.assertTrue(any(one_spaced(piece) in shown for _, shown in self.shown), f"{path.name}: {piece}")
        self.assertGreater(found, 10)

    def test_messages_are_found_in_a_source(self):
        source = r"""
          desktop_.showMessage({.text = "One \"piece\" and "
                                        "another " + text() + "."});
          other("Not this");
          desktop_.showMessage({.text = "A question?", .title = "Its title"});
        """
        self.assertEqual(messages_in(source), ['One "piece" and another ', ".", "A question?"])

    def test_message_topics_are_in_the_chapter_of_messages(self):
        self.assertEqual({topic.chapter for topic in TOPICS if topic.messages}, {"Messages"})


if __name__ == "__main__":
    unittest.main()
