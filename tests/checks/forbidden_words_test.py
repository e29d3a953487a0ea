"""The tree speaks of the program, not of what stands beside it on the machine of who wrote it."""
import re
import unittest

import tree

# Each pattern has a bracket in it, so that this file does not hold what it looks for.
FORBIDDEN = [re.compile(pattern, re.IGNORECASE) for pattern in (
    r"\b[P]arts? [0-9]+\.[0-9]",
    r"\b[s]pec\.md|\b[s]pec(ification)?s?\b",
    r"[d]ecisions\.md|[d]ecision \(?[0-9]",
    r"[d]river-protocol\.md|[p]latform-notes|[c]odebases\.md|\b[d]esign\.md",
    r"\b[i]ssues? #?[0-9]",
    r"[c]laude|[a]nthropic|[o]penai|[c]hatgpt|[c]opilot|[l]anguage model",
    r"(?-i:\b[A]I\b)",
    r"/[w]ork/|/[f]arm/|\.[l]ibrary\b|[f]arm-(studio|bench)",
    r"[d]eb\.debian\.org|[r]egistry\.npmjs|[p]ypi\.org",
)]


def complaint(text):
    """The first forbidden words in a text, or None."""
    for pattern in FORBIDDEN:
        found = pattern.search(text)
        if found:
            return found.group()
    return None


class ForbiddenWords(unittest.TestCase):
    def test_no_file_and_no_file_name_holds_them(self):
        for path in tree.files():
            with self.subTest(file=tree.name(path)):
                self.assertIsNone(complaint(tree.name(path)))
                content = path.read_bytes()
                if b"\0" in content:
                    continue
                for number, line in enumerate(content.decode("utf-8").splitlines(), 1):
                    found = complaint(line)
                    self.assertIsNone(found, "%s:%d: %s" % (tree.name(path), number, found))

    def test_they_are_found(self):
        for words in [("as P", "art 1.2 says"), ("the s", "pec"), ("see d", "ecisions.md"),
                      ("/w", "ork/main"), ("by an A", "I"), ("i", "ssue 12")]:
            self.assertIsNotNone(complaint("".join(words)), words)

    def test_ordinary_words_are_let_through(self):
        for text in ["special parts of 1.5 inches", "he said: maintain", "framework/main", "part 12"]:
            self.assertIsNone(complaint(text), text)


if __name__ == "__main__":
    unittest.main()
