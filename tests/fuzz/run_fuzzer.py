#!/usr/bin/env python3
"""Runs the fuzzer, and prints how many of the product's lines it has carried out.

    run_fuzzer.py [--least PERCENT] FUZZER SOURCES CORPUS FOUND [OPTION...]

FOUND is the folder for inputs that are new; OPTIONs are the fuzzer's. It fails where the fuzzer finds
something, and where the lines carried out are fewer than --least percent.
"""
import argparse
import json
import os
import pathlib
import shutil
import subprocess
import sys

FOLDERS = ("about", "annuity", "app", "common", "controls", "engine", "inmemory", "shell")


def lines_carried_out(fuzzer, profile, sources):
    """By folder of the product: the lines carried out, and all that there are."""
    merged = profile.with_suffix(".profdata")
    subprocess.run(["llvm-profdata", "merge", "-sparse", profile, "-o", merged], check=True)
    answer = subprocess.run(["llvm-cov", "export", "-summary-only", "-instr-profile", merged, fuzzer], check=True,
                            capture_output=True, text=True).stdout
    lines = {folder: [0, 0] for folder in FOLDERS}
    for file in json.loads(answer)["data"][0]["files"]:
        path = pathlib.Path(file["filename"]).resolve()
        if not path.is_relative_to(sources):
            continue
        folder = path.relative_to(sources).parts[0]
        lines[folder][0] += file["summary"]["lines"]["covered"]
        lines[folder][1] += file["summary"]["lines"]["count"]
    return lines


def main(arguments):
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--least", type=float, default=0)
    for name in ("fuzzer", "sources", "corpus", "found"):
        parser.add_argument(name, type=pathlib.Path)
    options, rest = parser.parse_known_args(arguments)
    shutil.rmtree(options.found, ignore_errors=True)
    options.found.mkdir(parents=True)
    profile = options.found / "fuzzer.profraw"
    inputs = options.found / "inputs"
    inputs.mkdir()
    done = subprocess.run([options.fuzzer, *rest, inputs, options.corpus], check=False,
                          env=dict(os.environ, LLVM_PROFILE_FILE=str(profile)))
    if done.returncode:
        return done.returncode
    lines = lines_carried_out(options.fuzzer, profile, options.sources.resolve())
    for folder, (covered, count) in lines.items():
        print("%-9s %5d of %5d lines" % (folder, covered, count))
    covered, count = (sum(column) for column in zip(*lines.values()))
    percent = 100 * covered / max(count, 1)
    print("%.1f percent of the product's lines carried out" % percent)
    return 0 if count and percent >= options.least else 1


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
