"""cmake --install: everything is there, wherever it goes to, and the game finds it again."""

import os
import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path

BUILD = os.environ["VORBEL_BUILD"]
SIZES = (16, 22, 24, 32, 48, 64, 96, 128, 256, 512)
WANTED = ["share/applications/vorbel.desktop", "share/metainfo/example.vorbel.vorbel.metainfo.xml",
          "share/man/man6/vorbel.6", "share/vorbel/crowd.mp3", "share/vorbel/Pop.wav", "share/vorbel/Logo.png",
          "share/vorbel/pages/en.html", "share/vorbel/pages/pages.css", "share/icons/hicolor/scalable/apps/vorbel.svg",
          *(f"share/icons/hicolor/{size}x{size}/apps/vorbel.png" for size in SIZES)]


class InstallTest(unittest.TestCase):
    def setUp(self):
        self.place = Path(tempfile.mkdtemp(prefix="install-"))
        self.addCleanup(shutil.rmtree, self.place)

    def install(self, prefix, **environment):
        command = [os.environ["VORBEL_CMAKE"], "--install", BUILD, "--prefix", str(prefix)]
        subprocess.run(command, check=True, stdout=subprocess.DEVNULL, env={**os.environ, **environment})

    def files(self, folder):
        return {str(file.relative_to(folder)) for file in folder.rglob("*") if file.is_file()}

    def test_everything_is_there(self):
        self.install(self.place)
        installed = self.files(self.place)
        self.assertEqual(set(WANTED) - installed, set())
        self.assertTrue({"bin/vorbel", "games/vorbel"} & installed, installed)
        self.assertTrue([name for name in installed if name.endswith("/LICENSE")])

    def test_nothing_is_there_that_only_makers_need(self):
        self.install(self.place)
        makings = [name for name in self.files(self.place) if name.endswith((".py", ".h", ".cpp", ".a", ".txt"))]
        self.assertEqual(makings, [])

    def test_destdir_stands_before_the_prefix(self):
        self.install("/opt/games", DESTDIR=str(self.place))
        self.assertEqual(set(WANTED) - self.files(self.place / "opt/games"), set())

    def test_an_icon_has_the_size_of_its_folder(self):
        self.install(self.place)
        for size in SIZES:
            head = (self.place / f"share/icons/hicolor/{size}x{size}/apps/vorbel.png").read_bytes()[16:24]
            self.assertEqual((int.from_bytes(head[:4], "big"), int.from_bytes(head[4:], "big")), (size, size))

    def test_the_entry_starts_what_is_installed(self):
        self.install(self.place)
        lines = (self.place / "share/applications/vorbel.desktop").read_text().splitlines()
        self.assertIn("Exec=vorbel", lines)
        self.assertIn("Icon=vorbel", lines)


if __name__ == "__main__":
    unittest.main()
