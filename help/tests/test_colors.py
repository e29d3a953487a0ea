"""The colours of the HTML help and of the page for users can be read, in light and dark and on paper."""

import re
import unittest

from support import HELP

LETTERS = ("ink", "soft", "link", "heading", "taken-off")
BACKGROUNDS = ("paper", "raised", "strip")
LEAST_CONTRAST = 4.5


def schemes():
    """The variables of each colour scheme, by name: those of the screen in their order, then those of paper."""
    texts = [(HELP / name).read_text(encoding="utf-8") for name in ("base.css", "style.css")]
    blocks = [block for text in texts for block in re.findall(r":root \{(.*?)\}", text, re.DOTALL)]
    return [dict(re.findall(r"--([a-z-]+): (#[0-9a-f]{3,6})", block)) for block in blocks]


def luminance(color):
    digits = color[1:] if len(color) == 7 else "".join(digit * 2 for digit in color[1:])
    parts = [int(digits[at : at + 2], 16) / 255 for at in (0, 2, 4)]
    linear = [part / 12.92 if part <= 0.03928 else ((part + 0.055) / 1.055) ** 2.4 for part in parts]
    return 0.2126 * linear[0] + 0.7152 * linear[1] + 0.0722 * linear[2]


def contrast(one, other):
    darker, lighter = sorted((luminance(one), luminance(other)))
    return (lighter + 0.05) / (darker + 0.05)


class ColorsTest(unittest.TestCase):
    def test_letters_can_be_read_on_every_background(self):
        found = schemes()
        self.assertEqual(len(found), 3)
        weak = [
            (place, letters, background)
            for place, scheme in enumerate(found)
            for letters in LETTERS
            for background in BACKGROUNDS
            if contrast(scheme[letters], scheme[background]) < LEAST_CONTRAST
        ]
        self.assertEqual(weak, [])

    def test_contrast_is_measured_as_the_guidelines_say(self):
        self.assertAlmostEqual(contrast("#000", "#ffffff"), 21)
        self.assertAlmostEqual(contrast("#777777", "#fff"), 4.48, places=2)


if __name__ == "__main__":
    unittest.main()
