#!/usr/bin/env python3
"""Checks what a built program or library asks of the machine that it is copied to.

Usage: check_binary.py OBJDUMP BINARY [EXPORTED_NAME...]

It must need nothing but the system's own libraries. With names, a Windows library must export
exactly those.
"""

import os
import re
import subprocess
import sys

WINDOWS = """advapi32.dll comctl32.dll comdlg32.dll gdi32.dll kernel32.dll msvcrt.dll ole32.dll
    oleaut32.dll shell32.dll shlwapi.dll user32.dll""".split()
LINUX = "libc.so.6 libgcc_s.so.1 libm.so.6 libstdc++.so.6 ld-linux-x86-64.so.2".split()
# What a single program may need besides.
OF_PROGRAM = {"dochtml-settings": ["libedit.so.2"]}

NEEDED = re.compile(r"^\s*(?:DLL Name:|NEEDED)\s+(\S+)", re.MULTILINE)
EXPORT_TABLE = re.compile(r"\[Ordinal/Name Pointer\] Table(.*?)(?:\n\n|\Z)", re.DOTALL)
EXPORTED = re.compile(r"^\s*\[\s*\d+\]\s+(?:\+base\[\s*\d+\]\s+\w+\s+)?(\S+)$", re.MULTILINE)


def main():
    objdump, binary, *wanted = sys.argv[1:]
    account = subprocess.run(
        [objdump, "-p", binary], check=True, capture_output=True, text=True
    ).stdout
    needed = NEEDED.findall(account)
    allowed = WINDOWS + LINUX + OF_PROGRAM.get(os.path.basename(binary), [])
    faults = [
        f"needs {name}" for name in needed if name not in allowed and name.lower() not in allowed
    ]
    if not needed:
        faults.append("needs nothing at all; that cannot be")
    if wanted:
        table = EXPORT_TABLE.search(account)
        exported = sorted(EXPORTED.findall(table[1])) if table else []
        if exported != sorted(wanted):
            faults.append(f"exports {exported}, not {sorted(wanted)}")
    print("\n".join(faults) or f"well: {' '.join(needed)}")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
