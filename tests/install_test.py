"""What cmake --install puts where, and whether it works from there after it was moved.

usage: install_test.py BUILD_FOLDER VERSION desktop|console
"""

import os
import pathlib
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import time
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[1]
BUILD, VERSION = pathlib.Path(sys.argv[1]).resolve(), sys.argv[2]
DESKTOP = sys.argv[3] == "desktop"
ENDS_WITHIN = 60  # seconds, with the sanitizers on a busy machine

SAMPLES = ["DAT/DRY.nx4", "DAT/RAIN.nx4", "DAT/TEST.vt2", "LIST/NX4.CMB", "LIST/NX4.RAT", "LIST/VT2.CMB", "LIST/VT2.RAT"]
CONSOLE = [
    "bin/veldrin-plan",
    "share/bash-completion/completions/veldrin-plan",
    "share/doc/veldrin/CHANGELOG.md",
    "share/doc/veldrin/copyright",
    "share/doc/veldrin/veldrin-plan.schema.json",
    "share/man/man1/veldrin-plan.1",
    "share/veldrin/rollup.wav",
    "share/veldrin/unroll.wav",
    *("share/veldrin/" + sample for sample in SAMPLES),
]
ICONS = ["apps/veldrin", "mimetypes/application-x-veldrin-list", "mimetypes/application-x-veldrin-plan"]
WINDOWS = [
    "bin/veldrin",
    "share/applications/veldrin.desktop",
    "share/man/man1/veldrin.1",
    "share/metainfo/example.veldrin.veldrin.metainfo.xml",
    "share/mime/packages/veldrin.xml",
    *(f"share/icons/hicolor/{n}x{n}/{icon}.png" for n in (16, 24, 32, 48, 64, 128, 256, 512) for icon in ICONS),
    *(f"share/icons/hicolor/scalable/{icon}.svg" for icon in ICONS),
]
TOOLS = ["bin/veldrin-script", "share/doc/veldrin-tools/copyright", "share/doc/veldrin-tools/scripting.md",
         "share/man/man1/veldrin-script.1"]
WINDOW_TOOLS = ["bin/veldrin-window-script", "share/man/man1/veldrin-window-script.1"]
GUIDE = "share/doc/veldrin/guide/"


def run(*command, **more):
    return subprocess.run(command, capture_output=True, text=True, **more)


def files_below(folder):
    return sorted(str(path.relative_to(folder)) for path in folder.rglob("*") if not path.is_dir())


def install(folder, component, **environment):
    done = run("cmake", "--install", BUILD, "--prefix", folder, "--component", component,
               env={**os.environ, **environment})
    assert done.returncode == 0, done.stderr


class Moved(unittest.TestCase):
    """The component for people, installed to one place and moved to another."""

    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(cls.folder.cleanup)
        cls.base = pathlib.Path(cls.folder.name)
        install(cls.base / "first", "veldrin")
        cls.prefix = cls.base / "a place/of its own"
        cls.prefix.parent.mkdir()
        (cls.base / "first").rename(cls.prefix)
        cls.share = cls.prefix / "share"

    def tool(self, name):
        """The path of a checking program, which Debian has as a package."""
        found = shutil.which(name)
        self.assertIsNotNone(found, f"{name} is not installed")
        return found

    def environment(self, home, **more):
        """A user's first day."""
        kept = {name: value for name, value in os.environ.items() if not name.startswith(("XDG_", "VELDRIN_"))}
        (home / "session").mkdir(parents=True, mode=0o700)
        # What a sanitizer would say of memory at the end is the other tests' matter.
        return {**kept, "ASAN_OPTIONS": kept.get("ASAN_OPTIONS", "") + ":detect_leaks=0", "HOME": str(home), "XDG_RUNTIME_DIR": str(home / "session"), "XDG_DATA_DIRS": str(home / "none"),
                "QT_QPA_PLATFORM": "offscreen", **more}


