"""What scripts/windows/package is made of: the check of a folder, the archive, the lists of the installer.

usage: windows_package_test.py
"""

import sys
import tempfile
import unittest
import zipfile
from pathlib import Path

sys.path.insert(0, str(Path(__file__).parents[1] / "packaging/windows"))

from archive import write_zip  # noqa: E402
from check import missing_libraries, wrong_resources  # noqa: E402
from installer import installed, removed  # noqa: E402

DATE = 1700000000  # 2023-11-14 22:13:20


class Folder(unittest.TestCase):
    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.top = Path(scratch.name)
        self.folder = self.top / "veldrin-1.0.0"
        for name in ("veldrin.exe", "Qt6Core.dll", "platforms/qwindows.dll", "share/veldrin/LIST/NX4.RAT"):
            (self.folder / name).parent.mkdir(parents=True, exist_ok=True)
            (self.folder / name).write_text(name)


class Libraries(Folder):
    def test_those_of_windows_and_those_beside_it_are_enough(self):
        imports = {"veldrin.exe": ["qt6core.dll", "kernel32.dll", "api-ms-win-crt-heap-l1-1-0.dll"],
                   "Qt6Core.dll": ["winspool.drv"], "qwindows.dll": ["qt6core.dll", "d3d9.dll"]}
        self.assertEqual(missing_libraries(self.folder, lambda file: imports[file.name]), [])

    def test_one_that_is_nowhere_is_told_with_who_wants_it(self):
        imports = {"veldrin.exe": ["qt6core.dll"], "Qt6Core.dll": ["libpcre2-16-0.dll"],
                   "qwindows.dll": ["qt6gui.dll"]}
        self.assertEqual(missing_libraries(self.folder, lambda file: imports[file.name]),
                         ["Qt6Core.dll wants libpcre2-16-0.dll", "platforms/qwindows.dll wants qt6gui.dll"])

    def test_programs_without_resources_are_told(self):
        (self.folder / "veldrin-plan.exe").write_text("")
        self.assertEqual(wrong_resources(self.folder, "1.0.0"),
                         ["veldrin.exe lacks its manifest", "veldrin.exe lacks the version 1.0.0",
                          "veldrin-plan.exe lacks its manifest", "veldrin-plan.exe lacks its own code page",
                          "veldrin-plan.exe lacks the version 1.0.0"])


class Archive(Folder):
    def test_two_runs_give_the_same_bytes(self):
        write_zip(self.folder, self.top / "one.zip", DATE)
        for path in self.folder.rglob("*"):
            path.touch()
        write_zip(self.folder, self.top / "two.zip", DATE)
        self.assertEqual((self.top / "one.zip").read_bytes(), (self.top / "two.zip").read_bytes())

    def test_all_lies_in_one_folder_in_order_at_one_time(self):
        write_zip(self.folder, self.top / "one.zip", DATE)
        entries = zipfile.ZipFile(self.top / "one.zip").infolist()
        self.assertEqual([entry.filename for entry in entries],
                         ["veldrin-1.0.0/Qt6Core.dll", "veldrin-1.0.0/platforms/qwindows.dll",
                          "veldrin-1.0.0/share/veldrin/LIST/NX4.RAT", "veldrin-1.0.0/veldrin.exe"])
        self.assertEqual({entry.date_time for entry in entries}, {(2023, 11, 14, 22, 13, 20)})


class Installer(Folder):
    def test_each_file_is_put_into_its_folder(self):
        self.assertEqual(installed(self.folder)[:5],
                         ['SetOutPath "$INSTDIR"', f'File "{self.folder}/Qt6Core.dll"', f'File "{self.folder}/veldrin.exe"',
                          'SetOutPath "$INSTDIR\\platforms"', f'File "{self.folder}/platforms/qwindows.dll"'])

    def test_each_file_is_taken_away_by_its_name_before_its_folder(self):
        lines = removed(self.folder)
        self.assertEqual(sorted(lines), sorted([
            'Delete "$INSTDIR\\Qt6Core.dll"', 'Delete "$INSTDIR\\platforms\\qwindows.dll"',
            'Delete "$INSTDIR\\share\\veldrin\\LIST\\NX4.RAT"', 'Delete "$INSTDIR\\veldrin.exe"',
            'RMDir "$INSTDIR\\platforms"', 'RMDir "$INSTDIR\\share"', 'RMDir "$INSTDIR\\share\\veldrin"',
            'RMDir "$INSTDIR\\share\\veldrin\\LIST"']))
        for line in lines:
            folder = line.split('"')[1].rsplit("\\", 1)[0]
            if f'RMDir "{folder}"' in lines:
                self.assertLess(lines.index(line), lines.index(f'RMDir "{folder}"'))


if __name__ == "__main__":
    unittest.main()
