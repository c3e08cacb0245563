"""Debian's source package in the eyes of lintian. Its other half, the built packages, is seen through by
tools/try-in-bare-debian, which has the time to build them."""

import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[3]
KINDS = "error,warning,info,pedantic"


class LintianTest(unittest.TestCase):
    def setUp(self):
        self.place = Path(tempfile.mkdtemp(prefix="lintian-"))
        self.addCleanup(shutil.rmtree, self.place)

    def copy_tree(self, target):
        names = subprocess.run(["git", "-c", "safe.directory=*", "ls-files", "-z"], cwd=ROOT, check=True,
                               capture_output=True, text=True).stdout.split("\0")
        for name in names:
            if (ROOT / name).is_file():
                (target / name).parent.mkdir(parents=True, exist_ok=True)
                shutil.copy(ROOT / name, target / name)

    def test_it_has_nothing_to_say_of_the_source_package(self):
        self.copy_tree(self.place / "vorbel")
        subprocess.run(["dpkg-source", "--build", "vorbel"], cwd=self.place, check=True, stdout=subprocess.DEVNULL)
        told = subprocess.run(["lintian", "--allow-root", "--pedantic", "--display-experimental", "--info", "--fail-on", KINDS,
                               *self.place.glob("*.dsc")], capture_output=True, text=True)
        self.assertEqual(told.returncode, 0, told.stdout + told.stderr)


if __name__ == "__main__":
    unittest.main()
