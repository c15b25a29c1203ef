"""Asks clang-format which sources it would write otherwise."""

import os
import re
import shutil
import subprocess
from concurrent.futures import ThreadPoolExecutor

FINDING = re.compile(r"^(.+?):(\d+):\d+: error: code should be clang-formatted")
BATCH = 20


def is_available():
    return shutil.which("clang-format") is not None


def _check_batch(root, paths):
    result = subprocess.run(["clang-format", "--dry-run", "-Werror", "--style=file", *paths], cwd=root,
                            stderr=subprocess.PIPE, text=True, check=False)
    first = {}
    for line in result.stderr.splitlines():
        match = FINDING.match(line)
        if match:
            first.setdefault(match.group(1), int(match.group(2)))
    if result.returncode != 0 and not first:
        return [("clang-format", 0, result.stderr.strip())]
    return [(path, number, "not as clang-format writes it") for path, number in first.items()]


def check(root, paths):
    """Findings (path, line, message), one for each file at its first difference."""
    batches = [paths[i:i + BATCH] for i in range(0, len(paths), BATCH)]
    with ThreadPoolExecutor(os.cpu_count()) as pool:
        for findings in pool.map(lambda batch: _check_batch(root, batch), batches):
            yield from findings
