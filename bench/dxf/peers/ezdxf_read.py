#!/usr/bin/env python3
"""Reads a drawing with ezdxf and, with a second name, saves it. Usage: ezdxf_read.py FILE [OUT]"""

import sys

import ezdxf

document = ezdxf.readfile(sys.argv[1])
print(len(document.modelspace()), "entities")
if len(sys.argv) > 2:
    document.saveas(sys.argv[2])
