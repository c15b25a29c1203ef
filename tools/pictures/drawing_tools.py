#!/usr/bin/env python3
"""Draws the pictures of docs/drawing-tools.md.

Usage: tools/pictures/drawing_tools.py BUILD-FOLDER [OUTPUT-FOLDER]
Each pair is a drawing of the tests before and after a tool of the workbench has worked on it."""

import sys

import exported

DRAWINGS = exported.ROOT / "tests" / "drawings"

GROUP = """WB_CZTD
w -100,-400 2200,600

0,0
R
5000,3000
"""
# The column goes: no tool could do that to a reference.
XREFS = """WB_FZCZ
ERASE
5800,3000

"""
WALLS = """PLINE
0,0
6000,0
6000,4000
0,4000
C
PLINE
6000,0
12000,0
12000,4000
6000,4000
C
"""
ROOMS = """WB_BZFJ
101
办公室
S
3000,0
2200,2000
1250.5
2100.25
1480
2333
18.5
WB_BZFJ

会议室
S
9000,0
8200,2000
1800

1900

20
"""
ROOM = ("-500,-500", "12500,4500")
GROUPED = ("-500,-1500", "7000,8500")
REFERRED = ("-300,-300", "8300,5300")
# Name, what is typed ahead of EXPORT, window, size of the sheet, files.
PICTURES = [
    ("group-before", "", GROUPED, "90x120", [DRAWINGS / "workbench_group/input.dxf"]),
    ("group-after", GROUP, GROUPED, "90x120", [DRAWINGS / "workbench_group/input.dxf"]),
    ("xrefs-before", "", REFERRED, "129x84", [DRAWINGS / "workbench_xrefs/input.dxf", DRAWINGS / "workbench_xrefs/floor.dxf"]),
    ("xrefs-after", XREFS, REFERRED, "129x84", [DRAWINGS / "workbench_xrefs/input.dxf", DRAWINGS / "workbench_xrefs/floor.dxf"]),
    ("rooms-before", WALLS, ROOM, "130x50", []),
    ("rooms-after", WALLS + ROOMS, ROOM, "130x50", []),
]


def main(arguments):
    program, output = exported.program_and_output(arguments, __doc__)
    for name, lines, window, size, files in PICTURES:
        exported.draw(program, output / f"tools-{name}.png", lines, window, size, files)


if __name__ == "__main__":
    main(sys.argv[1:])
