import os
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

from support import HELP


def run_build(folder, seed="0"):
    return subprocess.run(
        [sys.executable, "-B", str(HELP / "build_help.py"), *([str(folder)] if folder else [])],
        env={**os.environ, "PYTHONHASHSEED": seed},
        capture_output=True,
        text=True,
        check=False,
    )


class BuildTest(unittest.TestCase):
    def test_the_same_topics_give_the_same_files(self):
        with tempfile.TemporaryDirectory() as folder:
            for seed in ("1", "2"):
                result = run_build(Path(folder) / seed, seed)
                self.assertEqual((result.returncode, result.stderr), (0, ""))
            first = sorted((Path(folder) / "1").iterdir())
            self.assertEqual(
                [path.name for path in first], ["Tallyrex-23.html", "Tallyrex.hlp", "Tallyrex.html"]
            )
            for path in first:
                self.assertEqual(path.read_bytes(), (Path(folder) / "2" / path.name).read_bytes(), path.name)

    def test_without_a_folder_it_says_how_to_use_it(self):
        result = run_build(None)
        self.assertEqual(result.returncode, 2)
        self.assertIn("usage: build_help.py", result.stderr)


if __name__ == "__main__":
    unittest.main()
