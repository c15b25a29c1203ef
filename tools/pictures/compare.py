#!/usr/bin/python3
"""Draws drawings with zpcad and with ezdxf's drawing add-on, and puts each pair beside each other:

    tools/pictures/compare.py build/release/bin/zpcad docs/pictures [NAME...]

Needs the Debian packages python3-ezdxf, python3-matplotlib and python3-pil. ezdxf is the second opinion on shapes,
colours and places; it draws no viewports, clips no insertions, has no Chinese font here and draws lines heavier.
"""

import subprocess
import sys
import tempfile
from pathlib import Path

import ezdxf.recover
import matplotlib
from ezdxf.addons.drawing import Frontend, RenderContext
from ezdxf.addons.drawing.matplotlib import MatplotlibBackend
from PIL import Image, ImageChops

import figures

matplotlib.use("Agg")
from matplotlib import pyplot  # noqa: E402  the drawing target must be chosen first

SOURCE = Path(__file__).resolve().parents[2]
DRAWINGS = SOURCE / "tests/data/drawings"
SIDE = 640  # pixels of one picture's longer side
GAP = 24
COLORS = 96  # of the palette of a committed picture

# Name: drawing, then the layout that is shown, if it isn't model space.
PAIRS = {
    "sample-plan": (SOURCE / "examples/sample-plan.dxf", None),
    "figures": (None, None),
    "text": (DRAWINGS / "text.dxf", None),
    "columns": (DRAWINGS / "columns_R2018.dxf", None),
    "chinese": (DRAWINGS / "chinese_blocks_R2013.dxf", None),
    "hatches": (DRAWINGS / "hatches.dxf", None),
    "uncommon": (DRAWINGS / "uncommon.dxf", None),
    "insertions": (DRAWINGS / "insert_nested.dxf", None),
    "by-block": (DRAWINGS / "byblock_bylayer.dxf", None),
    "clipped": (DRAWINGS / "xclip.dxf", None),
    "table": (DRAWINGS / "table_with_block.dxf", None),
    "viewports": (DRAWINGS / "viewports.dxf", "Layout1"),
    "sheet": (DRAWINGS / "window_details.dxf", "Sheet 3"),
}


def draw_ours(program, drawing, layout, target):
    lines = ["EXPORT", str(target), *(["L", layout] if layout else ["E"]), ""]
    with tempfile.TemporaryDirectory() as data:
        result = subprocess.run([program, "--console", "--data", data, str(drawing)], input="\n".join(lines) + "\n",
                                text=True, capture_output=True, check=False)
    if not target.exists():
        sys.exit(f"zpcad made no picture of {drawing}:\n{result.stdout}{result.stderr}")


def draw_theirs(drawing, layout, target):
    document, _ = ezdxf.recover.readfile(drawing)
    space = document.layouts.get(layout) if layout else document.modelspace()
    figure = pyplot.figure(figsize=(8, 8))
    axes = figure.add_axes([0, 0, 1, 1])
    context = RenderContext(document)
    context.set_current_layout(space)
    context.current_layout_properties.set_colors("#ffffff")
    Frontend(context, MatplotlibBackend(axes)).draw_layout(
        space, finalize=True, layout_properties=context.current_layout_properties)
    figure.savefig(target, dpi=200)
    pyplot.close(figure)


def trimmed(path):
    image = Image.open(path).convert("RGB")
    box = ImageChops.difference(image, Image.new("RGB", image.size, "white")).getbbox()
    image = image.crop(box) if box else image
    image.thumbnail((SIDE, SIDE), Image.LANCZOS)
    return image


def make_pair(program, name, folder):
    drawing, layout = PAIRS[name]
    with tempfile.TemporaryDirectory() as scratch:
        scratch = Path(scratch)
        if drawing is None:
            drawing = scratch / "figures.dxf"
            figures.make(drawing)
        draw_ours(program, drawing, layout, scratch / "ours.png")
        draw_theirs(drawing, layout, scratch / "theirs.png")
        left, right = trimmed(scratch / "ours.png"), trimmed(scratch / "theirs.png")
    pair = Image.new("RGB", (2 * SIDE + 3 * GAP, max(left.height, right.height) + 2 * GAP), "white")
    pair.paste(left, (GAP, GAP))
    pair.paste(right, (SIDE + 2 * GAP, GAP))
    pair.paste((170, 170, 170), (SIDE + GAP + GAP // 2, 0, SIDE + GAP + GAP // 2 + 1, pair.height))
    pair.quantize(COLORS, Image.MAXCOVERAGE).save(folder / f"{name}.png", optimize=True)


def main(arguments):
    if len(arguments) < 2:
        sys.exit(__doc__)
    folder = Path(arguments[1])
    folder.mkdir(parents=True, exist_ok=True)
    for name in arguments[2:] or PAIRS:
        make_pair(arguments[0], name, folder)
        print(name)


if __name__ == "__main__":
    main(sys.argv[1:])
