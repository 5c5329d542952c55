"""The example hosts, the registration command and the replay tool against one component.

    hosts_test.py BUILD-DIRECTORY LIBRARY [--approve]

With --approve the C++ host's document set becomes the expected one; look at the difference."""

import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest

import document_set

BUILD = pathlib.Path()
LIBRARY = pathlib.Path()
DRIVER_CLASS = "{474BDD91-0170-11d3-A6BF-00104B2AEFE1}"


class HostsTest(unittest.TestCase):
    def setUp(self):
        self.maxDiff = None
        directory = tempfile.TemporaryDirectory()
        self.addCleanup(directory.cleanup)
        self.work = pathlib.Path(directory.name)
        self.environment = dict(
            os.environ,
            XDG_DATA_HOME=str(self.work / "data"),
            XDG_CONFIG_HOME=str(self.work / "config"),
            SOURCE_DATE_EPOCH="0",
        )
        self.classes = self.work / "data" / "quillmark" / "classes.ini"
        document_set.name_installation(self.work / "config")

    def run_program(self, program, *arguments, cwd=None):
        return subprocess.run(
            [BUILD / program, *arguments],
            env=self.environment,
            cwd=cwd or self.work,
            capture_output=True,
            text=True,
            timeout=60,
        )

    def register(self, *arguments):
        return self.run_program("bin/dochtml-register", *arguments)

    def report(self, host, *component):
        """Runs a host; returns how it ended and the document set that it wrote."""
        out = self.work / ("out-" + host)
        ended = self.run_program(
            "examples/hosts/" + host, out / "rep.htm", document_set.STYLE_SHEET, *component
        )
        return ended, document_set.read(out)

    def check_report(self, host, *component):
        ended, files = self.report(host, *component)
        self.assertEqual((ended.returncode, ended.stderr), (0, ""))
        document_set.check(self, files, "posix")

    def test_hosts_load_a_library_that_is_not_registered(self):
        for host in "report_host", "report_c_host":
            self.check_report(host, LIBRARY)
        self.assertFalse(self.classes.exists())

    def test_hosts_find_no_component_before_it_is_registered(self):
        ended, files = self.report("report_host")
        self.assertEqual(ended.returncode, 1)
        self.assertEqual(ended.stderr, "report: DocHtml.DocHtml is not registered\n")
        ended, files = self.report("report_c_host")
        self.assertEqual(ended.returncode, 1)
        self.assertEqual(ended.stderr, "report_c: no document, result 0x800401F3\n")
        self.assertEqual(files, {})

    def test_hosts_find_a_registered_component_by_every_name(self):
        self.assertEqual(self.register(LIBRARY).returncode, 0)
        for host in "report_host", "report_c_host":
            for name in "DocHtml.DocHtml", "DocHtml.DocHtml.2.1.0", DRIVER_CLASS:
                self.check_report(host, name)

    def test_hosts_load_no_library_by_a_relative_path(self):
        self.assertEqual(self.register(LIBRARY).returncode, 0)
        shutil.copy(LIBRARY, self.work / LIBRARY.name)
        text = self.classes.read_text(encoding="utf-8")
        for path in LIBRARY.name, "./" + LIBRARY.name, "":
            self.classes.write_text(text.replace(str(LIBRARY), path), encoding="utf-8")
            ended, files = self.report("report_host")
            self.assertEqual(ended.returncode, 1)
            self.assertEqual(
                ended.stderr,
                f'report: the library of DocHtml.DocHtml, "{path}" in {self.classes}, '
                "is not an absolute path\n",
            )
            ended, files = self.report("report_c_host")
            self.assertEqual(ended.returncode, 1)
            self.assertEqual(ended.stderr, "report_c: no document, result 0x800401F8\n")
            self.assertEqual(files, {})

    def test_hosts_of_the_documentation_say_hello(self):
        self.register(LIBRARY)
        for host in "hello_host", "hello_c_host":
            ended, files = self.report(host)
            self.assertEqual((ended.returncode, ended.stderr), (0, ""))
            document_set.check_hello(self, files)

    def test_documentation_shows_the_hosts_that_run_here(self):
        shown = document_set.DOCUMENTATION.read_text(encoding="utf-8")
        for host, language in ("hello.js", "js"), ("hello.cpp", "cpp"), ("hello_c.c", "c"):
            source = (document_set.HOSTS / host).read_text(encoding="utf-8")
            self.assertIn(f"```{language}\n{source}```\n", shown)

    def test_example_of_the_document_header_compiles(self):
        compiler = os.environ.get("CXX") or shutil.which("c++")
        if compiler is None:
            self.skipTest("no compiler")
        headers = document_set.HOSTS.parents[1] / "src" / "component" / "include"
        comment = (headers / "dochtml" / "document.h").read_text(encoding="utf-8")
        example = re.findall(r"^ \*     (.*)$", comment, re.MULTILINE)
        self.assertEqual(len(example), 4)
        source = '#include "dochtml/client.h"\nusing namespace quillmark;\nvoid example() {\n'
        ended = subprocess.run(
            [*compiler.split(), "-std=c++20", "-fsyntax-only", "-I", headers, "-x", "c++", "-"],
            input=source + "\n".join(example) + "\n}\n",
            capture_output=True,
            text=True,
        )
        self.assertEqual((ended.returncode, ended.stderr), (0, ""))

    def test_registering_twice_leaves_one_copy(self):
        self.register(LIBRARY)
        once = self.classes.read_text()
        self.assertEqual(self.register(LIBRARY).returncode, 0)
        self.assertEqual(self.classes.read_text(), once)
        self.assertIn(f"\n@={LIBRARY}\nThreadingModel=Apartment\n", once)

    def test_unregistering_leaves_the_parent_key(self):
        self.register(LIBRARY)
        self.assertEqual(self.register("--unregister", LIBRARY).returncode, 0)
        self.assertEqual(self.classes.read_text().split("\n")[1:], ["[CLSID]", ""])
        self.assertEqual(self.report("report_host")[0].returncode, 1)

    def test_registration_finds_the_library_installed_with_it(self):
        self.assertEqual(self.register().returncode, 0)
        self.check_report("report_host")

    def test_registration_says_what_failed(self):
        self.assertEqual(self.register(self.work / "none.so").returncode, 1)
        for arguments, why in (
            (["--wrong"], "unknown option --wrong"),
            ([LIBRARY, LIBRARY], "more than one library given"),
        ):
            ended = self.register(*arguments)
            self.assertEqual(ended.returncode, 2)
            self.assertEqual(
                ended.stderr, f"dochtml-register: {why}\nTry dochtml-register --help.\n"
            )
        self.assertEqual(self.register("--help").returncode, 0)
        (self.work / "data").write_text("in the way")
        ended = self.register(LIBRARY)
        self.assertEqual(ended.returncode, 1)
        self.assertEqual(
            ended.stderr,
            "dochtml-register: DllRegisterServer failed with result 0x80040151; "
            f"the classes are kept in {self.classes}: Not a directory\n",
        )

    def test_tools_report_an_output_that_cannot_be_written(self):
        for program in ("dochtml-register --version", "dochtml-register --help",
                        "dochtml-settings get Navig", "dochtml-settings --help"):
            command = f"'{BUILD}'/bin/{program} >/dev/full; echo $?"
            ended = subprocess.run(["sh", "-c", command + " >&2"], env=self.environment,
                                   stderr=subprocess.PIPE, text=True, timeout=60)
            name = program.split()[0]
            self.assertEqual(
                ended.stderr, f"{name}: cannot write the output: No space left on device\n1\n"
            )

    def replay(self):
        out = pathlib.Path(tempfile.mkdtemp(dir=self.work))
        ended = self.run_program(
            "bin/dochtml-replay",
            "--quiet",
            "--set",
            f"Html.StyleSheet={document_set.STYLE_SHEET}",
            "--set",
            "Html.IconFile=",
            "--set",
            f"Settings.InstallDir={document_set.INSTALLATION}",
            document_set.REPORT / "report.jsonl",
            cwd=out,
        )
        return ended, document_set.read(out)

    def test_replay_tool_makes_the_same_document_set(self):
        ended, files = self.replay()
        self.assertEqual((ended.returncode, ended.stderr), (0, ""))
        document_set.check(self, files, "posix")

    def name_component_used(self):
        """What `--version` of the replay tool says about the component."""
        ended = self.run_program("bin/dochtml-replay", "--version")
        self.assertEqual((ended.returncode, ended.stderr), (0, ""))
        return ended.stdout.split("\n", 1)[1]

    def register_library(self, file):
        self.register(LIBRARY)
        text = self.classes.read_text().replace(str(LIBRARY), str(file))
        self.classes.write_text(text)

    def test_replay_tool_takes_the_registered_component(self):
        self.register(LIBRARY)
        document_set.check(self, self.replay()[1], "posix")
        self.assertEqual(self.name_component_used(), f"component: {LIBRARY} (registered)\n")
        # A registered file that is no library shows that the name was followed.
        other = self.work / "other.so"
        other.write_text("no library")
        self.register_library(other)
        ended, files = self.replay()
        self.assertEqual(ended.returncode, 2)
        self.assertIn("other.so", ended.stderr)
        self.assertEqual(files, {})

    def test_replay_tool_takes_its_own_component_when_none_is_registered(self):
        own = f"component: {LIBRARY} (installed with this program)\n"
        self.assertEqual(self.name_component_used(), own)

    def test_replay_tool_takes_its_own_component_when_the_registered_one_is_gone(self):
        gone = self.work / "gone.so"
        self.register_library(gone)
        note = (
            f'the registered component {gone} is gone; "dochtml-register --unregister" removes its '
            "registration\n"
        )
        ended, files = self.replay()
        self.assertEqual((ended.returncode, ended.stderr), (0, f"dochtml-replay: warning: {note}"))
        document_set.check(self, files, "posix")
        self.assertEqual(
            self.name_component_used(),
            f"component: {LIBRARY} (installed with this program); {note}",
        )
        self.assertIn(f"registered component: {gone} (which is gone)\n", self.register("--version").stdout)
        self.assertEqual(self.register("--unregister").returncode, 0)
        self.assertEqual(self.replay()[0].stderr, "")

    def test_registration_names_the_components(self):
        self.assertEqual(
            self.register("--version").stdout.split("\n")[1:],
            [f"installed component: {LIBRARY}", "registered component: none", ""],
        )
        self.register()
        self.assertIn(f"registered component: {LIBRARY}\n", self.register("--version").stdout)

    def test_library_exports_the_four_entry_points_alone(self):
        listed = subprocess.run(
            ["nm", "-D", "--defined-only", "--format=posix", LIBRARY],
            capture_output=True,
            text=True,
            check=True,
        ).stdout
        names = sorted(line.split()[0] for line in listed.splitlines())
        self.assertEqual(
            names,
            ["DllCanUnloadNow", "DllGetClassObject", "DllRegisterServer", "DllUnregisterServer"],
        )


def main():
    global BUILD, LIBRARY
    BUILD = pathlib.Path(sys.argv[1])
    LIBRARY = pathlib.Path(sys.argv[2])
    if "--approve" in sys.argv:
        with tempfile.TemporaryDirectory() as out, tempfile.TemporaryDirectory() as config:
            document_set.name_installation(config)
            subprocess.run(
                [
                    BUILD / "examples/hosts/report_host",
                    out + "/rep.htm",
                    document_set.STYLE_SHEET,
                    LIBRARY,
                ],
                env=dict(os.environ, XDG_CONFIG_HOME=config, SOURCE_DATE_EPOCH="0"),
                check=True,
            )
            document_set.approve(out)
        return
    unittest.main(argv=sys.argv[:1], verbosity=0)


if __name__ == "__main__":
    main()
