"""With a certificate, what is published is signed. The certificate is made for the test."""
import pathlib
import shutil
import subprocess
import tempfile
import unittest
import zipfile

import packages
import wine_account as account

PASSWORD = "for the test"
SIGNED = "Signature verification: ok"


def run(*command):
    done = subprocess.run(list(map(str, command)), stdout=subprocess.PIPE, stderr=subprocess.STDOUT, check=False,
                          text=True, errors="replace")
    return done.returncode, done.stdout


class Signature(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        cls.folder = pathlib.Path(folder.name)
        cls.authority = cls.folder / "certificate.pem"
        cls.password = cls.folder / "password"
        cls.password.write_text(PASSWORD, encoding="ascii")
        cls.certificate = cls.make_certificate()
        cls.signed = cls.folder / "signed"
        packages.make(cls.signed, TALLYREX_CERTIFICATE=str(cls.certificate),
                      TALLYREX_CERTIFICATE_PASSWORD_FILE=str(cls.password))
        with zipfile.ZipFile(cls.signed / packages.ARCHIVE.name) as archive:
            archive.extractall(cls.folder)

    @classmethod
    def make_certificate(cls):
        """A certificate for signing code, with its key, in one file."""
        key, bundle = cls.folder / "key.pem", cls.folder / "certificate.p12"
        subprocess.run(["openssl", "req", "-x509", "-newkey", "rsa:2048", "-nodes", "-days", "2", "-subj", "/CN=Test",
                        "-addext", "extendedKeyUsage=codeSigning", "-keyout", key, "-out", cls.authority],
                       check=True, stderr=subprocess.DEVNULL)
        subprocess.run(["openssl", "pkcs12", "-export", "-in", cls.authority, "-inkey", key, "-out", bundle,
                        "-passout", "file:%s" % cls.password], check=True)
        return bundle

    def verify(self, program):
        return run("osslsigncode", "verify", "-CAfile", self.authority, "-in", program)

    def test_program_and_installer_are_signed(self):
        for program in (self.folder / packages.FOLDER_IN_ARCHIVE / "Tallyrex.exe",
                        self.signed / packages.SETUP.name):
            code, said = self.verify(program)
            self.assertEqual(code, 0, said)
            self.assertIn(SIGNED, said)

    def test_a_changed_byte_is_noticed(self):
        changed = self.folder / "changed.exe"
        data = bytearray((self.signed / packages.SETUP.name).read_bytes())
        data[len(data) // 2] ^= 1
        changed.write_bytes(data)
        self.assertNotEqual(self.verify(changed)[0], 0)

    def test_an_unsigned_program_is_noticed(self):
        self.assertNotEqual(self.verify(packages.SETUP)[0], 0)

    def test_what_the_signed_installer_brings_is_signed(self):
        place = account.host_path(r"C:\Tallyrex-signed")
        self.addCleanup(shutil.rmtree, place, ignore_errors=True)
        self.assertEqual(account.run(self.signed / packages.SETUP.name, "/S", "/D=" + account.windows_path(place)), 0)
        for name in "Tallyrex.exe", "uninstall.exe":
            code, said = self.verify(place / name)
            self.assertEqual(code, 0, said)
            self.assertIn(SIGNED, said)
        self.assertEqual(account.run(place / "uninstall.exe", "/S"), 0)
        account.wait_until("the removal", lambda: not (place / "uninstall.exe").exists())

    def test_a_wrong_password_makes_no_packages(self):
        self.password.with_name("wrong").write_text("wrong", encoding="ascii")
        with self.assertRaises(subprocess.CalledProcessError):
            packages.make(self.folder / "wrong-packages", TALLYREX_CERTIFICATE=str(self.certificate),
                          TALLYREX_CERTIFICATE_PASSWORD_FILE=str(self.password.with_name("wrong")))
        self.assertFalse((self.folder / "wrong-packages" / "SHA256SUMS").exists())
