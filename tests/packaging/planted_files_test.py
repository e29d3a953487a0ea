"""Libraries and programs in the current folder are never mistaken for those of the system."""
import os
import pathlib
import re
import shutil
import tempfile
import unittest

import packages
import wine_account as account
from pe_file import PeFile, readings

LIBRARY = pathlib.Path(os.environ["TALLYREX_PLANTED_LIBRARY"])
PROGRAM = pathlib.Path(os.environ["TALLYREX_PLANTED_PROGRAM"])
CARELESS = pathlib.Path(os.environ["TALLYREX_CARELESS"])

# Libraries that Windows loads by name for a program with windows, dialogs and help.
LOADED_BY_WINDOWS = {"cryptbase.dll", "dwmapi.dll", "hhctrl.ocx", "msctf.dll", "msftedit.dll",
                     "oleacc.dll", "profapi.dll", "propsys.dll", "riched20.dll", "textshaping.dll",
                     "uxtheme.dll", "version.dll", "windows.storage.dll", "winmm.dll"}
# Libraries that Windows always loads from its own folder.
KNOWN_TO_WINDOWS = {"advapi32.dll", "comdlg32.dll", "gdi32.dll", "imm32.dll", "kernel32.dll",
                    "msvcrt.dll", "ole32.dll", "oleaut32.dll", "shell32.dll", "user32.dll"}
PROGRAMS = ["notepad.exe", "winhlp32.exe", "hh.exe", "msinfo32.exe", "explorer.exe"]
FILE_NAME = r"[A-Za-z0-9_.-]{1,30}\.(?:dll|ocx|drv)"
MAIN_WINDOW = "Tallyrex$"


def names_in(data):
    """The names of libraries in a program, as narrow or wide text."""
    return {name.lower() for text in readings(data)
            for name in re.findall(FILE_NAME, text, re.IGNORECASE)}


class PlantedFiles(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name) / "current"
        self.folder.mkdir()
        self.marks = pathlib.Path(folder.name) / "marks"
        self.program = pathlib.Path(folder.name) / "program" / "Tallyrex.exe"
        for name, contents in packages.archived().items():
            file = self.program.parent / name
            file.parent.mkdir(parents=True, exist_ok=True)
            file.write_bytes(contents)

    def plant(self, source, names):
        for name in names:
            shutil.copy(source, self.folder / name)

    def marked(self):
        """The names of the planted files that were run, without their folders."""
        if not self.marks.exists():
            return set()
        return {line.rpartition("\\")[2] for line in self.marks.read_text("ascii").splitlines()}

    def start(self, *command):
        process = account.start(*command, folder=self.folder, environment={
            "TALLYREX_PLANTED": account.windows_path(self.marks)})
        self.addCleanup(self.stop, process)
        return process

    @staticmethod
    def stop(process):
        if process.poll() is None:
            process.kill()
        process.wait()

    def test_a_careless_program_does_load_them(self):
        self.plant(LIBRARY, ["planted-library.dll"])
        self.plant(PROGRAM, PROGRAMS)
        self.assertEqual(self.start(CARELESS, "planted-library.dll", "notepad.exe").wait(30), 0)
        self.assertEqual(self.marked(), {"planted-library.dll", "notepad.exe"})

    def test_no_library_is_loaded_from_the_current_folder(self):
        names = names_in(self.program.read_bytes()) | LOADED_BY_WINDOWS
        self.assertLessEqual(set(PeFile.read(self.program).imports()), names)
        self.plant(LIBRARY, names)
        process = self.start(self.program)
        account.wait_for_window(MAIN_WINDOW)
        account.write("12+")
        account.press("alt+F4")
        self.assertEqual(process.wait(30), 0)
        self.assertEqual(self.marked(), set())

    def test_no_library_is_taken_from_beside_the_program(self):
        """As in a folder of downloads."""
        names = names_in(self.program.read_bytes()) - KNOWN_TO_WINDOWS
        self.assertIn("uxtheme.dll", names)
        for name in names:
            shutil.copy(LIBRARY, self.program.parent / name)
        process = self.start(self.program)
        account.wait_for_window(MAIN_WINDOW)
        account.write("12+")
        account.press("alt+h", "a")
        account.wait_for_window("^About Tallyrex")
        account.press("Escape")
        account.wait_for_window(MAIN_WINDOW)
        account.press("alt+F4")
        self.assertEqual(process.wait(30), 0)
        self.assertEqual(self.marked(), set())

    def test_no_program_is_started_from_the_current_folder(self):
        self.plant(PROGRAM, PROGRAMS)
        for program, title, *steps in (
                ("notepad.exe", "Notepad$", (MAIN_WINDOW, "alt+f", "s"), ("^Save", "Return"),
                 ("^Tallyrex$", "Return")),
                ("winhlp32.exe", "Help$", (MAIN_WINDOW, "alt+h", "h"))):
            with self.subTest(program=program):
                self.assertEqual(account.windows(title), [], "already open")
                self.addCleanup(account.run, "taskkill", "/f", "/im", program)
                self.use(steps, lambda: account.windows(title) or self.marked())
                self.assertEqual(self.marked(), set())

    def use(self, steps, done):
        """Starts the program, gives each window of `steps` its keys, and waits until it is done."""
        process = self.start(self.program)
        try:
            for window, *keys in steps:
                account.wait_for_window(window)
                account.press(*keys)
            account.wait_until("what is done by " + repr(steps), done)
        finally:
            self.stop(process)
