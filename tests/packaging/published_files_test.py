"""What is published beside the packages, and that a second build gives the same bytes."""
import hashlib
import json
import os
import pathlib
import re
import shutil
import subprocess
import tempfile
import time
import unittest
import zipfile

import yaml

import packages

ADDRESS = "https://forge.test/tallyrex"
DOWNLOADS = ADDRESS + "/releases/download/v" + packages.VERSION
WINGET = re.compile(r"# yaml-language-server: \$schema=https://aka\.ms/winget-manifest\.(\w+)\.1\.6\.0\.schema\.json\n")


def sha256(path):
    return hashlib.sha256(path.read_bytes()).hexdigest()


def commit_date():
    """When the commit was made, in seconds since 1970; None without git or outside a clone."""
    if os.environ.get("SOURCE_DATE_EPOCH"):
        return int(os.environ["SOURCE_DATE_EPOCH"])
    if not shutil.which("git"):
        return None
    asked = subprocess.run(["git", "-C", str(packages.MAKE_PACKAGES.parent), "log", "-1", "--format=%ct"],
                           stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, check=False)
    return int(asked.stdout) if asked.returncode == 0 else None


class Scratch(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)


class Reproducibility(Scratch):
    def copied_inputs(self):
        """The inputs of the packages, copied elsewhere at another time."""
        inputs = json.loads(packages.INPUTS.read_text(encoding="utf-8"))
        for name, path in inputs["files"].items():
            copy = self.folder / "inputs" / name
            copy.parent.mkdir(parents=True, exist_ok=True)
            shutil.copyfile(path, copy)
            os.utime(copy, (1, 1))
            inputs["files"][name] = str(copy)
        path = self.folder / "inputs.json"
        path.write_text(json.dumps(inputs), encoding="utf-8")
        return path

    def test_a_second_build_gives_the_same_bytes(self):
        first, second = self.folder / "first", self.folder / "second"
        packages.make(first, SOURCE_DATE_EPOCH="1700000000")
        packages.make(second, self.copied_inputs(), SOURCE_DATE_EPOCH="1700000000")
        names = sorted(path.relative_to(first) for path in first.rglob("*") if path.is_file())
        self.assertEqual(len(names), 8)
        for name in names:
            self.assertEqual(sha256(first / name), sha256(second / name), name)

    def test_another_date_is_noticed(self):
        dates = "1700000000", "1700000086"
        for date in dates:
            packages.make(self.folder / date, SOURCE_DATE_EPOCH=date)
        for package in packages.ARCHIVE, packages.SETUP:
            self.assertEqual(len({sha256(self.folder / date / package.name) for date in dates}), 2, package.name)


class Dates(unittest.TestCase):
    def test_files_in_the_archive_have_the_date_of_the_commit(self):
        date = commit_date()
        if date is None:
            self.skipTest("these sources are not a git clone, so there is no commit to ask")
        expected = time.gmtime(date)[:5]
        with zipfile.ZipFile(packages.ARCHIVE) as archive:
            self.assertEqual({entry.date_time[:5] for entry in archive.infolist()}, {expected})


class Sums(unittest.TestCase):
    def test_lists_every_file_with_its_sum(self):
        sums = dict(reversed(line.split("  ")) for line in
                    (packages.FOLDER / "SHA256SUMS").read_text(encoding="ascii").splitlines())
        files = [packages.ARCHIVE, packages.SETUP, packages.BILL_OF_MATERIALS]
        self.assertEqual(sums, {path.name: sha256(path) for path in files})


