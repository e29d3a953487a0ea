"""What the documents point at is there. The topics of the help have links of their own, and tests too."""
import re
import unittest

import tree

LINK = re.compile(r"\]\(([^)#]+)(?:#[^)]*)?\)")
# Names in backticks that begin like a path of the tree; patterns with a star or a place to fill in are none.
PATH = re.compile(r"`((?:src|tests|scripts|docs|help|cmake|packaging)/[\w./-]*)`")


def missing(folder, text):
    """The links and the paths of a document in `folder` that lead nowhere."""
    links = [target for target in LINK.findall(text) if "://" not in target]
    return ([target for target in links if not (folder / target).exists()]
            + [path for path in PATH.findall(text) if not (tree.ROOT / path).exists()])


class Documents(unittest.TestCase):
    def test_links_and_paths_lead_somewhere(self):
        documents = [path for path in tree.files(".md") if not tree.name(path).startswith("help/")]
        self.assertTrue(documents)
        for path in documents:
            with self.subTest(file=tree.name(path)):
                self.assertEqual(missing(path.parent, path.read_text(encoding="utf-8")), [])

    def test_what_leads_nowhere_is_found(self):
        text = "![](docs/none.svg) [a](docs/none.md#part) `src/none/none.cpp` `tests/none/`"
        self.assertEqual(missing(tree.ROOT, text),
                         ["docs/none.svg", "docs/none.md", "src/none/none.cpp", "tests/none/"])

    def test_what_is_there_is_let_through(self):
        text = "[a](README.md#top) [b](https://example.org/none) `src/common` `tests/scenarios/*.txt`"
        self.assertEqual(missing(tree.ROOT, text), [])


if __name__ == "__main__":
    unittest.main()
