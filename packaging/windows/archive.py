"""A folder as a zip archive, the same bytes for the same files and time."""

import time
import zipfile


def write_zip(folder, archive, date):
    """All files of `folder`, in their order, below its name and at the time `date`, in seconds since 1970."""
    moment = time.gmtime(date)[:6]
    with zipfile.ZipFile(archive, "w", zipfile.ZIP_DEFLATED, compresslevel=9) as written:
        for path in sorted(path for path in folder.rglob("*") if path.is_file()):
            entry = zipfile.ZipInfo(str(path.relative_to(folder.parent)), moment)
            entry.compress_type = zipfile.ZIP_DEFLATED
            entry.create_system = 3
            entry.external_attr = 0o100644 << 16
            written.writestr(entry, path.read_bytes(), compresslevel=9)
