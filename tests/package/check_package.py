#!/usr/bin/env python3
"""Installs the house into a folder of its own, builds the workbench and the sibling of docs/siblings.md against the
installed package as a stranger would, and plays scripts with the installed program.

Usage: check_package.py BUILD-FOLDER SOURCE-FOLDER WORK-FOLDER [CMAKE-OPTION]...
The work folder is emptied first. Exit status 0 when all is well; otherwise 1, with what is wrong."""

import os
import re
import shutil
import subprocess
import sys
from pathlib import Path

HERE = Path(__file__).resolve().parent
# What the house is built with and nobody who builds a sibling should need.
THIRD_PARTIES = re.compile(r"\b(fmt|Qt[56]|pugixml|simdjson|CLI11|PkgConfig|pango|cairo|benchmark|[Bb]oost)\b")
THIRD_PARTY_INCLUDES = re.compile(r'#\s*include\s*[<"](fmt/|Q[A-Z]|pugi|simdjson|CLI/|pango|cairo|boost/|gtest/)')


class Failure(Exception):
    pass


def run(command, cwd, **options):
    result = subprocess.run([str(part) for part in command], cwd=cwd, stdout=subprocess.PIPE,
                            stderr=subprocess.STDOUT, check=False, **options)
    text = result.stdout.decode("utf-8", "replace")
    if result.returncode != 0:
        raise Failure(f"{' '.join(map(str, command))} ended with {result.returncode}:\n{text[-4000:]}")
    return text


def expect(condition, message):
    if not condition:
        raise Failure(message)


def install(build, prefix, work):
    run(["cmake", "--install", build, "--prefix", prefix], work)
    for wanted in ("bin/zpcad", "lib/zppipemanager/ZPPipeManager.so", "lib/zppipemanager/ZPPipeManager.menu",
                   "lib/zppipemanager/ZPWorkbench.so", "lib/zppipemanager/ZPWorkbench.menu",
                   "share/zppipemanager/data/Data/PipeMaterial.idp", "share/doc/zppipemanager/docs/siblings.md",
                   "include/zppipemanager/host/db/AcDbLine.h", "include/zppipemanager/plugin/pipes/CZPPipeMaterial.h"):
        expect((prefix / wanted).exists(), f"{wanted} was not installed")
    # What exports nothing is not for siblings, and neither is the top of the host.
    for hidden in ("plugin/frame/CommandTable.h", "plugin/layers/CZPGroupLayer.h", "host/commands", "host/qt"):
        expect(not (prefix / "include/zppipemanager" / hidden).exists(), f"{hidden} should not be installed")


def check_interface(prefix, build, source):
    for file in (prefix / "lib/cmake").rglob("*.cmake"):
        text = file.read_text(encoding="utf-8")
        expect(not THIRD_PARTIES.search(text), f"{file.name} names a library of others: {THIRD_PARTIES.search(text)}")
        for folder in (build, source, prefix):
            expect(str(folder) not in text, f"{file.name} names the folder {folder}")
    for file in (prefix / "include").rglob("*.h"):
        found = THIRD_PARTY_INCLUDES.search(file.read_text(encoding="utf-8"))
        expect(not found, f"{file.relative_to(prefix)} includes a library of others")


def compile_headers(prefix, work, options):
    """All installed headers in one source: none may include what is not installed."""
    folder = work / "headers"
    folder.mkdir()
    root = prefix / "include/zppipemanager"
    names = sorted(str(p.relative_to(root)) for p in root.rglob("*.h") if not p.name.endswith(".inl.h"))
    (folder / "all.cpp").write_text("".join(f'#include "{name}"\n' for name in names), encoding="utf-8")
    (folder / "CMakeLists.txt").write_text(
        "cmake_minimum_required(VERSION 3.25)\nproject(headers LANGUAGES CXX)\n"
        "find_package(ZPPipeManager 0.1 REQUIRED)\nadd_library(headers OBJECT all.cpp)\n"
        "target_link_libraries(headers PRIVATE ZPPipeManager::ZPPipeManager)\n", encoding="utf-8")
    build_project(folder, folder / "build", prefix, work, options)
    return len(names)


