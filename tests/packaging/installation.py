"""A program that is installed in the account under Wine, for the tests beside this file."""
import os
import pathlib
import unittest

import packages
import wine_account as account

OLDER_SETUP = pathlib.Path(os.environ["TALLYREX_OLDER_SETUP"])
UNINSTALL_KEY = r"HKCU\Software\Microsoft\Windows\CurrentVersion\Uninstall\Tallyrex"
SETTINGS_KEY = r"HKCU\Software\Tallyrex\Tallyrex\Settings"
MAIN_WINDOW = "Tallyrex$"
DONE, STOPPED, NOT_DONE, NEWER_INSTALLED, STILL_OPEN = range(5)


class Installation(unittest.TestCase):
    """Installs, starts and removes the program, and clears up after each test."""

    @classmethod
    def setUpClass(cls):
        cls.place = account.folder("LOCALAPPDATA") / "Programs" / "Tallyrex"
        cls.elsewhere = account.host_path(r"C:\Tallyrex-elsewhere")
        start_menu = account.folder("APPDATA") / "Microsoft" / "Windows" / "Start Menu"
        cls.shortcut = start_menu / "Programs" / "Tallyrex.lnk"

    def setUp(self):
        self.before = account.traces()
        self.addCleanup(self.clear_up)

    def clear_up(self):
        for place in (self.place, self.elsewhere):
            if (place / "uninstall.exe").exists():
                self.remove("/SETTINGS", "/CLOSE", place=place)
        account.run("reg", "delete", r"HKCU\Software\Tallyrex\Tallyrex", "/f")

    def install(self, *switches, setup=packages.SETUP):
        self.assertEqual(account.run(setup, "/S", *switches), DONE)

    def remove(self, *switches, place=None):
        place = place or self.place
        self.assertEqual(account.run(place / "uninstall.exe", "/S", *switches), DONE)
        # The uninstaller continues as a copy of itself, which deletes the original.
        account.wait_until("the removal", lambda: not (place / "uninstall.exe").exists())
        account.wait_until("the end of the removal", lambda: not account.registry(UNINSTALL_KEY))

    def start_program(self):
        program = account.start(self.place / "Tallyrex.exe")
        self.addCleanup(self.stop, program)
        account.wait_for_window(MAIN_WINDOW)
        return program

    @staticmethod
    def stop(program):
        if program.poll() is None:
            program.kill()
        program.wait()

    def assert_removed(self, but=()):
        left = sorted(account.traces() - self.before)
        self.assertEqual([trace for trace in left if not trace.startswith(tuple(but))], [])
