"""Makes everything that is published of a version into a folder.

usage: make_packages.py INPUTS.json FOLDER [--version VERSION]

INPUTS.json is written by the build and names what goes in. The folder gets the portable archive, the installer, a
bill of materials, the manifests for package managers, and SHA256SUMS. The environment says the rest:
  SOURCE_DATE_EPOCH      the date of every file, in seconds since 1970; else that of the commit
  TALLYREX_ADDRESS       the address of the project, below which the packages are published
  TALLYREX_CERTIFICATE   signs the program, the installer and the uninstaller (see signature.py)
"""
import argparse
import hashlib
import json
import os
import pathlib
import shlex
import shutil
import subprocess
import sys
import tempfile

from archive import make_archive
from bill_of_materials import bill_of_materials
from manifests import scoop_manifest, winget_manifests
from signature import sign

HERE = pathlib.Path(__file__).resolve().parent
PLACEHOLDER_ADDRESS = "https://example.com/tallyrex"
# The oldest date in an archive, for sources that are not a clone.
NO_DATE = 315532800


def source_date():
    """When the sources were last changed, in seconds since 1970."""
    if os.environ.get("SOURCE_DATE_EPOCH"):
        return int(os.environ["SOURCE_DATE_EPOCH"])
    if not shutil.which("git"):
        return NO_DATE
    asked = subprocess.run(["git", "-C", str(HERE), "log", "-1", "--format=%ct"], check=False, text=True,
                           stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
    return int(asked.stdout) if asked.returncode == 0 else NO_DATE


def stage(folder, files, date, certificate):
    """Copies `files`, {name: path}, into `folder`, signs the program, and dates everything alike."""
    for name, path in files.items():
        copy = folder / name
        copy.parent.mkdir(parents=True, exist_ok=True)
        shutil.copyfile(path, copy)
        if certificate and copy.suffix == ".exe":
            sign(certificate, copy)
        os.utime(copy, (date, date))


def make_installer(target, version, inputs, folder, certificate):
    """Compiles the installer of what is staged in `folder`."""
    command = [inputs["makensis"], "-V2", "-WX", "-DVERSION=" + version, "-DFILES=%s" % folder,
               "-DICON=" + inputs["icon"], "-DWIZARD=" + inputs["wizard"], "-DOUTPUT=%s" % target]
    if certificate:
        command.append("-DSIGN=" + shlex.join([sys.executable, "-B", str(HERE / "signature.py"), certificate]))
    subprocess.run([*command, str(HERE / "installer.nsi")], check=True, stdout=sys.stderr)


def digest(path):
    return hashlib.sha256(path.read_bytes()).hexdigest()


def write_json(path, contents):
    path.write_text(json.dumps(contents, indent=2) + "\n", encoding="utf-8")


def write_manifests(target, version, setup, archive, date):
    """Writes the manifests of the two packages for package managers into folders of `target`."""
    address = os.environ.get("TALLYREX_ADDRESS", "").rstrip("/")
    if not address:
        address = PLACEHOLDER_ADDRESS
        print("The manifests name the placeholder %s; TALLYREX_ADDRESS sets the address" % address)
    address += "/releases/download/v" + version
    for name in ("winget", "scoop"):
        (target / name).mkdir(parents=True, exist_ok=True)
    for name, text in winget_manifests(version, address, setup.name, digest(setup), date).items():
        (target / "winget" / name).write_text(text, encoding="utf-8")
    write_json(target / "scoop" / "tallyrex.json",
               scoop_manifest(version, address, archive.name, digest(archive), "Tallyrex-" + version))


def make_packages(inputs, target, version):
    """Makes all files of one version in the folder `target`, replacing its contents."""
    date = source_date()
    certificate = os.environ.get("TALLYREX_CERTIFICATE")
    shutil.rmtree(target, ignore_errors=True)
    target.mkdir(parents=True)
    archive = target / ("Tallyrex-%s-portable.zip" % version)
    setup = target / ("Tallyrex-%s-setup.exe" % version)
    bill = target / ("Tallyrex-%s-sbom.cdx.json" % version)
    with tempfile.TemporaryDirectory() as scratch:
        folder = pathlib.Path(scratch) / ("Tallyrex-" + version)
        stage(folder, inputs["files"], date, certificate)
        make_archive(archive, folder, sorted(inputs["files"]))
        make_installer(setup, version, inputs, folder, certificate)
        write_json(bill, bill_of_materials(version, (folder / "Tallyrex.exe").read_bytes(), inputs["runtime"], date))
    write_manifests(target / "manifests", version, setup, archive, date)
    sums = ["%s  %s\n" % (digest(path), path.name) for path in (archive, setup, bill)]
    (target / "SHA256SUMS").write_text("".join(sums), encoding="ascii", newline="\n")


def main():
    parser = argparse.ArgumentParser(usage=__doc__)
    parser.add_argument("inputs", type=pathlib.Path)
    parser.add_argument("folder", type=pathlib.Path)
    parser.add_argument("--version")
    options = parser.parse_args()
    inputs = json.loads(options.inputs.read_text(encoding="utf-8"))
    make_packages(inputs, options.folder.resolve(), options.version or inputs["version"])


if __name__ == "__main__":
    main()
