#!/usr/bin/env python3
"""Writes sample-plan.dxf: one floor of a small office building with its radiator heating, in millimetres.
usage: make_sample_plan.py > sample-plan.dxf"""

import sys

LAYERS = [  # name, colour, linetype, weight in hundredths of a millimetre
    ("0", 7, "Continuous", -3),
    ("建筑-墙", 8, "Continuous", 50),
    ("建筑-窗", 4, "Continuous", 25),
    ("建筑-房间名称", 7, "Continuous", 18),
    ("暖通-采暖-供水-干管", 1, "Continuous", 50),
    ("暖通-采暖-回水-干管", 5, "DASHED", 50),
    ("暖通-采暖-供水-支管", 1, "Continuous", 35),
    ("暖通-采暖-回水-支管", 5, "DASHED", 35),
    ("暖通-采暖-供水-立管", 1, "Continuous", 50),
    ("暖通-采暖-散热器", 2, "Continuous", 35),
    ("暖通-公用-文字", 7, "Continuous", 18),
]
ROOMS = [  # name, left edge, width, radiator sections
    ("办公室 101", 0, 6000, 14),
    ("办公室 102", 6000, 6000, 14),
    ("会议室 103", 12000, 8000, 20),
    ("值班室 104", 20000, 4000, 9),
]
DEPTH = 7000
LENGTH = 24000
BULGE = 0.41421356237309503  # a quarter circle


class Writer:
    def __init__(self):
        self.lines = []
        self.next_handle = 0x100

    def tag(self, *pairs):
        for code, value in zip(pairs[::2], pairs[1::2]):
            self.lines += [f"{code:3d}", f"{value:.1f}" if isinstance(value, float) and value == int(value) else str(value)]

    def handle(self):
        self.next_handle += 1
        return f"{self.next_handle:X}"

    def section(self, name):
        self.tag(0, "SECTION", 2, name)

    def end_section(self):
        self.tag(0, "ENDSEC")


class Table:
    """One symbol table; entries are added with their own fields."""

    def __init__(self, writer, name, handle, count):
        self.writer, self.name, self.own = writer, name, handle
        writer.tag(0, "TABLE", 2, name, 5, handle, 330, "0", 100, "AcDbSymbolTable", 70, count)

    def entry(self, marker, name, *fields, handle=None, handle_code=5):
        self.writer.tag(0, self.name, handle_code, handle or self.writer.handle(), 330, self.own,
                        100, "AcDbSymbolTableRecord", 100, marker, 2, name, 70, 0, *fields)

    def end(self):
        self.writer.tag(0, "ENDTAB")


def header(w):
    w.section("HEADER")
    w.tag(9, "$ACADVER", 1, "AC1024", 9, "$DWGCODEPAGE", 3, "ANSI_936", 9, "$INSUNITS", 70, 4,
          9, "$MEASUREMENT", 70, 1, 9, "$LTSCALE", 40, 500.0, 9, "$CLAYER", 8, "0", 9, "$HANDSEED", 5, "1000")
    w.end_section()


def tables(w):
    w.section("TABLES")
    viewports = Table(w, "VPORT", "8", 1)
    viewports.entry("AcDbViewportTableRecord", "*Active", 10, 0.0, 20, 0.0, 11, 1.0, 21, 1.0, 12, LENGTH / 2, 22, DEPTH / 2,
                    40, DEPTH * 2.0, 41, 2.0)
    viewports.end()
    linetypes = Table(w, "LTYPE", "5", 4)
    for name in ("ByBlock", "ByLayer", "Continuous"):
        linetypes.entry("AcDbLinetypeTableRecord", name, 3, "", 72, 65, 73, 0, 40, 0.0)
    linetypes.entry("AcDbLinetypeTableRecord", "DASHED", 3, "__ __ __ __", 72, 65, 73, 2, 40, 0.75, 49, 0.5, 74, 0,
                    49, -0.25, 74, 0)
    linetypes.end()
    layers = Table(w, "LAYER", "2", len(LAYERS))
    for name, color, linetype, weight in LAYERS:
        layers.entry("AcDbLayerTableRecord", name, 62, color, 6, linetype, 370, weight)
    layers.end()
    styles = Table(w, "STYLE", "3", 1)
    styles.entry("AcDbTextStyleTableRecord", "Standard", 40, 0.0, 41, 0.8, 50, 0.0, 71, 0, 42, 250.0, 3, "txt", 4, "gbcbig")
    styles.end()
    for name, handle in (("VIEW", "6"), ("UCS", "7")):
        Table(w, name, handle, 0).end()
    applications = Table(w, "APPID", "9", 1)
    applications.entry("AcDbRegAppTableRecord", "ACAD")
    applications.end()
    dimensions = Table(w, "DIMSTYLE", "A", 1)
    w.tag(100, "AcDbDimStyleTable")
    dimensions.entry("AcDbDimStyleTableRecord", "Standard", handle_code=105)
    dimensions.end()
    blocks = Table(w, "BLOCK_RECORD", "1", 4)
    for name, handle in BLOCK_RECORDS.items():
        w.tag(0, "BLOCK_RECORD", 5, handle, 330, "1", 100, "AcDbSymbolTableRecord", 100, "AcDbBlockTableRecord", 2, name)
    blocks.end()
    w.end_section()


BLOCK_RECORDS = {"*Model_Space": "1F", "*Paper_Space": "1B", "散热器": "40", "采暖立管": "41"}


