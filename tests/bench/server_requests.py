#!/usr/bin/env python3
"""Counts what programs ask of Wine's server until they wait for the user, from the server's own trace.

    scripts/in-wine test tests/bench/server_requests.py [--most N] PROGRAM...

The figure is nearly the same at each run, however busy the machine is. With --most it fails when the last
program asks more often.
"""
import argparse
import collections
import os
import pathlib
import re
import signal
import subprocess
import sys
import tempfile
import time

REQUEST = re.compile(r"^([0-9a-f]{4}): (\w+)\((?!\) =) ?(.*)")
REPLY_WITH_THREAD = re.compile(r"^([0-9a-f]{4}): new_thread\(\) = 0 \{ tid=([0-9a-f]{4})")
QUIET = 1.5
# What the caret of a window that waits lets grow the trace by meanwhile.
BLINKING = 20_000
PATIENCE = 120
# Now and then a start also makes Wine's list of fonts again, a hundred requests: the least of these counts.
TIMES = 3


class TracedServer:
    """A server of Wine that writes what it is asked for into a file."""

    def __init__(self, trace):
        self.trace = trace
        subprocess.run(["wineserver", "-k"], check=False)
        self._file = trace.open("wb")
        self._process = subprocess.Popen(["wineserver", "-f", "-d", "-p"], stderr=self._file)
        time.sleep(0.5)

    def end(self):
        subprocess.run(["wineserver", "-k"], check=False)
        self._process.wait(20)
        self._file.close()


def wait_until_quiet(trace):
    """Waits until hardly anything is asked; the length of the trace up to then. A RuntimeError when it never comes."""
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        size = trace.stat().st_size
        time.sleep(QUIET)
        if trace.stat().st_size - size < BLINKING:
            return size
    raise RuntimeError("the server is never idle")


def requests_of(lines, unix_process):
    """How often each request was made by the threads of a process and of those that it starts."""
    threads = set()
    counts = collections.Counter()
    for line in lines:
        created = REPLY_WITH_THREAD.match(line)
        if created and created[1] in threads:
            threads.add(created[2])
            continue
        request = REQUEST.match(line)
        if not request:
            continue
        thread, name, rest = request.groups()
        if name == "init_first_thread" and "unix_pid=%d," % unix_process in rest:
            threads = {thread}
        if thread in threads:
            counts[name] += 1
    return counts


def start(program):
    """Starts a program under Wine, in a group of its own."""
    return subprocess.Popen(["wine", program], stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                            stderr=subprocess.DEVNULL, start_new_session=True)


def end(process):
    """Ends a program that `start` has started."""
    os.kill(process.pid, signal.SIGKILL)
    process.wait()


def count(server, program):
    """The requests of one start of a program."""
    before = wait_until_quiet(server.trace)
    process = start(program)
    time.sleep(1)
    after = wait_until_quiet(server.trace)
    with server.trace.open("rb") as trace:
        trace.seek(before)
        lines = trace.read(after - before).decode("utf-8", "replace").splitlines()
    counts = requests_of(lines, process.pid)
    end(process)
    return counts


def main(arguments):
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--most", type=int, help="the last program may not ask more often")
    parser.add_argument("--names", type=int, default=0, metavar="N", help="show the N most frequent requests")
    parser.add_argument("program", nargs="+")
    options = parser.parse_args(arguments)
    with tempfile.TemporaryDirectory() as folder:
        server = TracedServer(pathlib.Path(folder) / "trace")
        try:
            # A first program starts the services and the desktop, and keeps them until the end.
            first = start("notepad.exe")
            time.sleep(1)
            for program in options.program:
                counts = min((count(server, program) for _ in range(TIMES)), key=lambda found: sum(found.values()))
                total = sum(counts.values())
                print("%s: %d requests" % (program, total))
                for name, times in counts.most_common(options.names):
                    print("    %5d %s" % (times, name))
            end(first)
        finally:
            server.end()
    if not total:
        print("nothing was traced")
        return 1
    if options.most and total > options.most:
        print("more than %d" % options.most)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
