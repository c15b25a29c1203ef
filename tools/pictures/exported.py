"""Pictures for docs/pictures: a script is played, and what EXPORT writes of the drawing is kept, or what the window shows
when the script is through. The drawing is given up."""

import os
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]

EXPORT = """EXPORT
picture.png
W
{lower}
{upper}
{size}
QUIT
answer 是
"""


def program_and_output(arguments, usage):
    """What BUILD-FOLDER [OUTPUT-FOLDER] names."""
    if len(arguments) not in (1, 2):
        sys.exit(usage)
    output = arguments[1] if len(arguments) == 2 else ROOT / "docs" / "pictures"
    return Path(arguments[0]).resolve() / "bin" / "zpcad", Path(output).resolve()


def play(program, picture, lines, options, files):
    """Plays the lines with options ahead of the script's name, and keeps picture.png of the folder. files are copied
    beside; the first one is the drawing that is opened."""
    with tempfile.TemporaryDirectory() as name:
        folder = Path(name)
        (folder / "script.scr").write_text(lines, encoding="utf-8")
        for file in files:
            shutil.copy(file, folder)
        environment = {**os.environ, "HOME": name, "XDG_DATA_HOME": name, "XDG_CONFIG_HOME": name,
                       "XDG_RUNTIME_DIR": name, "QT_QPA_PLATFORM": "offscreen"}
        command = [program, "--data", ROOT / "data", *options, "--script", "script.scr"]
        result = subprocess.run(command + [Path(file).name for file in files[:1]], cwd=folder, env=environment,
                                stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, check=False)
        if result.returncode != 0 or not (folder / "picture.png").exists():
            sys.exit(f"{picture.name}: the script failed\n{result.stdout.decode()}")
        shutil.move(folder / "picture.png", picture)


def draw(program, picture, lines, window, size, files=()):
    """Exports the window of model space, in the size of a sheet (mm)."""
    play(program, picture, lines + EXPORT.format(lower=window[0], upper=window[1], size=size), ["--console"], files)


def shoot(program, picture, lines, window, files=()):
    """Keeps what the program's window shows, zoomed to a window of model space."""
    zoom = f"ZOOM\nW\n{window[0]}\n{window[1]}\n"
    play(program, picture, zoom + lines, ["--screenshot", "picture.png"], files)
