"""./play, ./test and .ci/run: from anywhere, for anybody, on any system."""

import re
import unittest
from pathlib import Path

from machine import ROOT, Machine

LISTS = {name: ROOT / "tools" / f"{name}.txt" for name in ("packages", "packages-developer")}


def listed(name):
    """{package: upstream name} of a list."""
    lines = LISTS[name].read_text().splitlines()
    entries = [re.fullmatch(r"(\S+)\s+# (.+)", line) for line in lines if line and not line.startswith("#")]
    return {entry[1]: entry[2] for entry in entries}


class ScriptsTest(unittest.TestCase):
    def machine(self, folder="vorbel"):
        machine = Machine(folder)
        self.addCleanup(machine.remove)
        return machine

    def assert_plays(self, machine, result):
        self.assertEqual(result.returncode, 0, result.stdout)
        self.assertIn(f"game from {machine.tree}/build/play/vorbel:--demo", result.stdout)


class Anywhere(ScriptsTest):
    def test_from_any_folder(self):
        machine = self.machine()
        for folder in ("/", machine.tree, machine.tree / "tools"):
            self.assert_plays(machine, machine.run(machine.tree / "play", folder=folder))

    def test_through_symbolic_links(self):
        machine = self.machine()
        (machine.place / "games").mkdir()
        for name in ("play", "test", ".ci/run"):
            first = machine.place / "games" / Path(name).name
            first.symlink_to(f"../vorbel/{name}")
            second = machine.place / Path(name).name
            second.symlink_to(f"games/{Path(name).name}")
            result = machine.run(f"./{Path(name).name}", folder=machine.place)
            self.assertEqual(result.returncode, 0, result.stdout)
        self.assertTrue((machine.tree / "build/play/vorbel").is_file())
        self.assertTrue((machine.tree / "build/release/build.ninja").is_file())
        self.assertTrue((machine.tree / "build/ci/test.log").is_file())
        self.assertFalse((machine.place / "build").exists())

    def test_with_cdpath_exported(self):
        machine = self.machine()
        (machine.place / "elsewhere/vorbel").mkdir(parents=True)
        for name in ("play", "test", ".ci/run"):
            result = machine.run(f"vorbel/{name}", folder=machine.place, CDPATH=str(machine.place / "elsewhere"))
            self.assertEqual(result.returncode, 0, result.stdout)
        self.assertEqual(list((machine.place / "elsewhere/vorbel").iterdir()), [])

    def test_from_a_folder_with_semicolon_space_and_quote(self):
        machine = self.machine("my games; Ada's")
        for name in ("play", "test", ".ci/run"):
            result = machine.run(machine.tree / name)
            self.assertEqual(result.returncode, 0, result.stdout)
        self.assert_plays(machine, machine.run(machine.tree / "play"))
        self.assertEqual([line for line in machine.asked("cmake") if ";" in line], [])

    def test_a_tree_that_was_moved_is_configured_again(self):
        machine = self.machine()
        machine.run(machine.tree / "play")
        machine.tree = machine.tree.rename(machine.place / "moved")
        self.assert_plays(machine, machine.run(machine.tree / "play"))
        self.assertEqual(len([line for line in machine.asked("cmake") if " -S " in line]), 2)

    def test_arguments_go_to_the_game_as_they_are(self):
        machine = self.machine()
        result = machine.run(machine.tree / "play", "--screenshot", "a b;c.png")
        self.assertIn("vorbel:--screenshot a b;c.png", result.stdout)

    def test_an_unknown_option_of_test_is_refused_before_anything_is_done(self):
        machine = self.machine()
        self.assertEqual(machine.run(machine.tree / "test", "--bogus").returncode, 2)
        self.assertEqual(machine.asked("cmake"), [])


class Anybody(ScriptsTest):
    def test_nothing_is_asked_for_when_nothing_is_missing(self):
        machine = self.machine()
        machine.is_user(1000, sudo=True)
        self.assert_plays(machine, machine.run(machine.tree / "play"))
        self.assertEqual(machine.asked("sudo") + machine.asked("apt-get"), [])

    def test_root_installs_what_is_missing_and_no_more(self):
        machine = self.machine()
        machine.lacks("libglm-dev", "cmake", "clang-tidy")
        self.assert_plays(machine, machine.run(machine.tree / "play"))
        update, install = machine.asked("apt-get")
        self.assertRegex(update, " update$")
        self.assertRegex(install, " install .*--no-install-recommends cmake libglm-dev$")

    def test_a_user_is_asked_for_the_password_once_and_told_why(self):
        machine = self.machine()
        machine.is_user(1000, sudo=True)
        machine.lacks("libglm-dev", "cmake")
        result = machine.run(machine.tree / "play")
        self.assert_plays(machine, result)
        self.assertIn("sudo may ask for your password, once", result.stdout)
        self.assertEqual(len(machine.asked("sudo")), 1)
        self.assertEqual(len(machine.asked("apt-get")), 2)

    def test_a_user_without_sudo_gets_the_command_for_the_administrator(self):
        machine = self.machine()
        machine.is_user(1000)
        machine.lacks("libglm-dev", "cmake")
        result = machine.run(machine.tree / "play")
        self.assertEqual(result.returncode, 1)
        self.assertIn("as root: apt-get install cmake libglm-dev\n", result.stdout)
        self.assertEqual(machine.asked("cmake") + machine.asked("apt-get"), [])

    def test_what_cannot_be_installed_is_said_with_the_command(self):
        machine = self.machine()
        machine.lacks("libglm-dev")
        (machine.state / "no-network").touch()
        result = machine.run(machine.tree / "play")
        self.assertEqual(result.returncode, 1)
        self.assertIn("apt-get install libglm-dev", result.stdout.splitlines()[-1])
        self.assertEqual(machine.asked("cmake"), [])

    def test_test_asks_for_the_developers_packages_too(self):
        machine = self.machine()
        machine.lacks("libglm-dev", "clang-tidy")
        self.assertEqual(machine.run(machine.tree / "test").returncode, 0)
        self.assertRegex(machine.asked("apt-get")[1], " clang-tidy libglm-dev$")


class AnySystem(ScriptsTest):
    def test_another_system_builds_without_being_asked_for_anything(self):
        machine = self.machine()
        machine.is_no_debian()
        self.assert_plays(machine, machine.run(machine.tree / "play"))

    def test_another_system_that_lacks_something_gets_the_upstream_names(self):
        for missing in ("libraries", "cmake"):
            with self.subTest(missing=missing):
                machine = self.machine()
                machine.is_no_debian()
                (machine.state / "no-libraries").touch()
                if missing == "cmake":
                    (machine.bin / "cmake").unlink()
                result = machine.run(machine.tree / "play")
                self.assertEqual(result.returncode, 1)
                self.assertIn("neither Debian nor Ubuntu", result.stdout)
                for name in listed("packages").values():
                    self.assertIn(f"    {name}\n", result.stdout)
                self.assertNotIn("clang-tidy", result.stdout)

    def test_the_players_list_has_nothing_that_only_a_developer_needs(self):
        player, developer = listed("packages"), listed("packages-developer")
        self.assertEqual(player.keys() & developer.keys(), set())
        for package in ("clang-tidy", "openbox", "libgtest-dev", "libbenchmark-dev", "xdotool", "git"):
            self.assertIn(package, developer)

    def test_each_package_has_the_name_that_others_know_it_by(self):
        for name, path in LISTS.items():
            entries = [line for line in path.read_text().splitlines() if line and not line.startswith("#")]
            self.assertEqual(len(listed(name)), len(entries))


if __name__ == "__main__":
    unittest.main()
