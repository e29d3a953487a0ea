#!/usr/bin/env python3
"""Has two drivers carry out the same random commands, and compares their answers.

    compare_streams.py [--seed N] [--seconds N] [--streams N] [--length N] STREAM DRIVER -- OTHER-DRIVER...

STREAM is tallyrex-print-stream. Streams are carried out one after another until the time or their number is over. A
stream whose answers differ is carried out once more, since a busy machine can lose a click; a difference that comes
back, and too many that do not, end it. What led there is printed as a scenario.
"""
import argparse
import json
import subprocess
import sys
import threading
import time

HANGS = 120  # Seconds after which a driver is ended that has not answered; it may wait for another run first.
MOST_REPEATED = 3  # In a short run; a long one may repeat one stream in fifty.
STREAMS_FOR_EACH_REPEATED = 50


class Driver:
    """A driver that answers one command after another."""

    def __init__(self, command):
        self._process = subprocess.Popen(command, stdin=subprocess.PIPE, stdout=subprocess.PIPE)

    def ask(self, command):
        self._process.stdin.write(command.encode() + b"\n")
        self._process.stdin.flush()
        hangs = threading.Timer(HANGS, self._process.kill)
        hangs.start()
        answer = self._process.stdout.readline()
        hangs.cancel()
        if not answer:
            return {"ended": self._process.wait()}
        return json.loads(answer.decode("utf-8", "replace"))

    def end(self):
        """Ends it; returns its exit code, which is not 0 either if the desktop lost too much of its input."""
        self._process.stdin.close()
        try:
            return self._process.wait(30)
        except subprocess.TimeoutExpired:
            self._process.kill()
            return self._process.wait()


def same(one, other):
    """Errors are the same whatever their words."""
    if "error" in one and "error" in other:
        return True
    return one == other


def compare(commands, drivers):
    """The index of the first command whose answers differ, and the answers; None where there is none."""
    for index, command in enumerate(commands):
        answers = [driver.ask(command) for driver in drivers]
        if not same(*answers):
            return index, answers
    return None


def commands_of(stream, seed, length):
    printed = subprocess.run([stream, str(seed), str(length)], check=True, capture_output=True, text=True)
    return ["reset", *printed.stdout.splitlines()]


def run(options, drivers):
    """Compares one stream after another; returns whether there was one, and none with a difference."""
    end = time.monotonic() + options.seconds
    seed = options.seed
    count = 0
    repeated = 0
    while time.monotonic() < end and seed < options.seed + options.streams:
        commands = commands_of(options.stream, seed, options.length)
        difference = compare(commands, drivers)
        most_repeated = max(MOST_REPEATED, (seed - options.seed) // STREAMS_FOR_EACH_REPEATED)
        if difference and repeated < most_repeated and not any("ended" in answer for answer in difference[1]):
            repeated += 1
            print("Done again: stream %d, after %s" % (seed, json.dumps(difference)), flush=True)
            difference = compare(commands, drivers)
        if difference:
            index, answers = difference
            print("\n".join(commands[1:index + 1]))
            print("# stream %d, the drivers differ:\n=> %s\n=> %s" % (seed, *map(json.dumps, answers)))
            return False
        count += len(commands)
        seed += 1
    print("%d streams, %d commands, no difference" % (seed - options.seed, count))
    return count > 0


def main(arguments):
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--seconds", type=float, default=20)
    parser.add_argument("--streams", type=int, default=sys.maxsize)
    parser.add_argument("--length", type=int, default=60, help="commands in a stream")
    parser.add_argument("stream")
    parser.add_argument("driver", nargs=argparse.REMAINDER)
    options = parser.parse_args(arguments)
    middle = options.driver.index("--")
    drivers = [Driver(options.driver[:middle]), Driver(options.driver[middle + 1:])]
    try:
        good = run(options, drivers)
    finally:
        codes = [driver.end() for driver in drivers]
    if any(codes):
        print("The drivers ended with the codes %d and %d" % tuple(codes))
    return 0 if good and not any(codes) else 1


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
