#!/usr/bin/env python3
"""Plays the working day of the drawing tests and has ezdxf look at the drawing that was saved: its auditor must find
nothing, and the data of the pipes must be there under their keys, each key an application of its own.

Usage: check_working_day.py ZPCAD SOURCE-FOLDER
Prints a line for each finding. Exit status 0 without findings, 1 with, 77 when ezdxf is missing.
"""

import json
import logging
import math
import sys
import tempfile
from pathlib import Path

try:
    import ezdxf
except ImportError:
    sys.exit(77)

logging.disable(logging.CRITICAL)
COMMON = ["管材", "管径", "流量", "流速", "比摩阻", "沿程阻力"]
KEYS = {"LINE": COMMON + ["相对标高"], "INSERT": COMMON + ["始点标高", "终点标高", "编号", "编号前缀"]}

# What the day draws.
COUNTS = {"mains": 32, "sized": 32, "risers": 4, "bends": 16}


def pipe_data(entity):
    """What the entity has under the keys of its kind; each value is one text."""
    data = {}
    for key in KEYS.get(entity.dxftype(), []):
        if entity.has_xdata(key):
            tags = [tag for tag in entity.get_xdata(key) if tag.code != 1001]
            data[key] = tags[0].value if [tag.code for tag in tags] == [1000] else tags
    return data


def inner_diameters(source):
    """Millimetres, by material and nominal diameter, as the shipped catalogue has them."""
    tree = json.loads((source / "data/Data/PipeMaterial.idp").read_text(encoding="utf-8"))
    table = {}
    for _, material in tree[1]["管材管径方案"][1].values():
        for name, (_, fields) in material.items():
            for _, row in fields["管径数据"][1].values():
                table[name, row["公称直径"]] = row["内径"]
    return table


def check_pipe(entity, data, inner):
    where = f"{entity.dxftype()} {entity.dxf.handle}"
    missing = [key for key in KEYS[entity.dxftype()] if key not in data]
    if missing:
        yield f"{where}: lacks {missing}"
        return
    unregistered = [key for key in data if not entity.doc.appids.has_entry(key)]
    if unregistered:
        yield f"{where}: {unregistered} are no applications of the drawing"
    number = {key: float(data[key]) for key in ("管径", "流量", "流速", "比摩阻", "沿程阻力")}
    if number["流量"] == 0:
        return
    metres = inner[data["管材"], number["管径"]] / 1000
    velocity = number["流量"] / 3600 / (math.pi * metres * metres / 4)
    if abs(velocity - number["流速"]) > 2e-5:
        yield f"{where}: {number['流速']} m/s instead of {velocity}"
    if entity.dxftype() == "INSERT":
        length = abs(float(data["终点标高"]) - float(data["始点标高"]))
    else:
        length = entity.dxf.start.distance(entity.dxf.end) / 1000
    # The crossing bends shorten a pipe a little after it was sized.
    if not 0.85 < number["比摩阻"] * length / number["沿程阻力"] < 1.001:
        yield f"{where}: {number['沿程阻力']} Pa over {length} m at {number['比摩阻']} Pa/m"


def check(drawing, source):
    auditor = drawing.audit()
    yield from (f"audit: {entry.code} {entry.message}" for entry in auditor.errors + auditor.fixes)
    inner = inner_diameters(source)
    counts = {"mains": 0, "sized": 0, "risers": 0, "bends": 0}
    for entity in drawing.modelspace():
        data = pipe_data(entity)
        if not data:
            continue
        yield from check_pipe(entity, data, inner)
        kind = "mains" if entity.dxftype() == "LINE" else "bends" if entity.has_xdata("扣弯") else "risers"
        counts[kind] += 1
        counts["sized"] += float(data.get("流量", 0)) > 0
    if counts != COUNTS:
        yield f"found {counts} instead of {COUNTS}"


def main():
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    program, source = (Path(argument).resolve() for argument in sys.argv[1:])
    sys.path.insert(0, str(source / "tests/drawings"))
    import run_case

    with tempfile.TemporaryDirectory() as name:
        folder = Path(name).resolve()
        status, output = run_case.run(program, source / "tests/drawings/working_day", folder)
        if status != 0:
            sys.exit(f"the script ended with {status}:\n{output}")
        findings = list(check(ezdxf.readfile(folder / "output.dxf"), source))
    print("\n".join(findings) if findings else "nothing to object to")
    return 1 if findings else 0


if __name__ == "__main__":
    sys.exit(main())
