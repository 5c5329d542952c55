"""The Debian packages as a user installs them, in a minimal system: over an older version of them,
and until they are purged.

    debian_test.py PACKAGES SOURCES WORK ROOT-ARCHIVE
"""

import pathlib
import subprocess
import sys
import unittest

from markdown_links import broken_links
from minimal_system import MinimalSystem
from older_package import older_package
from required_tools import require

require("mmdebstrap")
PACKAGES, SOURCES, WORK, ARCHIVE = (pathlib.Path(argument).resolve() for argument in sys.argv[1:5])
NAMES = ("dochtml", "dochtml-dev", "dochtml-doc", "python3-dochtml")
STARTS = ("manual.htm", "manual_cnt.htm", "manual_sfrm.htm", "manual_ffrm.htm")
HELLO = '["create","hello.htm"]\n["insertText","Hello"]\n["close"]\n'
OF_THE_USER = ".config/quillmark/settings.ini .local/share/quillmark/classes.ini"


def package(name):
    files = list(PACKAGES.glob(f"{name}_*.deb"))
    if len(files) != 1:
        sys.exit(f"{PACKAGES} has no package {name}; run scripts/package.sh first")
    return files[0]


class Installation:
    """All packages in a minimal system, upgraded from an older version that the user has used."""

    def __init__(self, system):
        self.system = system
        self.files_before = self.system.files()
        self.system.install(*(older_package(package(name), WORK / "older") for name in NAMES))
        self.old_version = self.version()
        self.old_files = self.system.files()
        self.system.shell("dochtml-settings set Navig=2 TOCLevel=7; dochtml-register")
        self.of_the_user = self.system.shell(f"cat {OF_THE_USER}")
        self.system.install(*map(package, NAMES))

    def version(self):
        return self.system.run("dpkg-query", "-W", "-f", "${Version}", "dochtml")


def setUpModule():
    global installation
    system = MinimalSystem(ARCHIVE, WORK / "root")
    unittest.addModuleCleanup(system.remove)
    installation = Installation(system)


class Upgraded(unittest.TestCase):
    def setUp(self):
        self.system = installation.system

    def test_the_new_version_takes_the_place_of_the_old_one(self):
        field = ["dpkg-deb", "--field", package("dochtml"), "Version"]
        new = subprocess.run(field, check=True, capture_output=True, text=True).stdout.strip()
        self.assertEqual((installation.old_version, installation.version()), ("2.0.9-1", new))
        files = self.system.files()
        self.assertIn("usr/share/dochtml/older.txt", installation.old_files)
        self.assertNotIn("usr/share/dochtml/older.txt", files)
        style_sheet = self.system.shell("cat /usr/share/dochtml/default.css")
        self.assertEqual(style_sheet, (SOURCES / "support/default.css").read_text())

    def test_settings_and_registration_of_the_user_stay(self):
        before = installation.of_the_user
        self.assertEqual((before.count("TOCLevel=7"), before.count("libdochtmlcom")), (1, 2))
        self.assertEqual(self.system.shell(f"cat {OF_THE_USER}"), before)
        self.assertEqual(self.system.shell("dochtml-settings get TOCLevel"), "7\n")
        self.assertIn("(registered)", self.system.shell("dochtml-replay --version"))


class Installed(unittest.TestCase):
    def setUp(self):
        self.system = installation.system
        self.addCleanup(self.system.shell, "rm -rf ./*")

    def test_a_user_makes_a_document_with_the_tools(self):
        self.system.shell(f"cat >hello.jsonl <<'end'\n{HELLO}end\n")
        self.system.shell("dochtml-replay --quiet hello.jsonl")
        page = self.system.shell("cat hello.htm; ls")
        self.assertIn("Hello", page)
        self.assertIn("default.css", page)

    def test_the_component_is_found_without_a_registration(self):
        version = self.system.shell("XDG_DATA_HOME=$PWD/none dochtml-replay --version").splitlines()
        self.assertRegex(version[0], r"^dochtml-replay \d+\.\d+\.\d+$")
        self.assertRegex(
            version[1],
            r"^component: /usr/lib/[\w-]+/dochtml/libdochtmlcom\.so \(installed with this program\)$",
        )

    def build_and_run(self, source, command):
        self.system.put(SOURCES / source, pathlib.Path(source).name)
        return self.system.shell(command)

    def test_a_host_in_cpp_builds_by_the_documented_line(self):
        output = self.build_and_run(
            "examples/hosts/hello.cpp",
            "c++ -std=c++20 hello.cpp $(pkg-config --cflags --libs dochtml_client) -o hello;"
            "./hello $PWD/out.htm /usr/share/dochtml/default.css; cat out.htm",
        )
        self.assertIn("Hello", output)

    def test_a_host_in_c_builds_by_the_documented_line(self):
        output = self.build_and_run(
            "examples/hosts/hello_c.c",
            "cc hello_c.c $(pkg-config --cflags --libs dochtml_client) -o hello_c;"
            "./hello_c $PWD/out.htm /usr/share/dochtml/default.css; cat out.htm",
        )
        self.assertIn("Hello", output)

    def test_a_host_of_the_static_library_builds(self):
        output = self.build_and_run(
            "tests/package/consumer/consumer.cpp",
            'c++ -std=c++20 consumer.cpp -DSUPPORT_DIR="\\"$(pkg-config --variable=supportdir '
            'dochtml)\\"" $(pkg-config --cflags --libs dochtml) -o consumer; ./consumer',
        )
        self.assertEqual(output, "the page tells what it was told\n")

    def test_a_host_in_python_runs_for_users_and_for_root(self):
        lines = "from dochtml import Document", "with Document('r.htm') as r: r.heading(1, 'Hello')"
        program = "\n".join(lines)
        for user in ("tester", "root"):
            self.system.shell(f"python3 - <<'end'\n{program}\nend\n", user=user)
            self.assertIn("Hello", self.system.shell("cat r*.htm", user=user))

    def test_the_component_is_no_library_of_the_linker(self):
        found = self.system.run("sh", "-c", "ldconfig; ldconfig -p")
        self.assertNotIn("dochtml", found)

    def test_links_of_the_documents_are_alive(self):
        documents = self.system.root / "usr/share/doc/dochtml"
        self.assertEqual(broken_links(documents), [])
        command = [sys.executable, "-B", SOURCES / "scripts/check_links.py", documents / "manual"]
        checked = subprocess.run([*command, *STARTS], capture_output=True, text=True)
        self.assertEqual(checked.returncode, 0, checked.stdout)

    def test_manual_pages_are_where_man_looks(self):
        names = {path.name for path in (self.system.root / "usr/share/man/man1").glob("dochtml*")}
        tools = ("register", "replay", "settings")
        self.assertEqual(names, {f"dochtml-{tool}.1.gz" for tool in tools})


class Removed(unittest.TestCase):
    """Runs last."""

    def test_removing_and_purging_leave_nothing_but_what_is_the_users(self):
        system, before = installation.system, installation.files_before
        self.assertLess(before, system.files())
        system.remove_packages("dochtml-doc", "python3-dochtml")
        # With what depends on it.
        system.purge("dochtml")
        self.assertEqual(before ^ system.files(), set())
        self.assertEqual(system.run("dpkg-query", "-W", "-f", "${Package} ").count("dochtml"), 0)
        self.assertEqual(system.shell(f"cat {OF_THE_USER}"), installation.of_the_user)


def load_tests(loader, _tests, _pattern):
    cases = (Upgraded, Installed, Removed)
    return unittest.TestSuite(map(loader.loadTestsFromTestCase, cases))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
