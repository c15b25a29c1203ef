"""What the sources are held to, as tables: which module may include which, where a library may appear, and what
no committed text may hold. To allow something new, change a row here and docs/ARCHITECTURE.md with it."""

import re

# Host modules from the bottom up, each with what it may include beside itself.
HOST = {
    "host/afx": [],
    "host/ge": ["host/afx"],
    "host/db": ["host/afx", "host/ge"],
    "host/dxf": ["host/afx", "host/ge", "host/db"],
    "host/scene": ["host/afx", "host/ge", "host/db"],
    "host/ed": ["host/afx", "host/ge", "host/db", "host/dxf", "host/scene"],
    "host/plot": ["host/afx", "host/ge", "host/db", "host/scene"],
    "host/ui": ["host/afx"],
}
HOST_BELOW_5 = list(HOST)
HOST |= {
    "host/commands": HOST_BELOW_5,
    "host/console": HOST_BELOW_5,
    "host/qt": HOST_BELOW_5,
}

LAYERS_AND_BELOW = ["plugin/base", "plugin/graph", "plugin/layers"] + HOST_BELOW_5
SUBSYSTEMS = ["plugin/pipes", "plugin/resistance", "plugin/radiators", "plugin/fancoil", "plugin/tools",
              "plugin/rooms"]
PLUGIN = {
    "plugin/base": ["host/afx"],
    "plugin/graph": ["plugin/base"] + HOST_BELOW_5,
    "plugin/layers": ["plugin/base", "plugin/graph"] + HOST_BELOW_5,
    **{subsystem: LAYERS_AND_BELOW for subsystem in SUBSYSTEMS},
    "plugin/tools": ["plugin/pipes"] + LAYERS_AND_BELOW,
    "plugin/radiators": ["plugin/rooms"] + LAYERS_AND_BELOW,
    "plugin/frame": SUBSYSTEMS + LAYERS_AND_BELOW,
}

MODULES = HOST | PLUGIN

# Folders outside the levels: the prefixes that their files may include. What stands under plugins/ sees of the
# plug-in only the headers that declare exported symbols.
OUTSIDE = {
    "apps/": ["host/", "apps/"],
    "plugins/": ["host/", "plugin/", "plugins/"],
    "tests/": ["host/", "plugin/", "plugins/", "tests/"],
    "bench/": ["host/", "plugin/", "bench/", "tests/support/"],
    "fuzz/": ["host/", "plugin/", "fuzz/"],
    "tools/": ["host/", "plugin/", "tools/"],
}
# Headers that the build writes, and who may include them.
GENERATED = {"ZpPaths.h": ("tests/", "bench/")}
PUBLIC_HEADERS_ONLY = ("plugins/", "plugin/")
PUBLIC_MARK = "ZP_EXPORT"

# Library, the include names that betray it, and the folders that may name them.
LIBRARIES = [
    ("Qt", re.compile(r"Q[A-Z]\w*(/|$)|Qt\w*/|q[a-z0-9]+\.h$"), ["host/qt/", "tests/host/qt/", "bench/canvas/"]),
    ("fmt", re.compile(r"fmt/"), ["host/afx/"]),
    ("iconv", re.compile(r"iconv\.h$"), ["host/afx/"]),
    ("simdjson", re.compile(r"simdjson"), ["plugin/base/", "bench/"]),
    ("pugixml", re.compile(r"pugi"), ["plugin/base/", "bench/"]),
    ("CLI11", re.compile(r"CLI/"), ["apps/zpcad/"]),
    ("cairo", re.compile(r"cairo[\w-]*\.h$|cairo/"), ["host/plot/"]),
    ("pango", re.compile(r"pango/|fontconfig/"), ["host/plot/"]),
    ("Boost", re.compile(r"boost/"), ["host/db/", "host/ed/"]),
    ("GoogleTest", re.compile(r"g(test|mock)/"), ["tests/"]),
    ("Google Benchmark", re.compile(r"benchmark/"), ["bench/"]),
]
# A library in a header would reach everybody who includes it. The toolkit's own front end is where it belongs.
LIBRARIES_IN_HEADERS = ("tests/", "bench/", "fuzz/", "host/qt/")

SOURCE_SUFFIXES = (".h", ".cpp")
TEXT_SUFFIXES = SOURCE_SUFFIXES + (".py", ".cmake", ".md", ".json", ".scr", ".sh", ".yml", ".txt", "")
SKIPPED_FOLDERS = {"build", ".git", ".cache", "__pycache__"}

LINE_LIMIT = 800

MACHINE_PATH = re.compile(r"(?<![\w./$}])/(?:home|root|tmp|work|farm|Users)/[A-Za-z0-9_]")
# Spelled in two halves, or this file would betray itself.
UNFINISHED = re.compile(r"\b(?:TO" r"DO|FIX" r"ME|X" r"XX|HA" r"CK|Not" r"Implemented|not implemented" r" yet|for" r" now)\b")
