"""The portable archive. Its bytes depend only on the files, their names and their dates."""
import pathlib
import time
import zipfile

MADE_ON_WINDOWS = 0


def make_archive(target, folder, files):
    """Writes `files`, paths relative to `folder`, into the archive `target` below a folder of the same name.

    Their dates are those of the files, in UTC.
    """
    with zipfile.ZipFile(target, "w") as archive:
        for name in files:
            path = pathlib.Path(folder) / name
            date = time.gmtime(path.stat().st_mtime)[:6]
            entry = zipfile.ZipInfo(pathlib.Path(folder).name + "/" + name, date)
            entry.create_system = MADE_ON_WINDOWS
            entry.compress_type = zipfile.ZIP_DEFLATED
            archive.writestr(entry, path.read_bytes(), compresslevel=9)
