#!/usr/bin/python3
"""Checks the built program file: what it imports, how it is hardened, what it says of itself.

usage: check_exe.py OBJDUMP PROGRAM VERSION
"""
import os
import re
import subprocess
import sys

# Libraries that every Windows maps from its own list of known ones or has loaded already, so that no
# file beside the program can stand in for them.
ALLOWED = {
    "kernel32.dll", "user32.dll", "gdi32.dll", "advapi32.dll", "shell32.dll", "ole32.dll",
    "oleaut32.dll", "comdlg32.dll", "msvcrt.dll",
}
FLAGS = ("HIGH_ENTROPY_VA", "DYNAMIC_BASE", "NX_COMPAT")
MOST_BYTES = 6 * 1024 * 1024


def complaints(headers, content, size, version):
    """Every way in which the program file is not as it has to be."""
    found = []
    imports = {name.lower() for name in re.findall(r"DLL Name: (\S+)", headers)}
    if not imports:
        found.append("no import table found")
    for name in sorted(imports - ALLOWED):
        found.append(f"imports {name} statically")
    for flag in FLAGS:
        if flag not in headers:
            found.append(f"lacks {flag}")
    if re.search(r"^Time/Date\s+Thu Jan  1 00:00:00 1970", headers, re.M) is None:
        found.append("holds the time of its making")
    for text in ("Widget Varnel", version, "WidgetVarnel.exe"):
        if text.encode("utf-16-le") not in content:
            found.append(f"its version resource lacks {text!r}")
    if size > MOST_BYTES:
        found.append(f"is {size} bytes large, more than {MOST_BYTES}")
    return found


def main():
    objdump, program, version = sys.argv[1:]
    environment = dict(os.environ, LC_ALL="C", TZ="UTC")
    headers = subprocess.run([objdump, "-p", program], check=True, capture_output=True, text=True,
                             env=environment).stdout
    with open(program, "rb") as file:
        content = file.read()
    found = complaints(headers, content, len(content), version)
    for complaint in found:
        print(f"{os.path.basename(program)} {complaint}")
    print(f"{len(content)} bytes")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
