"""The packages that are tested, as the build names them in the environment."""
import os
import pathlib
import zipfile

VERSION = os.environ["TALLYREX_VERSION"]
FOLDER = pathlib.Path(os.environ["TALLYREX_PACKAGES"])
ARCHIVE = FOLDER / f"Tallyrex-{VERSION}-portable.zip"
SETUP = FOLDER / f"Tallyrex-{VERSION}-setup.exe"

OLDER_VERSION = "0.9.0"


def archived():
    """{name: bytes} of what the portable archive holds."""
    with zipfile.ZipFile(ARCHIVE) as archive:
        return {name: archive.read(name) for name in archive.namelist()}
