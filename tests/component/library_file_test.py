"""Checks a Windows library without running it: its exports and its imports.

    library_file_test.py OBJDUMP LIBRARY"""

import re
import subprocess
import sys
import unittest

OBJDUMP, LIBRARY = sys.argv[1:3]

# The libraries that are part of every Windows.
SYSTEM_LIBRARIES = {
    "advapi32.dll",
    "comctl32.dll",
    "comdlg32.dll",
    "gdi32.dll",
    "kernel32.dll",
    "msvcrt.dll",
    "ole32.dll",
    "oleaut32.dll",
    "shell32.dll",
    "user32.dll",
}


class LibraryFileTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.headers = subprocess.run(
            [OBJDUMP, "-p", LIBRARY], capture_output=True, text=True, check=True
        ).stdout

    def test_exports_are_the_four_plain_names(self):
        table = self.headers.split("[Ordinal/Name Pointer] Table")[1].split("\n\n")[0]
        names = re.findall(r"\[ *\d+\] (?:\+base\[ *\d+\] +(?:[0-9a-f]+ )?)?(\S+)", table)
        self.assertEqual(
            sorted(names),
            ["DllCanUnloadNow", "DllGetClassObject", "DllRegisterServer", "DllUnregisterServer"],
        )

    def test_imports_are_system_libraries(self):
        imports = {name.lower() for name in re.findall(r"DLL Name: (\S+)", self.headers)}
        self.assertEqual(imports - SYSTEM_LIBRARIES, set())
        self.assertIn("oleaut32.dll", imports)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=0)