def build_project(source, build, prefix, work, options):
    run(["cmake", "-G", "Ninja", "-S", source, "-B", build, f"-DCMAKE_PREFIX_PATH={prefix}", *options], work)
    run(["cmake", "--build", build], work)


def build_workbench(source, prefix, work, options):
    """Copied away from the repository, so that only the installed headers can be found."""
    copy = work / "plugins" / "workbench"
    shutil.copytree(source / "plugins" / "workbench", copy)
    build_project(copy, work / "build", prefix, work, options)
    for shipped in (prefix / "lib/zppipemanager").glob("ZPWorkbench*"):
        shipped.unlink()
    run(["cmake", "--install", work / "build"], work)
    expect((prefix / "lib/zppipemanager/ZPWorkbench.so").exists(), "the workbench was not installed beside the plug-in")


def files_of(document):
    """The files that the document shows: a line that begins with `NAME`, then its lines, indented."""
    files = {}
    name = None
    for line in document.read_text(encoding="utf-8").splitlines():
        named = re.match(r"`([\w.]+)`[:,]", line)
        if named:
            name = named.group(1)
            files[name] = ""
        elif name and (line.startswith("    ") or not line):
            files[name] += line[4:] + "\n"
        else:
            name = None
    return files


def build_documented_sibling(source, prefix, work, options):
    folder = work / "documented"
    folder.mkdir()
    files = files_of(source / "docs" / "siblings.md")
    expect(set(files) == {"CMakeLists.txt", "EntryPoint.cpp", "MySibling.menu"}, f"the document shows {list(files)}")
    for name, text in files.items():
        (folder / name).write_text(text, encoding="utf-8")
    build_project(folder, folder / "build", prefix, work, options)
    run(["cmake", "--install", folder / "build"], work)
    expect((prefix / "lib/zppipemanager/MySibling.menu").exists(), "the documented sibling was not installed")


def play_documented(prefix, work):
    plugins = prefix / "lib/zppipemanager"
    output = run([prefix / "bin/zpcad", "--console", "--data", prefix / "share/zppipemanager/data",
                  "--plugin", plugins / "ZPPipeManager.so", "--plugin", plugins / "MySibling.so"], work,
                 input="看图层\nQUIT\n".encode(), env={"HOME": str(work), "PATH": "/usr/bin:/bin"})
    expect("暖通-采暖-供水-干管" in output.splitlines(), f"the documented sibling's command failed:\n{output}")


def play(prefix, work):
    """With nothing but what is installed: the two plug-ins, and a copy of the shipped data in the user's folder."""
    place = work / "user"
    place.mkdir()
    environment = {"HOME": str(place), "PATH": "/usr/bin:/bin", "LANG": "C"}
    output = run([prefix / "bin/zpcad", "--console", "--script", HERE / "script.scr"], place, env=environment,
                 stdin=subprocess.DEVNULL)
    for line in (HERE / "expected.txt").read_text(encoding="utf-8").splitlines():
        expect(line in output.splitlines(), f"“{line}” was not printed:\n{output}")
    drawing = (place / "package.dxf").read_text(encoding="utf-8")
    expect("管材" in drawing and "KOR_PMT_KXG_1.2" in drawing, "the saved drawing lacks the pipes")
    expect((place / ".local/share/zppipemanager/Data/PipeMaterial.idp").exists(), "the data were not copied")


def main(arguments):
    if len(arguments) < 3:
        print(__doc__, file=sys.stderr)
        return 2
    build, source, work = (Path(argument).resolve() for argument in arguments[:3])
    options = arguments[3:]
    shutil.rmtree(work, ignore_errors=True)
    work.mkdir(parents=True)
    prefix = work / "prefix"
    try:
        install(build, prefix, work)
        check_interface(prefix, build, source)
        count = compile_headers(prefix, work, options)
        build_workbench(source, prefix, work, options)
        build_documented_sibling(source, prefix, work, options)
        moved = work / "moved"
        os.rename(prefix, moved)
        play(moved, work)
        play_documented(moved, work)
    except Failure as failure:
        print(failure)
        return 1
    print(f"{count} public headers, the workbench and the documented sibling built alone, their scripts played")
    shutil.rmtree(work)
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
