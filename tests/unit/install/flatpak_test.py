"""The Flatpak's manifest, as far as it can be judged without its runtime."""

import json
import re
import subprocess
import unittest
from pathlib import Path

MANIFEST = Path(__file__).resolve().parents[3] / "flatpak/example.vorbel.vorbel.yml"


def keys(node):
    if isinstance(node, dict):
        return set(node).union(*map(keys, node.values()))
    return set().union(*map(keys, node)) if isinstance(node, list) else set()


class FlatpakTest(unittest.TestCase):
    def setUp(self):
        self.text = MANIFEST.read_text(encoding="utf-8")
        shown = subprocess.run(["flatpak-builder", "--show-manifest", MANIFEST], check=True, capture_output=True)
        self.manifest = json.loads(shown.stdout)

    def test_every_key_is_one_that_the_builder_knows(self):
        written = set(re.findall(r"^ *(?:- )?([a-z0-9-]+):(?: |$)", self.text, re.MULTILINE))
        self.assertGreater(len(written), 12)
        self.assertEqual(written - keys(self.manifest), set())

    def test_every_source_from_outside_is_pinned(self):
        for module in self.manifest["modules"]:
            for source in module["sources"]:
                self.assertTrue(source["type"] == "dir" or re.fullmatch("[0-9a-f]{64}", source["sha256"]), module["name"])

    def test_it_asks_for_no_files_and_no_network(self):
        asked = " ".join(self.manifest["finish-args"])
        self.assertNotIn("filesystem", asked)
        self.assertNotIn("share=network", asked)


if __name__ == "__main__":
    unittest.main()
