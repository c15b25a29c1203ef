#!/usr/bin/python3
"""Feeds the rules sources that break them, and sources that do not."""

import os
import tempfile
import unittest

import check_repository
import document_rules
import format_rules
import include_rules
import text_rules

OPENING = "// What it is for.\n"


def write(root, path, text):
    full = os.path.join(root, path)
    os.makedirs(os.path.dirname(full), exist_ok=True)
    with open(full, "w", encoding="utf-8") as file:
        file.write(text)


def include_findings(path, *includes, exported=()):
    """The messages for a source with these includes; every quoted one exists unless it begins with "?"."""
    lines = [f"#include {name}".replace('"?', '"') for name in includes]
    missing = {name.strip('"?') for name in includes if "?" in name}

    def read(target):
        if target in missing:
            return None
        return "ZP_EXPORT" if target in exported else ""

    return [message for _, message in include_rules.check(path, "\n".join(lines), read)]


class Includes(unittest.TestCase):
    def test_what_stands_below_may_be_included(self):
        for path, target in [("host/db/A.cpp", "host/ge/B.h"), ("host/db/A.cpp", "host/db/B.h"),
                             ("host/commands/A.cpp", "host/ed/B.h"), ("plugin/base/A.h", "host/afx/B.h"),
                             ("plugin/pipes/A.cpp", "plugin/layers/B.h"), ("plugin/frame/A.cpp", "plugin/tools/B.h"),
                             ("apps/zpcad/main.cpp", "host/qt/B.h"), ("tests/plugin/base/A.cpp", "plugin/base/B.h")]:
            self.assertEqual(include_findings(path, f'"{target}"'), [], path)

    def test_an_include_that_points_up_or_aside_is_found(self):
        for path, target in [("host/afx/A.cpp", "host/ge/B.h"), ("host/db/A.h", "host/ed/B.h"),
                             ("host/ui/A.h", "host/ed/B.h"), ("host/ed/A.h", "host/ui/B.h"),
                             ("host/console/A.cpp", "host/commands/B.h"), ("host/qt/A.cpp", "host/console/B.h"),
                             ("host/ed/A.cpp", "plugin/base/B.h"), ("plugin/base/A.cpp", "host/db/B.h"),
                             ("plugin/layers/A.cpp", "plugin/pipes/B.h"), ("plugin/pipes/A.cpp", "plugin/frame/B.h"),
                             ("plugin/graph/A.cpp", "host/console/B.h"), ("host/db/A.cpp", "tests/host/db/B.h"),
                             ("apps/zpcad/main.cpp", "plugin/frame/B.h")]:
            self.assertEqual(include_findings(path, f'"{target}"'), [f'may not include "{target}"'], path)

    def test_angle_brackets_do_not_hide_an_include_of_ours(self):
        self.assertEqual(len(include_findings("host/afx/A.cpp", "<host/ge/B.h>")), 1)

    def test_an_include_is_written_from_the_root(self):
        self.assertIn("written from its root", include_findings("host/ge/A.cpp", '"?AcGePoint3d.h"')[0])

    def test_a_module_without_a_row_is_found(self):
        self.assertIn("no row", include_findings("host/extra/A.cpp")[0])

    def test_a_sibling_sees_only_headers_that_export(self):
        header = "plugin/pipes/CZPPipe.h"
        self.assertIn("not a public header", include_findings("plugins/workbench/A.cpp", f'"{header}"')[0])
        self.assertEqual(include_findings("plugins/workbench/A.cpp", f'"{header}"', exported=[header]), [])

    def test_a_library_stays_in_its_module(self):
        for path, target in [("host/db/A.cpp", "<QString>"), ("host/console/A.cpp", "<QtWidgets/QWidget>"),
                             ("host/ed/A.cpp", "<fmt/printf.h>"), ("host/db/A.cpp", "<iconv.h>"),
                             ("plugin/pipes/A.cpp", "<simdjson.h>"), ("plugin/fancoil/A.cpp", "<pugixml.hpp>"),
                             ("host/console/A.cpp", "<CLI/CLI.hpp>"), ("host/ge/A.cpp", "<boost/geometry.hpp>"),
                             ("host/ge/A.cpp", "<gtest/gtest.h>")]:
            self.assertIn("belongs to", " ".join(include_findings(path, target)), f"{path} {target}")

    def test_a_library_is_free_in_its_module_but_not_in_its_headers(self):
        self.assertEqual(include_findings("host/afx/A.cpp", "<fmt/printf.h>", "<iconv.h>", "<vector>"), [])
        self.assertEqual(include_findings("host/afx/A.h", "<fmt/printf.h>"), ["fmt may not show in a header"])
        self.assertEqual(include_findings("host/qt/A.h", "<QWidget>"), [])

    def test_the_line_of_the_finding_is_named(self):
        found = list(include_rules.check("host/afx/A.cpp", '\n\n  #  include "host/ge/B.h"\n', lambda _: ""))
        self.assertEqual(found[0][0], 3)


