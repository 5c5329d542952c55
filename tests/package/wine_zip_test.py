"""The zip for Windows as a user unpacks it, under Wine: in a directory with blanks in its name.

    wine_zip_test.py PACKAGES SOURCES WORK
"""

import os
import pathlib
import shutil
import subprocess
import sys
import unittest
import zipfile

from required_tools import require

COMPILER = "x86_64-w64-mingw32-g++-posix"
require("wine", COMPILER)
PACKAGES, SOURCES, WORK = (pathlib.Path(argument).resolve() for argument in sys.argv[1:4])
ARCHIVES = list(PACKAGES.glob("*-windows.zip"))
if len(ARCHIVES) != 1:
    sys.exit(f"{PACKAGES} has no zip for Windows; run scripts/package.sh first")
DRIVER_KEY = r"HKCR\CLSID\{474BDD91-0170-11d3-A6BF-00104B2AEFE1}\InprocServer32"


def windows_name(path):
    return "Z:" + str(path).replace("/", "\\")


class Zip(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        shutil.rmtree(WORK, ignore_errors=True)
        cls.environment = dict(
            os.environ,
            WINEPREFIX=str(WORK / "prefix"),
            WINEDEBUG="-all",
            WINEDLLOVERRIDES="mscoree,mshtml=",
            LC_ALL="C.UTF-8",
        )
        place = WORK / "a place with blanks"
        place.mkdir(parents=True)
        with zipfile.ZipFile(ARCHIVES[0]) as archive:
            archive.extractall(place)
        (cls.root,) = place.iterdir()
        cls.addClassCleanup(shutil.rmtree, WORK)
        cls.make_system()
        cls.addClassCleanup(subprocess.run, ["wineserver", "--kill"], env=cls.environment)

    @classmethod
    def make_system(cls):
        """A copy of the system that the tests of the Windows build use: to make one takes long."""
        made = SOURCES / "build/mingw64/wine"
        run_wine = SOURCES / "cmake/run-wine.sh"
        subprocess.run([run_wine, made, "cmd", "/c", "exit"], check=True, capture_output=True)
        # It is complete when its last process has ended.
        environment = {**cls.environment, "WINEPREFIX": str(made)}
        subprocess.run(["wineserver", "--wait"], env=environment, check=True)
        subprocess.run(["cp", "-a", made, WORK / "prefix"], check=True)

    @classmethod
    def wine(cls, *command, **options):
        return subprocess.run(
            ["wine", *map(str, command)], env=cls.environment, capture_output=True, text=True,
            timeout=300, **options
        )

    def batch(self, name, before="rem"):
        """Runs a batch file of the archive, after another command."""
        lines = ["@echo off", before, f'call "{windows_name(self.root / name)}"', "exit %errorlevel%"]
        start = WORK / "start.cmd"
        start.write_text("".join(f"{line}\r\n" for line in lines))
        return self.wine("cmd", "/c", windows_name(start))

    def exported(self):
        """All keys under the classes root with their values."""
        file = WORK / "classes.reg"
        exported = self.wine("regedit", "/e", windows_name(file), "HKEY_CLASSES_ROOT")
        self.assertEqual(exported.returncode, 0)
        return set(file.read_text(encoding="utf-16").split("\n["))

    def test_it_holds_what_a_host_maker_needs(self):
        names = {path.relative_to(self.root).as_posix() for path in self.root.rglob("*")}
        self.assertLess({
            "README.txt", "register.cmd", "unregister.cmd", "bin/dochtmlcom.dll",
            "bin/dochtml-replay.exe", "bin/dochtml-settings.exe", "x86/bin/dochtmlcom.dll",
            "x86/lib/libdochtml_client.a", "lib/libdochtml_client.a", "lib/libdochtml.a",
            "include/dochtml/client.h", "include/dochtml/dochtml_c.h", "share/dochtml/dochtml.tlb",
            "share/dochtml/dochtml.idl", "share/dochtml/default.css", "share/dochtml/navigator",
            "share/doc/dochtml/README.md", "lib/pkgconfig/dochtml_client.pc",
        }, names)
        self.assertEqual(self.word_size("bin/dochtmlcom.dll"), 0x8664)
        self.assertEqual(self.word_size("x86/bin/dochtmlcom.dll"), 0x14C)

    def word_size(self, name):
        """The machine that a binary is for."""
        image = (self.root / name).read_bytes()
        header = int.from_bytes(image[0x3C:0x40], "little")
        return int.from_bytes(image[header + 4 : header + 6], "little")

    def test_it_says_that_it_is_unlicensed(self):
        self.assertIn("unlicensed", (self.root / "README.txt").read_text())

    def test_register_use_unregister(self):
        # The script host registers a type library of its own when it runs for the first time.
        self.wine("cscript", "//nologo", windows_name(WORK / "none.js"))
        before = self.exported()
        registered = self.batch("register.cmd")
        self.assertEqual(registered.returncode, 0, registered.stdout + registered.stderr)
        self.assertIn("The 64-bit component: register is done.", registered.stdout)
        library = windows_name(self.root / "bin/dochtmlcom.dll")
        self.assertIn(library, self.wine("reg", "query", DRIVER_KEY, "/ve").stdout)
        self.check_script_host()
        self.check_tool("(registered)")
        removed = self.batch("unregister.cmd")
        self.assertEqual(removed.returncode, 0, removed.stdout + removed.stderr)
        self.assertEqual(self.exported() ^ before, set())
        self.check_tool("(installed with this program)")

    def check_script_host(self):
        out = WORK / "script"
        out.mkdir()
        style_sheet = self.root / "share/dochtml/default.css"
        ended = self.wine(
            "cscript", "//nologo", windows_name(SOURCES / "examples/hosts/hello.js"),
            windows_name(out / "hello.htm"), windows_name(style_sheet),
        )
        self.assertEqual(ended.returncode, 0, ended.stderr)
        self.assertIn("Hello", (out / "hello_dtl.htm").read_text())

    def check_tool(self, where):
        """The replay tool of the archive makes a document and names its component."""
        tool = self.root / "bin/dochtml-replay.exe"
        self.assertIn(where, self.wine(tool, "--version").stdout)
        calls = '["create","tool.htm"]\n["insertText","From the tool"]\n["close"]\n'
        ended = self.wine(tool, "--quiet", "-", input=calls, cwd=WORK)
        self.assertEqual((ended.returncode, ended.stderr), (0, ""))
        self.assertIn("From the tool", (WORK / "tool_dtl.htm").read_text())

    def test_without_the_rights_it_says_what_to_do(self):
        """Wine has no users without rights. A system without `reg` fails at the same place."""
        system = WORK / "system"
        (system / "System32").mkdir(parents=True)
        ended = self.batch("register.cmd", f"set SystemRoot={windows_name(system)}")
        self.assertEqual(ended.returncode, 1, ended.stdout + ended.stderr)
        self.assertIn("register.cmd: cannot change the registry. Run this as an admin", ended.stderr)
        self.assertIn('choose "Run as administrator"', ended.stderr)

    def hide_component(self):
        """Takes the component away until the end of the test; answers with its place."""
        library = self.root / "bin/dochtmlcom.dll"
        hidden = library.rename(library.with_suffix(".hidden"))
        self.addCleanup(hidden.replace, library)
        return library

    def check_failure(self, name, words):
        """The batch file fails, and the last thing it says names the component and what to do."""
        ended = self.batch(name)
        self.assertEqual((ended.returncode, ended.stdout), (1, ""), ended.stderr)
        library = windows_name(self.root / "bin/dochtmlcom.dll")
        self.assertIn(f'{name}: "{library}" {words}', ended.stderr)

    def test_a_missing_component_is_named(self):
        self.hide_component()
        self.check_failure("register.cmd", "is missing. Unpack the whole archive first.")

    def test_a_damaged_component_is_named(self):
        self.hide_component().write_text("This is not a library.")
        self.check_failure("register.cmd", "cannot be loaded. It may be damaged.")

    def test_a_component_that_is_refused_by_the_registry_is_named(self):
        source = WORK / "refused.cpp"
        source.write_text("".join(
            f'extern "C" __declspec(dllexport) long __stdcall {name}() {{ return 0x80070005; }}\n'
            for name in ("DllRegisterServer", "DllUnregisterServer")
        ))
        library = self.hide_component()
        subprocess.run([COMPILER, "-shared", "-static", source, "-o", library], check=True)
        for action in ("register", "unregister"):
            words = f"cannot {action} itself. Run this as an administrator."
            self.check_failure(f"{action}.cmd", words)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
