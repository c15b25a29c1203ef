#!/usr/bin/env python3
"""Runs one drawing test: run_case.py [--update] PROGRAM CASE-FOLDER. See README.md."""

import os
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

SOURCE = Path(__file__).resolve().parents[2]
DESCRIPTION = {"expected.txt", "expected.dxf", "expected-files.txt", "status.txt", "options.txt", "stdin.txt",
               "data.txt"}


def read_text(path, default=""):
    return path.read_text(encoding="utf-8") if path.exists() else default


def tags_of(data):
    lines = data.replace(b"\r\n", b"\n").split(b"\n")
    return [(int(lines[i]), lines[i + 1]) for i in range(0, len(lines) - 1, 2) if lines[i].strip()]


def same_value(a, b):
    if a == b:
        return True
    try:
        return float(a) == float(b)
    except ValueError:
        return False


def compare_tags(expected, actual):
    """None when both drawings hold the same tags, otherwise the first difference."""
    left, right = tags_of(expected), tags_of(actual)
    for number, (a, b) in enumerate(zip(left, right)):
        if a[0] != b[0] or not same_value(a[1], b[1]):
            return f"tag {number} (line {2 * number + 1}): expected {a[0]} {a[1]!r}, got {b[0]} {b[1]!r}"
    if len(left) != len(right):
        return f"expected {len(left)} tags, got {len(right)}"
    return None


def given_data(case):
    """The folder whose copy the case wants as its data, or None."""
    named = read_text(case / "data.txt").strip()
    return Path(named.format(source=SOURCE)) if named else None


def run(program, case, folder):
    """Runs the case in the folder. Gives exit status and output."""
    for entry in case.iterdir():
        if entry.name not in DESCRIPTION:
            copy = shutil.copytree if entry.is_dir() else shutil.copy
            copy(entry, folder / entry.name)
    data = folder / "data"
    if given_data(case):
        shutil.copytree(given_data(case), data, dirs_exist_ok=True)
    data.mkdir(exist_ok=True)
    words = {"bin": Path(program).resolve().parent, "source": SOURCE}
    options = [line.format(**words) for line in read_text(case / "options.txt").splitlines() if line]
    typed = case / "stdin.txt"
    command = [str(Path(program).resolve()), "--console", "--data", str(data), *options]
    if (case / "script.scr").exists() and not typed.exists():
        command += ["--script", "script.scr"]
    if (case / "input.dxf").exists():
        command.append("input.dxf")
    environment = {**os.environ, "HOME": str(folder), "XDG_DATA_HOME": str(folder)}
    result = subprocess.run(command, cwd=folder, env=environment, stderr=subprocess.STDOUT,
                            input=typed.read_bytes() if typed.exists() else b"", stdout=subprocess.PIPE, check=False)
    output = result.stdout.decode("utf-8", "replace").replace(str(folder), "{dir}")
    return result.returncode, output.replace(str(words["bin"]), "{bin}").replace(str(SOURCE), "{source}")


def added_files(case, folder):
    """Files that the run made, beside the drawing that it may save to."""
    ours = {str(p.relative_to(case)) for p in case.rglob("*")} | {"output.dxf"}
    if given_data(case):
        ours |= {str("data" / p.relative_to(given_data(case))) for p in given_data(case).rglob("*")}
    return sorted(str(p.relative_to(folder)) for p in folder.rglob("*")
                  if p.is_file() and str(p.relative_to(folder)) not in ours)


def saved_drawing(folder):
    output = folder / "output.dxf"
    return output if output.exists() else folder / "input.dxf"


def check(program, case, folder):
    """The findings of one case, none when it passes."""
    status, output = run(program, case, folder)
    wanted = int(read_text(case / "status.txt", "0"))
    if status != wanted:
        yield f"exit status {status} instead of {wanted}"
    expected = read_text(case / "expected.txt")
    if output != expected:
        yield "printed:\n" + output + "\nexpected:\n" + expected
    files = added_files(case, folder)
    wanted_files = read_text(case / "expected-files.txt").split()
    if files != wanted_files:
        yield f"files made: {files}, expected: {wanted_files}"
    drawing = case / "expected.dxf"
    if drawing.exists():
        saved = saved_drawing(folder)
        difference = compare_tags(drawing.read_bytes(), saved.read_bytes()) if saved.exists() else "no drawing saved"
        if difference:
            yield "drawing: " + difference


def update(program, case, folder):
    status, output = run(program, case, folder)
    (case / "expected.txt").write_text(output, encoding="utf-8")
    for name, text in (("status.txt", f"{status}\n" if status else ""),
                       ("expected-files.txt", "".join(f + "\n" for f in added_files(case, folder)))):
        if text:
            (case / name).write_text(text, encoding="utf-8")
        else:
            (case / name).unlink(missing_ok=True)
    saved = saved_drawing(folder)
    was_input = case / "input.dxf"
    if saved.exists() and not (was_input.exists() and saved.read_bytes() == was_input.read_bytes()):
        shutil.copy(saved, case / "expected.dxf")


def main(arguments):
    updating = arguments[:1] == ["--update"]
    program, case = arguments[updating], Path(arguments[updating + 1]).resolve()
    with tempfile.TemporaryDirectory(prefix="zpdrawing-") as name:
        folder = Path(name).resolve()
        if updating:
            update(program, case, folder)
            return 0
        findings = list(check(program, case, folder))
    for finding in findings:
        print(f"{case.name}: {finding}")
    return 1 if findings else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
