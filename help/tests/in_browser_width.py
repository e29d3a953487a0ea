"""The help fits into windows of all widths."""

import unittest

from browser import BROWSERS, first_of, stands_out
from html_writer import write_html
from support import TOPICS

BROWSER = first_of(BROWSERS)


@unittest.skipUnless(BROWSER, f"none of {', '.join(BROWSERS)} is here to open the page")
class WidthTest(unittest.TestCase):
    def test_nothing_stands_out(self):
        page = write_html("Tallyrex Help", TOPICS)
        self.assertEqual(stands_out(BROWSER, page, (500, 1100, 1600)), {500: [], 1100: [], 1600: []})

    def test_what_stands_out_is_noticed(self):
        page = "<body><p style='width: 1000px'>Wide</p></body>"
        self.assertEqual(stands_out(BROWSER, page, (500, 1100)), {500: ["P Wide"], 1100: []})


if __name__ == "__main__":
    unittest.main()
