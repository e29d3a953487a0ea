"""A user installs the program, uses it, installs the next version over it, and removes it."""
import os
import pathlib
import signal
import unittest

import packages
import wine_account as account

READ_TAPE = os.environ.get("TALLYREX_READ_TAPE")
OLDER_SETUP = pathlib.Path(os.environ["TALLYREX_OLDER_SETUP"])
UNINSTALL_KEY = r"HKCU\Software\Microsoft\Windows\CurrentVersion\Uninstall\Tallyrex"
SETTINGS_KEY = r"HKCU\Software\Tallyrex\Tallyrex\Settings"
MAIN_WINDOW = "Tallyrex$"
STOPPED, NOT_DONE = 1, 2


class Installation(unittest.TestCase):
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
                self.remove("/SETTINGS", place=place)
        account.run("reg", "delete", r"HKCU\Software\Tallyrex\Tallyrex", "/f")

    def install(self, *switches, setup=packages.SETUP):
        self.assertEqual(account.run(setup, "/S", *switches), 0)

    def remove(self, *switches, place=None):
        place = place or self.place
        self.assertEqual(account.run(place / "uninstall.exe", "/S", *switches), 0)
        # The uninstaller goes on as a copy of itself, which removes it.
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

    def test_brings_what_the_portable_archive_brings(self):
        self.install()
        for name, contents in packages.archived().items():
            self.assertEqual((self.place / name).read_bytes(), contents, name)
        files = {str(path.relative_to(self.place))
                 for path in self.place.rglob("*") if path.is_file()}
        self.assertEqual(files, set(packages.archived()) | {"uninstall.exe"})

    def test_stands_in_the_list_of_programs(self):
        self.install()
        entry = account.registry(UNINSTALL_KEY)
        place = account.windows_path(self.place)
        kilobytes = int(entry.pop("EstimatedSize"), 16)
        self.assertEqual(entry, {
            "DisplayName": "Tallyrex", "DisplayVersion": packages.VERSION,
            "Publisher": "The Tallyrex developers",
            "DisplayIcon": place + r"\Tallyrex.exe,0", "InstallLocation": place,
            "UninstallString": '"%s\\uninstall.exe"' % place,
            "QuietUninstallString": '"%s\\uninstall.exe" /S' % place,
            "NoModify": "0x1", "NoRepair": "0x1"})
        brought = sum(map(len, packages.archived().values())) / 1024
        self.assertAlmostEqual(kilobytes, brought, delta=16)

    def test_starts_from_the_start_menu_and_adds(self):
        self.install()
        self.assertEqual(account.run("start", account.windows_path(self.shortcut)), 0)
        window = account.wait_for_window(MAIN_WINDOW)
        account.write("12+3+5")
        account.press("Return")
        tape = account.wait_until("the total", self.tape_with_total)
        self.assertIn("20.00 *", tape)
        account.press("alt+F4")
        account.wait_until("the end", lambda: window not in account.windows(MAIN_WINDOW))
        account.wait_until("the settings", lambda: account.registry(SETTINGS_KEY))

    @staticmethod
    def tape_with_total():
        tape = account.output(READ_TAPE)
        return tape if "*" in tape else None

    def test_replaces_an_older_version_and_closes_the_program_first(self):
        self.install(setup=OLDER_SETUP)
        self.assertEqual(account.registry(UNINSTALL_KEY)["DisplayVersion"], packages.OLDER_VERSION)
        readme = self.place / "readme.txt"
        readme.write_text("of an older version", encoding="ascii")
        program = self.start_program()
        self.install()
        program.wait(timeout=10)
        self.assertEqual(account.registry(UNINSTALL_KEY)["DisplayVersion"], packages.VERSION)
        self.assertEqual(readme.read_bytes(), packages.archived()["readme.txt"])
        self.assertTrue(account.registry(SETTINGS_KEY), "closing it has not saved the settings")

    def test_gives_up_where_the_program_does_not_close(self):
        self.install(setup=OLDER_SETUP)
        readme = self.place / "readme.txt"
        readme.write_text("of an older version", encoding="ascii")
        program = self.start_program()
        program.send_signal(signal.SIGSTOP)
        try:
            self.assertEqual(account.run(packages.SETUP, "/S"), NOT_DONE)
        finally:
            program.send_signal(signal.SIGCONT)
        self.assertEqual(readme.read_text(encoding="ascii"), "of an older version")
        self.assertEqual(account.registry(UNINSTALL_KEY)["DisplayVersion"], packages.OLDER_VERSION)

    def test_moves_when_another_folder_is_chosen(self):
        self.install(setup=OLDER_SETUP)
        self.install("/D=" + account.windows_path(self.elsewhere))
        self.assertFalse(self.place.exists())
        self.assertTrue((self.elsewhere / "Tallyrex.exe").exists())
        self.remove(place=self.elsewhere)
        self.assert_removed()

    def test_leaves_nothing_when_it_goes(self):
        self.install()
        self.remove()
        self.assert_removed()

    def test_closes_the_program_and_keeps_the_settings_when_it_goes(self):
        self.install()
        program = self.start_program()
        self.remove()
        program.wait(timeout=10)
        self.assertTrue(account.registry(SETTINGS_KEY))
        self.assert_removed(but=[r"[HKEY_CURRENT_USER\Software\Tallyrex"])

    def test_takes_the_settings_along_when_told_to(self):
        self.install()
        self.start_program()
        self.remove("/SETTINGS")
        self.assert_removed()
        self.assertIsNone(account.registry(r"HKCU\Software\Tallyrex"))

    def test_leaves_the_settings_of_a_copy_under_another_name(self):
        self.install()
        other = r"HKCU\Software\Tallyrex\Office"
        account.run("reg", "add", other, "/v", "frmCalcLeft", "/d", "500", "/f")
        self.addCleanup(account.run, "reg", "delete", other, "/f")
        self.remove("/SETTINGS")
        self.assertEqual(account.registry(other), {"frmCalcLeft": "500"})

    def test_asks_whether_the_settings_are_to_go_too(self):
        for answer, kept in ([], True), (["alt+r"], False):
            with self.subTest(kept=kept):
                self.install()
                account.run("reg", "add", SETTINGS_KEY, "/v", "frmCalcLeft", "/d", "500", "/f")
                self.remove_by_hand(*answer)
                self.assertEqual(bool(account.registry(SETTINGS_KEY)), kept)

    def remove_by_hand(self, *answer):
        """Goes through the pages of the uninstaller with the keyboard."""
        account.start(self.place / "uninstall.exe").wait()
        window = account.wait_for_window("Tallyrex Uninstall")
        account.press("Return", *answer, "Return")
        account.wait_until("the end of the removal", lambda: not account.registry(UNINSTALL_KEY))
        account.press("Return")
        account.wait_until("the last page", lambda: window not in account.windows("Uninstall"))
        self.assertFalse(self.place.exists())

    def test_asks_before_it_closes_the_program(self):
        self.install()
        program = self.start_program()
        setup = account.start(packages.SETUP)
        self.addCleanup(self.stop, setup)
        window = account.wait_for_window("Tallyrex Setup")
        account.press("Return")
        account.wait_for_window("Tallyrex Setup", but=window)
        account.press("Escape")
        self.assertEqual(setup.wait(timeout=20), STOPPED)
        self.assertIsNone(program.poll(), "the program was closed")

    def test_leaves_what_a_user_has_put_beside_it(self):
        self.install()
        own = self.place / "help" / "notes.txt"
        own.write_text("mine", encoding="ascii")
        self.addCleanup(lambda: (own.unlink(), own.parent.rmdir(), own.parent.parent.rmdir()))
        self.remove()
        self.assertEqual(own.read_text(encoding="ascii"), "mine")
        self.assertEqual([path.name for path in self.place.rglob("*")], ["help", "notes.txt"])


if __name__ == "__main__":
    unittest.main()
