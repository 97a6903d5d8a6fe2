"""Each folder of the program includes only what stands below it."""

import pathlib
import re
import unittest

SRC = pathlib.Path(__file__).resolve().parents[2] / "src"

# From the ground up; folders on one line see each other.
FLOORS = [
    ["platform/values"],
    ["platform/ado", "platform/devices"],
    ["platform/forms"],
    ["platform/report"],
    ["core/store"],
    ["ui", "messaging", "media"],
    ["masters", "planning"],
    ["jobcards"],
    ["accounts"],
    ["registers"],
    ["core/shell"],
]
# The card finds its client in a register, and the registers open their cards.
ALLOWED = {("jobcards/frmEditJOB.cpp", "registers/frmSearchClient.h")}

FLOOR = {folder: number for number, floor in enumerate(FLOORS) for folder in floor}


def folder(path):
    parts = path.split("/")
    return "/".join(parts[:2]) if parts[0] in ("platform", "core") else parts[0]


class Floors(unittest.TestCase):
    def test_nothing_includes_what_stands_above_it(self):
        upward = []
        for source in sorted(SRC.glob("*/**/*")):
            if source.suffix not in (".h", ".cpp", ".ui"):
                continue
            name = source.relative_to(SRC).as_posix()
            self.assertIn(folder(name), FLOOR, "a folder without a floor")
            text = source.read_text(encoding="utf-8")
            pattern = r"<header>(\w+/.*)</header>" if source.suffix == ".ui" else r'^#include "(\w+/.*)"'
            for include in re.findall(pattern, text, re.MULTILINE):
                if FLOOR[folder(include)] > FLOOR[folder(name)] and (name, include) not in ALLOWED:
                    upward.append(f"{name} includes {include}")
        self.assertEqual(upward, [])

    def test_the_platform_knows_no_shop(self):
        shop = re.compile(r"seamwise|\bshop|\btailor|\bgarment|\bclient|\bworker|\bpostings\b", re.IGNORECASE)
        named = []
        for source in sorted(SRC.glob("platform/**/*")):
            if source.suffix in (".h", ".cpp"):
                for number, line in enumerate(source.read_text(encoding="utf-8").splitlines(), 1):
                    if shop.search(line):
                        named.append(f"{source.relative_to(SRC)}:{number}: {line.strip()}")
        self.assertEqual(named, [])


if __name__ == "__main__":
    unittest.main()
