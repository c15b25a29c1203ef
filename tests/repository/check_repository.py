#!/usr/bin/python3
"""Holds the repository's own files against its rules: includes, texts, documents, format. The tables stand in
rules.py.

Usage: check_repository.py includes|texts|documents|format [ROOT]
Prints a line for each finding. Exit status 0 without findings, 1 with, 77 when clang-format is missing."""

import os
import sys

import document_rules
import format_rules
import include_rules
import rules
import text_rules


def walk(root, suffixes):
    """The files with these suffixes, as paths from the root with forward slashes, in order."""
    for folder, folders, files in os.walk(root):
        folders[:] = sorted(name for name in folders if name not in rules.SKIPPED_FOLDERS)
        for name in sorted(files):
            if os.path.splitext(name)[1] in suffixes:
                yield os.path.relpath(os.path.join(folder, name), root).replace(os.sep, "/")


def reader(root):
    """A function that gives the text of a file under the root, or None when there is none."""
    cache = {}

    def read(path):
        if path not in cache:
            try:
                with open(os.path.join(root, path), encoding="utf-8", errors="replace") as file:
                    cache[path] = file.read()
            except OSError:
                cache[path] = None
        return cache[path]

    return read


def check_includes(root):
    read = reader(root)
    for path in walk(root, rules.SOURCE_SUFFIXES):
        for line, message in include_rules.check(path, read(path), read):
            yield path, line, message


def check_texts(root):
    read = reader(root)
    for path in walk(root, rules.TEXT_SUFFIXES):
        for line, message in text_rules.check(path, read(path)):
            yield path, line, message


def check_documents(root):
    read = reader(root)
    for path in walk(root, (".md",)):
        for line, message in document_rules.check(path, read(path), lambda p: os.path.exists(os.path.join(root, p))):
            yield path, line, message


def check_format(root):
    return format_rules.check(root, list(walk(root, rules.SOURCE_SUFFIXES)))


CHECKS = {"includes": check_includes, "texts": check_texts, "documents": check_documents, "format": check_format}


def main(arguments):
    if len(arguments) not in (1, 2) or arguments[0] not in CHECKS:
        print(__doc__, file=sys.stderr)
        return 2
    if arguments[0] == "format" and not format_rules.is_available():
        print("clang-format is not installed; the format is not checked")
        return 77
    root = arguments[1] if len(arguments) == 2 else os.path.join(os.path.dirname(__file__), "..", "..")
    findings = 0
    for path, line, message in CHECKS[arguments[0]](root):
        print(f"{path}:{line}: {message}")
        findings += 1
    print(f"{findings} findings")
    return 1 if findings else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
