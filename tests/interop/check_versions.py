#!/usr/bin/env python3
"""Has drawings saved in every version and holds what others read of them against what they read of the originals:
ezdxf must find no error that is new, and dxflib as many lines, arcs, circles and insertions.

Usage: check_versions.py SAVE_IN_VERSIONS DRAWINGS [--dxflib READER]
Prints a line for each finding. Exit status 0 without findings, 1 with, 77 when ezdxf is missing.
"""

import argparse
import glob
import logging
import os
import subprocess
import sys
import tempfile

try:
    import ezdxf
except ImportError:
    sys.exit(77)

logging.disable(logging.CRITICAL)
VERSIONS = ["R12", "R2000", "R2004", "R2007", "R2010", "R2013", "R2018"]
# R12 gets polylines and texts for what it lacks, and dxflib draws nothing of that itself; the other three stay.
COUNTED = {"lines": 0, "arcs": 1, "circles": 2}


def errors_of(path):
    """What ezdxf objects to, or the exception that it ends with."""
    try:
        return {f"{error.code} {error.message}" for error in ezdxf.readfile(path).audit().errors}
    except Exception as error:  # whatever it is, it must not be new
        return {f"{type(error).__name__}"}


def counts_of(reader, path):
    result = subprocess.run([reader, path], stdout=subprocess.PIPE, text=True, check=False)
    return [int(count) for count in result.stdout.split()] if result.returncode == 0 else None


def check(source, saved, version, reader):
    path = os.path.join(saved, f"{os.path.basename(source)[:-4]}_{version}.dxf")
    new = errors_of(path) - errors_of(source)
    for error in sorted(new)[:5]:
        yield f"{os.path.basename(path)}: ezdxf: {error}"
    if not reader:
        return
    before, after = counts_of(reader, source), counts_of(reader, path)
    if before is None:
        return
    if after is None:
        yield f"{os.path.basename(path)}: dxflib does not read it"
        return
    for name, place in COUNTED.items():
        if after[place] < before[place]:
            yield f"{os.path.basename(path)}: dxflib finds {after[place]} {name}, {before[place]} in the original"


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("program")
    parser.add_argument("drawings")
    parser.add_argument("--dxflib")
    arguments = parser.parse_args()
    sources = sorted(glob.glob(os.path.join(arguments.drawings, "*.dxf")))
    findings = []
    with tempfile.TemporaryDirectory() as saved:
        subprocess.run([arguments.program, saved, *sources], check=True)
        for source in sources:
            for version in VERSIONS:
                findings += check(source, saved, version, arguments.dxflib)
    print("\n".join(findings) if findings else f"{len(sources)} drawings in {len(VERSIONS)} versions: nothing new")
    return 1 if findings else 0


if __name__ == "__main__":
    sys.exit(main())
