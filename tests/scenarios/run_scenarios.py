#!/usr/bin/env python3
"""Runs the scenario files in the folders beside it against a driver, or against two and compares their answers.

    run_scenarios.py [options] DRIVER...
    run_scenarios.py [options] --compare DRIVER... -- OTHER-DRIVER...

A line that begins with "=> " holds the JSON that the command before it must answer. Objects are
compared partially (only the expected keys), lists fully; {"error":"*"} stands for any error.
Commands without such a line must not answer an error. A file with the line "# only: in-memory"
uses commands that only the in-memory driver has.
"""
import argparse
import concurrent.futures
import json
import os
import pathlib
import subprocess
import sys

ONLY_IN_MEMORY = "# only: in-memory"


class Step:
    """One command of a scenario: its line, its text, and what it must answer, if that is said."""

    def __init__(self, number, command):
        self.number = number
        self.command = command
        self.expected = None
        self.has_expected = False


def read_steps(path):
    """The steps of a scenario file; a ValueError names the line that is no step."""
    steps = []
    for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
        if line.startswith("=> "):
            if not steps or steps[-1].has_expected:
                raise ValueError("line %d: an answer without a command" % number)
            try:
                steps[-1].expected = json.loads(line[3:])
            except ValueError as error:
                raise ValueError("line %d: no JSON: %s" % (number, error)) from error
            steps[-1].has_expected = True
        elif line.strip() and not line.startswith("#"):
            steps.append(Step(number, line))
    return steps


def is_number(value):
    return isinstance(value, (int, float)) and not isinstance(value, bool)


def matches(expected, got):
    """Whether an answer is the expected one; objects may have more keys than expected."""
    if isinstance(expected, dict):
        if not isinstance(got, dict):
            return False
        if expected.get("error") == "*":
            return "error" in got
        return all(key in got and matches(value, got[key]) for key, value in expected.items())
    if isinstance(expected, list):
        return (isinstance(got, list) and len(got) == len(expected)
                and all(matches(e, g) for e, g in zip(expected, got)))
    if is_number(expected) and is_number(got):
        return expected == got
    return type(expected) is type(got) and expected == got


def unexpected_part(expected, got):
    """The pair that a reader needs to see: of two objects only the keys that differ."""
    if isinstance(expected, dict) and isinstance(got, dict) and "error" not in {*expected, *got}:
        keys = [key for key in expected if key not in got or not matches(expected[key], got[key])]
        return ({key: expected[key] for key in keys},
                {key: got[key] for key in keys if key in got})
    return expected, got


def is_good(step, got):
    """Whether an answer is what the step expects; a step that expects nothing expects no error."""
    if step.has_expected:
        return matches(step.expected, got)
    return not (isinstance(got, dict) and "error" in got)


def same_answer(one, other):
    """Errors are the same whatever their words: the words are for people."""
    if isinstance(one, dict) and isinstance(other, dict) and "error" in one and "error" in other:
        return True
    return one == other


def ask(driver, steps, timeout):
    """The driver's answers to the steps, and what went wrong on the way ("" where nothing did)."""
    commands = "".join(step.command + "\n" for step in steps)
    trouble = ""
    process = subprocess.Popen(driver, stdin=subprocess.PIPE, stdout=subprocess.PIPE)
    try:
        output, _ = process.communicate(commands.encode("utf-8"), timeout)
        if process.returncode != 0:
            trouble = "the driver ended with code %d" % process.returncode
    except subprocess.TimeoutExpired:
        process.kill()
        trouble = "the driver took longer than %d seconds" % timeout
        try:
            output, _ = process.communicate(timeout=5)
        except subprocess.TimeoutExpired:
            return [], trouble + ", and something holds its pipe still"
    answers = []
    for line in output.decode("utf-8", "replace").splitlines():
        try:
            answers.append(json.loads(line))
        except ValueError:
            return answers, "no JSON: " + line
    if not trouble and len(answers) > len(steps):
        trouble = "%d answers to %d commands" % (len(answers), len(steps))
    return answers, trouble


def say(name, step, text, *pairs):
    lines = ["%s:%d: %s" % (name, step.number, step.command)] if step else ["%s:" % name]
    if text:
        lines.append("    " + text)
    for label, value in pairs:
        lines.append("    %-9s %s" % (label, json.dumps(value, ensure_ascii=False)))
    return "\n".join(lines)


