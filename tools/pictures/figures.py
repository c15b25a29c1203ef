"""A drawing with what real drawings are hard to find for: hatch patterns, linetypes, weights, widths, formatted text."""

import ezdxf
from ezdxf.enums import TextEntityAlignment


def hatches(space):
    for i, (name, scale) in enumerate([("ANSI31", 5), ("ANSI37", 5), ("BRICK", 2), ("DOTS", 8), ("GRAVEL", 2)]):
        hatch = space.add_hatch(color=i + 1)
        hatch.set_pattern_fill(name, scale=scale)
        x = i * 110
        hatch.paths.add_polyline_path([(x, 0), (x + 100, 0), (x + 100, 100), (x, 100)], is_closed=True, flags=1)
        hatch.paths.add_polyline_path([(x + 30, 50, 1), (x + 70, 50, 1)], is_closed=True, flags=16)
        space.add_text(name, dxfattribs={"height": 8, "insert": (x, -14)})


def linetypes(space):
    for i, name in enumerate(["CENTER", "DASHED", "PHANTOM", "DOT", "DIVIDE"]):
        y = 130 + i * 12
        weight = [13, 25, 35, 50, 100][i]
        space.add_line((0, y), (160, y), {"linetype": name, "ltscale": 20, "lineweight": weight})
        space.add_circle((200 + 25 * i, 154), 10 + 2 * i, {"linetype": name, "ltscale": 8})
        space.add_text(name, dxfattribs={"height": 6, "insert": (-50, y - 3)})


def widths(space):
    space.add_lwpolyline([(330, 130, 0, 8, 0), (380, 130, 8, 8, 1), (380, 170, 8, 0, 0), (330, 180)], format="xyseb")
    space.add_lwpolyline([(420, 140, 1), (450, 140, 1)], format="xyb", close=True, dxfattribs={"const_width": 8})
    space.add_lwpolyline([(480, 130), (530, 130), (530, 180), (480, 180)], close=True, dxfattribs={"const_width": 5})


def texts(space, doc):
    doc.styles.add("narrow", font="arial.ttf").dxf.width = 0.7
    for i, alignment in enumerate([TextEntityAlignment.LEFT, TextEntityAlignment.MIDDLE_CENTER,
                                   TextEntityAlignment.TOP_RIGHT]):
        space.add_text("%%c50 %%p0.1 45%%d", dxfattribs={"height": 10, "style": "narrow", "oblique": 15 * i,
                       "rotation": 15 * i}).set_placement((50 + 130 * i, 240), align=alignment)
        space.add_circle((50 + 130 * i, 240), 2, {"color": 1})
    space.add_mtext("{\\C1;red} and {\\H1.5x;high}, \\Lunder\\l \\Oover\\o, {\\W1.6;wide} {\\Q20;slanted}"
                    "\\P\\pqc;in the middle \\S1/2;\\P\\pqr;to the right {\\S+0.1^-0.2;}",
                    {"char_height": 10, "width": 170, "insert": (370, 330), "attachment_point": 1})


def make(path):
    doc = ezdxf.new("R2010", setup=True)
    space = doc.modelspace()
    hatches(space)
    linetypes(space)
    widths(space)
    texts(space, doc)
    doc.saveas(path)
