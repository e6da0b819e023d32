"""The folder that is zipped and installed: programs, libraries, samples, guide, licences."""

import os
import shutil
import subprocess
from pathlib import Path

ROOT = Path(__file__).parents[2]
PROGRAMS = ("veldrin.exe", "veldrin-plan.exe")
QT = ("Core", "Gui", "Widgets", "PrintSupport")
RUNTIME = ("libstdc++-6.dll", "libgcc_s_seh-1.dll", "libwinpthread-1.dll")
COMPILER = "x86_64-w64-mingw32-g++-posix"
STRIP = "x86_64-w64-mingw32-strip"
TRANSLATION = Path("/usr/share/qt6/translations/qtbase_ja.qm")

# Where Debian keeps the texts, by the names that they get.
COMMON = Path("/usr/share/common-licenses")
OF_PACKAGES = Path("/usr/share/doc")
LICENCES = {
    "LGPL-3.txt": COMMON / "LGPL-3",
    "GPL-3.txt": COMMON / "GPL-3",
    "Qt.txt": OF_PACKAGES / "qt6-base-dev/copyright",
    "GCC-runtime.txt": OF_PACKAGES / "gcc-mingw-w64-x86-64-posix-runtime/copyright",
    "mingw-w64-and-winpthreads.txt": OF_PACKAGES / "mingw-w64-x86-64-dev/copyright",
}
LICENCES_README = """Veldrin: all rights reserved by the owner.

It comes with these libraries, each a file of its own that may be replaced by another build of it:

Qt6Core, Qt6Gui, Qt6Widgets, Qt6PrintSupport, platforms/qwindows, translations/qtbase_ja
    Qt 6, GNU LGPL version 3 (LGPL-3.txt, GPL-3.txt); what Qt itself contains is told in Qt.txt.
    Source: https://download.qt.io, and Debian's source package qt6-base
libstdc++-6, libgcc_s_seh-1
    GNU GPL version 3 with the GCC Runtime Library Exception (GPL-3.txt, GCC-runtime.txt)
    Source: https://gcc.gnu.org, and Debian's source package gcc-mingw-w64
libwinpthread-1, and the start-up code of the programs
    mingw-w64 with winpthreads (mingw-w64-and-winpthreads.txt)
    Source: https://www.mingw-w64.org, and Debian's source package mingw-w64
"""


def for_windows(text):
    """A text with the ends of lines, and the mark, by which every editor there knows it."""
    return b"\xef\xbb\xbf" + text.replace("\r\n", "\n").replace("\n", "\r\n").encode()


def program_file(source, target):
    """A program or library without what only a debugger reads."""
    target.parent.mkdir(parents=True, exist_ok=True)
    subprocess.run([STRIP, "-o", target, source], check=True)


def runtime_file(name):
    found = subprocess.run([COMPILER, f"-print-file-name={name}"], check=True, capture_output=True, text=True)
    return Path(found.stdout.strip())


def write_texts(folder):
    for language in ("en", "ja"):
        text = (ROOT / f"packaging/windows/README.{language}.txt").read_text(encoding="utf-8")
        (folder / f"README.{language}.txt").write_bytes(for_windows(text))
    (folder / "CHANGELOG.txt").write_bytes(for_windows((ROOT / "CHANGELOG.md").read_text(encoding="utf-8")))
    licences = folder / "licences"
    licences.mkdir()
    (licences / "README.txt").write_bytes(for_windows(LICENCES_README))
    for name, source in LICENCES.items():
        (licences / name).write_bytes(for_windows(source.read_text(encoding="utf-8", errors="replace")))


def set_times(folder, date):
    for path in [*folder.rglob("*"), folder]:
        os.utime(path, (date, date))


def stage(build, qt, folder, date):
    """Makes `folder` from a build folder and a Qt for Windows; all its files bear the time `date`."""
    shutil.rmtree(folder, ignore_errors=True)
    folder.mkdir(parents=True)
    for program in PROGRAMS:
        program_file(build / "bin" / program, folder / program)
    for name in QT:
        program_file(qt / f"bin/Qt6{name}.dll", folder / f"Qt6{name}.dll")
    program_file(qt / "plugins/platforms/qwindows.dll", folder / "platforms/qwindows.dll")
    for name in RUNTIME:
        program_file(runtime_file(name), folder / name)
    (folder / "translations").mkdir()
    shutil.copyfile(TRANSLATION, folder / "translations" / TRANSLATION.name)
    shutil.copytree(ROOT / "share/veldrin", folder / "share/veldrin", copy_function=shutil.copyfile)
    shutil.copytree(build / "share/doc/veldrin/guide", folder / "share/doc/veldrin/guide",
                    copy_function=shutil.copyfile)
    shutil.copyfile(ROOT / "docs/veldrin-plan.schema.json", folder / "share/doc/veldrin/veldrin-plan.schema.json")
    write_texts(folder)
    set_times(folder, date)
