"""Includes go in one direction, and only src/win32 includes system headers."""
import re
import unittest

import tree

# The folders that each folder of src/ may include.
ALLOWED = {
    "common": {"common"},
    "controls": {"common", "controls"},
    "engine": {"common", "controls", "engine"},
    "shell": {"common", "controls", "engine", "shell"},
    "annuity": {"common", "controls", "annuity"},
    "about": {"common", "controls", "about"},
    "inmemory": {"common", "controls", "inmemory"},
    "win32": {"common", "controls", "win32"},
    "app": {"common", "controls", "engine", "shell", "annuity", "about", "app"},
}
# The only file that connects the program to its windows.
ALLOWED_FOR_FILE = {"src/win32/main.cpp": {"app"}}

# Headers of the C++ standard library have neither a suffix nor a folder.
STANDARD_HEADER = re.compile(r"[a-z0-9_]+")
# Their tables of locales and facets double the size of a small program.
STREAMS = {"fstream", "iomanip", "ios", "iostream", "istream", "locale", "ostream", "regex", "sstream"}
INCLUDE = re.compile(r'\s*#\s*include\s*(?:"([^"]+)"|<([^>]+)>)')


def complaint(file, line):
    """Why a line is not allowed in a source file, or None."""
    match = INCLUDE.match(line)
    if not match:
        return None
    quoted, angled = match.groups()
    folder = file.split("/")[1]
    if angled:
        if folder == "win32":
            return None
        if not STANDARD_HEADER.fullmatch(angled):
            return "only src/win32 may include a system header: <%s>" % angled
        return "the program uses no streams: <%s>" % angled if angled in STREAMS else None
    if folder == "win32" and "/" not in quoted and quoted.startswith("resource"):
        return None
    if ".." in quoted.split("/"):
        return 'includes are relative to src: "%s"' % quoted
    allowed = ALLOWED.get(folder, set()) | ALLOWED_FOR_FILE.get(file, set())
    if quoted in allowed or quoted.split("/")[0] in allowed and "/" in quoted:
        return None
    return 'src/%s may not include "%s"' % (folder, quoted)


class IncludeDirections(unittest.TestCase):
    def test_every_include_goes_in_an_allowed_direction(self):
        sources = tree.files(".h", ".cpp", ".in", below="src")
        self.assertTrue(sources)
        for path in sources:
            for number, line in enumerate(tree.lines(path), 1):
                found = complaint(tree.name(path), line)
                with self.subTest(file=tree.name(path)):
                    self.assertIsNone(found, "%s:%d: %s" % (tree.name(path), number, found))

    def test_every_folder_has_a_rule(self):
        folders = {path.name for path in (tree.ROOT / "src").iterdir() if path.is_dir()}
        self.assertEqual(folders - set(ALLOWED), set())

    def test_a_forbidden_include_is_found(self):
        for file, line in [("src/common/a.cpp", '#include "controls/control.h"'),
                           ("src/controls/a.h", '#include "engine/entry.h"'),
                           ("src/annuity/a.cpp", '#include "shell/frm_calc.h"'),
                           ("src/about/a.cpp", '#include "annuity/frm_annuity.h"'),
                           ("src/inmemory/a.h", '#include "shell/frm_calc.h"'),
                           ("src/win32/window.cpp", '#include "app/application.h"'),
                           ("src/app/a.cpp", '#include "win32/window.h"'),
                           ("src/app/a.cpp", '  #  include <windows.h>'),
                           ("src/inmemory/a.cpp", "#include <sys/stat.h>"),
                           ("src/engine/a.cpp", "#include <sstream>"),
                           ("src/engine/a.cpp", '#include "entry.h"'),
                           ("src/common/a.cpp", '#include "common/../engine/entry.h"'),
                           ("src/win32/a.rc.in", '#include "app/application.h"')]:
            self.assertIsNotNone(complaint(file, line), (file, line))

    def test_an_allowed_include_is_accepted(self):
        for file, line in [("src/engine/a.cpp", '#include "controls/control.h"'),
                           ("src/annuity/a.cpp", '#include "controls/number_field.h"'),
                           ("src/win32/main.cpp", '#include "app/application.h"'),
                           ("src/win32/window.cpp", "#include <windows.h>"),
                           ("src/common/a.cpp", "#include <string_view>"),
                           ("src/common/a.cpp", "// windows.h is not for us")]:
            self.assertIsNone(complaint(file, line), (file, line))