class BillOfMaterials(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.document = json.loads(packages.BILL_OF_MATERIALS.read_text(encoding="utf-8"))

    def test_is_a_cyclonedx_document(self):
        self.assertEqual(self.document["bomFormat"], "CycloneDX")
        self.assertEqual(self.document["specVersion"], "1.5")
        self.assertRegex(self.document["serialNumber"], r"^urn:uuid:[0-9a-f-]{36}$")

    def test_describes_the_program_that_is_published(self):
        program = self.document["metadata"]["component"]
        self.assertEqual(program["version"], packages.VERSION)
        self.assertEqual(program["hashes"], [
            {"alg": "SHA-256", "content": hashlib.sha256(packages.archived()["Tallyrex.exe"]).hexdigest()}])

    def test_lists_the_parts_that_the_notices_list(self):
        notices = packages.archived()["THIRD-PARTY-NOTICES.txt"].decode("ascii")
        headings = re.findall(r"^=+\r\n\d\. (.+)\r\n=+\r$", notices, re.MULTILINE)
        self.assertEqual([part["name"] for part in self.document["components"]], headings)
        for part in self.document["components"]:
            self.assertRegex(part["version"], r"^\d+(\.\d+)*", part["name"])
            self.assertTrue(part["licenses"])


class Manifests(Scratch):
    """The manifests are checked by the rules of their published schemas."""

    def setUp(self):
        super().setUp()
        self.said = packages.make(self.folder / "packages", TALLYREX_ADDRESS=ADDRESS + "/")

    def published(self, package):
        return self.folder / "packages" / package.name

    def winget(self, suffix):
        text = (self.folder / "packages" / "manifests" / "winget" / ("Tallyrex.Tallyrex%s.yaml" % suffix)).read_text(
            encoding="utf-8")
        manifest = yaml.safe_load(text)
        self.assertEqual(WINGET.match(text)[1], manifest["ManifestType"])
        self.assertEqual(manifest["ManifestVersion"], "1.6.0")
        self.assertRegex(manifest["PackageIdentifier"], r"^[^\.\s\\/:\*\?\"<>\|]{1,32}(\.[^\.\s\\/:\*\?\"<>\|]{1,32}){1,7}$")
        self.assertEqual(manifest["PackageVersion"], packages.VERSION)
        return manifest

    def test_nothing_is_said_when_the_address_is_given(self):
        self.assertEqual(self.said, "")

    def test_a_missing_address_is_pointed_out(self):
        self.assertIn("TALLYREX_ADDRESS", packages.make(self.folder / "without"))

    def test_winget_version_manifest(self):
        manifest = self.winget("")
        self.assertEqual(manifest["ManifestType"], "version")
        self.assertEqual(set(manifest), {"PackageIdentifier", "PackageVersion", "DefaultLocale", "ManifestType",
                                         "ManifestVersion"})
        self.assertEqual(manifest["DefaultLocale"], "en-US")

    def test_winget_installer_manifest(self):
        manifest = self.winget(".installer")
        self.assertEqual(manifest["ManifestType"], "installer")
        self.assertEqual(manifest["Installers"], [{
            "Architecture": "x64", "InstallerType": "nullsoft", "Scope": "user",
            "InstallerUrl": DOWNLOADS + "/" + packages.SETUP.name,
            "InstallerSha256": sha256(self.published(packages.SETUP)).upper()}])
        self.assertLessEqual(set(manifest["InstallerSwitches"]), {
            "Silent", "SilentWithProgress", "Interactive", "InstallLocation", "Log", "Upgrade", "Custom", "Repair"})
        self.assertLessEqual(set(manifest["InstallModes"]), {"interactive", "silent", "silentWithProgress"})
        self.assertIn(manifest["UpgradeBehavior"], ("install", "uninstallPrevious", "deny"))
        self.assertRegex(manifest["ReleaseDate"], r"^\d{4}-\d\d-\d\d$")

    def test_winget_return_codes_are_documented(self):
        documentation = (packages.MAKE_PACKAGES.parents[1] / "docs" / "deploy.md").read_text(encoding="utf-8")
        documented = {int(code) for code in re.findall(r"^\| (\d+) \|", documentation, re.MULTILINE)}
        self.assertEqual(documented, {0, 1, 2, 3, 4})
        for entry in self.winget(".installer")["ExpectedReturnCodes"]:
            self.assertIn(entry["InstallerReturnCode"], documented)
            self.assertIn(entry["ReturnResponse"], ("packageInUse", "cancelledByUser", "downgrade"))

    def test_winget_locale_manifest(self):
        manifest = self.winget(".locale.en-US")
        self.assertEqual(manifest["ManifestType"], "defaultLocale")
        required = {"PackageLocale", "Publisher", "PackageName", "License", "ShortDescription"}
        self.assertLessEqual(required, set(manifest))
        self.assertLessEqual(len(manifest["ShortDescription"]), 256)
        self.assertLessEqual(len(manifest["Tags"]), 16)
        self.assertTrue(all(len(tag) <= 40 for tag in manifest["Tags"]))

    def test_scoop_manifest(self):
        manifest = json.loads((self.folder / "packages" / "manifests" / "scoop" / "tallyrex.json").read_text())
        self.assertLessEqual({"version", "homepage", "license", "description"}, set(manifest))
        self.assertEqual(manifest["homepage"], ADDRESS)
        download = manifest["architecture"]["64bit"]
        self.assertEqual(download["url"], DOWNLOADS + "/" + packages.ARCHIVE.name)
        self.assertEqual(download["hash"], sha256(self.published(packages.ARCHIVE)))
        with zipfile.ZipFile(self.published(packages.ARCHIVE)) as archive:
            for shortcut, _ in manifest["shortcuts"]:
                self.assertIn(download["extract_dir"] + "/" + shortcut, archive.namelist())
