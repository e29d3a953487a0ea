"""Runs the scripts of the help: in a small engine without a page, and in a browser without a window."""

import json
import os
import re
import shutil
import subprocess
import tempfile
from pathlib import Path

ENGINES = ("duk", "qjs", "node")
BROWSERS = ("chromium", "chromium-browser", "google-chrome", "msedge")
_MARK = "result-of-the-steps"


def first_of(names):
    """The first of the programs that is installed, or None."""
    return next((path for path in map(shutil.which, names) if path), None)


def run_script(engine, text):
    """What a script prints, in an engine."""
    with tempfile.TemporaryDirectory() as folder:
        script = Path(folder) / "script.js"
        script.write_text("if (typeof print === 'undefined') print = console.log;\n" + text, encoding="utf-8")
        run = subprocess.run([engine, str(script)], capture_output=True, encoding="utf-8", check=False, timeout=60)
    if run.returncode:
        raise AssertionError(run.stdout + run.stderr)
    return run.stdout


def run_in_browser(browser, page, steps, width=1280):
    """What `steps`, the body of a function, returns at the end of a page that is opened from a file."""
    script = f'<script id="{_MARK}">\nvar result = (function () {{\n{steps}\n}})();\n'
    script += f'document.getElementById("{_MARK}").textContent = JSON.stringify(result);\n</script>\n'
    with tempfile.TemporaryDirectory() as folder:
        file = Path(folder) / "page.html"
        file.write_text(page.replace("</body>", script + "</body>"), encoding="utf-8")
        run = _run(browser, folder, f"--window-size={width},800", "--dump-dom", file.as_uri())
    answer = run.stdout.partition(f'<script id="{_MARK}">')[2].partition("</script>")[0]
    try:
        return json.loads(answer)
    except ValueError as error:
        raise AssertionError(f"the steps gave no result:\n{answer}\n{run.stderr[-2000:]}") from error


def stands_out(browser, page, width):
    """The elements that reach beyond the right edge of a window of that width, so that the page would scroll sideways."""
    steps = """
        var room = document.documentElement.clientWidth;
        var scrolled = Array.from(document.querySelectorAll("pre, .table"));
        return Array.from(document.querySelectorAll("body *")).filter(function (part) {
          var inside = scrolled.some(function (box) { return box !== part && box.contains(part); });
          return !inside && part.getBoundingClientRect().right > room + 1;
        }).map(function (part) { return part.tagName + " " + part.textContent.slice(0, 40); });"""
    return run_in_browser(browser, page, steps, width)


def sheets_of(browser, page, place, paper):
    """On how many sheets of a size a page is printed that is opened at one of its places."""
    with tempfile.TemporaryDirectory() as folder:
        file, printed = Path(folder) / "page.html", Path(folder) / "printed.pdf"
        file.write_text(page.replace("</style>", f"@page {{ size: {paper}; }}</style>"), encoding="utf-8")
        run = _run(browser, folder, f"--print-to-pdf={printed}", f"{file.as_uri()}#{place}")
        if not printed.exists():
            raise AssertionError(run.stderr[-2000:])
        return len(re.findall(rb"/Type /Page\b(?!s)", printed.read_bytes()))


def _run(browser, folder, *arguments):
    command = [browser, "--headless", "--disable-gpu", f"--user-data-dir={folder}/profile"]
    if getattr(os, "geteuid", lambda: 1)() == 0:
        # Browsers refuse their sandbox to root, as which tests run in a container.
        command.append("--no-sandbox")
    return subprocess.run([*command, *arguments], capture_output=True, encoding="utf-8", check=False, timeout=120)
