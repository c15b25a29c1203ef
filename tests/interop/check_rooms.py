#!/usr/bin/env python3
"""Rooms in another program: ezdxf reads a drawing with rooms, finds no error, sees their class, their groups and their
records, saves the drawing, and the host finds the same rooms in it.

Usage: check_rooms.py ROOMS
Prints a line for each finding. Exit status 0 without findings, 1 with, 77 when ezdxf is missing.
"""

import json
import subprocess
import sys
import tempfile

try:
    import ezdxf
except ImportError:
    sys.exit(77)

LONGEST_CHUNK = 127


def tell(program, path):
    return subprocess.run([program, "tell", path], stdout=subprocess.PIPE, check=True).stdout.decode()


def image_of(room):
    record = room.get_extension_dict().dictionary["TQRoom"]
    chunks = [tag.value for tag in record.tags if tag.code == 310]
    return b"".join(chunks), max(len(chunk) for chunk in chunks)


def check(program, folder):
    path, again = f"{folder}/rooms.dxf", f"{folder}/again.dxf"
    subprocess.run([program, "write", path], check=True)
    drawing = ezdxf.readfile(path)
    for error in drawing.audit().errors:
        yield f"ezdxf: {error.message}"
    rooms = [entity for entity in drawing.modelspace() if entity.dxftype() == "VKHVAC_SPACE"]
    if len(rooms) != len(tell(program, path).splitlines()) or not rooms:
        yield f"ezdxf finds {len(rooms)} rooms"
    if not any(c.dxf.name == "VKHVAC_SPACE" and c.dxf.cpp_class_name == "VkDbHvacSpace" for c in drawing.classes):
        yield "ezdxf finds no class of the rooms"
    for room in rooms:
        image, longest = image_of(room)
        if longest > LONGEST_CHUNK:
            yield f"a chunk of {longest} bytes"
        length = int.from_bytes(image[4:12], "little")
        if image[:4] != b"IDP1" or length != len(image) - 12:
            yield "the record is no image of the length that it tells"
        elif json.loads(image[12:])[1]["Version"] != "1.0":
            yield "the record is of another version"
    drawing.saveas(again)
    if tell(program, again) != tell(program, path):
        yield "the rooms are others after ezdxf saved them"


def main():
    with tempfile.TemporaryDirectory() as folder:
        findings = list(check(sys.argv[1], folder))
    for finding in findings:
        print(finding)
    return 1 if findings else 0


if __name__ == "__main__":
    sys.exit(main())