class Texts(unittest.TestCase):
    def messages(self, path, text):
        return [message for _, message in text_rules.check(path, text)]

    def test_a_plain_source_passes(self):
        self.assertEqual(self.messages("host/ge/A.h", OPENING + "#pragma once\n"), [])

    def test_a_long_source_is_found(self):
        self.assertEqual(self.messages("host/ge/A.cpp", OPENING + "\n" * 799), [])
        self.assertIn("801 lines", self.messages("host/ge/A.cpp", OPENING + "\n" * 800)[0])

    def test_a_header_without_an_opening_sentence_is_found(self):
        self.assertIn("opens without", self.messages("host/ge/A.h", "#pragma once\n")[0])
        self.assertIn("opens without", self.messages("host/ge/A.h", "")[0])
        self.assertEqual(self.messages("host/ge/A.cpp", "int a;\n"), [])

    def test_a_header_without_a_guard_is_found(self):
        self.assertIn("#pragma once", self.messages("host/ge/A.h", OPENING)[0])

    def test_a_machine_path_is_found_and_a_lookalike_is_not(self):
        for text in ["/" + "home/me/x", 'open("/' + 'tmp/a")', "cd /" + "work/main"]:
            self.assertEqual(self.messages("docs/a.md", text), ["a path of one machine"], text)
        for text in ["docs/home/page", "$root/tmp/a", "https://example.org/work/x", "/usr/bin/python3"]:
            self.assertEqual(self.messages("docs/a.md", text), [], text)

    def test_an_unfinished_place_is_found(self):
        for word in ["TO" + "DO", "FIX" + "ME", "for" + " now"]:
            self.assertIn(word, self.messages("a.py", f"# {word}: later")[0])
        self.assertEqual(self.messages("a.py", "# forks nowhere"), [])


class Documents(unittest.TestCase):
    def messages(self, text, *existing):
        return [message for _, message in document_rules.check("docs/A.md", text, lambda path: path in existing)]

    def test_a_link_is_taken_from_the_documents_folder(self):
        text = "See [b](../B.md#part) and [site](https://example.org/x)."
        self.assertEqual(self.messages(text, "B.md"), [])
        self.assertIn("links to", self.messages(text)[0])

    def test_a_named_file_must_exist(self):
        self.assertEqual(self.messages("`host/ge/A.h` and `main.cpp`", "host/ge/A.h"), [])
        self.assertIn('names "host/ge/A.h"', self.messages("open `host/ge/A.h`, `host/db/B.h`", "host/db/B.h")[0])


class Walk(unittest.TestCase):
    def test_a_bad_include_in_a_tree_fails_the_check(self):
        with tempfile.TemporaryDirectory() as root:
            write(root, "host/afx/A.cpp", OPENING + '#include "host/ge/B.h"\n')
            write(root, "host/ge/B.h", OPENING + "#pragma once\n")
            write(root, "build/host/afx/C.cpp", '#include "host/ge/B.h"\n')
            self.assertEqual(list(check_repository.check_includes(root)),
                             [("host/afx/A.cpp", 2, 'may not include "host/ge/B.h"')])
            self.assertEqual(list(check_repository.check_texts(root)), [])

    @unittest.skipUnless(format_rules.is_available(), "needs clang-format")
    def test_an_unformatted_file_is_found(self):
        with tempfile.TemporaryDirectory() as root:
            write(root, ".clang-format", "BasedOnStyle: LLVM\n")
            write(root, "host/afx/A.cpp", "int  a ;\n")
            write(root, "host/afx/B.cpp", "int a;\n")
            self.assertEqual([path for path, _, _ in check_repository.check_format(root)], ["host/afx/A.cpp"])


if __name__ == "__main__":
    unittest.main()
