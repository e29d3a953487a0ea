"""The Windows account under Wine that the tests install into."""
import os
import pathlib
import re
import subprocess
import time

PREFIX = pathlib.Path(os.environ["WINEPREFIX"])
VALUE = re.compile(r"^    (.+?)    (REG_\w+)(?:    (.*))?$")


def run(*command, timeout=60):
    """Runs a Windows program to its end; its exit code."""
    done = subprocess.run(["wine", *map(str, command)], stdin=subprocess.DEVNULL, timeout=timeout,
                          stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, check=False)
    return done.returncode


def output(*command, timeout=60):
    """What a Windows program prints, with plain line ends."""
    done = subprocess.run(["wine", *map(str, command)], stdin=subprocess.DEVNULL, timeout=timeout,
                          stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, check=False)
    return done.stdout.decode("utf-8", "replace").replace("\r", "")


def start(*command, folder=None, environment=None):
    """Starts a Windows program, without waiting for it."""
    return subprocess.Popen(["wine", *map(str, command)], stdin=subprocess.DEVNULL, cwd=folder,
                            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                            env={**os.environ, **(environment or {})})


def wait_until(what, condition, seconds=30):
    """Waits until a condition returns a true value, and returns that; else raises TimeoutError."""
    end = time.monotonic() + seconds
    while True:
        result = condition()
        if result:
            return result
        if time.monotonic() > end:
            raise TimeoutError("waited %d seconds for %s" % (seconds, what))
        time.sleep(0.1)


def folder(variable):
    """The folder that a variable like LOCALAPPDATA names."""
    return host_path(output("cmd", "/c", "echo", "%" + variable + "%").strip())


def host_path(windows_path):
    drive, _, rest = windows_path.partition(":\\")
    return PREFIX / ("drive_" + drive.lower()) / rest.replace("\\", "/")


def windows_path(path):
    """The path of a file as Windows sees it: on the account's own drive, or on the machine's."""
    path = pathlib.Path(path).absolute()
    drive_c = PREFIX / "drive_c"
    if drive_c in path.parents:
        return "C:\\" + str(path.relative_to(drive_c)).replace("/", "\\")
    return "Z:" + str(path).replace("/", "\\")


def registry(key):
    """{name: text} of a key of the registry, or None where there is no such key."""
    lines = output("reg", "query", key).split("\n")
    if not any(line.startswith("HKEY_") for line in lines):
        return None
    return {match[1]: match[3] or "" for match in map(VALUE.match, lines) if match}


def windows(title):
    """The visible windows whose title a pattern describes, as xdotool numbers them."""
    found = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", title], check=False,
                           stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
    return found.stdout.split()


def wait_for_window(title, but=None):
    """Waits until a window with such a title, other than `but`, has the keyboard; its number."""
    def window_with_keyboard():
        focus = subprocess.run(["xdotool", "getwindowfocus"], check=False, text=True,
                               stdout=subprocess.PIPE, stderr=subprocess.DEVNULL).stdout.strip()
        return focus if focus != but and focus in windows(title) else None

    return wait_until("the window " + title, window_with_keyboard)


def press(*keys):
    subprocess.run(["xdotool", "key", "--delay", "50", *keys], check=True)


def write(text):
    subprocess.run(["xdotool", "type", "--delay", "30", "--", text], check=True)


def traces():
    """The account's files and registry, without what Windows itself writes as it goes."""
    found = {str(path.relative_to(PREFIX)) for path in (PREFIX / "drive_c").rglob("*")
             if "Temp" not in path.parts}
    return found | exported("HKCU")


def shared_traces():
    """The files outside the user's own folder, and the registry of the computer."""
    own = folder("USERPROFILE")
    found = {str(path.relative_to(PREFIX)) for path in (PREFIX / "drive_c").rglob("*") if own not in path.parents}
    return found | exported("HKLM")


def exported(hive):
    """A line for each value of a hive of the registry, but for Wine's own."""
    export = PREFIX / "drive_c" / "export.reg"
    run("reg", "export", hive, windows_path(export), "/y")
    text = export.read_text(encoding="utf-16")
    export.unlink()
    found = set()
    for block in text.split("\n\n"):
        key, _, values = block.strip().partition("\n")
        if values and r"\Software\Wine" not in key:
            found.update(key + " " + value for value in values.split("\n"))
    return found
