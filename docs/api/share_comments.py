#!/usr/bin/env python3
"""Prints a header as Doxygen shall see it. In our headers

- a comment goes for all declarations that follow it without an empty line or another comment, such as a getter and
  its setter: each is given the comment;
- what is overridden needs a comment only where there is more to say than where it comes from: without one it is left
  out;
- a property is explained with the function that reads it.

Every line stays where it is, so that warnings tell the right one.
"""

import re
import sys

COMMENT = re.compile(r"\s*///(?!<) ?(.*)")
# What ends a group of declarations, besides an empty line.
END = re.compile(r"\s*($|#|[{}]|//|namespace\b|(public|protected|private|Q_SIGNALS)\b.*:$|Q_[A-Z]+\b.*\)$|Q_OBJECT$)")
OVERRIDE = re.compile(r"[^{}]*\boverride;$")
PROPERTY = re.compile(r"\s*(Q_PROPERTY\(\S+ \w+ READ (\w+).*)")


def share_comments(lines):
    comment = []         # the text of the group's comment
    is_fresh = False     # whether the next declaration has the comment above it
    is_complete = True   # whether the line above ended a declaration
    for line in lines:
        match = COMMENT.match(line)
        is_complete = is_complete or line == "{"
        if match and is_complete:
            comment = comment + [match.group(1)] if is_fresh else [match.group(1)]
            is_fresh = True
        elif is_complete and END.match(line):
            comment, is_fresh = [], False
            line = PROPERTY.sub(r"/** See \2(). */ \1", line)
        else:
            if is_complete and not is_fresh:
                if OVERRIDE.match(line):
                    line = ""
                elif comment and "///<" not in line:
                    line = "/** %s */ %s" % (" ".join(comment), line.strip())
            if line.endswith("{"):
                comment = []
            is_complete = line.endswith((";", "{", "}")) or not line
            is_fresh = False
        yield line


if __name__ == "__main__":
    with open(sys.argv[1], encoding="utf-8") as file:
        print("\n".join(share_comments(file.read().split("\n"))))
