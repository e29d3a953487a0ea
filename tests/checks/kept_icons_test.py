"""The rendered icons beside the drawings are up to date."""
import hashlib
import re
import unittest

import tree

ICONS = tree.ROOT / "src" / "win32" / "icons"


class KeptIcons(unittest.TestCase):
    def test_no_drawing_has_changed_since_it_was_rendered(self):
        kept = dict(reversed(line.split("  ")) for line in tree.lines(ICONS / "kept/drawings.sha256"))
        now = {path.name: hashlib.sha256(path.read_bytes()).hexdigest()
               for path in sorted(ICONS.glob("*.svg"))}
        self.assertEqual(kept, now, "run scripts/keep-icons")

    def test_each_drawing_has_a_rendered_icon(self):
        # Drawings for small sizes, or for one, go into the icon of the same name.
        drawings = {re.sub(r"-(small|\d+)$", "", path.stem) for path in ICONS.glob("*.svg")}
        self.assertEqual({path.stem for path in (ICONS / "kept").glob("*.ico")}, drawings)
