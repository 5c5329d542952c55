"""The pkg-config files of installations with other directories.

    pkg_config_files_test.py SOURCES BUILD WORK CMAKE C-COMPILER C++-COMPILER

Each case configures the sources once more and installs only the pkg-config files by that; the
libraries and headers are those of BUILD."""

import pathlib
import shutil
import subprocess
import sys
import unittest

SOURCES, BUILD, WORK = map(pathlib.Path, sys.argv[1:4])
CMAKE, CC, CXX = sys.argv[4:7]
HOST = SOURCES / "examples/hosts/hello_c.c"
DRIVER_HOST = SOURCES / "tests/package/consumer/consumer.cpp"


def run(*command, **options):
    return subprocess.run(
        [str(each) for each in command], check=True, capture_output=True, text=True, **options
    ).stdout


class Staged(unittest.TestCase):
    """Packages that are put into a staging directory, as those who make packages do it."""

    @classmethod
    def setUpClass(cls):
        shutil.rmtree(WORK, ignore_errors=True)
        cls.addClassCleanup(shutil.rmtree, WORK)
        run(CMAKE, "--install", BUILD, "--prefix", WORK / "prefix", "--component", "dev")

    def setUp(self):
        self.stage = WORK / "stage"
        shutil.rmtree(self.stage, ignore_errors=True)

    def install(self, *options):
        """Configures with these options, and installs into the stage."""
        off = [f"-DDOCHTML_BUILD_{part}=OFF" for part in ("TESTS", "PYTHON")]
        # What it found out about the compiler stays. What it chose for the last prefix does not.
        fresh = ["-U", "CMAKE_INSTALL_*"]
        run(CMAKE, "-S", SOURCES, "-B", WORK / "build", "-G", "Ninja", *fresh, *off, *options)
        script = WORK / "build/install_pkg_config.cmake"
        prefix = self.cached("CMAKE_INSTALL_PREFIX")
        stage = {"DESTDIR": str(self.stage), "PATH": "/usr/bin:/bin"}
        run(CMAKE, f"-DCMAKE_INSTALL_PREFIX={prefix}", "-P", script, env=stage)
        library_dir = self.staged(prefix, self.cached("CMAKE_INSTALL_LIBDIR"))
        shutil.copy(BUILD / "libdochtml.a", library_dir)
        shutil.copy(BUILD / "src/component/libdochtml_client.a", library_dir)
        shutil.copytree(WORK / "prefix/include", self.staged(prefix, "include"))

    def cached(self, name):
        cache = (WORK / "build/CMakeCache.txt").read_text()
        return next(
            line.split("=", 1)[1] for line in cache.splitlines() if line.startswith(f"{name}:")
        )

    def staged(self, prefix, directory):
        """A directory of the installation, in the stage."""
        return self.stage / str(pathlib.Path(prefix) / directory).lstrip("/")

    def check(self, pc_dir, include_dir, support_dir):
        """The files name these directories, and plain compilers build hosts by them."""
        environment = {"PKG_CONFIG_PATH": str(pc_dir), "PATH": "/usr/bin:/bin"}

        def ask(*arguments):
            return run("pkg-config", *arguments, env=environment).split()

        for package in ("dochtml", "dochtml_client"):
            (named,) = ask("--variable=includedir", package)
            self.assertEqual(pathlib.Path(named).resolve(), include_dir)
            (named,) = ask("--variable=libdir", package)
            self.assertEqual(pathlib.Path(named).resolve(), pc_dir.parent)
        (named,) = ask("--variable=supportdir", "dochtml")
        self.assertEqual(pathlib.Path(named).resolve(), support_dir)
        run(CC, HOST, *ask("--cflags", "--libs", "dochtml_client"), "-o", WORK / "c_host")
        support = f'-DSUPPORT_DIR="{named}"'
        libraries = ask("--cflags", "--libs", "dochtml")
        run(CXX, "-std=c++20", support, DRIVER_HOST, *libraries, "-o", WORK / "driver_host")

    def test_the_prefix_of_the_system(self):
        self.install("-DCMAKE_INSTALL_PREFIX=/usr")
        library_dir = self.cached("CMAKE_INSTALL_LIBDIR")
        self.assertNotEqual(library_dir, "lib")
        usr = self.stage / "usr"
        self.check(usr / library_dir / "pkgconfig", usr / "include", usr / "share/dochtml")

    def test_an_absolute_library_directory(self):
        self.install("-DCMAKE_INSTALL_PREFIX=/opt/dochtml", "-DCMAKE_INSTALL_LIBDIR=/srv/libraries")
        opt = self.stage / "opt/dochtml"
        pc_dir = self.stage / "srv/libraries/pkgconfig"
        self.check(pc_dir, opt / "include", opt / "share/dochtml")

    def test_a_prefix_that_is_moved(self):
        self.install("-DCMAKE_INSTALL_PREFIX=/opt/dochtml", "-DCMAKE_INSTALL_LIBDIR=lib/here/there")
        moved = WORK / "moved"
        shutil.rmtree(moved, ignore_errors=True)
        (self.stage / "opt/dochtml").rename(moved)
        pc_dir = moved / "lib/here/there/pkgconfig"
        self.check(pc_dir, moved / "include", moved / "share/dochtml")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