def entity(w, kind, owner, layer, marker, *fields):
    w.tag(0, kind, 5, w.handle(), 330, owner, 100, "AcDbEntity", 8, layer, 100, marker, *fields)


class Space:
    """Where entities are drawn: a block or model space."""

    def __init__(self, writer, owner):
        self.w, self.owner = writer, owner

    def line(self, layer, x1, y1, x2, y2):
        entity(self.w, "LINE", self.owner, layer, "AcDbLine", 10, float(x1), 20, float(y1), 30, 0.0,
               11, float(x2), 21, float(y2), 31, 0.0)

    def circle(self, layer, x, y, radius):
        entity(self.w, "CIRCLE", self.owner, layer, "AcDbCircle", 10, float(x), 20, float(y), 30, 0.0, 40, float(radius))

    def polyline(self, layer, points, closed=False):
        fields = [90, len(points), 70, int(closed), 43, 0.0]
        for x, y, *bulge in points:
            fields += [10, float(x), 20, float(y)] + ([42, bulge[0]] if bulge else [])
        entity(self.w, "LWPOLYLINE", self.owner, layer, "AcDbPolyline", *fields)

    def text(self, layer, x, y, height, words):
        entity(self.w, "TEXT", self.owner, layer, "AcDbText", 10, float(x), 20, float(y), 30, 0.0, 40, float(height),
               1, words, 100, "AcDbText")

    def insert(self, layer, block, x, y):
        entity(self.w, "INSERT", self.owner, layer, "AcDbBlockReference", 2, block, 10, float(x), 20, float(y), 30, 0.0)


def blocks(w):
    def block(name, draw=lambda space: None):
        owner = BLOCK_RECORDS[name]
        w.tag(0, "BLOCK", 5, w.handle(), 330, owner, 100, "AcDbEntity", 8, "0", 100, "AcDbBlockBegin", 2, name, 70, 0,
              10, 0.0, 20, 0.0, 30, 0.0, 3, name, 1, "")
        draw(Space(w, owner))
        w.tag(0, "ENDBLK", 5, w.handle(), 330, owner, 100, "AcDbEntity", 8, "0", 100, "AcDbBlockEnd")

    def radiator(space):
        space.polyline("0", [(-600, 0), (600, 0), (600, 120), (-600, 120)], closed=True)
        for x in range(-500, 600, 100):
            space.line("0", x, 0, x, 120)

    def riser(space):
        space.circle("0", 0, 0, 60)
        space.circle("0", 0, 0, 30)

    w.section("BLOCKS")
    block("*Model_Space")
    block("*Paper_Space")
    block("散热器", radiator)
    block("采暖立管", riser)
    w.end_section()


def plan(w):
    space = Space(w, BLOCK_RECORDS["*Model_Space"])
    space.polyline("建筑-墙", [(0, 0), (LENGTH, 0), (LENGTH, DEPTH), (0, DEPTH)], closed=True)
    space.polyline("建筑-墙", [(-240, -240), (LENGTH + 240, -240), (LENGTH + 240, DEPTH + 240), (-240, DEPTH + 240)], closed=True)
    for _, left, _, _ in ROOMS[1:]:
        space.line("建筑-墙", left - 60, 0, left - 60, DEPTH)
        space.line("建筑-墙", left + 60, 0, left + 60, DEPTH)
    supply, back = DEPTH - 500, DEPTH - 800
    space.polyline("暖通-采暖-供水-干管", [(300, 300), (300, supply - 200, -BULGE), (500, supply), (LENGTH - 800, supply)])
    space.polyline("暖通-采暖-回水-干管", [(600, 300), (600, back - 200, -BULGE), (800, back), (LENGTH - 1100, back)])
    space.insert("暖通-采暖-供水-立管", "采暖立管", 300, 300)
    space.insert("暖通-采暖-供水-立管", "采暖立管", 600, 300)
    for name, left, width, sections in ROOMS:
        middle = left + width / 2
        space.line("建筑-窗", middle - 900, -120, middle + 900, -120)
        space.text("建筑-房间名称", middle - 900, DEPTH / 2, 350, name)
        space.insert("暖通-采暖-散热器", "散热器", middle, 100)
        space.line("暖通-采暖-供水-支管", middle - 700, supply, middle - 700, 190)
        space.line("暖通-采暖-供水-支管", middle - 700, 190, middle - 600, 190)
        space.line("暖通-采暖-回水-支管", middle + 700, back, middle + 700, 130)
        space.line("暖通-采暖-回水-支管", middle + 700, 130, middle + 600, 130)
        space.text("暖通-公用-文字", middle - 400, 300, 250, f"{sections}片")
    space.text("暖通-公用-文字", LENGTH / 2, supply + 80, 250, "DN32 i=0.003")


def main():
    w = Writer()
    header(w)
    w.section("CLASSES")
    w.end_section()
    tables(w)
    blocks(w)
    w.section("ENTITIES")
    plan(w)
    w.end_section()
    w.section("OBJECTS")
    w.tag(0, "DICTIONARY", 5, "C", 330, "0", 100, "AcDbDictionary", 281, 1, 3, "ACAD_GROUP", 350, "D")
    w.tag(0, "DICTIONARY", 5, "D", 330, "C", 100, "AcDbDictionary", 281, 1)
    w.end_section()
    w.tag(0, "EOF")
    sys.stdout.buffer.write(("\r\n".join(w.lines) + "\r\n").encode("utf-8"))


if __name__ == "__main__":
    main()
