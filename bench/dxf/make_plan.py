#!/usr/bin/env python3
"""Makes the plan of pipes that the figures are taken from, the same one every time, with ezdxf.

Usage: make_plan.py MEGABYTES OUT.dxf [VERSION] [ENCODING]        VERSION: R2000, R2010 ...; ENCODING: gbk ...

Each pipe is a line and a polyline of 4 to 12 vertices, some with bulges, both with extended data; every second one
has an arc and a text, the others a fitting inserted, half of those with an attribute. 60 layers with Chinese names,
6 linetypes, 12 blocks, 3 applications.
"""

import math
import random
import sys

import ezdxf

MEGABYTES_PER_PIPE = 1475.3 / 1e6  # measured on R2010
SYSTEMS = ["送风管", "回风管", "排风管", "新风管", "冷冻供水", "冷冻回水", "冷却供水", "冷却回水", "采暖供水",
           "采暖回水", "冷凝水", "排烟管"]
KINDS = ["管线", "中心线", "附件", "标注", "设备"]
LINETYPES = ["CONTINUOUS", "CENTER", "DASHED", "HIDDEN", "PHANTOM", "DOT"]
DIAMETERS = [15, 20, 25, 32, 40, 50, 65, 80, 100, 150, 200]
QUARTER = 0.4142135623730951  # bulge of a quarter of a circle


def add_blocks(document):
    names = []
    for i in range(12):
        block = document.blocks.new(f"阀门_{i:02d}")
        names.append(block.name)
        block.add_line((-100, -50), (100, 50))
        block.add_line((-100, 50), (100, -50))
        block.add_lwpolyline([(-100, -50), (100, -50), (100, 50), (-100, 50)], close=True)
        block.add_circle((0, 0), 40 + i)
        block.add_attdef("TAG", (0, 60), "V-00", height=50)
    return names


def set_extended_data(entity, i, chance):
    entity.set_xdata("HVAC_PIPE", [
        (1000, f"PIPE-{i:07d}"), (1002, "{"), (1000, "系统=" + SYSTEMS[i % 12]), (1070, i % 32000), (1071, i),
        (1040, 100.0 + i % 900), (1040, chance.uniform(0, 25)),
        (1010, (chance.uniform(0, 1e5), chance.uniform(0, 1e5), 3200.0)), (1005, f"{(i % 5000) + 256:X}"), (1002, "}")])


def add_pipe(space, i, layers, blocks, chance):
    x, y = chance.uniform(0, 200000), chance.uniform(0, 120000)
    length = chance.uniform(500, 12000)
    angle = chance.choice([0, 90, 45, chance.uniform(0, 360)])
    dx, dy = length * math.cos(math.radians(angle)), length * math.sin(math.radians(angle))
    own = (i % 12) * 5
    set_extended_data(space.add_line((x, y, 3200), (x + dx, y + dy, 3200), {"layer": layers[own], "color": 256}), i,
                      chance)
    vertices = [(x + chance.uniform(-3000, 3000), y + chance.uniform(-3000, 3000), 0, 0,
                 chance.choice([0, 0, 0, QUARTER])) for _ in range(chance.randint(4, 12))]
    attributes = {"layer": layers[own + 1], "linetype": "CENTER", "const_width": 0}
    set_extended_data(space.add_lwpolyline(vertices, dxfattribs=attributes), i, chance)
    if i % 2 == 0:
        space.add_arc((x, y), chance.uniform(50, 900), angle, angle + 90,
                      dxfattribs={"layer": layers[own], "lineweight": 35})
        space.add_text(f"DN{chance.choice(DIAMETERS)} 标高{chance.uniform(2, 4):.3f}m",
                       dxfattribs={"layer": layers[own + 3], "height": 250, "style": "宋体", "insert": (x, y),
                                   "rotation": angle})
        return
    fitting = space.add_blockref(chance.choice(blocks), (x + dx / 2, y + dy / 2),
                                 {"layer": layers[own + 2], "rotation": angle, "xscale": 1.5, "yscale": 1.5})
    if i % 4 == 1:
        fitting.add_attrib("TAG", f"V-{i}", (x, y), {"layer": layers[own + 3], "height": 50})


def main(arguments):
    megabytes, out = float(arguments[0]), arguments[1]
    document = ezdxf.new(arguments[2] if len(arguments) > 2 else "R2010", setup=True)
    if len(arguments) > 3:
        document.encoding = arguments[3]
    chance = random.Random(20240607)
    layers = [f"暖通-{system}-{kind}" for system in SYSTEMS for kind in KINDS]
    for i, name in enumerate(layers):
        document.layers.add(name, color=1 + i % 250, linetype=LINETYPES[i % len(LINETYPES)])
    document.styles.add("宋体", font="simsun.ttf")
    for application in ("HVAC_PIPE", "HVAC_TAG", "HVAC_CONN"):
        document.appids.add(application)
    blocks = add_blocks(document)
    space = document.modelspace()
    for i in range(int(megabytes / MEGABYTES_PER_PIPE)):
        add_pipe(space, i, layers, blocks, chance)
    document.saveas(out)


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
