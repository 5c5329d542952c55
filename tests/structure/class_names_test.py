#!/usr/bin/env python3
"""The check of class names finds what it is there to find, and nothing else."""

import unittest

import class_names


def faults(*files):
    names = class_names.ClassNames()
    return [
        f"{name}:{line}: {fault}" for name, text in files for line, fault in names.faults(name, text)
    ]


def names_in(text):
    return [name for name, _ in class_names.definitions(text)]


class OneNameTwice(unittest.TestCase):
    def test_two_classes_of_one_name_in_one_namespace(self):
        self.assertEqual(
            ["src/b/b.h:3: quillmark::Owner is defined in src/a/a.h:2 too"],
            faults(
                ("src/a/a.h", "namespace quillmark {\nclass Owner {};\n}\n"),
                ("src/b/b.h", "namespace quillmark {\n\nstruct Owner final : Base {\n};\n}\n"),
            ),
        )

    def test_enumerations_and_classes_inside_classes(self):
        text = "namespace q { enum class Kind : int { one }; class A { struct Part {}; }; }"
        self.assertEqual(
            [
                "src/b.h:1: q::Kind is defined in src/a.h:1 too",
                "src/b.h:1: q::A is defined in src/a.h:1 too",
                "src/b.h:1: q::A::Part is defined in src/a.h:1 too",
            ],
            faults(("src/a.h", text), ("src/b.h", text)),
        )

    def test_a_test_and_what_it_tests(self):
        text = "class A {};"
        self.assertEqual(1, len(faults(("src/a.h", text), ("tests/page/a_test.cpp", text))))
        self.assertEqual(1, len(faults(("tests/support/a.h", text), ("tests/page/b.cpp", text))))

    def test_different_ways_to_write_one_namespace(self):
        self.assertEqual(
            1,
            len(
                faults(
                    ("src/a.h", "namespace a::b { class C {}; }"),
                    ("src/b.h", "namespace a { namespace b { class C {}; } }"),
                )
            ),
        )


class NoFault(unittest.TestCase):
    def test_one_name_in_two_namespaces(self):
        self.assertEqual(
            [],
            faults(
                ("src/a.h", "namespace a { class C {}; }"), ("src/b.h", "namespace b { class C {}; }")
            ),
        )

    def test_unnamed_namespaces_are_private_to_their_files(self):
        text = "namespace q {\nnamespace {\nstruct A {};\n}\n}\n"
        self.assertEqual([], faults(("src/a.cpp", text), ("src/b.cpp", text)))

    def test_classes_in_functions_are_private_to_them(self):
        text = "namespace q { inline int %s() { struct A { int n; }; return A{1}.n; } }"
        self.assertEqual([], faults(("src/a.h", text % "f"), ("src/b.h", text % "g")))

    def test_a_declaration_is_not_a_definition(self):
        self.assertEqual(
            [],
            faults(("src/a.h", "class A {};"), ("src/b.h", "class A;\nstruct A* f();\nenum E : int;")),
        )

    def test_the_folders_of_two_systems_are_not_built_together(self):
        text = "class A {};"
        self.assertEqual([], faults(("src/p/posix/a.h", text), ("src/p/windows/a.h", text)))

    def test_the_test_programs_of_two_modules(self):
        text = "class A {};"
        self.assertEqual([], faults(("tests/page/a.cpp", text), ("tests/driver/a.cpp", text)))


class Reading(unittest.TestCase):
    def test_comments_texts_and_macros_define_nothing(self):
        self.assertEqual(
            [],
            names_in('// class A {\n/* class B { */\nauto s = "class C {";\n#define D class D {\n'),
        )
        self.assertEqual(["A"], names_in('auto r = R"(class B {)";\nconst char c = \'{\';\nclass A {};'))

    def test_functions_that_take_or_give_a_class(self):
        self.assertEqual([], names_in("struct A f(struct B b) { return {}; }"))

    def test_templates_and_attributes(self):
        self.assertEqual(["A"], names_in("template <class T, typename U>\nclass A : B<T> {};"))
        self.assertEqual(["A", "A<int>"], names_in("template <class T> class A {};\n"
                                                   "template <> class A<int> {};"))
        self.assertEqual(["A"], names_in("class [[nodiscard]] alignas(8) A {};"))

    def test_what_follows_an_access_label(self):
        self.assertEqual(["A", "A::B"], names_in("class A {\nprivate:\n    struct B {};\n};"))

    def test_numbers_with_separators(self):
        self.assertEqual(["A"], names_in("constexpr int n = 1'000'000;\nclass A {};"))


if __name__ == "__main__":
    unittest.main()
