"""What is told of the game outside its window: of today's version, in every language, with every option."""

import configparser
import os
import re
import subprocess
import unittest
import xml.etree.ElementTree as xml
from pathlib import Path

ROOT = Path(__file__).resolve().parents[3]
BUILD = Path(os.environ["VORBEL_BUILD"])
VERSION = os.environ["VORBEL_VERSION"]
LANGUAGES = "ar de el en es fr hi id it ja ko nl pl pt ru th tr uk vi zh".split()
LANGUAGE = "{http://www.w3.org/XML/1998/namespace}lang"


def read(name):
    return (ROOT / name).read_text(encoding="utf-8")


def answer(program, option):
    return subprocess.run([BUILD / program, option], check=True, capture_output=True, text=True).stdout


class Version(unittest.TestCase):
    def test_the_program_says_it(self):
        self.assertEqual(answer("vorbel", "--version"), f"vorbel {VERSION}\n")

    def test_the_newest_entry_of_each_list_of_changes_is_about_it(self):
        self.assertEqual(re.search(r"^## (\S+),", read("CHANGELOG.md"), re.MULTILINE)[1], VERSION)
        self.assertEqual(re.match(r"vorbel \((\S+)\)", read("debian/changelog"))[1], VERSION)
        release = xml.fromstring(read("resources/desktop/example.vorbel.vorbel.metainfo.xml")).find("releases/release")
        self.assertEqual(release.get("version"), VERSION)


class Words(unittest.TestCase):
    def test_they_are_made_from_the_table(self):
        subprocess.run([ROOT / "tools/desktop/make-desktop", "--check"], check=True)

    def test_the_menus_entry_is_in_every_language(self):
        entry = configparser.ConfigParser(interpolation=None, delimiters="=")
        entry.optionxform = str
        entry.read(ROOT / "resources/desktop/vorbel.desktop", encoding="utf-8")
        for key in ("GenericName", "Comment", "Keywords"):
            texts = {entry["Desktop Entry"][key if code == "en" else f"{key}[{code}]"] for code in LANGUAGES}
            self.assertEqual(len(texts), len(LANGUAGES), f"two languages have the same {key}")

    def test_the_software_centre_is_told_in_every_language(self):
        component = xml.fromstring(read("resources/desktop/example.vorbel.vorbel.metainfo.xml"))
        for place, each in (("summary", 1), ("description/p", 3), ("screenshots/screenshot/caption", 2)):
            languages = [text.get(LANGUAGE, "en") for text in component.findall(place)]
            self.assertEqual(sorted(languages), sorted(LANGUAGES * each), place)

    def test_each_picture_that_it_names_is_in_the_tree(self):
        component = xml.fromstring(read("resources/desktop/example.vorbel.vorbel.metainfo.xml"))
        for image in component.findall("screenshots/screenshot/image"):
            self.assertTrue((ROOT / "docs" / image.text.rpartition("/")[2]).is_file(), image.text)


class Packages(unittest.TestCase):
    def test_debians_packages_ask_for_what_play_installs(self):
        player = {line.split()[0] for line in read("tools/packages.txt").splitlines() if line and line[0] != "#"}
        elsewhere = {"g++", "dbus-daemon", "xvfb"}  # there wherever packages are built; for a demonstration
        listed = set(re.findall(r"^ ([a-z0-9][a-z0-9+.-]+)", read("debian/control"), re.MULTILINE))
        self.assertEqual(player - listed, elsewhere)


class ManualPages(unittest.TestCase):
    def test_they_name_every_option_that_the_help_names(self):
        for program, page in (("vorbel", "vorbel.6"), ("tools/vorbel-sim", "vorbel-sim.6")):
            told = read(f"docs/man/{page}").replace("\\-", "-")
            options = set(re.findall(r"^ +(--[a-z-]+)", answer(program, "--help"), re.MULTILINE))
            self.assertGreater(len(options), 4)
            self.assertEqual(options, set(re.findall(r"^\.B[IR]? (--[a-z-]+)", told, re.MULTILINE)), page)


if __name__ == "__main__":
    unittest.main()
