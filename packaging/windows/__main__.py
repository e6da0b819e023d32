"""python3 packaging/windows BUILD QT OUTPUT VERSION: from a build folder and a Qt for Windows, both files for people
into OUTPUT. SOURCE_DATE_EPOCH is the time that everything inside bears."""

import os
import sys
from pathlib import Path

from archive import write_zip
from check import missing_libraries, wrong_resources
from installer import write_installer
from stage import stage


def main(build, qt, output, version):
    date = int(os.environ["SOURCE_DATE_EPOCH"])
    folder = build / "stage" / f"veldrin-{version}"
    stage(build, qt, folder, date)
    faults = missing_libraries(folder) + wrong_resources(folder, version)
    if faults:
        sys.exit("\n".join(faults))
    output.mkdir(parents=True, exist_ok=True)
    write_zip(folder, output / f"veldrin-{version}-windows.zip", date)
    write_installer(folder, build / "resources", build / "stage", version, output / f"veldrin-{version}-setup.exe")


main(Path(sys.argv[1]).resolve(), Path(sys.argv[2]).resolve(), Path(sys.argv[3]).resolve(), sys.argv[4])
