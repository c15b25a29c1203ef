"""Holds the includes of one source against the levels of the house."""

import re

import rules

INCLUDE = re.compile(r'^\s*#\s*include\s*(["<])([^">]+)[">]')
OUR_ROOTS = ("host/", "plugin/", "plugins/", "apps/", "tests/", "bench/", "fuzz/", "tools/")


def module_of(path):
    """The module that a path from the repository root lies in: its first two folders."""
    return "/".join(path.split("/")[:2])


def _is_allowed(path, target):
    module = module_of(path)
    if module in rules.MODULES:
        return module_of(target) in [module] + rules.MODULES[module]
    for prefix, targets in rules.OUTSIDE.items():
        if path.startswith(prefix):
            return target.startswith(tuple(targets))
    return False


def _check_ours(path, target, read):
    if target in rules.GENERATED:
        return None if path.startswith(rules.GENERATED[target]) else f'"{target}" is not for this folder'
    text = read(target)
    if text is None:
        return f'"{target}" is no file of the repository; includes are written from its root'
    if not _is_allowed(path, target):
        return f'may not include "{target}"'
    from_prefix, to_prefix = rules.PUBLIC_HEADERS_ONLY
    if path.startswith(from_prefix) and target.startswith(to_prefix) and rules.PUBLIC_MARK not in text:
        return f'"{target}" is not a public header of the plug-in: it exports nothing'
    return None


def _check_library(path, target):
    for name, pattern, folders in rules.LIBRARIES:
        if not pattern.match(target):
            continue
        if not path.startswith(tuple(folders)):
            return f"{name} belongs to {', '.join(folders)} alone"
        if path.endswith(".h") and not path.startswith(rules.LIBRARIES_IN_HEADERS):
            return f"{name} may not show in a header"
    return None


def check(path, text, read):
    """Findings (line, message) of the source at path. read(path) gives the text of another file, or None."""
    module = module_of(path)
    if path.startswith(("host/", "plugin/")) and module not in rules.MODULES:
        yield 1, f"the module {module} has no row in the table of levels"
        return
    for number, line in enumerate(text.splitlines(), 1):
        match = INCLUDE.match(line)
        if not match:
            continue
        quote, target = match.groups()
        ours = quote == '"' or target.startswith(OUR_ROOTS)
        finding = _check_ours(path, target, read) if ours else _check_library(path, target)
        if finding:
            yield number, finding
