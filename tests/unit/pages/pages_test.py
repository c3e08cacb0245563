"""The game's own pages: made from today's texts, readable by any browser, complete."""

import subprocess
import sys
import unittest
import xml.etree.ElementTree as xml
from pathlib import Path

ROOT = Path(__file__).resolve().parents[3]
PAGES = ROOT / "resources" / "pages"
sys.path.insert(0, str(ROOT / "tools" / "pages"))

import texts  # noqa: E402


class PagesTest(unittest.TestCase):
    def pages(self):
        for language in texts.languages():
            with self.subTest(language=language):
                yield language, xml.parse(PAGES / f"{language}.html").getroot()

    def test_they_say_what_the_game_says(self):
        subprocess.run([ROOT / "tools" / "pages" / "make-pages", "--check"], check=True)

    def test_there_is_one_for_each_of_the_twenty_languages(self):
        self.assertEqual({page.stem for page in PAGES.glob("*.html")}, set(texts.languages()))
        self.assertEqual(len(texts.languages()), 20)

    def test_each_names_its_language_and_direction(self):
        for language, page in self.pages():
            self.assertEqual(page.get("lang"), language)
            self.assertEqual(page.get("dir"), "rtl" if language == "ar" else "ltr")

    def test_what_they_refer_to_is_there(self):
        for _, page in self.pages():
            targets = [element.get(name) for element in page.iter() for name in ("href", "src") if element.get(name)]
            self.assertEqual(len(targets), 19 + 4)  # the other languages; style, icon, logo, picture
            for target in targets:
                self.assertTrue((PAGES / target).is_file(), target)

    def test_rules_keys_classes_and_licence_are_told(self):
        for language, page in self.pages():
            words = " ".join("".join(page.itertext()).split())
            table = texts.table(language)
            for key in ("page.boccia.text", "bc.desc.bc1", "bc.desc.bc4", "menu.startGame", "menu.toggleFullScreen"):
                self.assertIn(table[key], words)
            self.assertIn("Permission is hereby granted", words)
            self.assertEqual(len(page.findall(".//ol/li")), 5)
            self.assertEqual(len(page.findall(".//kbd")), 5 + 2 + 1)
            self.assertNotIn("%@", words)


if __name__ == "__main__":
    unittest.main()
