"""Pictures for docs/pictures as EXPORT writes them: a script is played at the console, the drawing is given up."""

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


def draw(program, picture, lines, window, size, files=()):
    """Plays the lines and exports the window of model space, in the size of a sheet (mm). files are copied beside;
    the first one is the drawing that is opened."""
    with tempfile.TemporaryDirectory() as name:
        folder = Path(name)
        script = folder / "script.scr"
        script.write_text(lines + EXPORT.format(lower=window[0], upper=window[1], size=size), encoding="utf-8")
        for file in files:
            shutil.copy(file, folder)
        environment = {**os.environ, "HOME": name, "XDG_DATA_HOME": name}
        command = [program, "--console", "--data", ROOT / "data", "--script", script]
        result = subprocess.run(command + [Path(file).name for file in files[:1]], cwd=folder, env=environment,
                                stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, check=False)
        if result.returncode != 0:
            sys.exit(f"{picture.name}: the script failed\n{result.stdout.decode()}")
        shutil.move(folder / "picture.png", picture)
