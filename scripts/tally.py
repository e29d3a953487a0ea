"""Adds up the results of test runs:  tally.py RESULTS.xml... [LINT.log...]

Prints the names of what failed, a line for each run, and 'N passed, N failed' as the last line; exits with 1 unless
all passed. A program that runs many tests counts as many as its own closing line says; a lint of all
sources counts as one.
"""
import pathlib
import re
import sys
import xml.etree.ElementTree as ElementTree

CLOSING = re.compile(r"^(\d+) passed, (\d+) failed(?:, (\d+) skipped)?$", re.MULTILINE)


def number(pattern, text):
    found = re.search(pattern, text, re.MULTILINE)
    return int(found.group(1)) if found else 0


def counted(output):
    """Passed, failed and skipped from the summary of a test program; zeros without one."""
    closings = CLOSING.findall(output)
    if closings:
        return [int(count or 0) for count in closings[-1]]
    ran = number(r"^Ran (\d+) tests? in ", output)
    if ran:
        skipped = number(r"skipped=(\d+)", output)
        failed = number(r"failures=(\d+)", output) + number(r"errors=(\d+)", output)
        failed = min(failed, ran)
        return [ran - failed - skipped, failed, skipped]
    return [number(r"^\[  PASSED  \] (\d+) tests?\.", output),
            number(r"^\[  FAILED  \] (\d+) tests?, listed below", output),
            number(r"^\[  SKIPPED \] (\d+) tests?, listed below", output)]


def count(case):
    """Passed, failed and skipped of one test of a run."""
    output = case.findtext("system-out") or ""
    status = case.get("status")
    if status == "disabled" or case.find("skipped") is not None and status != "fail":
        return [0, 0, 1]
    counts = counted(output)
    if status != "run" and counts[1] == 0:
        counts[1] = 1
    if sum(counts) == 0:
        counts[0] = 1
    return counts


def report_lint(path):
    """Prints the complaints of a lint and its line; returns its counts."""
    said = path.read_text(encoding="utf-8").rstrip() if path.exists() else ""
    closings = CLOSING.findall(said)
    clean = bool(closings) and int(closings[-1][0]) > 0 and int(closings[-1][1]) == 0
    if not clean:
        print("==== %s failed" % path.stem)
        print(said)
    counts = [1, 0, 0] if clean else [0, 1, 0]
    print("%-9s %s" % (path.stem, closing(counts)))
    return counts


def report(path):
    """Prints the failures of one run and its line; returns its counts."""
    if not path.exists():
        print("%-9s did not finish" % path.stem)
        return [0, 1, 0]
    suite = ElementTree.parse(path).getroot()
    total = [0, 0, 0]
    for case in suite.iter("testcase"):
        counts = count(case)
        total = [sum(pair) for pair in zip(total, counts)]
        if counts[1]:
            print("%-9s failed: %s" % (path.stem, case.get("name")))
    if sum(total) == 0:
        print("%-9s ran no test" % path.stem)
        return [0, 1, 0]
    print("%-9s %s in %s s" % (path.stem, closing(total), suite.get("time")))
    return total


def closing(counts):
    text = "%d passed, %d failed" % tuple(counts[:2])
    return text + (", %d skipped" % counts[2] if counts[2] else "")


def main(paths):
    totals = [(report_lint if path.endswith(".log") else report)(pathlib.Path(path)) for path in paths]
    total = [sum(column) for column in zip(*totals)]
    print(closing(total))
    return 1 if total[1] else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
