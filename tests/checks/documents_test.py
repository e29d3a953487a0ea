"""Links and paths in the documents lead to existing files. The help has its own tests for this."""
import re
import unittest

import tree

LINK = re.compile(r"\]\(([^)#]+)(?:#[^)]*)?\)")
# Names in backticks that begin like a path of the tree. Patterns with a star or a placeholder do not count.
PATH = re.compile(r"`((?:src|tests|scripts|docs|help|cmake|packaging)/[\w./-]*)`")


def missing(folder, text):
    """The broken links and paths of a document in `folder`."""
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

    def test_broken_links_are_found(self):
        text = "![](docs/none.svg) [a](docs/none.md#part) `src/none/none.cpp` `tests/none/`"
        self.assertEqual(missing(tree.ROOT, text),
                         ["docs/none.svg", "docs/none.md", "src/none/none.cpp", "tests/none/"])

    def test_working_links_are_accepted(self):
        text = "[a](README.md#top) [b](https://example.org/none) `src/common` `tests/scenarios/*.txt`"
        self.assertEqual(missing(tree.ROOT, text), [])
