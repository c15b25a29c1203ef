"""Holds the text of one file against the habits that a machine can judge."""

import rules


def _check_source(path, lines):
    if len(lines) > rules.LINE_LIMIT:
        yield rules.LINE_LIMIT + 1, f"{len(lines)} lines: split by concept at {rules.LINE_LIMIT}"
    if not path.endswith(".h"):
        return
    if not (lines and lines[0].startswith("//")):
        yield 1, "a header that opens without a sentence on what it is for"
    if "#pragma once" not in lines:
        yield 1, "a header without #pragma once"


def check(path, text):
    """Findings (line, message) of the text at path."""
    lines = text.splitlines()
    if path.endswith(rules.SOURCE_SUFFIXES):
        yield from _check_source(path, lines)
    for number, line in enumerate(lines, 1):
        if rules.MACHINE_PATH.search(line):
            yield number, "a path of one machine"
        found = rules.UNFINISHED.search(line)
        if found:
            yield number, f'unfinished: "{found.group()}"'
