#!/usr/bin/env python3
"""Takes the code samples out of the documentation.

    samples.py --write DIR      writes each C++ sample to a file of its own in DIR and prints their names
    samples.py --check-python   compiles the Python samples

A C++ sample is a whole source file. One that is not stands below a line <!-- sample: NAME -->, which readers do not
see: it takes the place of @SAMPLE@ in preludes/NAME.cpp.in.
"""

import os
import re
import sys

HERE = os.path.dirname(os.path.abspath(__file__))
ROOT = os.path.dirname(os.path.dirname(HERE))

SAMPLE = re.compile(r"^(?:<!-- sample: (?P<prelude>[\w-]+) -->\n)?```(?P<language>\w*)\n(?P<code>.*?)^```$",
                    re.MULTILINE | re.DOTALL)


def pages():
    docs = os.path.join(ROOT, "docs")
    yield "README.md"
    yield from sorted(os.path.join("docs", name) for name in os.listdir(docs) if name.endswith(".md"))


def samples(language):
    """Page, first line, prelude and code of every sample in the language."""
    for page in pages():
        with open(os.path.join(ROOT, page), encoding="utf-8") as file:
            text = file.read()
        if text.count("\n```") % 2:
            sys.exit("%s: a code block without end" % page)
        for match in SAMPLE.finditer(text):
            if match.group("language") == language:
                line = text.count("\n", 0, match.start("code")) + 1
                yield page, line, match.group("prelude"), match.group("code")


def source_of(page, line, prelude, code):
    # Errors are told with the lines of the page.
    code = '#line %d "%s"\n%s' % (line, os.path.join(ROOT, page), code)
    if not prelude:
        return code
    with open(os.path.join(HERE, "preludes", prelude + ".cpp.in"), encoding="utf-8") as file:
        return file.read().replace("@SAMPLE@\n", code)


def write_if_changed(path, text):
    """So that only what has changed is compiled again."""
    if os.path.exists(path):
        with open(path, encoding="utf-8") as file:
            if file.read() == text:
                return
    with open(path, "w", encoding="utf-8") as file:
        file.write(text)


def write_all(folder):
    os.makedirs(folder, exist_ok=True)
    counts = {}
    for page, line, prelude, code in samples("cpp"):
        name = os.path.splitext(os.path.basename(page))[0]
        counts[name] = counts.get(name, 0) + 1
        path = os.path.join(folder, "%s-%d.cpp" % (name, counts[name]))
        write_if_changed(path, source_of(page, line, prelude, code))
        print(path)


def check_python():
    count = 0
    for page, line, _, code in samples("python"):
        compile("\n" * (line - 1) + code, page, "exec")
        count += 1
    print("%d samples" % count)
    return count == 0


if __name__ == "__main__":
    if sys.argv[1:2] == ["--write"]:
        write_all(sys.argv[2])
    else:
        sys.exit(check_python())
