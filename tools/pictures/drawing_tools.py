#!/usr/bin/env python3
"""Draws the pictures of docs/drawing-tools.md.

Usage: tools/pictures/drawing_tools.py BUILD-FOLDER [OUTPUT-FOLDER]
Each is a drawing of the tests before, while or after a tool of the workbench works on it."""

import sys

import exported

DRAWINGS = exported.ROOT / "tests" / "drawings"

AREA = """WB_CLMJ
0,0
6000,0
A
6000,4000
8000,2000
L
0,4000
drag 300,2500
"""
# Dragged, and then dropped.
DRAGGED = """WB_CZTD
w -100,-400 2200,600

0,0
R
drag 3600,2600
"""
DROPPED = DRAGGED + "5000,3000\n"
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
# In the program's window: name, what is typed, window of model space, files.
SHOTS = [
    ("measure", AREA, ("-1500,-1500", "9500,5500"), [DRAWINGS / "workbench_measure/expected.dxf"]),
    ("group-dragged", DRAGGED, ("-500,-1500", "10000,8500"), [DRAWINGS / "workbench_group/input.dxf"]),
    ("xrefs-before", "", ("-300,-300", "8300,5300"),
     [DRAWINGS / "workbench_xrefs/input.dxf", DRAWINGS / "workbench_xrefs/floor.dxf"]),
    ("xrefs-after", XREFS, ("-300,-300", "8300,5300"),
     [DRAWINGS / "workbench_xrefs/input.dxf", DRAWINGS / "workbench_xrefs/floor.dxf"]),
]
ROOM = ("-500,-500", "12500,4500")
GROUPED = ("-500,-1500", "7000,8500")
# As EXPORT writes them: name, what is typed, window of model space, size of the sheet, files.
PICTURES = [
    ("group-before", "", GROUPED, "90x120", [DRAWINGS / "workbench_group/input.dxf"]),
    ("group-after", DROPPED, GROUPED, "90x120", [DRAWINGS / "workbench_group/input.dxf"]),
    ("rooms-before", WALLS, ROOM, "130x50", []),
    ("rooms-after", WALLS + ROOMS, ROOM, "130x50", []),
]


def main(arguments):
    program, output = exported.program_and_output(arguments, __doc__)
    for name, lines, window, size, files in PICTURES:
        exported.draw(program, output / f"tools-{name}.png", lines, window, size, files)
    for name, lines, window, files in SHOTS:
        exported.shoot(program, output / f"tools-{name}.png", lines, window, files)


if __name__ == "__main__":
    main(sys.argv[1:])
