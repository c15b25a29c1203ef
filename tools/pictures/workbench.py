#!/usr/bin/env python3
"""Draws the pictures of the workbench's commands for docs/pictures.

Usage: tools/pictures/workbench.py BUILD-FOLDER [OUTPUT-FOLDER]
Each picture is what EXPORT writes after a script; the drawing is given up."""

import sys

import exported

MAINS = """WB_HZGG
采暖供水干管
镀锌钢管(普通)
50
2.8
0,0
9000,0
9000,5000
3000,9000
3000,5000

WB_HZGG
采暖回水干管


2.6
0,-1200
10200,-1200
10200,5600
3600,10000

"""
RISERS = """WB_BZLG
采暖供水立管

25
0
3.6
空心
150
GL
1
3000,5000

WB_BZLG
采暖回水立管




实心


2
3600,10000

"""
SIZES = "".join(f"WB_GJJS\n{at}\nQ\n{load}\n75\n50\n\n"
                for at, load in (("4000,0", 60), ("9000,2500", 30), ("6000,7000", 15), ("3000,7000", 8),
                                 ("4000,-1200", 60), ("10200,3000", 30)))
LABELS = """WB_GXBZ
4000,0

9000,2500
9100,2500
6000,7000

3000,7500
2900,7500
4000,-1200
4000,-2000
10200,3000
10300,3000
3000,5150
3600,10150

"""
WINDOW = ("-700,-2700", "12700,11100")
SIZE = "140x144"
# Name of the picture, and what is typed ahead of EXPORT.
PICTURES = {
    "workbench-mains": MAINS + RISERS,
    "workbench-labels": MAINS + RISERS + SIZES + LABELS,
}
DAY = exported.ROOT / "tests" / "drawings" / "working_day" / "script.scr"


def main(arguments):
    program, output = exported.program_and_output(arguments, __doc__)
    drawn = DAY.read_text(encoding="utf-8").split(";=== 存盘")[0]
    exported.draw(program, output / "workbench-day.png", drawn, ("-500,-500", "24500,17000"), "250x175",
                  [exported.ROOT / "examples" / "sample-plan.dxf"])
    for picture, lines in PICTURES.items():
        exported.draw(program, output / f"{picture}.png", lines, WINDOW, SIZE)


if __name__ == "__main__":
    main(sys.argv[1:])
