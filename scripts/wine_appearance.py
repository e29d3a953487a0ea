"""The appearance of Windows in scripts/in-wine: the scaling of its screen, its theme, its fonts."""
import os
import pathlib
import struct
import subprocess
import tempfile
from dataclasses import dataclass

DESKTOP = r"HKEY_CURRENT_USER\Control Panel\Desktop"
METRICS = DESKTOP + r"\WindowMetrics"
FONTS = r"HKEY_CURRENT_USER\Software\Wine\Fonts\Replacements"
COLORS = r"HKEY_CURRENT_USER\Control Panel\Colors"
THEME = r"HKEY_CURRENT_USER\Software\Microsoft\Windows\CurrentVersion\ThemeManager"
ACCESSIBILITY = r"HKEY_CURRENT_USER\Software\Microsoft\Accessibility"
HIGH_CONTRAST = r"HKEY_CURRENT_USER\Control Panel\Accessibility\HighContrast"

BLACK, WHITE, YELLOW = "0 0 0", "255 255 255", "255 255 0"
CYAN, GREEN, PURPLE, GREY = "0 255 255", "0 255 0", "128 0 128", "128 128 128"
# The colors of the Windows theme High Contrast Black.
CONTRAST_COLORS = {
    "ActiveBorder": "0 0 255", "ActiveTitle": PURPLE, "AppWorkSpace": BLACK, "Background": BLACK,
    "ButtonAlternateFace": "192 192 192", "ButtonDkShadow": WHITE, "ButtonFace": BLACK,
    "ButtonHilight": "192 192 192", "ButtonLight": WHITE, "ButtonShadow": GREY,
    "ButtonText": WHITE, "GradientActiveTitle": PURPLE, "GradientInactiveTitle": "0 128 0",
    "GrayText": GREEN, "Hilight": PURPLE, "HilightText": WHITE, "HotTrackingColor": YELLOW,
    "InactiveBorder": CYAN, "InactiveTitle": "0 128 0", "InactiveTitleText": WHITE,
    "InfoText": YELLOW, "InfoWindow": BLACK, "Menu": BLACK, "MenuBar": BLACK,
    "MenuHilight": PURPLE, "MenuText": WHITE, "Scrollbar": BLACK, "TitleText": WHITE,
    "Window": BLACK, "WindowFrame": WHITE, "WindowText": YELLOW}


@dataclass
class Appearance:
    """The values of the registry that differ from those of a fresh Windows, as regedit reads them."""
    name: str
    values: dict


def scaling(percent):
    return Appearance("%d-percent" % percent, {DESKTOP: {"LogPixels": "dword:%08x" % (96 * percent // 100)}})


def text_size(percent):
    return Appearance("text-%d-percent" % percent, {ACCESSIBILITY: {"TextScaleFactor": "dword:%08x" % percent}})


def large_font(points, bold=False):
    """A font of the system's own texts, as the registry holds it."""
    face = "Tahoma".encode("utf-16-le").ljust(64, b"\0")
    data = struct.pack("<5i8B", -points * 96 // 72, 0, 0, 0, 700 if bold else 400, 0, 0, 0, 1,
                       0, 0, 0, 0) + face
    return "hex:" + ",".join("%02x" % byte for byte in data)


# Small enough for a page, and large enough for smooth text.
APPEARANCE_OF_DOCUMENTS = scaling(125)
APPEARANCES = [scaling(percent) for percent in (100, 125, 150, 200, 300)] + [
    text_size(150), text_size(225),
    Appearance("high-contrast", {
        COLORS: {name: '"%s"' % color for name, color in CONTRAST_COLORS.items()},
        HIGH_CONTRAST: {"Flags": '"127"'},
        THEME: {"ThemeActive": '"0"'}}),
    Appearance("classic-theme", {THEME: {"ThemeActive": '"0"'}}),
    Appearance("large-fonts", {METRICS: {
        "CaptionFont": large_font(16, bold=True), "SmCaptionFont": large_font(14),
        "MenuFont": large_font(16), "MessageFont": large_font(16), "StatusFont": large_font(16),
        "CaptionHeight": '"-540"', "CaptionWidth": '"-540"', "MenuHeight": '"-480"',
        "ScrollWidth": '"-450"', "ScrollHeight": '"-450"'}})]

# A blinking caret would be in every other picture. Wine's own Tahoma is drawn narrower than it
# measures, and never bold, so that texts would be misplaced.
ALWAYS = {DESKTOP: {"CursorBlinkRate": '"-1"'},
          FONTS: {"Tahoma": '"Liberation Sans"', "Lucida Console": '"Liberation Mono"'}}
BAD_FONTS = "drive_c/windows/Fonts/tahoma*.ttf"


def _run(*command, check=True):
    # Services started by Wine would keep our output open.
    subprocess.run(command, check=check, timeout=120, stdin=subprocess.DEVNULL,
                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)


def _start():
    _run("wineserver", "-p")
    _run("wine", "cmd", "/c", "exit")


def end_programs():
    """Ends every program in the Wine prefix, and restarts it."""
    _run("wineserver", "-k", check=False)
    _run("wineserver", "-w", check=False)
    _start()


def _registry_text(appearance):
    lines = ["REGEDIT4", ""]
    for values in (ALWAYS, appearance.values):
        for key, entries in values.items():
            lines += ["[%s]" % key, *('"%s"=%s' % entry for entry in entries.items()), ""]
    return "\r\n".join(lines)


def put_on(appearance):
    """Gives the Windows of WINEPREFIX this appearance, whichever it had before."""
    prefix = pathlib.Path(os.environ["WINEPREFIX"])
    _run("wineserver", "-k", check=False)
    _run("wineserver", "-w", check=False)
    registry, fresh = prefix / "user.reg", prefix / "user.fresh.reg"
    if not fresh.exists():
        fresh.write_bytes(registry.read_bytes())
    registry.write_bytes(fresh.read_bytes())
    for font in prefix.glob(BAD_FONTS):
        font.unlink()
    with tempfile.NamedTemporaryFile("w", suffix=".reg", newline="") as file:
        file.write(_registry_text(appearance))
        file.flush()
        _run("wine", "regedit", "/S", "Z:" + file.name.replace("/", "\\"))
    end_programs()
