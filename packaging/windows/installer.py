"""The installer, which names each file that it puts down, so that its uninstaller takes away these and no others."""

import subprocess
from pathlib import Path

SCRIPT = Path(__file__).parent / "veldrin.nsi"


def there(folder, path):
    """A path of the folder, where it is installed."""
    return "\\".join(["$INSTDIR", *path.relative_to(folder).parts])


def installed(folder):
    lines = []
    for place in [folder, *sorted(path for path in folder.rglob("*") if path.is_dir())]:
        files = sorted(path for path in place.iterdir() if path.is_file())
        if files:
            lines += [f'SetOutPath "{there(folder, place)}"', *(f'File "{path}"' for path in files)]
    return lines


def removed(folder):
    paths = sorted(folder.rglob("*"), reverse=True)
    return [f'{"RMDir" if path.is_dir() else "Delete"} "{there(folder, path)}"' for path in paths]


def write_installer(folder, icons, work, version, output):
    for name, lines in (("installed.nsh", installed(folder)), ("removed.nsh", removed(folder))):
        # A byte order mark tells makensis that it is UTF-8.
        (work / name).write_text("\ufeff" + "\n".join(lines) + "\n", encoding="utf-8")
    values = {"VERSION": version, "LISTED": work, "ICONS": icons, "OUTPUT": output}
    subprocess.run(["makensis", "-V2", "-WX", "-INPUTCHARSET", "UTF8", *(f"-D{name}={value}" for name, value in values.items()),
                    SCRIPT], check=True)
