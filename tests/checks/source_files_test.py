"""Source files are formatted, short, and built."""
import re
import shutil
import subprocess
import unittest

import tree

MOST_LINES = 400
MOST_LINES_OF_A_FUNCTION = 60
# Each release formats a little differently; the tree is formatted with this one.
CLANG_FORMAT_RELEASE = "14"

# In brackets, so that this file does not hold what it looks for. A rule that is wrong for us is switched off
# for all, with its reason, in .clang-tidy.
SWITCHED_OFF = re.compile(r"[c]lang-format off|[N]OLINT|diagnostic [i]gnored")


def sources():
    return tree.files(".h", ".cpp", below="src") + tree.files(".h", ".cpp", below="tests")


def clang_format():
    """The formatter of our release, or None."""
    for command in ("clang-format-" + CLANG_FORMAT_RELEASE, "clang-format"):
        if shutil.which(command):
            version = subprocess.run([command, "--version"], stdout=subprocess.PIPE, check=True,
                                     text=True).stdout
            if re.search(r"\b%s\." % CLANG_FORMAT_RELEASE, version):
                return command
    return None


def unformatted(command, paths):
    """The names of the files that the formatter would change."""
    done = subprocess.run([command, "--dry-run", "--Werror", *paths], stderr=subprocess.PIPE,
                          text=True, check=False)
    places = re.findall(r"^(.*?):\d+:\d+: error:", done.stderr, re.MULTILINE)
    return sorted(set(places) or ({done.stderr} if done.returncode else set()))


def long_functions(lines):
    """The first lines of blocks that are too long. The formatter puts the end of a block below its beginning."""
    found = []
    began = {}
    for number, line in enumerate(lines):
        indent = len(line) - len(line.lstrip())
        if indent > 2 or not line.strip() or line.lstrip().startswith(("//", "#")):
            continue
        if line.strip() == "}" and number - began.get(indent, number) >= MOST_LINES_OF_A_FUNCTION:
            found.append(lines[began[indent]])
        began[indent] = number
    return found


class SourceFiles(unittest.TestCase):
    def test_all_are_formatted(self):
        command = clang_format()
        if not command:
            self.skipTest("no clang-format %s here" % CLANG_FORMAT_RELEASE)
        self.assertEqual(unformatted(command, [str(path) for path in sources()]), [])

    def test_no_file_turns_off_a_rule_for_itself(self):
        for path in sources():
            with self.subTest(file=tree.name(path)):
                self.assertIsNone(SWITCHED_OFF.search(path.read_text(encoding="utf-8")))

    def test_no_file_is_too_long(self):
        longest = {tree.name(path): len(tree.lines(path))
                   for path in sources() + tree.files(".py", ".sh", ".cmd", ".cmake")}
        self.assertEqual({file: n for file, n in longest.items() if n > MOST_LINES}, {})

    def test_no_function_is_too_long(self):
        for path in sources():
            with self.subTest(file=tree.name(path)):
                self.assertEqual(long_functions(tree.lines(path)), [])

    def test_each_file_is_listed_in_its_cmakelists(self):
        for path in tree.files(".cpp", below="src") + tree.files(".cpp", below="tests"):
            with self.subTest(file=tree.name(path)):
                self.assertTrue(self.is_listed(path), "in no CMakeLists.txt")

    @staticmethod
    def is_listed(path):
        folder = path.parent
        while folder != tree.ROOT:
            cmake = folder / "CMakeLists.txt"
            if cmake.exists():
                wanted = re.escape(path.relative_to(folder).as_posix())
                return re.search(r"(?<![\w/])%s\b" % wanted, cmake.read_text(encoding="utf-8"))
            folder = folder.parent
        return False

    def test_headers_have_pragma_once(self):
        for path in tree.files(".h", below="src") + tree.files(".h", below="tests"):
            with self.subTest(file=tree.name(path)):
                self.assertIn("#pragma once", tree.lines(path))
