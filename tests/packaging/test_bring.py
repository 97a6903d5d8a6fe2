"""What ./run brings into a shop's folder replaces the earlier program and leaves the shop's data alone."""

import pathlib
import subprocess
import tempfile
import unittest

BRING = pathlib.Path(__file__).resolve().parents[2] / "packaging" / "bring"


class Bring(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="a shop's ")
        self.addCleanup(folder.cleanup)
        self.built = pathlib.Path(folder.name) / "built"
        self.shop = pathlib.Path(folder.name) / "shop"
        (self.built / "fonts").mkdir(parents=True)
        (self.built / "fonts" / "Sans.otf").write_text("letters")
        self.release("first")

    def release(self, version):
        (self.built / "seamwise").write_text("program " + version)
        (self.built / "Lang.mdb").write_text("texts " + version)

    def start(self):
        return subprocess.Popen([BRING, self.built, self.shop], stderr=subprocess.PIPE, text=True)

    def bring(self):
        return self.start().communicate()[1]

    def test_update(self):
        self.assertEqual(self.bring(), "")
        (self.shop / "data.mdb").write_text("the shop")
        kept = (self.shop / "fonts" / "Sans.otf").stat()
        with open(self.shop / "seamwise") as running:  # goes on with the file it began with
            self.release("second")
            self.assertEqual(self.bring(), "")
            self.assertEqual(running.read(), "program first")
        self.assertEqual((self.shop / "seamwise").read_text(), "program second")
        self.assertEqual((self.shop / "Lang.mdb").read_text(), "texts second")
        self.assertEqual((self.shop / "data.mdb").read_text(), "the shop")
        self.assertEqual((self.shop / "fonts" / "Sans.otf").stat().st_ino, kept.st_ino)

    def test_many_at_once(self):
        self.assertEqual({start.communicate()[1] for start in [self.start() for _ in range(8)]}, {""})
        self.assertEqual((self.shop / "seamwise").read_text(), "program first")
        self.assertEqual(list(self.shop.rglob("*.new")), [])

    def test_a_failure_replaces_nothing(self):
        self.bring()
        self.release("second")
        (self.shop / "Lang.mdb.new").mkdir()  # a copy that fails half-way, as on a full disk
        (self.shop / "Lang.mdb.new" / "Lang.mdb").mkdir()
        self.assertIn("Lang.mdb", self.bring())
        self.assertEqual((self.shop / "seamwise").read_text(), "program first")


if __name__ == "__main__":
    unittest.main()
