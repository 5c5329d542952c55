"""The component under Wine, as Windows provides it, in a prefix of its own.

    wine_test.py BUILD-DIRECTORY LIBRARY REGISTERED-TESTS LIBRARY-TESTS

Registration and its traces in the registry, script hosts, compiled hosts, and the replay tool. The
prefix is created at the start and removed at the end."""

import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest

import document_set

BUILD, LIBRARY, REGISTERED_TESTS, LIBRARY_TESTS = map(pathlib.Path, sys.argv[1:5])

DRIVER = "{474BDD91-0170-11d3-A6BF-00104B2AEFE1}"
PAGE = "{474BDD93-0170-11d3-A6BF-00104B2AEFE1}"
LIBRARY_ID = "{0BDD0890-F6AE-11D2-A6B7-00104B2AEFE1}"
INTERFACE = "{3F65DC20-B90B-11D1-8472-00409526217E}"
# The system's own marshaler for interfaces that a type library describes.
MARSHALER = "{00020424-0000-0000-C000-000000000046}"


def windows_name(path):
    return "Z:" + str(path).replace("/", "\\")


def registered_keys():
    """What registration writes: key below the classes root to its values by name."""
    module = windows_name(LIBRARY)
    server = {"": module, "ThreadingModel": "Apartment"}
    keys = {
        "DocHtml.DocHtml.2.1.0": {"": "DocHtml Class"},
        "DocHtml.DocHtml.2.1.0\\CLSID": {"": DRIVER},
        "DocHtml.DocHtml": {"": "DocHtml Class"},
        "DocHtml.DocHtml\\CurVer": {"": "DocHtml.DocHtml.2.1.0"},
        f"CLSID\\{DRIVER}": {"": "DocHtml Class"},
        f"CLSID\\{DRIVER}\\ProgID": {"": "DocHtml.DocHtml.2.1.0"},
        f"CLSID\\{DRIVER}\\VersionIndependentProgID": {"": "DocHtml.DocHtml"},
        f"CLSID\\{DRIVER}\\Programmable": {},
        f"CLSID\\{DRIVER}\\InprocServer32": server,
        "HtmlComPage.HtmlComPage.2.1.0": {"": "HtmlComPage Class"},
        "HtmlComPage.HtmlComPage.2.1.0\\CLSID": {"": PAGE},
        "HtmlComPage.HtmlComPage": {"": "HtmlComPage Class"},
        "HtmlComPage.HtmlComPage\\CurVer": {"": "HtmlComPage.HtmlComPage.2.1.0"},
        f"CLSID\\{PAGE}": {"": "HtmlComPage Class"},
        f"CLSID\\{PAGE}\\Programmable": {},
        f"CLSID\\{PAGE}\\InprocServer32": server,
    }
    # What the system itself writes for a type library, for both of its word sizes.
    library = f"TypeLib\\{LIBRARY_ID}"
    interface = f"Interface\\{INTERFACE}"
    described = {
        library: {},
        f"{library}\\2.0": {"": "Document HTML 2.0 Type Library"},
        f"{library}\\2.0\\409": {},
        f"{library}\\2.0\\409\\win64": {"": module},
        f"{library}\\2.0\\FLAGS": {"": "8"},
        f"{library}\\2.0\\HELPDIR": {"": module.rpartition("\\")[0]},
        interface: {"": "IDocument"},
        f"{interface}\\ProxyStubClsid": {"": MARSHALER},
        f"{interface}\\ProxyStubClsid32": {"": MARSHALER},
        f"{interface}\\TypeLib": {"": LIBRARY_ID, "Version": "2.0"},
    }
    keys |= described | {f"Wow6432Node\\{key}": values for key, values in described.items()}
    return {name.lower(): values for name, values in keys.items()}


def read_export(text):
    """An exported registry: key (lower case, below the classes root) to its values."""
    keys = {}
    values = {}
    for line in text.splitlines():
        key = re.fullmatch(r"\[HKEY_CLASSES_ROOT\\?(.*)\]", line)
        value = re.fullmatch(r'(?:@|"((?:[^"\\]|\\.)*)")=(.*)', line)
        if key:
            values = keys.setdefault(key[1].lower(), {})
        elif value:
            content = value[2]
            if content.startswith('"'):
                content = re.sub(r"\\(.)", r"\1", content[1:-1])
            values[value[1] or ""] = content
    return keys


