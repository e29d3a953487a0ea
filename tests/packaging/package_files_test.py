"""What the packages contain, and what the headers and resources of the programs say."""
import re
import unittest
import xml.etree.ElementTree
import zipfile

import packages
import pe_file
from pe_file import PeFile

MOST_BYTES_OF_PROGRAM = 600 * 1024
NEEDED_FLAGS = pe_file.DYNAMIC_BASE | pe_file.HIGH_ENTROPY_VA | pe_file.NX_COMPAT
NUMBERS = tuple(int(part) for part in packages.VERSION.split(".")) + (0,)

# Libraries in the system folder of every Windows.
SYSTEM_LIBRARIES = {
    "advapi32.dll", "comctl32.dll", "comdlg32.dll", "dwmapi.dll", "gdi32.dll", "imm32.dll",
    "kernel32.dll", "msvcrt.dll", "ntdll.dll", "ole32.dll", "oleacc.dll", "oleaut32.dll",
    "shell32.dll", "shlwapi.dll", "user32.dll", "uxtheme.dll", "version.dll", "winmm.dll"}


def local_names(manifest):
    """[(name without namespace, attributes, text)] of the elements of a manifest."""
    root = xml.etree.ElementTree.fromstring(manifest)
    return [(element.tag.rpartition("}")[2], element.attrib, (element.text or "").strip())
            for element in root.iter()]


class PortableArchive(unittest.TestCase):
    def test_contains_the_program_its_help_the_licenses_and_a_readme(self):
        self.assertEqual(set(packages.archived()), {
            "Tallyrex.exe", "readme.txt", "LICENSE.txt", "THIRD-PARTY-NOTICES.txt",
            "help/Tallyrex.hlp", "help/Tallyrex.html", "help/Tallyrex-23.html"})

    def test_unpacks_into_one_folder_named_after_the_version(self):
        with zipfile.ZipFile(packages.ARCHIVE) as archive:
            self.assertEqual({name.partition("/")[0] for name in archive.namelist()},
                             {"Tallyrex-" + packages.VERSION})

    def test_is_intact(self):
        with zipfile.ZipFile(packages.ARCHIVE) as archive:
            self.assertIsNone(archive.testzip())

    def test_the_license_and_the_notices_are_those_of_the_sources(self):
        for name in "LICENSE", "THIRD-PARTY-NOTICES":
            source = (packages.MAKE_PACKAGES.parents[1] / name).read_text(encoding="ascii")
            packed = packages.archived()[name + ".txt"]
            self.assertEqual(packed.decode("ascii"), source.replace("\n", "\r\n"))

    def test_the_readme_is_one_page_with_windows_line_endings(self):
        page = packages.archived()["readme.txt"]
        lines = page.decode("ascii").split("\r\n")
        self.assertLessEqual(len(lines), 60)
        self.assertLessEqual(max(map(len, lines)), 80)
        self.assertEqual(page.count(b"\r\n"), page.count(b"\n"))
        self.assertEqual(lines[0], "Tallyrex " + packages.VERSION)


class EitherProgram:
    """What applies to Tallyrex.exe and to the installer."""

    program = None

    def test_it_randomizes_addresses_and_does_not_execute_data(self):
        self.assertEqual(self.program.dll_characteristics & NEEDED_FLAGS, NEEDED_FLAGS)
        self.assertEqual(self.program.writable_code(), [])

    def test_a_missing_flag_is_noticed(self):
        for flag in (pe_file.DYNAMIC_BASE, pe_file.HIGH_ENTROPY_VA, pe_file.NX_COMPAT):
            data = bytearray(self.program.data)
            data[self.program.flags_offset() + flag // 0x100] &= ~(flag % 0x100 or flag // 0x100)
            flags = PeFile(bytes(data)).dll_characteristics
            self.assertEqual(flags & NEEDED_FLAGS, NEEDED_FLAGS & ~flag)

    def test_it_runs_with_the_rights_of_the_user_who_starts_it(self):
        levels = [attributes for name, attributes, _ in local_names(self.manifest())
                  if name == "requestedExecutionLevel"]
        self.assertEqual([level["level"] for level in levels], ["asInvoker"])
        self.assertEqual(levels[0]["uiAccess"], "false")

    def test_it_imports_system_libraries_only(self):
        self.assertEqual(set(self.program.imports()) - SYSTEM_LIBRARIES, set())

    def test_its_icon_has_an_image_for_every_size(self):
        self.assertEqual(self.program.icon_sizes(), [16, 20, 24, 32, 40, 48, 64, 256])

    def test_its_properties_name_product_and_version(self):
        file_version, product_version, texts = self.program.version()
        self.assertEqual((file_version, product_version), (NUMBERS, NUMBERS))
        self.assertEqual(texts["ProductName"], "Tallyrex")
        self.assertEqual(texts["ProductVersion"], packages.VERSION)
        self.assertEqual(texts["FileVersion"], packages.VERSION)
        self.assertIn("Tallyrex", texts["FileDescription"])

    def test_its_properties_name_publisher_and_copyright(self):
        texts = self.program.version()[2]
        self.assertEqual(texts["CompanyName"], "The Tallyrex authors")
        self.assertIn("The Tallyrex authors", texts["LegalCopyright"])

    def manifest(self):
        return self.program.resource(pe_file.MANIFEST)


class Program(EitherProgram, unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.data = packages.archived()["Tallyrex.exe"]
        cls.program = PeFile(cls.data)

    def test_is_small(self):
        self.assertLessEqual(len(self.data), MOST_BYTES_OF_PROGRAM)

    def test_is_a_64_bit_windows_program_that_can_be_loaded_at_any_address(self):
        self.assertEqual(self.program.machine, pe_file.AMD64)
        self.assertEqual(self.program.subsystem, pe_file.WINDOWS_GUI)
        self.assertFalse(self.program.characteristics & pe_file.RELOCATIONS_STRIPPED)

    def test_the_same_sources_link_to_the_same_bytes(self):
        self.assertEqual(self.program.timestamp, 0, "the time of linking is in the file")

    def test_does_not_reveal_the_folder_that_it_was_built_in(self):
        source = r"[/\\]src[/\\]\w+[/\\]\w+\.(?:cpp|h)\b"
        for text in pe_file.readings(self.data):
            self.assertEqual(re.findall(source, text), [])

    def test_loads_libraries_from_the_system_folder_only(self):
        self.assertIn("SetDefaultDllDirectories", self.program.imports()["kernel32.dll"])

    def test_its_manifest_names_its_version_and_the_current_visual_style(self):
        parts = [(attributes["name"], attributes["version"])
                 for name, attributes, _ in local_names(self.manifest())
                 if name == "assemblyIdentity"]
        self.assertEqual(parts, [("Tallyrex", packages.VERSION + ".0"),
                                 ("Microsoft.Windows.Common-Controls", "6.0.0.0")])

    def test_redraws_for_the_scaling_of_each_monitor(self):
        awareness = [text for name, _, text in local_names(self.manifest())
                     if name == "dpiAwareness"]
        self.assertEqual([text.split(",")[0].strip() for text in awareness], ["PerMonitorV2"])


class Setup(EitherProgram, unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.program = PeFile.read(packages.SETUP)
