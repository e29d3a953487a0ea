"""An administrator rolls the program out: without questions, by exit codes and a log, on computers in use."""
import shutil
import signal
import time
import unittest
import zipfile

import packages
import wine_account as account
from installation import (DONE, Installation, MAIN_WINDOW, NEWER_INSTALLED, NOT_DONE, OLDER_SETUP, SETTINGS_KEY,
                          STILL_OPEN, UNINSTALL_KEY)

OLDER_README = "of an older version"


class RollOut(Installation):
    def setUp(self):
        super().setUp()
        self.log = account.host_path(r"C:\tallyrex setup.log")
        self.addCleanup(self.log.unlink, missing_ok=True)

    def logged(self):
        return self.log.read_text(encoding="utf-16")

    def log_switch(self):
        return "/LOG=" + account.windows_path(self.log)

    def install_older(self):
        self.install(setup=OLDER_SETUP)
        (self.place / "readme.txt").write_text(OLDER_README, encoding="ascii")

    def version(self):
        return account.registry(UNINSTALL_KEY)["DisplayVersion"]

    def assert_nothing_replaced(self):
        self.assertEqual((self.place / "readme.txt").read_text(encoding="ascii"), OLDER_README)
        self.assertEqual(self.version(), packages.OLDER_VERSION)

    def test_the_log_names_the_steps_and_the_outcome(self):
        self.install(self.log_switch())
        self.assertRegex(self.logged(), r"^\d{4}-\d\d-\d\d \d\d:\d\d:\d\d  Installing Tallyrex \d")
        self.assertIn("Copying files to " + account.windows_path(self.place), self.logged())
        self.assertTrue(self.logged().endswith("  Done\n"), self.logged())
        self.remove(self.log_switch())
        self.assertIn("Removing Tallyrex", self.logged())
        account.wait_until("the end of the log", lambda: self.logged().count("  Done\n") == 2)

    def test_the_name_of_the_log_may_be_quoted_by_itself(self):
        batch = account.host_path(r"C:\roll out.cmd")
        self.addCleanup(batch.unlink)
        batch.write_text('"%s" /S /LOG="%s" /WAIT=3\r\n' % (account.windows_path(packages.SETUP),
                                                          account.windows_path(self.log)), encoding="ascii")
        self.assertEqual(account.run("cmd", "/c", account.windows_path(batch)), DONE)
        self.assertIn("Installing Tallyrex", self.logged())

    def test_replaces_an_older_version(self):
        self.install_older()
        self.install()
        self.assertEqual(self.version(), packages.VERSION)
        self.assertEqual((self.place / "readme.txt").read_bytes(), packages.archived()["readme.txt"])

    def test_refuses_a_downgrade(self):
        self.install()
        before = account.traces()
        self.assertEqual(account.run(OLDER_SETUP, "/S", self.log_switch()), NEWER_INSTALLED)
        self.assertIn("which is newer: exit code 3", self.logged())
        self.log.unlink()
        self.assertEqual(account.traces(), before)

    def test_says_why_it_refuses_a_downgrade(self):
        self.install()
        setup = account.start(OLDER_SETUP)
        self.addCleanup(self.stop, setup)
        account.wait_for_window("Tallyrex Setup")
        account.press("Return")
        self.assertEqual(setup.wait(timeout=20), NEWER_INSTALLED)

    def test_an_entry_that_roamed_here_without_its_program_is_no_downgrade(self):
        for name, value in ("DisplayVersion", "99.0.0"), ("InstallLocation", r"C:\Users\elsewhere\Tallyrex"):
            account.run("reg", "add", UNINSTALL_KEY, "/v", name, "/d", value, "/f")
        self.install("/D=" + account.windows_path(self.place))
        self.assertEqual(self.version(), packages.VERSION)

    def test_waits_until_the_user_closes_the_program(self):
        self.install_older()
        program = self.start_program()
        setup = account.start(packages.SETUP, "/S", self.log_switch())
        self.addCleanup(self.stop, setup)
        account.wait_until("the wait", lambda: self.log.exists() and "Waiting up to 60 seconds" in self.logged())
        self.assertIsNone(setup.poll())
        self.assertIsNone(program.poll(), "the program was closed")
        account.press("alt+F4")
        self.assertEqual(setup.wait(timeout=30), DONE)
        self.assertEqual(self.version(), packages.VERSION)
        self.assertIn("It is closed", self.logged())

    def test_reports_a_program_that_stays_open(self):
        self.install_older()
        program = self.start_program()
        self.assertEqual(account.run(packages.SETUP, "/S", "/WAIT=1", self.log_switch()), STILL_OPEN)
        self.assertIsNone(program.poll(), "the program was closed")
        self.assertIn("It is still open: exit code 4", self.logged())
        self.assert_nothing_replaced()

    def test_closes_the_program_when_told_to(self):
        self.install_older()
        program = self.start_program()
        self.install("/CLOSE")
        program.wait(timeout=10)
        self.assertEqual(self.version(), packages.VERSION)
        self.assertTrue(account.registry(SETTINGS_KEY), "the settings were not saved")

    def test_gives_up_on_a_program_that_cannot_be_closed(self):
        self.install_older()
        program = self.start_program()
        program.send_signal(signal.SIGSTOP)
        try:
            began = time.monotonic()
            self.assertEqual(account.run(packages.SETUP, "/S", "/CLOSE", "/WAIT=2"), STILL_OPEN)
            self.assertGreaterEqual(time.monotonic() - began, 2)
        finally:
            program.send_signal(signal.SIGCONT)
        self.assert_nothing_replaced()

    def test_reports_a_file_that_cannot_be_written(self):
        self.elsewhere.mkdir()
        self.addCleanup(shutil.rmtree, self.elsewhere)
        (self.elsewhere / "Tallyrex.exe").mkdir()
        self.assertEqual(account.run(packages.SETUP, "/S", self.log_switch(),
                                     "/D=" + account.windows_path(self.elsewhere)), NOT_DONE)
        self.assertIn("exit code 2", self.logged())
        self.assertIsNone(account.registry(UNINSTALL_KEY))

    def test_moves_when_another_folder_is_chosen(self):
        self.install(setup=OLDER_SETUP)
        self.install("/D=" + account.windows_path(self.elsewhere))
        self.assertFalse(self.place.exists())
        self.assertTrue((self.elsewhere / "Tallyrex.exe").exists())
        self.remove(place=self.elsewhere)
        self.assert_removed()

    def test_does_not_move_while_the_program_is_open(self):
        self.install_older()
        self.start_program()
        self.assertEqual(account.run(packages.SETUP, "/S", "/WAIT=1",
                                     "/D=" + account.windows_path(self.elsewhere)), STILL_OPEN)
        self.assertFalse(self.elsewhere.exists())
        self.assert_nothing_replaced()

    def test_removal_closes_the_program_when_told_to_and_keeps_the_settings(self):
        self.install()
        program = self.start_program()
        self.remove("/CLOSE")
        program.wait(timeout=10)
        self.assertTrue(account.registry(SETTINGS_KEY))
        self.assert_removed(but=[r"[HKEY_CURRENT_USER\Software\Tallyrex"])

    def test_touches_nothing_that_the_users_of_a_computer_share(self):
        before = account.shared_traces()
        self.install()
        self.assertEqual(account.shared_traces(), before)
        self.remove()
        self.assertEqual(account.shared_traces(), before)

    def test_the_portable_program_writes_nothing_into_its_folder(self):
        place = account.host_path(r"C:\Tallyrex-portable")
        with zipfile.ZipFile(packages.ARCHIVE) as archive:
            archive.extractall(place)
        self.addCleanup(shutil.rmtree, place)
        folder = place / packages.FOLDER_IN_ARCHIVE
        folder.chmod(0o555)
        self.addCleanup(folder.chmod, 0o755)
        before = {path: path.stat().st_mtime_ns for path in folder.rglob("*")}
        program = account.start(folder / "Tallyrex.exe")
        self.addCleanup(self.stop, program)
        account.wait_for_window(MAIN_WINDOW)
        account.write("12+")
        account.press("alt+F4")
        self.assertEqual(program.wait(timeout=30), 0)
        self.assertEqual({path: path.stat().st_mtime_ns for path in folder.rglob("*")}, before)
        self.assertTrue(account.registry(SETTINGS_KEY), "the settings were not saved")
