#!/usr/bin/env python3
"""Brings the screens' layout files into the form in which Qt Designer saves them: an element a line, indented by one
blank. So a screen that is opened and saved in Designer changes only the lines that were worked on.

    tools/layouts/format.py src/**/*.ui           rewrites the files
    tools/layouts/format.py --check src/**/*.ui   names those that are written otherwise, and fails
"""
import sys
import xml.etree.ElementTree as xml
from pathlib import Path
from xml.sax.saxutils import escape

QUOTE = {'"': "&quot;"}


def lines_of(element, depth):
    """The lines of an element and of all that it holds."""
    indent = " " * depth
    start = element.tag + "".join(f' {name}="{escape(value, QUOTE)}"' for name, value in element.items())
    text = element.text or ""
    if len(element):
        yield f"{indent}<{start}>"
        for child in element:
            yield from lines_of(child, depth + 1)
        yield f"{indent}</{element.tag}>"
    elif text:
        yield f"{indent}<{start}>{escape(text, QUOTE)}</{element.tag}>"
    else:
        yield f"{indent}<{start}/>"


def formatted(layout):
    return '<?xml version="1.0" encoding="UTF-8"?>\n' + "\n".join(lines_of(xml.fromstring(layout), 0)) + "\n"


def main(arguments):
    check = arguments[:1] == ["--check"]
    others = []
    for path in map(Path, arguments[check:]):
        layout = path.read_text(encoding="utf-8")
        if formatted(layout) == layout:
            continue
        others.append(path)
        if not check:
            path.write_text(formatted(layout), encoding="utf-8")
    if check and others:
        sys.exit("Not as Designer saves them (tools/layouts/format.py puts that right):\n" + "\n".join(map(str, others)))


if __name__ == "__main__":
    main(sys.argv[1:])
