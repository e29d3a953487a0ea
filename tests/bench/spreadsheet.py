"""Asks a spreadsheet program what Tallyrex is asked:  spreadsheet.py DRIVER

Writes one sheet with the reference cases of the five functions, lets the program (soffice, without its
window) calculate it in a folder of its own, and prints how its answers and those of Tallyrex stand to the
exact ones.
"""
import decimal
import json
import math
import pathlib
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree

DATA = pathlib.Path(__file__).resolve().parent.parent / "data/time_value_reference.json"
NAMES = {"Pmt": "PMT", "PV": "PV", "FV": "FV", "NPer": "NPER", "Rate": "RATE"}
SHEET = """<?xml version="1.0" encoding="UTF-8"?>
<office:document xmlns:office="urn:oasis:names:tc:opendocument:xmlns:office:1.0"
 xmlns:table="urn:oasis:names:tc:opendocument:xmlns:table:1.0"
 xmlns:of="urn:oasis:names:tc:opendocument:xmlns:of:1.2" office:version="1.2"
 office:mimetype="application/vnd.oasis.opendocument.spreadsheet">
<office:body><office:spreadsheet><table:table table:name="problems">
%s
</table:table></office:spreadsheet></office:body></office:document>
"""
ROW = '<table:table-row><table:table-cell table:formula="of:=%s(%s)"/></table:table-row>'
TABLE = "{urn:oasis:names:tc:opendocument:xmlns:table:1.0}"
OFFICE = "{urn:oasis:names:tc:opendocument:xmlns:office:1.0}"
CALCEXT = "{urn:org:documentfoundation:names:experimental:calc:xmlns:calcext:1.0}"


def of_spreadsheet(calls):
    """What the spreadsheet program answers to (function, arguments), None for an error."""
    rows = [ROW % (NAMES[function], ";".join(repr(a) for a in arguments)) for function, arguments in calls]
    with tempfile.TemporaryDirectory() as folder:
        sheet = pathlib.Path(folder) / "asked.fods"
        sheet.write_text(SHEET % "\n".join(rows), encoding="utf-8")
        subprocess.run(["soffice", "-env:UserInstallation=file://%s/user" % folder, "--headless",
                        "--convert-to", "fods", "--outdir", folder + "/answered", str(sheet)],
                       stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, check=True)
        answered = ElementTree.parse(folder + "/answered/asked.fods")
    answers = []
    for cell in answered.iter(TABLE + "table-cell"):
        if cell.get(TABLE + "formula"):
            fails = cell.get(CALCEXT + "value-type") == "error"
            value = math.nan if fails else float(cell.get(OFFICE + "value", "nan"))
            answers.append(value if math.isfinite(value) else None)
    if len(answers) != len(calls):
        sys.exit("asked %d, answered %d" % (len(calls), len(answers)))
    return answers


def of_tallyrex(driver, calls):
    """What the functions of Tallyrex answer, None for an error."""
    lines = ["call %s %s" % (function, " ".join(json.dumps(a) for a in arguments))
             for function, arguments in calls]
    done = subprocess.run([str(driver)], input="\n".join(lines), stdout=subprocess.PIPE, text=True,
                          check=True)
    return [json.loads(line).get("value") for line in done.stdout.splitlines()]


def distance(case, answer):
    """How far an answer is from the exact one, as a share of it; of a rate, from the nearest one."""
    if case["function"] == "Rate":
        return min(abs(answer - rate) for rate in [float(case["exact"]), *case.get("roots", [])])
    exact = decimal.Decimal(case["exact"])
    return float(abs((decimal.Decimal(answer) - exact) / exact))


def print_digits(who, kind, cases, answers):
    """Counts the answers that are right to 15 digits, as many as a file of the spreadsheet holds, to 10,
    and the others. What the arguments' own last digits can do to the answer is allowed; a rate is right
    to 9 places, and to 7."""
    to_15 = to_10 = fewer = none = 0
    for case, answer in zip(cases, answers):
        if answer is None:
            none += 1
            continue
        allowed = 4 * max(1, case.get("cond", 0)) * 2.2e-16
        most, some = (1e-9, 1e-7) if case["function"] == "Rate" else (allowed + 5e-15, allowed + 5e-11)
        far = distance(case, answer)
        if far <= most:
            to_15 += 1
        elif far <= some:
            to_10 += 1
        else:
            fewer += 1
    print("%-12s %3d cases, %s: %d right to 15 digits, %d to 10, %d to fewer, %d without an answer"
          % (who, len(cases), kind, to_15, to_10, fewer, none))


def is_tiny(case):
    """Whether its rate is so small that a formula taken from a book loses digits."""
    return case["kind"].startswith(("tiny rate", "rate beyond"))


def main(driver):
    cases = [case for case in json.loads(DATA.read_text()) if "exact" in case]
    calls = [(case["function"], case["args"]) for case in cases]
    for who, answers in [("Tallyrex", of_tallyrex(driver, calls)), ("spreadsheet", of_spreadsheet(calls))]:
        pairs = list(zip(cases, answers))
        print_digits(who, "ordinary rates", *zip(*[pair for pair in pairs if not is_tiny(pair[0])]))
        print_digits(who, "tiny rates", *zip(*[pair for pair in pairs if is_tiny(pair[0])]))


if __name__ == "__main__":
    main(sys.argv[1])
