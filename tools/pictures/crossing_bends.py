#!/usr/bin/env python3
"""Draws the pictures of docs/crossing-bends.md.

Usage: tools/pictures/crossing_bends.py BUILD-FOLDER [OUTPUT-FOLDER]
Each pair is what stands in a drawing test of the workbench before its bends are made, and after."""

import sys

import exported

CASES = exported.ROOT / "tests" / "drawings"
COMMAND = "WB_SCKW"
RADIUS = "R\n150\n"  # large enough to be seen in a picture

# Name: window, size of the sheet.
PICTURES = {
    "corner": (("-300,-600", "2600,1800"), "90x75"),
    "tees": (("-300,-600", "4300,1800"), "120x63"),
    "chain": (("-300,-1800", "6600,1800"), "150x79"),
    "again": (("-300,-600", "4300,2100"), "110x65"),
    "arcs": (("-300,-600", "5300,3600"), "110x83"),
}


def script(case):
    """What the case types up to the end of its first bends: without them, and with them."""
    lines = (CASES / f"workbench_bends_{case}" / "script.scr").read_text(encoding="utf-8").splitlines(keepends=True)
    at = lines.index(COMMAND + "\n")
    return "".join(lines[:at]), "".join(lines[:at + 1]) + RADIUS + "\nall\n\n"


def main(arguments):
    program, output = exported.program_and_output(arguments, __doc__)
    for name, (window, size) in PICTURES.items():
        for stage, lines in zip(("before", "after"), script(name)):
            exported.draw(program, output / f"bends-{name}-{stage}.png", lines, window, size)
    # Again: the middle main is raised, and the bends are made anew.
    window, size = PICTURES["again"]
    raised = script("again")[1] + f"WB_GXSX\n2000,750\nE\n4\n\n{COMMAND}\n\nall\n\n"
    exported.draw(program, output / "bends-again-anew.png", raised, window, size)


if __name__ == "__main__":
    main(sys.argv[1:])
