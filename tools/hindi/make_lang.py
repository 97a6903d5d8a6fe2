"""Builds the table of Hindi messages that the message dialog reads.

    make_lang.py <messages.txt> <Lang.mdb>

The text file holds blocks of two lines, "en: ..." with the message as the program passes it and "hi: ..." with the
Hindi in Unicode; a line break inside a message is written \\r\\n. Blank lines part the blocks, "#" begins a comment, and
"as: ..." names a text of the program that looks like a message and stays in English.
"""

import os
import sqlite3
import sys

from encoding import encode


def read_lines(path):
    """(tag, text) of each line that says something."""
    with open(path, encoding="utf-8") as lines:
        for line in lines:
            line = line.rstrip("\n")
            if line and not line.startswith("#"):
                yield line[:4], line[4:].replace("\\r", "\r").replace("\\n", "\n")


def read_messages(path):
    """English message -> Hindi message in Unicode. Raises ValueError for a block that is not whole or comes twice."""
    messages, english = {}, None
    for tag, text in read_lines(path):
        if tag == "en: " and english is None and text not in messages:
            english = text
        elif tag == "hi: " and english is not None and text:
            messages[english] = text
            english = None
        elif tag != "as: " or english is not None:
            raise ValueError(f"{path}: unexpected {tag}{text!r} behind {english!r}")
    if english is not None:
        raise ValueError(f"{path}: no Hindi for {english!r}")
    return messages


def read_kept(path):
    """The texts that stay in English."""
    return {text for tag, text in read_lines(path) if tag == "as: "}


def main(source, target):
    rows = [(english, encode(hindi)) for english, hindi in read_messages(source).items()]
    built = target + ".new"
    if os.path.exists(built):
        os.remove(built)
    database = sqlite3.connect(built)
    with database:
        database.execute("Create Table messages (EngMessage text, HindiMessage text)")
        database.executemany("Insert into messages values (?, ?)", rows)
    database.close()
    os.replace(built, target)


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    main(*sys.argv[1:])
