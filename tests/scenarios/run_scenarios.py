#!/usr/bin/env python3
"""Runs the scenario files in the folders beside it against a driver, or against two and compares their answers.

    run_scenarios.py [options] DRIVER...
    run_scenarios.py [options] --compare DRIVER... -- OTHER-DRIVER...

A line that begins with "=> " holds the JSON that the command before it must answer. Objects are
compared partially (only the expected keys), lists fully; {"error":"*"} stands for any error.
Commands without such a line must not answer an error. A file with the line "# only: in-memory"
uses commands that only the in-memory driver has. One driver carries out many scenarios; between two of
them it is reset.
"""
import argparse
import concurrent.futures
import contextlib
import json
import os
import pathlib
import queue
import subprocess
import sys
import threading

ONLY_IN_MEMORY = "# only: in-memory"


class Step:
    """One command of a scenario: its line, its text, and what it must answer, if that is said."""

    def __init__(self, number, command):
        self.number = number
        self.command = command
        self.expected = None
        self.has_expected = False


def read_steps(path):
    """The steps of a scenario file; a ValueError names a malformed line."""
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
    """The part of a difference to show: only the keys of two objects that differ."""
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
    """All errors count as the same, whatever their texts."""
    if isinstance(one, dict) and isinstance(other, dict) and "error" in one and "error" in other:
        return True
    return one == other


class Driver:
    """A driver that carries out one scenario after another, and is reset in between."""

    def __init__(self, command, timeout):
        self._command = command
        self._timeout = timeout
        self._process = None

    def ask(self, steps):
        """The answers to the steps, and an error message, or ""."""
        commands = [step.command for step in steps]
        if self._process:
            commands.insert(0, "reset")
        else:
            self._process = subprocess.Popen(self._command, stdin=subprocess.PIPE, stdout=subprocess.PIPE)
        answers = []
        watch = threading.Timer(self._timeout, self._process.kill)
        watch.start()
        try:
            for command in commands:
                answers.append(self._answer(command))
            trouble = ""
        except ValueError as error:
            trouble = "no JSON: %s" % error
        except OSError:
            trouble = "the driver took longer than %g seconds" % self._timeout
            if watch.is_alive():
                trouble = "the driver ended with code %d" % self._process.wait()
        watch.cancel()
        if trouble:
            self._process.kill()
            self.end()
        return answers[len(commands) - len(steps):], trouble

    def _answer(self, command):
        self._process.stdin.write(command.encode("utf-8") + b"\n")
        self._process.stdin.flush()
        line = self._process.stdout.readline()
        if not line:
            raise BrokenPipeError
        text = line.decode("utf-8", "replace").rstrip()
        try:
            return json.loads(text)
        except ValueError as error:
            raise ValueError(text) from error

    def end(self):
        """Ends it; returns an error message, or ""."""
        process, self._process = self._process, None
        if not process:
            return ""
        with contextlib.suppress(OSError):
            process.stdin.close()
        try:
            code = process.wait(self._timeout)
        except subprocess.TimeoutExpired:
            process.kill()
            return "the driver does not end"
        finally:
            process.stdout.close()
        return "the driver ended with code %d" % code if code else ""


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
    """The complaints about different answers of two drivers where each is acceptable by itself."""
    complaints = []
    for step, mine, theirs in zip(steps, one, other):
        if is_good(step, mine) and is_good(step, theirs) and not same_answer(mine, theirs):
            first, second = unexpected_part(mine, theirs)
            complaints.append(say(name, step, "the drivers differ", ("first", first), ("second", second)))
    return complaints


def run_file(path, name, drivers):
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
        answers, trouble = driver.ask(steps)
        heard.append(answers)
        complaints += check(name, steps, answers, trouble)
    if len(heard) == 2:
        complaints += compare(name, steps, *heard)
    return complaints


def is_only_in_memory(path):
    return ONLY_IN_MEMORY in path.read_text(encoding="utf-8").splitlines()


def find_scenarios(folder, text):
    """The names of the scenario files, FOLDER/NAME.txt, that contain the text."""
    names = (path.relative_to(folder).as_posix() for path in sorted(folder.rglob("*.txt"))
             if path.name != "CMakeLists.txt")
    return [name for name in names if text in name]


def part_of(scenarios, part):
    """The scenarios of a part, as the option names it; all parts together are all scenarios."""
    number, parts = map(int, part.split("/"))
    return scenarios[(number - 1) * len(scenarios) // parts:number * len(scenarios) // parts]


def parse(arguments):
    parser = argparse.ArgumentParser(description=__doc__,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--compare", action="store_true",
                        help="two drivers, the second with real windows: their answers are the same")
    parser.add_argument("--real-windows", action="store_true",
                        help="the driver has real windows: one scenario at a time")
    parser.add_argument("--only", default="", metavar="TEXT", help="just files with TEXT in FOLDER/NAME")
    parser.add_argument("--part", default="1/1", metavar="N/OF", help="the second of three parts: 2/3")
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


class Run:
    """All scenarios on the drivers that the options name; failures are shown as they happen."""

    def __init__(self, options):
        self._options = options
        self._real = options.compare or options.real_windows
        # Real windows share one keyboard and one foreground.
        self._workers = 1 if self._real else os.cpu_count()
        self._idle = queue.SimpleQueue()
        for _ in range(self._workers):
            self._idle.put([Driver(command, options.timeout) for command in options.drivers])
        self.passed = self.failed = self.skipped = 0

    def run(self, scenarios):
        with concurrent.futures.ThreadPoolExecutor(self._workers) as pool:
            for name, complaints in zip(scenarios, pool.map(self._run_one, scenarios)):
                self._count(name, complaints)
        while not self._idle.empty():
            for driver in self._idle.get():
                trouble = driver.end()
                if trouble:
                    self._count(None, [say("at the end", None, trouble)])

    def _run_one(self, name):
        path = self._options.folder / name
        drivers = self._idle.get()
        try:
            if self._real and is_only_in_memory(path):
                return run_file(path, name, drivers[:1]) if self._options.compare else None
            return run_file(path, name, drivers)
        finally:
            self._idle.put(drivers)

    def _count(self, name, complaints):
        if complaints is None:
            print("%s: left out, only for the in-memory driver" % name)
            self.skipped += 1
        elif complaints:
            print("\n".join(complaints), flush=True)
            self.failed += 1
        else:
            self.passed += 1


def main(arguments):
    options = parse(arguments)
    scenarios = part_of(find_scenarios(options.folder, options.only), options.part)
    run = Run(options)
    run.run(scenarios)
    if not scenarios:
        print("There are no scenario files in %s" % options.folder)
        run.failed = 1
    print("%d passed, %d failed" % (run.passed, run.failed)
          + (", %d skipped" % run.skipped if run.skipped else ""))
    return 1 if run.failed else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
