#!/usr/bin/env python3
"""Takes the figures of this folder: runs the programs in turn, several rounds, and prints medians and their ratios.

Usage: ratios.py PROGRAMS FOLDER [--rounds N] [--no-peers]
  PROGRAMS   the folder with bench_dxf and its kin, such as build/release/bench/dxf
  FOLDER     where plan_10.dxf and plan_100.dxf are, made by make_plan.py, and where copies are written

A time is the processor's, user and system together, of the whole process: it does not depend on what else the machine
does. Memory is the most that the process held. The exit status is 1 when a figure is above what is required of it.
"""

import argparse
import os
import statistics
import subprocess
import sys

HERE = os.path.dirname(os.path.abspath(__file__))
SIZES = (10, 100)
REQUIRED_READ = 2.5      # times the floor
REQUIRED_REWRITE = 2.3   # times the floor that writes
REQUIRED_MEMORY = 350    # megabytes, for the plan of 100


def run(command):
    """Processor seconds and megabytes of one run."""
    process = subprocess.Popen(command, stdout=subprocess.DEVNULL)
    _, status, usage = os.wait4(process.pid, 0)
    process.returncode = os.waitstatus_to_exitcode(status)
    if process.returncode != 0:
        sys.exit(f"{' '.join(command)}: exit status {process.returncode}")
    return usage.ru_utime + usage.ru_stime, usage.ru_maxrss / 1024


def tasks(programs, folder, size, peers):
    """Rows (name, command, how many rounds at most)."""
    plan = os.path.join(folder, f"plan_{size}.dxf")
    out = os.path.join(folder, "copy.dxf")
    program = lambda name: os.path.join(programs, name)
    yield "floor, read", [program("bench_dxf_floor"), plan], None
    yield "read", [program("bench_dxf"), "read", plan], None
    yield "floor, read and write", [program("bench_dxf_floor"), plan, out], None
    yield "read and write", [program("bench_dxf"), "rewrite", plan, out], None
    if not peers:
        return
    if os.path.exists(program("bench_dxf_dxflib")):
        yield "dxflib, read", [program("bench_dxf_dxflib"), plan], None
    ezdxf = [os.environ.get("PYTHON", sys.executable), os.path.join(HERE, "peers", "ezdxf_read.py"), plan]
    yield "ezdxf, read", ezdxf, 1
    yield "ezdxf, read and write", ezdxf + [out], 1


def measure(arguments, size):
    rows = list(tasks(arguments.programs, arguments.folder, size, arguments.peers))
    runs = {name: [] for name, _, _ in rows}
    for turn in range(arguments.rounds):
        for name, command, limit in rows:
            if limit is None or turn < limit:
                runs[name].append(run(command))
    return {name: (statistics.median(t for t, _ in taken), max(m for _, m in taken)) for name, taken in runs.items()}


def main():
    parser = argparse.ArgumentParser(description="ratios of reading and writing drawings")
    parser.add_argument("programs")
    parser.add_argument("folder")
    parser.add_argument("--rounds", type=int, default=5)
    parser.add_argument("--no-peers", dest="peers", action="store_false")
    arguments = parser.parse_args()
    failed = False
    for size in SIZES:
        figures = measure(arguments, size)
        print(f"plan of {size} MB: seconds, ratio to its floor, megabytes")
        for name, (seconds, memory) in figures.items():
            floor = figures["floor, read and write" if "write" in name else "floor, read"][0]
            print(f"  {name:24}{seconds:8.3f}{seconds / floor:8.2f}{memory:8.0f}")
        checks = [("read", REQUIRED_READ, figures["read"][0] / figures["floor, read"][0]),
                  ("read and write", REQUIRED_REWRITE,
                   figures["read and write"][0] / figures["floor, read and write"][0])]
        if size == 100:
            checks.append(("memory", REQUIRED_MEMORY, figures["read and write"][1]))
        for name, required, measured in checks:
            if measured > required:
                print(f"  {name}: {measured:.2f}, required {required}")
                failed = True
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
