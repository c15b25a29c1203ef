#!/usr/bin/env python3
"""The runner must find what is wrong: a runner that passes everything would hide every fault."""

import stat
import tempfile
import unittest
from pathlib import Path

import run_case

PROGRAM = """#!/bin/sh
echo "in $(pwd)"
printf '  0\\nLINE\\n 10\\n1.50\\n' > output.dxf
echo x > extra.txt
exit 3
"""


class RunCase(unittest.TestCase):
    def setUp(self):
        self.place = tempfile.TemporaryDirectory()
        self.addCleanup(self.place.cleanup)
        self.root = Path(self.place.name)
        self.program = self.root / "program"
        self.program.write_text(PROGRAM, encoding="utf-8")
        self.program.chmod(self.program.stat().st_mode | stat.S_IXUSR)
        self.case = self.root / "case"
        self.case.mkdir()
        self.write("script.scr", "")
        self.write("status.txt", "3")
        self.write("expected.txt", "in {dir}\n")
        self.write("expected-files.txt", "extra.txt")
        self.write("expected.dxf", "0\nLINE\n10\n1.5\n")

    def write(self, name, text):
        (self.case / name).write_text(text, encoding="utf-8")

    def findings(self):
        folder = self.root / "run"
        folder.mkdir()
        return list(run_case.check(self.program, self.case, folder.resolve()))

    def test_a_case_that_fits_passes(self):
        self.assertEqual([], self.findings())

    def test_another_status_fails(self):
        self.write("status.txt", "0")
        self.assertIn("exit status 3", self.findings()[0])

    def test_another_output_fails(self):
        self.write("expected.txt", "in {dir}")
        self.assertIn("printed", self.findings()[0])

    def test_another_drawing_fails(self):
        self.write("expected.dxf", "0\nLINE\n10\n1.6\n")
        self.assertIn("tag 1", self.findings()[0])

    def test_the_data_that_a_case_asks_for_is_copied_and_is_no_added_file(self):
        data = self.root / "shipped"
        (data / "Data").mkdir(parents=True)
        (data / "Data" / "table.idp").write_text("x", encoding="utf-8")
        self.write("data.txt", f"{data}\n")
        self.assertEqual([], self.findings())
        self.assertEqual("x", (self.root / "run" / "data" / "Data" / "table.idp").read_text(encoding="utf-8"))

    def test_a_shorter_drawing_fails(self):
        self.write("expected.dxf", "0\nLINE\n10\n1.5\n0\nEOF\n")
        self.assertIn("3 tags", self.findings()[0])

    def test_an_unexpected_file_fails(self):
        (self.case / "expected-files.txt").unlink()
        self.assertIn("extra.txt", self.findings()[0])


if __name__ == "__main__":
    unittest.main()
