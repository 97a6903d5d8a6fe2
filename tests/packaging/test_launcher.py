"""The launcher brings the program into the user's folder, keeps it up to date there, and leaves the shop's data alone."""

import os
import pathlib
import shutil
import subprocess
import tempfile
import unittest

PACKAGING = pathlib.Path(__file__).resolve().parents[2] / "packaging"
PROGRAM = '#!/bin/sh\necho "%s in $(pwd) $*${SEAMWISE_NOTICE:+; $SEAMWISE_NOTICE}"\n'


class Launcher(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="a shop's ")
        self.addCleanup(folder.cleanup)
        self.top = pathlib.Path(folder.name)
        self.installed = self.top / "lib" / "seamwise"
        (self.installed / "program" / "fonts").mkdir(parents=True)
        (self.top / "bin").mkdir()
        shutil.copy(PACKAGING / "launcher", self.top / "bin" / "seamwise")
        shutil.copy(PACKAGING / "bring", self.installed / "bring")
        self.release("first")
        (self.installed / "program" / "fonts" / "Sans.otf").write_text("letters")
        self.data = self.top / "data"
        self.shop = self.data / "seamwise"

    def release(self, version):
        program = self.installed / "program" / "seamwise"
        program.write_text(PROGRAM % version)
        program.chmod(0o755)
        (self.installed / "program" / "Lang.mdb").write_text("texts of " + version)

    def starter(self):
        environment = dict(os.environ, XDG_DATA_HOME=str(self.data))
        return subprocess.Popen(
            [self.top / "bin" / "seamwise", "now"], env=environment, stdout=subprocess.PIPE, text=True
        )

    def start(self):
        return self.starter().communicate()[0].strip()

    def test_first_start_and_update(self):
        self.assertEqual(self.start(), f"first in {self.shop} now")
        self.assertEqual((self.shop / "fonts" / "Sans.otf").read_text(), "letters")
        self.assertEqual(self.shop.stat().st_mode & 0o777, 0o700)
        (self.shop / "data.mdb").write_text("the shop")
        kept = (self.shop / "fonts" / "Sans.otf").stat()
        with open(self.shop / "seamwise") as running:  # goes on with the file it began with
            self.release("second")
            self.assertEqual(self.start(), f"second in {self.shop} now")
            self.assertEqual(running.read(), PROGRAM % "first")
        self.assertEqual((self.shop / "Lang.mdb").read_text(), "texts of second")
        self.assertEqual((self.shop / "data.mdb").read_text(), "the shop")
        self.assertEqual((self.shop / "fonts" / "Sans.otf").stat().st_ino, kept.st_ino)

    def test_many_starts_at_once(self):
        starts = [self.starter() for _ in range(8)]
        self.assertEqual({start.communicate()[0].strip() for start in starts}, {f"first in {self.shop} now"})
        self.assertEqual(list(self.shop.rglob("*.new")), [])

    def test_what_cannot_be_brought_is_told(self):
        self.data.write_text("no folder")
        told = self.start()
        self.assertIn(f"Seamwise could not be brought into {self.shop}", told)
        self.assertTrue(told.startswith("first in"))  # by the program that is installed
        self.data.unlink()
        self.start()
        self.release("second")
        (self.shop / "Lang.mdb.new").mkdir()  # a copy that fails half-way, as on a full disk
        (self.shop / "Lang.mdb.new" / "Lang.mdb").mkdir()
        told, started = self.start().split("\n")[0], self.start().split("\n")[-1]
        self.assertIn("could not be brought", told)
        self.assertEqual(started, f"first in {self.shop} now")


if __name__ == "__main__":
    unittest.main()
