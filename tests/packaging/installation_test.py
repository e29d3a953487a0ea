"""A user installs the program, uses it, installs the next version over it, and removes it."""
import os
import shutil
import unittest

import packages
import wine_account as account
from installation import (Installation, MAIN_WINDOW, OLDER_SETUP, SETTINGS_KEY, STOPPED, UNINSTALL_KEY)

READ_TAPE = os.environ.get("TALLYREX_READ_TAPE")


class UsersInstallation(Installation):
    def test_installs_the_files_of_the_portable_archive(self):
        self.install()
        for name, contents in packages.archived().items():
            self.assertEqual((self.place / name).read_bytes(), contents, name)
        files = {str(path.relative_to(self.place))
                 for path in self.place.rglob("*") if path.is_file()}
        self.assertEqual(files, set(packages.archived()) | {"uninstall.exe"})

    def test_appears_in_the_list_of_installed_apps(self):
        self.install()
        entry = account.registry(UNINSTALL_KEY)
        place = account.windows_path(self.place)
        kilobytes = int(entry.pop("EstimatedSize"), 16)
        self.assertEqual(entry, {
            "DisplayName": "Tallyrex", "DisplayVersion": packages.VERSION,
            "Publisher": "The Tallyrex authors",
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

    def test_removal_leaves_nothing(self):
        self.install()
        self.remove()
        self.assert_removed()

    def test_removes_the_settings_too_when_told_to(self):
        self.install()
        self.start_program()
        self.remove("/SETTINGS", "/CLOSE")
        self.assert_removed()
        self.assertIsNone(account.registry(r"HKCU\Software\Tallyrex"))

    def test_removal_keeps_a_kept_tape_unless_told_to_remove_the_settings(self):
        folder = account.folder("LOCALAPPDATA") / "Tallyrex" / "Tallyrex"
        self.addCleanup(shutil.rmtree, folder.parent, ignore_errors=True)
        for switches, kept in ([], True), (["/SETTINGS"], False):
            with self.subTest(kept=kept):
                self.install()
                folder.mkdir(parents=True, exist_ok=True)
                (folder / "1234.tape").write_text("12.00 +", encoding="ascii")
                self.remove(*switches)
                self.assertEqual(folder.parent.exists(), kept)

    def test_removal_keeps_the_settings_of_a_copy_under_another_name(self):
        self.install()
        other = r"HKCU\Software\Tallyrex\Office"
        account.run("reg", "add", other, "/v", "frmCalcLeft", "/d", "500", "/f")
        self.addCleanup(account.run, "reg", "delete", other, "/f")
        self.remove("/SETTINGS")
        self.assertEqual(account.registry(other), {"frmCalcLeft": "500"})

    def test_removal_asks_whether_to_remove_the_settings_too(self):
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

    def test_asks_before_closing_the_program(self):
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

    def test_removal_keeps_the_user_s_own_files(self):
        self.install()
        own = self.place / "help" / "notes.txt"
        own.write_text("mine", encoding="ascii")
        self.addCleanup(lambda: (own.unlink(), own.parent.rmdir(), own.parent.parent.rmdir()))
        self.remove()
        self.assertEqual(own.read_text(encoding="ascii"), "mine")
        self.assertEqual([path.name for path in self.place.rglob("*")], ["help", "notes.txt"])
