"""The installed headers: exactly the public ones, and each compiles alone.

    public_headers_test.py PREFIX C++-COMPILER C-COMPILER

public_headers.txt lists them; "c" marks those for C hosts too."""

import pathlib
import subprocess
import sys
import unittest

PREFIX = pathlib.Path(sys.argv.pop(1)) / "include"
CXX, CC = sys.argv.pop(1), sys.argv.pop(1)
LIST = pathlib.Path(__file__).with_name("public_headers.txt")


def public_headers():
    """The listed headers, each with the languages that it is for."""
    lines = [line.split() for line in LIST.read_text().splitlines() if line and line[0] != "#"]
    return {name: languages for name, *languages in lines}


def compile_alone(header, *compiler):
    """Compiles a source that only includes the header; answers with what the compiler said."""
    include = [f"-I{PREFIX}", f"-I{PREFIX / 'dochtml'}"]
    strict = ["-Wall", "-Wextra", "-Wpedantic", "-Werror", "-fsyntax-only"]
    source = f'#include "{PREFIX / header}"\n'
    command = [*compiler, *strict, *include, "-"]
    return subprocess.run(command, input=source, capture_output=True, text=True).stderr


class PublicHeaders(unittest.TestCase):
    def test_no_other_header_is_installed(self):
        installed = {path.relative_to(PREFIX).as_posix() for path in PREFIX.rglob("*.h")}
        self.assertEqual(sorted(installed), sorted(public_headers()))

    def test_each_compiles_alone_in_cpp(self):
        for header in public_headers():
            with self.subTest(header):
                self.assertEqual(compile_alone(header, CXX, "-x", "c++", "-std=c++20"), "")

    def test_headers_for_c_compile_alone_in_c(self):
        headers = [name for name, languages in public_headers().items() if "c" in languages]
        self.assertIn("dochtml/dochtml_c.h", headers)
        for header in headers:
            with self.subTest(header):
                self.assertEqual(compile_alone(header, CC, "-x", "c", "-std=c11"), "")


if __name__ == "__main__":
    unittest.main()
