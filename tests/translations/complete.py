#!/usr/bin/env python3
"""complete.py LUPDATE TRANSLATION.ts FOLDER...

Refuses a translation that is not that of the sources in FOLDER...: texts that are missing, not translated or no longer
there (scripts/translations brings the file up to date), translations that lack what the program puts into a text, and
texts that the program would look for under another name than translators see.
"""

import os
import re
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree

ROOT = os.path.abspath(os.path.join(os.path.dirname(__file__), "..", ".."))


def messages_of(path):
    """(context, text, comment) -> translation, None for unfinished."""
    messages = {}
    for context in ElementTree.parse(path).getroot().iter("context"):
        for message in context.iter("message"):
            translation = message.find("translation")
            key = (context.findtext("name"), message.findtext("source"), message.findtext("comment", ""))
            messages[key] = translation.text if translation.get("type") is None else None
    return messages


def extract(lupdate, folders):
    with tempfile.TemporaryDirectory() as folder:
        path = os.path.join(folder, "fresh.ts")
        command = [lupdate, "-silent", "-I", ".", "-locations", "none", *folders, "-ts", path]
        result = subprocess.run(command, cwd=ROOT, check=True, stderr=subprocess.PIPE, text=True)
        return messages_of(path), result.stderr


def marks_of(text):
    """What a translation must have as often as the text."""
    return {
        "places for values": sorted(re.findall(r"%L?\d|%n", text)),
        "mnemonic": len(re.findall(r"&\w", text)),
        "dots": text.endswith("..."),
        "colon": text.endswith(":"),
        "spaces at the end": len(text) - len(text.rstrip(" ")),
        "patterns of files": re.findall(r"\*\.\w+", text),
    }


def faults(translated, fresh, warnings):
    for line in warnings.splitlines():
        if "lacks Q_OBJECT" in line or "Qualifying with unknown" in line:
            yield line
    for key in sorted(fresh.keys() - translated.keys()):
        yield f"{key}: missing"
    for key in sorted(translated.keys() - fresh.keys()):
        yield f"{key}: no longer in the sources"
    for key, translation in sorted(translated.items()):
        if not translation:
            yield f"{key}: not translated"
            continue
        of_text, of_translation = marks_of(key[1]), marks_of(translation)
        for name, mark in of_text.items():
            if mark != of_translation[name]:
                yield f"{key}: other {name} in \"{translation}\""


def main(lupdate, path, *folders):
    fresh, warnings = extract(lupdate, folders)
    if not fresh:
        sys.exit("no text found")
    found = list(faults(messages_of(path), fresh, warnings))
    print("\n".join(found))
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
