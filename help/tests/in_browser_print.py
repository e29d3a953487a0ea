"""What comes out of the printer when a browser prints the help."""

import unittest

from browser import BROWSERS, first_of, sheets_of
from html_writer import write_html
from support import TOPICS

BROWSER = first_of(BROWSERS)


@unittest.skipUnless(BROWSER, f"none of {', '.join(BROWSERS)} is here to print the page")
class PrintTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.page = write_html("Tallyrex Help", TOPICS)

    def test_the_keyboard_is_on_one_sheet(self):
        for paper in ("A4", "Letter"):
            self.assertEqual(sheets_of(BROWSER, self.page, "topic7", paper), 1, paper)

    def test_the_minute_for_desk_calculators_is_on_one_sheet(self):
        self.assertEqual(sheets_of(BROWSER, self.page, "topic49", "Letter"), 1)

    def test_the_contents_are_printed_with_every_topic(self):
        self.assertGreater(sheets_of(BROWSER, self.page, "topic1", "A4"), 20)


if __name__ == "__main__":
    unittest.main()
