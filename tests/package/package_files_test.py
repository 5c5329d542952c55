"""The files that scripts/package.sh has made: what lintian says, that packing again gives the same
bytes, and the bill of materials. (`scripts/package.sh --check` also builds them again, elsewhere.)

    package_files_test.py PACKAGES SOURCES CPACK
"""

import hashlib
import json
import os
import pathlib
import subprocess
import sys
import tempfile
import unittest

from required_tools import require

require("lintian", "dpkg-shlibdeps")
PACKAGES, SOURCES = map(pathlib.Path, sys.argv[1:3])
CPACK = sys.argv[3]
DEBIAN = sorted(PACKAGES.glob("*.deb"))
ZIP = sorted(PACKAGES.glob("*.zip"))
if not DEBIAN:
    sys.exit(f"{PACKAGES} has no packages; run scripts/package.sh first")


def run(*command, **options):
    return subprocess.run([*map(str, command)], capture_output=True, text=True, **options)


def control(file, field):
    return run("dpkg-deb", "--field", file, field, check=True).stdout.strip()


def sha256(file):
    return hashlib.sha256(file.read_bytes()).hexdigest()


class DebianPackages(unittest.TestCase):
    def test_lintian_has_no_complaint(self):
        checked = run("lintian", "--fail-on=error,warning", "--tag-display-limit=0", *DEBIAN)
        self.assertEqual((checked.returncode, checked.stdout), (0, ""))

    def test_overrides_have_a_reason(self):
        lines = (SOURCES / "packaging/debian/lintian-overrides").read_text().splitlines()
        for before, line in zip(["", *lines], lines):
            self.assertTrue(line.startswith("#") or before.startswith("#"), line)

    def test_each_depends_on_the_very_version_of_the_tools(self):
        versions = {control(file, "Version") for file in DEBIAN}
        self.assertEqual(len(versions), 1)
        same = f"dochtml (= {versions.pop()})"
        depends = {control(file, "Package"): control(file, "Depends") for file in DEBIAN}
        self.assertEqual(set(depends), {"dochtml", "dochtml-dev", "dochtml-doc", "python3-dochtml"})
        self.assertIn(same, depends["dochtml-dev"])
        self.assertEqual(depends["python3-dochtml"], f"python3 (>= 3.11), {same}")
        self.assertNotIn("dochtml", depends["dochtml"] + depends["dochtml-doc"])

    def test_each_says_that_it_is_unlicensed(self):
        for file in DEBIAN:
            with tempfile.TemporaryDirectory() as directory:
                run("dpkg-deb", "--extract", file, directory, check=True)
                (copyright_file,) = pathlib.Path(directory).glob("usr/share/doc/*/copyright")
                self.assertIn("License: unlicensed\n", copyright_file.read_text())


class AllPackages(unittest.TestCase):
    def test_packing_again_gives_the_same_bytes(self):
        (epoch,) = {epoch_of(file) for file in DEBIAN}
        environment = dict(os.environ, SOURCE_DATE_EPOCH=epoch, TZ="UTC", LC_ALL="C.UTF-8")
        self.addCleanup(os.umask, os.umask(0o022))
        for build in (SOURCES / "build/packed-builds.txt").read_text().split():
            config = SOURCES / "build" / build / "CPackConfig.cmake"
            with tempfile.TemporaryDirectory() as directory:
                run(CPACK, "--config", config, "-B", directory, env=environment, check=True)
                made = {
                    file.name: sha256(file)
                    for file in pathlib.Path(directory).iterdir() if file.suffix in (".deb", ".zip")
                }
            self.assertEqual(made, {name: sha256(PACKAGES / name) for name in made})
            self.assertGreater(len(made), 0)

    def test_no_file_knows_where_it_was_built(self):
        places = [bytes(path) for path in (SOURCES, pathlib.Path.home()) if len(path.parts) > 2]
        for package in (*DEBIAN, *ZIP):
            unpack = ["dpkg-deb", "--extract", package]
            if package in ZIP:
                unpack = ["unzip", "-q", package, "-d"]
            with tempfile.TemporaryDirectory() as directory:
                run(*unpack, directory, check=True)
                for file in filter(pathlib.Path.is_file, pathlib.Path(directory).rglob("*")):
                    content = file.read_bytes()
                    self.assertFalse([place for place in places if place in content], file)


def epoch_of(file):
    """The time that a Debian package is of: that of the first member of its archive."""
    return file.read_bytes()[8 + 16 : 8 + 28].decode().strip()


class BillOfMaterials(unittest.TestCase):
    def setUp(self):
        (file,) = PACKAGES.glob("*.spdx.json")
        self.document = json.loads(file.read_text())
        self.packages = {each["SPDXID"]: each for each in self.document["packages"]}

    def related(self, kind):
        return [
            (each["spdxElementId"], each["relatedSpdxElement"])
            for each in self.document["relationships"] if each["relationshipType"] == kind
        ]

    def test_it_describes_each_package_file(self):
        described = {to for _, to in self.related("DESCRIBES")}
        sums = {
            self.packages[each]["packageFileName"]: self.packages[each]["checksums"][0]["checksumValue"]
            for each in described
        }
        self.assertEqual(sums, {file.name: sha256(file) for file in (*DEBIAN, *ZIP)})

    def test_it_names_what_is_compiled_in_and_needed(self):
        def names(kind):
            return {self.packages[to]["name"] for _, to in self.related(kind)}

        self.assertLess({"rapidjson-dev", "libcli11-dev"}, names("STATIC_LINK") | {""})
        self.assertLess({"libc6", "libstdc++6"}, names("DEPENDS_ON"))
        self.assertTrue(all(each["versionInfo"] for each in self.packages.values()))

    def test_it_lists_the_files(self):
        names = {each["fileName"] for each in self.document["files"]}
        self.assertLess({"./usr/bin/dochtml-replay", "./usr/include/dochtml/client.h"}, names)

    def test_all_that_it_relates_is_there(self):
        known = {*self.packages, *(each["SPDXID"] for each in self.document["files"])}
        known.add(self.document["SPDXID"])
        self.assertEqual(len(known), 1 + len(self.packages) + len(self.document["files"]))
        for each in self.document["relationships"]:
            self.assertLessEqual({each["spdxElementId"], each["relatedSpdxElement"]}, known)

    def test_no_licence_is_claimed(self):
        own = [to for _, to in self.related("DESCRIBES")]
        licences = {self.packages[each]["licenseDeclared"] for each in own}
        self.assertEqual(licences, {"LicenseRef-unlicensed"})
        (text,) = self.document["hasExtractedLicensingInfos"]
        self.assertIn("No licence has been granted yet", text["extractedText"])


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
