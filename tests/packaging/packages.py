"""The packages that are tested, as the build names them in the environment."""
import os
import pathlib
import subprocess
import sys
import zipfile

VERSION = os.environ["TALLYREX_VERSION"]
FOLDER = pathlib.Path(os.environ["TALLYREX_PACKAGES"])
ARCHIVE = FOLDER / f"Tallyrex-{VERSION}-portable.zip"
SETUP = FOLDER / f"Tallyrex-{VERSION}-setup.exe"
BILL_OF_MATERIALS = FOLDER / f"Tallyrex-{VERSION}-sbom.cdx.json"
FOLDER_IN_ARCHIVE = f"Tallyrex-{VERSION}/"
MAKE_PACKAGES = pathlib.Path(os.environ["TALLYREX_MAKE_PACKAGES"])
INPUTS = pathlib.Path(os.environ["TALLYREX_INPUTS"])

OLDER_VERSION = "0.9.0"


def archived():
    """{name below the folder of the archive: bytes} of the contents of the portable archive."""
    with zipfile.ZipFile(ARCHIVE) as archive:
        return {name.removeprefix(FOLDER_IN_ARCHIVE): archive.read(name) for name in archive.namelist()}


def make(target, inputs=INPUTS, **environment):
    """Makes all packages in the folder `target`; returns the output."""
    kept = {name: value for name, value in os.environ.items()
            if name not in ("SOURCE_DATE_EPOCH", "TALLYREX_ADDRESS", "TALLYREX_CERTIFICATE")}
    done = subprocess.run([sys.executable, "-B", str(MAKE_PACKAGES), str(inputs), str(target)], check=True,
                          env={**kept, **environment}, stdout=subprocess.PIPE, text=True)
    return done.stdout
