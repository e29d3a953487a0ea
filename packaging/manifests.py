"""The manifests by which the package managers of Windows find, check and install a release."""
import json
import time

IDENTIFIER = "Tallyrex.Tallyrex"
SCHEMA = "1.6.0"
SUMMARY = "A desktop adding machine with a paper tape, and a financial calculator"
DESCRIPTION = ("A keypad, an entry box, and a paper tape on which every amount, every total and every error is a line "
               "of text. Beside it, a financial calculator for loans and investments that finds the one figure of "
               "five that you leave blank.")
PUBLISHER = "The Tallyrex authors"
# The exit codes of the installer that winget has a message for.
RETURN_CODES = [(1, "cancelledByUser"), (3, "downgrade"), (4, "packageInUse")]


def as_yaml(value, indent=""):
    """The lines of a value of dicts, lists and scalars in YAML; texts are quoted as in JSON."""
    if isinstance(value, dict):
        items = [(indent + name + ":", part) for name, part in value.items()]
    else:
        items = [(indent + "-", part) for part in value]
    lines = []
    for head, part in items:
        if not isinstance(part, (dict, list)):
            lines.append(head + " " + json.dumps(part))
        elif head.endswith("-") and isinstance(part, dict):
            first, *rest = as_yaml(part, indent + "  ")
            lines += [indent + "- " + first.lstrip(), *rest]
        else:
            lines += [head, *as_yaml(part, indent + "  ")]
    return lines


def yaml_file(kind, contents):
    schema = "https://aka.ms/winget-manifest.%s.%s.schema.json" % (kind, SCHEMA)
    contents = {**contents, "ManifestType": kind, "ManifestVersion": SCHEMA}
    return "\n".join(["# yaml-language-server: $schema=" + schema, "", *as_yaml(contents), ""])


def winget_manifests(version, address, setup, digest, date):
    """{file name: text}: which versions there are, how this one is installed, and how it is described."""
    package = {"PackageIdentifier": IDENTIFIER, "PackageVersion": version}
    installer = {
        "Architecture": "x64",
        "InstallerType": "nullsoft",
        "Scope": "user",
        "InstallerUrl": address + "/" + setup,
        "InstallerSha256": digest.upper(),
    }
    return {
        IDENTIFIER + ".yaml": yaml_file("version", {**package, "DefaultLocale": "en-US"}),
        IDENTIFIER + ".installer.yaml": yaml_file("installer", {
            **package,
            "Platform": ["Windows.Desktop"],
            "MinimumOSVersion": "10.0.0.0",
            "InstallModes": ["interactive", "silent"],
            "InstallerSwitches": {"Silent": "/S", "SilentWithProgress": "/S", "InstallLocation": "/D=<INSTALLPATH>",
                                  "Log": '/LOG="<LOGPATH>"'},
            "ExpectedReturnCodes": [{"InstallerReturnCode": code, "ReturnResponse": response}
                                    for code, response in RETURN_CODES],
            "UpgradeBehavior": "install",
            "ProductCode": "Tallyrex",
            "ReleaseDate": time.strftime("%Y-%m-%d", time.gmtime(date)),
            "Installers": [installer],
        }),
        IDENTIFIER + ".locale.en-US.yaml": yaml_file("defaultLocale", {
            **package,
            "PackageLocale": "en-US",
            "Publisher": PUBLISHER,
            "PackageName": "Tallyrex",
            "License": "MIT",
            "ShortDescription": SUMMARY,
            "Description": DESCRIPTION,
            "Moniker": "tallyrex",
            "Tags": ["adding-machine", "calculator", "finance", "tape"],
        }),
    }


def scoop_manifest(version, address, archive, digest, folder):
    """The manifest as a dict; `folder` is the one in the archive that holds the program."""
    return {
        "version": version,
        "description": SUMMARY,
        "homepage": address.partition("/releases/")[0],
        "license": "MIT",
        "architecture": {"64bit": {"url": address + "/" + archive, "hash": digest, "extract_dir": folder}},
        "shortcuts": [["Tallyrex.exe", "Tallyrex"]],
    }
