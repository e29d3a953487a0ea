"""Every picture in the documents and the help exists, and scripts/pictures can retake it."""
import pathlib
import re
import struct
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
PICTURES = ROOT / "docs" / "pictures"
APPEARANCES = ROOT / "tests" / "pictures" / "appearance"
SHOWN = re.compile(r"!\[([^\]]*)\]\(([^)]+)\)")


def shown(text_file):
    """The pictures that a text shows, with the words that stand for them."""
    return SHOWN.findall(text_file.read_text(encoding="utf-8"))


class Pictures(unittest.TestCase):
    def test_pictures_in_the_documents_exist(self):
        texts = [*ROOT.glob("*.md"), *(ROOT / "docs").rglob("*.md")]
        found = [(text, words, name) for text in texts for words, name in shown(text)]
        self.assertIn(("README.md", "docs/pictures/main-window.png"),
                      [(text.name, name) for text, _, name in found])
        for text, words, name in found:
            with self.subTest(text=text.name, picture=name):
                self.assertTrue((text.parent / name).is_file())
                self.assertTrue(words, "who cannot see it is told nothing")

    def test_pictures_in_the_help_exist(self):
        found = [(topic, words, name) for topic in sorted((ROOT / "help" / "topics").glob("*.md"))
                 for words, name in shown(topic)]
        self.assertEqual({name for _, _, name in found}, {path.stem for path in PICTURES.glob("*.png")},
                         "the pictures of the help are those that are kept")
        for topic, words, name in found:
            with self.subTest(topic=topic.name, picture=name):
                self.assertTrue((PICTURES / (name + ".png")).is_file())
                self.assertTrue(words, "who cannot see it is told nothing")

    def test_each_picture_has_a_recipe_and_each_recipe_a_picture(self):
        self.assertEqual({path.stem for path in PICTURES.glob("*.png")},
                         {path.stem for path in PICTURES.glob("*.txt")})

    def test_each_picture_is_as_large_as_a_window(self):
        for path in PICTURES.glob("*.png"):
            width, height = struct.unpack(">II", path.read_bytes()[16:24])
            with self.subTest(picture=path.name):
                self.assertTrue(100 < width < 700 and 60 < height < 500, (width, height))

    def test_each_recipe_says_what_it_shows_and_starts_the_program(self):
        for path in [*PICTURES.glob("*.txt"), *APPEARANCES.glob("*.txt")]:
            lines = path.read_text(encoding="utf-8").splitlines()
            with self.subTest(recipe=path.name):
                self.assertRegex(lines[0], r"^# \w")
                self.assertIn("start", lines)

    def test_no_two_recipes_have_the_same_name(self):
        names = [path.stem for folder in (PICTURES, APPEARANCES) for path in folder.glob("*.txt")]
        self.assertEqual(len(names), len(set(names)))