def check(name, steps, answers, trouble):
    """The complaints about one driver's answers."""
    complaints = [say(name, None, trouble)] if trouble else []
    for step, got in zip(steps, answers):
        if is_good(step, got):
            continue
        if step.has_expected:
            expected, shown = unexpected_part(step.expected, got)
            complaints.append(say(name, step, "", ("expected", expected), ("got", shown)))
        else:
            complaints.append(say(name, step, "", ("got", got)))
    if len(answers) < len(steps):
        complaints.append(say(name, steps[len(answers)], "no answer"))
    return complaints


def compare(name, steps, one, other):
    """The complaints about answers that two drivers do not share, where each by itself is good."""
    complaints = []
    for step, mine, theirs in zip(steps, one, other):
        if is_good(step, mine) and is_good(step, theirs) and not same_answer(mine, theirs):
            first, second = unexpected_part(mine, theirs)
            complaints.append(say(name, step, "the drivers differ", ("first", first), ("second", second)))
    return complaints


def run_file(path, name, drivers, timeout):
    """The complaints about one scenario."""
    try:
        steps = read_steps(path)
    except ValueError as error:
        return [say(name, None, str(error))]
    if not steps:
        return [say(name, None, "no commands")]
    complaints = []
    heard = []
    for driver in drivers:
        answers, trouble = ask(driver, steps, timeout)
        heard.append(answers)
        complaints += check(name, steps, answers, trouble)
    if len(heard) == 2:
        complaints += compare(name, steps, *heard)
    return complaints


def is_only_in_memory(path):
    return ONLY_IN_MEMORY in path.read_text(encoding="utf-8").splitlines()


def find_scenarios(folder, text):
    """The names of the scenario files, FOLDER/NAME.txt, that hold the text."""
    names = (path.relative_to(folder).as_posix() for path in sorted(folder.rglob("*.txt"))
             if path.name != "CMakeLists.txt")
    return [name for name in names if text in name]


def parse(arguments):
    parser = argparse.ArgumentParser(description=__doc__,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--compare", action="store_true",
                        help="two drivers, the second with real windows: their answers are the same")
    parser.add_argument("--real-windows", action="store_true",
                        help="the driver has real windows: one scenario at a time")
    parser.add_argument("--only", default="", metavar="TEXT", help="just files with TEXT in FOLDER/NAME")
    parser.add_argument("--folder", type=pathlib.Path, default=pathlib.Path(__file__).parent,
                        help="where the scenario files are")
    parser.add_argument("--timeout", type=float, default=120, metavar="SECONDS",
                        help="for one scenario on one driver")
    parser.add_argument("driver", nargs=argparse.REMAINDER, metavar="DRIVER...")
    options = parser.parse_args(arguments)
    command = options.driver
    if options.compare:
        if "--" not in command[1:]:
            parser.error("--compare needs two drivers, with -- between them")
        middle = command.index("--", 1)
        options.drivers = [command[:middle], command[middle + 1:]]
    else:
        options.drivers = [command]
    if not all(options.drivers):
        parser.error("which driver?")
    return options


def main(arguments):
    options = parse(arguments)
    real = options.compare or options.real_windows
    passed = failed = skipped = 0
    scenarios = find_scenarios(options.folder, options.only)

    def run_one(name):
        path = options.folder / name
        if real and is_only_in_memory(path):
            if not options.compare:
                return None
            return run_file(path, name, options.drivers[:1], options.timeout)
        return run_file(path, name, options.drivers, options.timeout)

    # Real windows share one keyboard and one foreground.
    with concurrent.futures.ThreadPoolExecutor(1 if real else os.cpu_count()) as pool:
        for name, complaints in zip(scenarios, pool.map(run_one, scenarios)):
            if complaints is None:
                print("%s: left out, only for the in-memory driver" % name)
                skipped += 1
            elif complaints:
                print("\n".join(complaints), flush=True)
                failed += 1
            else:
                passed += 1
    if not scenarios:
        print("There are no scenario files in %s" % options.folder)
        failed = 1
    print("%d passed, %d failed" % (passed, failed) + (", %d skipped" % skipped if skipped else ""))
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