class WineTest(unittest.TestCase):
    maxDiff = None

    @classmethod
    def setUpClass(cls):
        cls.directory = pathlib.Path(tempfile.mkdtemp(prefix="wine-component-", dir=BUILD))
        cls.prefix = cls.directory / "prefix"
        cls.environment = dict(
            os.environ,
            WINEPREFIX=str(cls.prefix),
            WINEDEBUG="-all",
            WINEDLLOVERRIDES="mscoree,mshtml=",
            LC_ALL="C.UTF-8",
            SOURCE_DATE_EPOCH="0",
        )
        cls.environment.pop("DISPLAY", None)
        cls.wine("wineboot", "--init")
        settings = "HKCU\\Software\\Zorvane\\Quillmark\\Settings"
        cls.wine("reg", "add", settings, "/v", "InstallDir", "/d", document_set.INSTALLATION, "/f")
        # The new system continues to register its own classes for a while.
        subprocess.run(["wineserver", "--wait"], env=cls.environment, check=True, timeout=300)

    @classmethod
    def tearDownClass(cls):
        subprocess.run(["wineserver", "--kill"], env=cls.environment, check=False)
        subprocess.run(["wineserver", "--wait"], env=cls.environment, check=False)
        shutil.rmtree(cls.directory)

    @classmethod
    def wine(cls, *command, cwd=None, **environment):
        return subprocess.run(
            ["wine", *map(str, command)],
            env=cls.environment | environment,
            cwd=cwd or cls.directory,
            capture_output=True,
            timeout=300,
        )

    @classmethod
    def classes(cls):
        """Everything below the classes root."""
        file = cls.directory / "classes.reg"
        ended = cls.wine("reg", "export", "HKCR", windows_name(file), "/y")
        assert ended.returncode == 0, ended
        return read_export(file.read_text("utf-16"))

    def register(self):
        self.assertEqual(self.wine("regsvr32", "/s", LIBRARY).returncode, 0)

    def unregister(self):
        self.assertEqual(self.wine("regsvr32", "/s", "/u", LIBRARY).returncode, 0)

    def classes_without(self):
        """The classes root when the component is not registered."""
        self.unregister()
        return self.classes()

    def check_added(self, before, added):
        """Only the added keys are new, and nothing else has changed."""
        after = self.classes()
        new = {key: values for key, values in after.items() if key not in before}
        self.assertEqual(new, added)
        self.assertEqual({key: values for key, values in after.items() if key in before}, before)

    def test_registration_writes_its_keys_and_no_others(self):
        before = self.classes_without()
        self.register()
        self.check_added(before, registered_keys())
        self.register()
        self.check_added(before, registered_keys())

    def test_registration_replaces_the_class_keys_whole(self):
        before = self.classes_without()
        old = f"HKCR\\CLSID\\{DRIVER}\\OldVersion"
        self.wine("reg", "add", old, "/ve", "/d", "left behind", "/f")
        self.register()
        self.check_added(before, registered_keys())

    def test_unregistration_removes_everything_but_the_parent_key(self):
        before = self.classes_without()
        self.register()
        self.unregister()
        self.check_added(before, {})
        self.assertIn("clsid", before)
        # A second time finds nothing to remove.
        self.unregister()

    def files_of_script(self, script):
        self.register()
        out = pathlib.Path(tempfile.mkdtemp(dir=self.directory))
        ended = self.wine(
            "cscript",
            "//nologo",
            windows_name(document_set.HOSTS / script),
            windows_name(out / "rep.htm"),
            windows_name(document_set.STYLE_SHEET),
        )
        self.assertEqual((ended.returncode, ended.stdout, ended.stderr), (0, b"", b""))
        return document_set.read(out)

    def test_script_hosts_write_the_report(self):
        for script in "report.js", "report.vbs":
            document_set.check(self, self.files_of_script(script), "windows")

    def test_hosts_of_the_documentation_say_hello(self):
        document_set.check_hello(self, self.files_of_script("hello.js"))
        for host in "hello_host.exe", "hello_c_host.exe":
            document_set.check_hello(self, self.files_of_program(host))

    def files_of_program(self, program, *component):
        out = pathlib.Path(tempfile.mkdtemp(dir=self.directory))
        ended = self.wine(
            BUILD / "examples" / "hosts" / program,
            windows_name(out / "rep.htm"),
            windows_name(document_set.STYLE_SHEET),
            *component,
        )
        self.assertEqual((ended.returncode, ended.stderr), (0, b""))
        return document_set.read(out)

    def check_program(self, program, component):
        document_set.check(self, self.files_of_program(program, component), "windows")

    def test_compiled_hosts_write_the_report(self):
        self.register()
        for program in "report_host.exe", "report_c_host.exe":
            for name in "DocHtml.DocHtml", "DocHtml.DocHtml.2.1.0", DRIVER:
                self.check_program(program, name)

    def test_compiled_hosts_load_a_library_that_is_not_registered(self):
        self.unregister()
        for program in "report_host.exe", "report_c_host.exe":
            self.check_program(program, windows_name(LIBRARY))

    def check_tests(self, program, **environment):
        self.register()
        ended = self.wine(program, "--gtest_brief=1", **environment)
        self.assertEqual(ended.returncode, 0, ended.stdout.decode(errors="replace"))

    def test_hosts_of_the_system(self):
        self.check_tests(REGISTERED_TESTS)

    def test_every_operation_through_the_registered_component(self):
        self.check_tests(LIBRARY_TESTS, DOCHTML_TEST_COMPONENT="DocHtml.DocHtml.2.1.0")

    def check_replay(self):
        out = pathlib.Path(tempfile.mkdtemp(dir=self.directory))
        ended = self.wine(
            BUILD / "bin" / "dochtml-replay.exe",
            "--quiet",
            "--set",
            f"Html.StyleSheet={windows_name(document_set.STYLE_SHEET)}",
            "--set",
            f"Settings.InstallDir={document_set.INSTALLATION}",
            windows_name(document_set.REPORT / "report.jsonl"),
            cwd=out,
        )
        self.assertEqual((ended.returncode, ended.stderr), (0, b""))
        document_set.check(self, document_set.read(out), "windows")

    def test_replay_tool_takes_the_registered_component(self):
        self.register()
        self.check_replay()

    def test_replay_tool_finds_the_component_beside_it(self):
        self.unregister()
        self.check_replay()


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=0)
