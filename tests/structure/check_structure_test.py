#!/usr/bin/env python3
"""The structure check finds what it is there to find."""

import pathlib
import tempfile
import unittest

import check_structure


class CheckStructure(unittest.TestCase):
    def faults_of(self, name, text):
        with tempfile.TemporaryDirectory() as folder:
            path = pathlib.Path(folder, name)
            path.parent.mkdir(parents=True)
            path.write_text(text, encoding="utf-8")
            return check_structure.check(pathlib.Path(folder))[1]

    def test_an_include_downwards_is_fine(self):
        self.assertEqual([], self.faults_of("src/page/a.h", '#include "foundation/orx_string.h"\n'))

    def test_an_include_upwards_is_a_fault(self):
        self.assertEqual(
            ["src/page/a.h:2: page must not include driver (driver/boundary/i_document.h)"],
            self.faults_of("src/page/a.h", '\n#include "driver/boundary/i_document.h"\n'),
        )

    def test_modules_of_one_layer_do_not_include_each_other(self):
        self.assertEqual(1, len(self.faults_of("src/contents/a.h", '#include "diagram/b.h"\n')))

    def test_folders_of_a_module_include_each_other_one_way(self):
        self.assertEqual(
            [], self.faults_of("src/driver/text/a.h", '#include "driver/links/b.h"\n')
        )
        self.assertEqual([], self.faults_of("src/driver/a.h", '#include "driver/text/b.h"\n'))
        self.assertEqual(
            ["src/driver/links/a.h:1: driver/links must not include driver/text (driver/text/b.h)"],
            self.faults_of("src/driver/links/a.h", '#include "driver/text/b.h"\n'),
        )
        self.assertEqual(1, len(self.faults_of("src/driver/text/a.h", '#include "driver/b.h"\n')))

    def test_the_standard_library_is_open_to_all(self):
        self.assertEqual([], self.faults_of("src/page/a.h", "#include <string>\n"))

    def test_a_system_header_stays_in_the_platform_folders(self):
        self.assertEqual(
            ["src/page/a.h:1: system header <unistd.h> outside the platform folders"],
            self.faults_of("src/page/a.h", "#include <unistd.h>\n"),
        )
        self.assertEqual([], self.faults_of("src/platform/posix/a.cpp", "#include <unistd.h>\n"))

    def test_windows_h_has_one_door(self):
        self.assertEqual(
            1, len(self.faults_of("src/platform/windows/a.cpp", "#include <windows.h>\n"))
        )

    def test_a_system_conditional_stays_in_the_platform_folders(self):
        self.assertEqual(1, len(self.faults_of("src/page/a.h", "#ifdef _WIN32\n")))
        self.assertEqual(1, len(self.faults_of("src/page/a.h", "#if defined(_WIN32)\n")))

    def test_a_source_includes_its_own_header_first(self):
        with tempfile.TemporaryDirectory() as folder:
            page = pathlib.Path(folder, "src", "page")
            page.mkdir(parents=True)
            (page / "a.h").touch()
            (page / "a.cpp").write_text('#include <string>\n#include "page/a.h"\n')
            (page / "b.cpp").write_text("#include <string>\n")
            self.assertEqual(
                ["src/page/a.cpp:1: the first include must be page/a.h"],
                check_structure.check(pathlib.Path(folder))[1],
            )
            (page / "a.cpp").write_text('// A comment.\n#include "page/a.h"\n\n#include <string>\n')
            self.assertEqual([], check_structure.check(pathlib.Path(folder))[1])

    def test_a_class_is_defined_once(self):
        self.assertEqual(
            ["src/page/a.h:2: q::A is defined in src/page/a.h:1 too"],
            self.faults_of("src/page/a.h", "namespace q { class A {}; }\nnamespace q { struct A {}; }\n"),
        )

    def test_a_file_of_400_lines_is_fine_and_one_more_is_not(self):
        self.assertEqual([], self.faults_of("src/page/a.h", "\n" * 400))
        self.assertEqual(1, len(self.faults_of("src/page/a.h", "\n" * 401)))


if __name__ == "__main__":
    unittest.main()