class Installed(Moved):
    def test_every_file_is_where_it_belongs_and_no_other(self):
        found = files_below(self.prefix)
        guide = [path for path in found if path.startswith(GUIDE)]
        expected = CONSOLE + (WINDOWS if DESKTOP else [])
        self.assertEqual([path for path in found if path not in guide], sorted(expected))
        for page in ("en/index.html", "ja/index.html", "en/file-formats.html", "en/at/first-plan.html", "guide.css",
                     "pictures/main-window-en.png", "examples/TR1.RAT"):
            self.assertIn(GUIDE + page, guide)
        pictures = list((ROOT / "docs/guide/pictures").glob("*.png"))
        self.assertEqual(sum(path.endswith(".png") for path in guide), len(pictures))

    def test_a_staging_folder_stands_before_the_prefix(self):
        stage = self.base / "stage"
        install("/usr", "veldrin-tools", DESTDIR=str(stage))
        self.assertEqual(files_below(stage / "usr"), sorted(TOOLS + (WINDOW_TOOLS if DESKTOP else [])))
        for page in (stage / "usr/share/man/man1").iterdir():
            self.assertTrue(page.read_bytes().startswith(b".Dd "), page)

    def test_nothing_that_is_read_names_the_source_tree(self):
        for path in files_below(self.prefix):
            if not path.startswith("bin/"):
                self.assertNotIn(str(ROOT).encode(), (self.prefix / path).read_bytes(), path)

    def test_man_pages_are_clean(self):
        pages = sorted((ROOT / "share/man/man1").iterdir())
        done = run(self.tool("mandoc"), "-Tlint", *pages)
        # Pages that are not installed on this machine yet.
        told = [line for line in done.stdout.split("\n") if line and "not found: Xr veldrin" not in line]
        self.assertEqual(told, [])

    def test_the_plan_searches_from_there(self):
        program = self.prefix / "bin/veldrin-plan"
        self.assertEqual(run(program, "--version").stdout, f"veldrin-plan {VERSION}\n")
        done = run(program, self.share / "veldrin/LIST/NX4.RAT", "--speed", "104,134,163,185,204,216")
        self.assertEqual(done.returncode, 0, done.stderr)
        self.assertIn("216", done.stdout)


@unittest.skipUnless(DESKTOP, "built without the desktop program")
class OnTheDesktop(Moved):
    def test_the_first_start_brings_the_samples(self):
        home = self.base / "home"
        own = home / ".local/share/veldrin"
        program = subprocess.Popen([self.prefix / "bin/veldrin"], env=self.environment(home), cwd="/",
                                   stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
        # Settings are written when the program runs; the samples have been copied by then.
        last = home / ".config/veldrin/registry.txt"
        end = time.monotonic() + ENDS_WITHIN
        while not last.exists() and program.poll() is None and time.monotonic() < end:
            time.sleep(0.05)
        self.assertTrue(last.exists(), "no settings")
        program.send_signal(signal.SIGTERM)
        output, _ = program.communicate(timeout=ENDS_WITHIN)
        self.assertEqual((program.returncode, output), (0, b""))
        self.assertEqual(files_below(own), sorted([*SAMPLES, "rollup.wav", "unroll.wav"]))

    def test_the_entry_is_valid(self):
        entry = self.share / "applications/veldrin.desktop"
        self.assertEqual(run(self.tool("desktop-file-validate"), entry).stdout, "")
        words = entry.read_text(encoding="utf-8")
        self.assertIn("\nExec=veldrin %f\n", words)
        self.assertIn("\nIcon=veldrin\n", words)

    def test_the_metainfo_is_valid(self):
        metainfo = self.share / "metainfo/example.veldrin.veldrin.metainfo.xml"
        done = run(self.tool("appstreamcli"), "validate", "--no-net", metainfo)
        self.assertEqual(done.returncode, 0, done.stdout)
        self.assertNotRegex(done.stdout, r"(?m)^[WE]: ")

    def test_files_are_known_by_tag_and_by_name(self):
        self.tool("update-mime-database")
        data = f"{self.share}:/usr/share"
        known = run("update-mime-database", self.share / "mime", env={**os.environ, "XDG_DATA_DIRS": data})
        self.assertEqual((known.returncode, known.stderr), (0, ""))
        nx4 = (self.share / "veldrin/LIST/NX4.RAT").read_bytes()
        dry = (self.share / "veldrin/DAT/DRY.nx4").read_bytes()
        files = {
            "machine.RAT": (b"unfinished\n", "list"),
            "machine.rat": (nx4, "list"),
            "machine": (nx4, "list"),
            "machine.lst": (nx4.replace(b"\r\n", b"\n"), "list"),
            "marked": (b"\xef\xbb\xbf" + nx4, "list"),
            "begun.nx4": (b"unfinished\n", "plan"),
            "begun.VT2": (b"unfinished\n", "plan"),
            "suzuka.tr1": (dry, "plan"),
            "suzuka": (b"\xef\xbb\xbf" + dry.replace(b"\r\n", b"\n"), "plan"),
            "letter": (b"FROM: a friend\nHello\n", None),
            "shopping": (b"LIST\nmilk\neggs\n", None),
        }
        folder = self.base / "files"
        folder.mkdir()
        for name, (content, _) in files.items():
            (folder / name).write_bytes(content)
        for name, (_, kind) in files.items():
            told = run(self.tool("gio"), "info", "-a", "standard::content-type", folder / name,
                       env=self.environment(self.base / "user" / name, XDG_DATA_DIRS=data)).stdout
            found = re.search(r"standard::content-type: (\S+)", told)[1]
            self.assertEqual(found, f"application/x-veldrin-{kind}" if kind else "text/plain", name)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
