"""The installed program: where it makes a user's shop, and what the system's own checkers say of its files.

    test_installed.py <cmake> <build folder> <version>

A checker that is not installed is skipped."""

import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import time
import unittest
import xml.etree.ElementTree

SOURCE = pathlib.Path(__file__).resolve().parents[2]
CMAKE, BUILD, VERSION = sys.argv.pop(1), sys.argv.pop(1), sys.argv.pop(1)


def run(*command):
    done = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
    return "" if done.returncode == 0 else f"{command[0]} ended with {done.returncode}:\n{done.stdout}"


def checker(name):
    return unittest.skipUnless(shutil.which(name), name + " is not installed")


class Installed(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory(prefix="a user's ")
        cls.addClassCleanup(folder.cleanup)
        cls.top = pathlib.Path(folder.name)
        cls.prefix = cls.top / "prefix"
        failed = run(CMAKE, "--install", BUILD, "--prefix", str(cls.prefix))
        assert not failed, failed

    def start(self, data, made):
        """Starts the program and ends it when the named file is there. Returns whether it was, and what the program said."""
        environment = dict(os.environ, XDG_DATA_HOME=str(data), QT_QPA_PLATFORM="offscreen", ASAN_OPTIONS="detect_leaks=0")
        program = subprocess.Popen([self.prefix / "bin" / "seamwise"], env=environment, stderr=subprocess.PIPE, text=True)
        limit = time.monotonic() + 120
        while not made.exists() and time.monotonic() < limit:
            try:
                program.wait(0.05)
                break
            except subprocess.TimeoutExpired:
                pass
        program.kill()
        return made.exists(), program.communicate()[1]

    def test_first_start_makes_the_users_shop(self):
        shop = self.top / "data" / "seamwise"
        made, said = self.start(self.top / "data", shop / "images")
        self.assertTrue(made, said)
        self.assertEqual(shop.stat().st_mode & 0o777, 0o700)
        self.assertTrue((shop / "data.mdb").is_file())
        self.assertEqual([path.name for path in shop.iterdir() if path.name in ("seamwise", "Lang.mdb", "fonts")], [])
        self.assertEqual([path.name for path in (self.prefix / "bin").iterdir()], ["seamwise"])

    def test_parts(self):
        parts = self.prefix / "share" / "seamwise"
        fonts = sorted(path.name for path in (parts / "fonts").iterdir() if path.is_file())  # a link to nowhere is none
        beside = sorted(path.name for path in pathlib.Path(BUILD, "bin", "fonts").iterdir() if path.suffix != ".txt")
        self.assertEqual(fonts, beside)
        self.assertTrue((parts / "Lang.mdb").is_file())

    def test_releases(self):
        metainfo = xml.etree.ElementTree.parse(self.prefix / "share/metainfo/org.example.Seamwise.metainfo.xml")
        release = metainfo.find("releases/release")
        changelog = pathlib.Path(BUILD, "packaging", "changelog").read_text()
        self.assertEqual(release.get("version"), VERSION)
        self.assertEqual(re.match(r"seamwise \((.*)-", changelog)[1], VERSION)
        written = time.strptime(re.search(r"  \w+, (\d+ \w+ \d+) ", changelog)[1], "%d %b %Y")
        self.assertEqual(release.get("date"), time.strftime("%Y-%m-%d", written))

    @checker("appstreamcli")
    def test_metainfo(self):
        self.assertEqual(run("appstreamcli", "validate", "--no-net", *map(str, self.prefix.glob("share/metainfo/*"))), "")

    @checker("desktop-file-validate")
    def test_menu_entry(self):
        self.assertEqual(run("desktop-file-validate", *map(str, self.prefix.glob("share/applications/*"))), "")

    @checker("man")
    def test_man_page(self):
        page = self.prefix / "share/man/man1/seamwise.1.gz"
        shown = subprocess.run(["man", "--warnings", "-l", page], capture_output=True, text=True)
        self.assertEqual(shown.stderr, "")
        self.assertIn("XDG_DATA_HOME", shown.stdout)

    @checker("shellcheck")
    def test_shell_scripts(self):
        files = [path for path in SOURCE.glob("*") if path.is_file()] + [*SOURCE.glob("packaging/*"), *SOURCE.glob(".ci/*")]
        scripts = [str(path) for path in files if re.match(rb"#!.*\b(ba)?sh\b|# shellcheck", path.read_bytes())]
        self.assertGreaterEqual(len(scripts), 6)
        self.assertEqual(run("shellcheck", "-x", "-P", str(SOURCE), *scripts), "")


if __name__ == "__main__":
    unittest.main()
