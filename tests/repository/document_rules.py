"""Holds a document against the tree: what it links to or names must be there."""

import posixpath
import re

import include_rules

LINK = re.compile(r"\]\(([^)#\s]+)(?:#[^)]*)?\)")
NAMED_FILE = re.compile(r"`([\w./-]+\.(?:h|cpp|py|md|cmake|json|txt|dxf|scr))`")


def check(path, text, exists):
    """Findings (line, message) of the document at path. exists(path) tells whether the tree has it."""
    for number, line in enumerate(text.splitlines(), 1):
        for target in LINK.findall(line):
            if "://" in target:
                continue
            resolved = posixpath.normpath(posixpath.join(posixpath.dirname(path), target))
            if not exists(resolved):
                yield number, f'links to "{target}", which is not there'
        for target in NAMED_FILE.findall(line):
            if target.startswith(include_rules.OUR_ROOTS + ("docs/", "examples/", "cmake/")) and not exists(target):
                yield number, f'names "{target}", which is not there'
