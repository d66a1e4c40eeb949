#!/usr/bin/env python3
"""Refuses includes that go upwards through the layers, public headers that include private ones, and source files of
colour/ and ui/ that do not begin with their own header: that place proves that it compiles alone.

    layers.py                the whole tree; prints FILE:LINE: what is wrong
    layers.py --self-test    includes that must be refused are, and others are not
"""

import os
import re
import sys

from source_text import ROOT, code_of, line_of, read, source_files

# A layer may include itself and these.
LAYERS = {
    "colour": (),
    "ui/toolkit": (),
    "ui/sliders": ("ui/toolkit",),
    "ui/docking": ("ui/toolkit",),
    "ui/widgets": ("ui/toolkit",),
    "ui/colour": ("colour", "ui/toolkit", "ui/sliders", "ui/widgets"),
    "ui/progress": ("ui/toolkit", "ui/docking", "ui/widgets"),
    "python": ("ui/toolkit", "ui/progress"),
    "designer": ("colour", "ui"),
    "examples": ("colour", "ui", "python"),
    "benchmarks": ("colour", "ui", "python", "examples"),
    "tests": ("colour", "ui", "python", "designer", "examples"),
    "scripts": ("colour", "ui", "examples"),
}

# Layers that are built on the installed library, as any other host.
HOSTS = ("examples",)

INCLUDE = re.compile(r'^[ ]*#[ ]*include[ ]*[<"]([^>"\n]+)[>"]', re.MULTILINE)


def public_headers(listing):
    """The headers that cmake/NorvaneInstall.cmake installs."""
    headers = set(re.findall(r"^\s+([\w/]+\.h)\)?$", listing, re.MULTILINE))
    if "ui/docking/Dock.h" not in headers:
        sys.exit("cmake/NorvaneInstall.cmake has no list of public headers that could be read")
    return headers


def layer_of(path):
    for layer in LAYERS:
        if path.startswith(layer + "/"):
            return layer
    return None


def is_within(path, layers):
    return any(path.startswith(layer + "/") for layer in layers)


def objection(path, included, public):
    """Why the file may not include that, or None."""
    layer = layer_of(path)
    target = layer_of(included)
    if layer == "colour" and re.match(r"Q|Qt\w*/", included):
        return "colour/ knows no Qt"
    if not target:
        return None
    if layer and not is_within(included, (layer,) + LAYERS[layer]):
        return "%s/ may not know %s/" % (layer, target)
    if path in public and included not in public:
        return "a public header includes one that is not installed"
    if layer in HOSTS and not is_within(included, HOSTS) and included not in public:
        return "hosts are built on public headers only"
    return None


def begins_with_own_header(path, first):
    # Where there is Python, its headers want to come before those of the standard library.
    if not path.endswith(".cpp") or not is_within(path, ("colour", "ui")):
        return True
    own = path[:-len(".cpp")] + ".h"
    return first in (own, os.path.basename(own)) or not os.path.exists(os.path.join(ROOT, own))


def problems(path, text, public):
    code = code_of(text)
    includes = list(INCLUDE.finditer(code))
    if includes and not begins_with_own_header(path, includes[0].group(1)):
        yield "%s:%d: its own header comes first" % (path, line_of(code, includes[0].start(1)))
    for match in includes:
        why = objection(path, match.group(1), public)
        if why:
            yield "%s:%d: %s: %s" % (path, line_of(code, match.start(1)), match.group(1), why)


def check_tree():
    public = public_headers(read("cmake/NorvaneInstall.cmake"))
    found = ["cmake/NorvaneInstall.cmake: %s is not there" % header for header in sorted(public)
             if not os.path.exists(os.path.join(ROOT, header))]
    paths = source_files()
    for path in paths:
        found += problems(path, read(path), public)
    print("\n".join(found + ["%d files, %d problems" % (len(paths), len(found))]))
    return bool(found)


# file, include, whether it must be refused
CASES = [
    ("colour/Color4.h", "<QColor>", True),
    ("colour/Color4.h", "<QtCore/QString>", True),
    ("colour/Color4.h", "<cstdint>", False),
    ("ui/toolkit/Text.h", "<ui/docking/Dock.h>", True),
    ("ui/docking/DockPanels.cpp", "<colour/Color4.h>", True),
    ("ui/docking/DockPanels.cpp", "<ui/docking/DockTree.h>", False),
    ("ui/docking/Dock.cpp", "<ui/docking/DockTree.h>", True),
    ("ui/docking/Dock.cpp", "<ui/docking/Dock.h>", False),
    ("ui/docking/Dock.h", "<ui/docking/DockTree.h>", True),
    ("python/MainThread.h", "<tests/support/Waiting.h>", True),
    ("examples/host/main.cpp", "<ui/docking/DockTree.h>", True),
    ("examples/host/main.cpp", "<examples/host/Hint.h>", False),
    ("examples/host/ScriptModule.h", "<python/PythonVersion.h>", True),
    ("tests/ui/docking/tst_Dock.cpp", "<ui/docking/DockTree.h>", False),
]


def self_test():
    public = {"colour/Color4.h", "ui/docking/Dock.h", "NorvaneCoreExport.h"}
    wrong = ["%s and %s" % (path, included) for path, included, refused in CASES
             if bool(list(problems(path, "// <QString>\n#include " + included, public))) != refused]
    print("\n".join(wrong + ["%d cases, %d wrong" % (len(CASES), len(wrong))]))
    return bool(wrong)


if __name__ == "__main__":
    sys.exit(self_test() if "--self-test" in sys.argv[1:] else check_tree())
