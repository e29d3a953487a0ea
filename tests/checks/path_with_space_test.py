"""The program can be built in a folder with a space and a non-ASCII letter in its name."""
import pathlib
import shutil
import subprocess
import tempfile
import unittest

import tree


class PathWithSpace(unittest.TestCase):
    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.root = pathlib.Path(scratch.name) / "a b \u00e9"
        for path in tree.files():
            copy = self.root / path.relative_to(tree.ROOT)
            copy.parent.mkdir(parents=True, exist_ok=True)
            shutil.copy(path, copy)

    def run_there(self, *command):
        done = subprocess.run(command, cwd=self.root, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                              text=True, check=False)
        self.assertEqual(done.returncode, 0, done.stdout)

    @unittest.skipUnless(shutil.which("x86_64-w64-mingw32-windres"), "no mingw-w64 here")
    def test_sources_and_resources_are_compiled(self):
        self.run_there("scripts/build", "release", "tallyrex_common", "tallyrex_resources")
        library = self.root / "build/release/src/common/libtallyrex_common.a"
        self.assertNotIn(str(self.root).encode(), library.read_bytes())
