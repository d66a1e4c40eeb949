"""The source files of the tree as the checks beside this file read them."""

import os
import re

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))

# Everything that is compiled, by folder.
FOLDERS = ("colour", "ui", "python", "designer", "examples", "tests", "benchmarks", "scripts")

_COMMENT_OR_LITERAL = re.compile(
    r"""//[^\n]*
      | /\*.*?\*/
      | \b(?P<raw>(?:u8|[uUL])?R)"(?P<mark>[^(\s]*)\(.*?\)(?P=mark)"
      | (?P<include>^[ ]*\#[ ]*include[ ]*"[^"\n]*")
      | "(?:\\.|[^"\\\n])*"
      | (?<![0-9a-fA-F])'(?:\\.|[^'\\\n])+'""",
    re.VERBOSE | re.DOTALL | re.MULTILINE)


def code_of(text):
    """The text without comments and without what literals hold; every line keeps its number."""
    def blank(match):
        if match.group("include"):
            return match.group()
        newlines = "\n" * match.group().count("\n")
        if match.group().startswith("/"):
            return " " + newlines
        if match.group("raw"):
            return match.group("raw") + '""' + newlines
        return match.group()[0] * 2
    return _COMMENT_OR_LITERAL.sub(blank, text)


def line_of(text, offset):
    return text.count("\n", 0, offset) + 1


def source_files(root=ROOT):
    """Paths of all headers and sources, relative to the root, in order."""
    found = [name for name in os.listdir(root) if name.endswith((".h", ".cpp"))]
    for folder in FOLDERS:
        for directory, _, names in os.walk(os.path.join(root, folder)):
            found += [os.path.relpath(os.path.join(directory, name), root)
                      for name in names if name.endswith((".h", ".cpp"))]
    return sorted(found)


def read(path, root=ROOT):
    with open(os.path.join(root, path), encoding="utf-8") as file:
        return file.read()
