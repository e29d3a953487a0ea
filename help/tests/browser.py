"""Runs the scripts of the help: in a small engine without a page, and in a browser without a window."""

import html
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


def run_in_browser(browser, page, steps):
    """What `steps`, the body of a function, returns when a page is loaded that is opened from a file."""
    script = f'<script id="{_MARK}">\naddEventListener("load", function () {{\n'
    script += f'var result = (function () {{\n{steps}\n}})();\n'
    script += f'document.getElementById("{_MARK}").textContent = JSON.stringify(result);\n}});\n</script>\n'
    with tempfile.TemporaryDirectory() as folder:
        file = Path(folder) / "page.html"
        file.write_text(page.replace("</body>", script + "</body>"), encoding="utf-8")
        run = _run(browser, folder, "--window-size=1280,800", "--dump-dom", file.as_uri())
    answer = run.stdout.partition(f'<script id="{_MARK}">')[2].partition("</script>")[0]
    try:
        return json.loads(answer)
    except ValueError as error:
        raise AssertionError(f"the steps gave no result:\n{answer}\n{run.stderr[-2000:]}") from error


def stands_out(browser, page, widths):
    """For each of the widths, the elements that reach beyond the right edge of a window as wide as that, so that the
    page would scroll sideways."""
    frames = "".join(f'<iframe style="width: {width}px" srcdoc="{html.escape(page)}"></iframe>\n' for width in widths)
    steps = """
        return Array.from(document.querySelectorAll("iframe")).map(function (frame) {
          var page = frame.contentDocument, room = page.documentElement.clientWidth;
          var scrolled = Array.from(page.querySelectorAll("pre, .table"));
          return Array.from(page.querySelectorAll("body *")).filter(function (part) {
            var inside = scrolled.some(function (box) { return box !== part && box.contains(part); });
            return !inside && part.getBoundingClientRect().right > room + 1;
          }).map(function (part) { return part.tagName + " " + part.textContent.slice(0, 40); });
        });"""
    return dict(zip(widths, run_in_browser(browser, f"<body>\n{frames}</body>", steps)))


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
