"""What a folder for Windows must have: every library that its programs and libraries are loaded with, and the resources
of its programs."""

import subprocess

OBJDUMP = "x86_64-w64-mingw32-objdump"

# Windows 10 brings these itself.
SYSTEM = {
    "advapi32", "authz", "bcrypt", "comctl32", "comdlg32", "crypt32", "d3d11", "d3d12", "d3d9", "dnsapi", "dwmapi",
    "dwrite", "dxgi", "dxguid", "gdi32", "imm32", "iphlpapi", "kernel32", "mpr", "msvcrt", "netapi32", "ntdll", "ole32",
    "oleaut32", "opengl32", "rpcrt4", "setupapi", "shcore", "shell32", "shlwapi", "user32", "userenv", "uxtheme",
    "version", "winmm", "winspool.drv", "ws2_32", "wtsapi32"
}


def imported(file):
    """The names of the libraries that a file is loaded with, in small letters."""
    told = subprocess.run([OBJDUMP, "-p", file], check=True, capture_output=True, text=True, errors="replace").stdout
    return [line.split("DLL Name:")[1].strip().lower() for line in told.splitlines() if "DLL Name:" in line]


def is_system(name):
    return name in SYSTEM or name.removesuffix(".dll") in SYSTEM or name.startswith("api-ms-win-")


def missing_libraries(folder, imports=imported):
    """One line for each library that is neither in the folder nor one of Windows'."""
    present = {path.name.lower() for path in folder.glob("*.dll")}
    files = sorted(path for path in folder.rglob("*") if path.suffix.lower() in (".exe", ".dll"))
    return [f"{file.relative_to(folder)} wants {name}"
            for file in files for name in imports(file)
            if name not in present and not is_system(name)]


def wrong_resources(folder, version):
    """One line for each thing that a program should have inside."""
    wrong = []
    for name in ("veldrin", "veldrin-plan"):
        bytes_ = (folder / f"{name}.exe").read_bytes()

        def wants(found, what):
            if not found:
                wrong.append(f"{name}.exe lacks {what}")

        wants(b"PerMonitorV2" in bytes_ and b"longPathAware" in bytes_ and b"Common-Controls" in bytes_, "its manifest")
        wants((b">UTF-8</activeCodePage>" in bytes_) == (name == "veldrin-plan"), "its own code page")
        wants(f"ProductVersion\0{version}\0".encode("utf-16-le") in bytes_ or
              f"ProductVersion\0\0{version}\0".encode("utf-16-le") in bytes_, f"the version {version}")
    return wrong
