"""The Debian packages as a user installs them, in a minimal system.

    debian_test.py PACKAGES SOURCES WORK ROOT-ARCHIVE
"""

import functools
import pathlib
import re
import shutil
import subprocess
import sys
import unittest

from markdown_links import broken_links
from minimal_system import MinimalSystem
from required_tools import require

require("mmdebstrap")
PACKAGES, SOURCES, WORK, ARCHIVE = (pathlib.Path(argument).resolve() for argument in sys.argv[1:5])
NAMES = ("dochtml", "dochtml-dev", "dochtml-doc", "python3-dochtml")
STARTS = ("manual.htm", "manual_cnt.htm", "manual_sfrm.htm", "manual_ffrm.htm")
HELLO = '["create","hello.htm"]\n["insertText","Hello"]\n["close"]\n'


def package(name):
    files = list(PACKAGES.glob(f"{name}_*.deb"))
    if len(files) != 1:
        sys.exit(f"{PACKAGES} has no package {name}; run scripts/package.sh first")
    return files[0]


def field(file, name):
    command = ["dpkg-deb", "--field", file, name]
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout.strip()


def older(file, version):
    """The same package under an older version."""
    work = WORK / "older" / file.stem
    subprocess.run(["dpkg-deb", "--raw-extract", file, work], check=True)
    control = work / "DEBIAN/control"
    control.write_text(control.read_text().replace(field(file, "Version"), version))
    made = work.with_suffix(".deb")
    command = ["dpkg-deb", "--root-owner-group", "-Znone", "--build", work, made]
    subprocess.run(command, check=True, stdout=subprocess.DEVNULL)
    return made


@functools.cache
def system():
    made = MinimalSystem(ARCHIVE, WORK / "root")
    unittest.addModuleCleanup(made.remove)
    return made


class Installed(unittest.TestCase):
    """Each test begins with all packages installed and ends with none."""

    def setUp(self):
        self.system = system()
        self.before = self.system.files()
        self.system.install(*map(package, NAMES))

    def tearDown(self):
        self.system.purge(*NAMES)
        self.system.shell("rm -rf ./* .config .local .cache")

    def test_nothing_is_left_after_purge(self):
        self.assertTrue(self.system.needs_nothing())
        self.assertLess(self.before, self.system.files())
        self.system.purge(*NAMES)
        self.assertEqual(self.before ^ self.system.files(), set())

    def test_a_user_makes_a_document_with_the_tools(self):
        self.system.shell(f"cat >hello.jsonl <<'end'\n{HELLO}end\n")
        self.system.shell("dochtml-settings set Navig=2; dochtml-replay --quiet hello.jsonl")
        page = self.system.shell("cat hello.htm; ls")
        self.assertIn("Hello", page)
        self.assertIn("default.css", page)
        version = self.system.shell("dochtml-replay --version").splitlines()
        self.assertRegex(version[0], r"^dochtml-replay \d+\.\d+\.\d+$")
        self.assertRegex(
            version[1],
            r"^component: /usr/lib/[\w-]+/dochtml/libdochtmlcom\.so \(installed with this program\)$",
        )

    def build_and_run(self, source, command, *sources):
        self.system.put(SOURCES / source, pathlib.Path(source).name)
        return self.system.shell(command)

    def test_a_host_in_cpp_builds_by_the_documented_line(self):
        output = self.build_and_run(
            "examples/hosts/hello.cpp",
            "c++ -std=c++20 hello.cpp $(pkg-config --cflags --libs dochtml_client) -o hello;"
            "dochtml-register; ./hello $PWD/out.htm /usr/share/dochtml/default.css; cat out_dtl.htm",
        )
        self.assertIn("Hello", output)

    def test_a_host_in_c_builds_by_the_documented_line(self):
        output = self.build_and_run(
            "examples/hosts/hello_c.c",
            "cc hello_c.c $(pkg-config --cflags --libs dochtml_client) -o hello;"
            "dochtml-register; ./hello $PWD/out.htm /usr/share/dochtml/default.css; cat out_dtl.htm",
        )
        self.assertIn("Hello", output)

    def test_a_host_of_the_static_library_builds(self):
        output = self.build_and_run(
            "tests/package/consumer/consumer.cpp",
            'c++ -std=c++20 consumer.cpp -DSUPPORT_DIR="\\"$(pkg-config --variable=supportdir '
            'dochtml)\\"" $(pkg-config --cflags --libs dochtml) -o consumer; ./consumer',
        )
        self.assertEqual(output, "the page tells what it was told\n")

    def test_a_host_in_python_runs(self):
        program = "from dochtml import Document\nwith Document('r.htm') as r: r.heading(1, 'Hello')\n"
        self.system.shell(f"python3 - <<'end'\n{program}end\n")
        self.assertIn("Hello", self.system.shell("cat r_dtl.htm"))

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


class Upgrade(unittest.TestCase):
    def test_settings_and_registration_of_the_user_stay(self):
        self.addCleanup(shutil.rmtree, WORK / "older", ignore_errors=True)
        shutil.rmtree(WORK / "older", ignore_errors=True)
        (WORK / "older").mkdir()
        minimal = system()
        self.addCleanup(minimal.purge, *NAMES)
        minimal.install(*(older(package(name), "2.0.9-1") for name in NAMES))
        minimal.shell("dochtml-settings set Navig=2 TOCLevel=7; dochtml-register")
        kept = ".config/quillmark/settings.ini .local/share/quillmark/classes.ini"
        before = minimal.shell(f"cat {kept}")
        self.assertEqual(len(re.findall("TOCLevel=7|libdochtmlcom", before)), 3)
        minimal.install(*map(package, NAMES))
        self.assertEqual(minimal.run("dpkg-query", "-W", "-f", "${Version}", "dochtml"),
                         field(package("dochtml"), "Version"))
        self.assertEqual(minimal.shell(f"cat {kept}"), before)
        self.assertIn("(registered)", minimal.shell("dochtml-replay --version"))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
