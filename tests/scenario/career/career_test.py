"""A player's first evening and the next day, by keyboard alone: a single match, a tournament round won and one
lost, and everything earned is there after a restart. Pictures of the stages are left in VORBEL_PICTURES."""

import os
import re
import subprocess
import unittest
import uuid
from pathlib import Path

import pyatspi
import texts
from game import Folder, Game, states, wait_until

EN = texts.table("en")
PICTURES = Path(os.environ["VORBEL_PICTURES"])
FAST = 25  # times real time
MATCH = 300  # s a match may take, on a busy machine

# One throw, too far to the left to score: aim, turn, lock the power, throw. On another's turn it does nothing.
THROW_ASTRAY = ["space"] + ["Left"] * 12 + ["space", "space"]
RED_SWITCH = f"{EN['label.aiToggle']}, {EN['team.red.caps']}"
BLUE_SWITCH = f"{EN['label.aiToggle']}, {EN['team.blue.caps']}"


class CareerTest(unittest.TestCase):
    def setUp(self):
        PICTURES.mkdir(parents=True, exist_ok=True)
        for picture in PICTURES.glob("*.png"):  # of an earlier run
            picture.unlink()
        self.pictures = 0
        self.folder = self.enterContext(Folder())

    def picture(self, stage):
        self.pictures += 1
        file = PICTURES / f"{self.pictures:02}-{stage}.png"
        subprocess.run([os.environ["VORBEL_SCREEN_PICTURE"], file], check=True, timeout=30)

    def choose(self, name, key="Tab"):
        """Goes to a control by its name, and presses it."""
        reached = []
        while not reached or reached[-1] != name:
            self.assertLess(len(reached), 60, f"'{name}' is not among {reached}")
            reached.append(self.game.tab(key)[1])
        self.game.key("Return")

    def go_on(self, heading):
        """Presses the control that has the keyboard, which leads to the next screen."""
        self.game.key("Return")
        self.game.find("heading", heading)

    def is_checked(self, role, name):
        wait_until(lambda: pyatspi.STATE_CHECKED in states(self.game.find(role, name)), f"'{name}' is checked")

    def play_match(self, keys):
        """Presses the keys again and again until the match is over; gives the points of both sides."""
        played = self.folder.stored().get("boccia_gamesPlayed", 0)

        def over():
            self.game.key(*keys)
            return self.folder.stored().get("boccia_gamesPlayed", 0) > played
        wait_until(over, "the match ends", MATCH)
        self.game.find("heading", EN["menu.matchResult"])
        total = re.compile(rf"{EN['label.score']} {EN['team.red']} (\d+), {EN['team.blue']} (\d+)")
        lines = [total.fullmatch(name) for name in wait_until(lambda: self.game.names("label"), "the result")]
        return next(tuple(map(int, line.groups())) for line in lines if line)

    def check_newest_entry(self, red, blue):
        """What the last match left, as the store keeps it."""
        newest = self.folder.stored()["boccia_diaryData"][0]
        result, points = ("diary.win", 1) if red > blue else ("diary.loss", 0)
        self.assertEqual((newest["resultKey"], newest["xpGained"]), (result, points))
        self.assertEqual(set(newest), {"id", "date", "resultKey", "xpGained"})
        self.assertEqual(str(uuid.UUID(newest["id"])).upper(), newest["id"])

    def choose_language_country_class_and_switch(self):
        self.choose("English", "shift+Tab")
        self.choose(EN["menu.isRealAthlete"])
        self.is_checked("check box", EN["menu.isRealAthlete"])
        self.picture("main-menu")
        self.choose(EN["menu.startGame"])
        self.choose(EN["country.japan"])
        self.is_checked("radio button", EN["country.japan"])
        self.picture("country")
        self.choose(EN["menu.play"])
        self.choose("BC2")
        self.is_checked("radio button", "BC2")
        self.picture("class")
        self.choose(EN["menu.play"])

    def play_single_match(self):
        """The computer plays both sides."""
        game = self.game
        game.find("label", EN["label.playingAs.format"].replace("%@", EN["country.japan"], 1).replace("%@", "BC2"))
        self.assertEqual(game.names("alert"), [EN["msg.initial"]])
        self.choose(RED_SWITCH)
        self.choose(BLUE_SWITCH)
        self.is_checked("check box", BLUE_SWITCH)
        self.picture("single-match")
        red, blue = self.play_match(["space"])
        self.check_newest_entry(red, blue)
        winner = EN["team.red" if red > blue else "team.blue"]
        game.find("label", EN["msg.teamWinMatch.format"].replace("%@", winner))
        self.picture("single-match-result")
        self.go_on("VORBEL")

    def win_first_round(self):
        """The strongest computer plays red against a blue player who throws astray."""
        game = self.game
        self.choose(EN["menu.tournament"])
        self.is_checked("radio button", EN["country.japan"])
        self.choose(EN["menu.play"])
        game.find("heading", EN["menu.sportClass"])
        self.is_checked("radio button", "BC2")
        self.choose(EN["menu.play"])
        self.assertTrue(self.shows_round(1))
        self.choose(EN["difficulty.ultra"])
        self.choose(BLUE_SWITCH)
        self.choose(RED_SWITCH)
        self.is_checked("check box", RED_SWITCH)
        self.picture("tournament-round-1")
        red, blue = self.play_match(THROW_ASTRAY)
        self.assertGreater(red, blue)
        self.check_newest_entry(red, blue)
        game.find("push button", EN["menu.nextRound"])
        self.picture("round-won")

    def lose_second_round(self):
        """The same with the sides changed."""
        game = self.game
        game.key("Return")
        self.assertTrue(self.shows_round(2))
        self.choose(RED_SWITCH)
        self.choose(BLUE_SWITCH)
        self.is_checked("check box", BLUE_SWITCH)
        self.picture("tournament-round-2")
        red, blue = self.play_match(THROW_ASTRAY)
        self.assertLess(red, blue)
        self.check_newest_entry(red, blue)
        game.find("push button", EN["menu.mainMenu"])
        self.assertIn(EN["menu.tournament"], game.names("label"))
        self.picture("round-lost")
        self.go_on("VORBEL")

    def shows_round(self, number):
        line = f"{EN['menu.tournament']} {number}/4 "
        return wait_until(lambda: [n for n in self.game.names("label") if n.startswith(line)], line)

    def check_career(self, results):
        """The main menu and the diary show these results, newest first."""
        game = self.game
        experience = results.count("diary.win")
        game.find("label", EN["menu.rank.format"].replace("%@", EN["rank.thirdYouth"]))
        game.find("label", EN["menu.gamesNext.format"].replace("%@", str(len(results)), 1).replace("%@", "3"))
        self.is_checked("check box", EN["menu.isRealAthlete"])
        self.choose(EN["menu.diary"])
        game.find("label", EN["diary.totalXP.format"].replace("%@", str(experience)))
        entry = EN["diary.entry.format"]
        shown = wait_until(lambda: game.names("list item"), "the diary's rows")
        for row, result in zip(shown, results, strict=True):
            text = entry.replace("%@", EN[result], 1).replace("%@", "1" if result == "diary.win" else "0")
            self.assertTrue(row.endswith(", " + text), f"{row}: {text}")
        self.picture("diary")
        self.go_on("VORBEL")

    def quit(self):
        self.choose(EN["menu.exit"])
        self.assertEqual(self.game.process.wait(30), 0)

    def test_what_a_player_earned_by_keyboard_alone_is_there_after_a_restart(self):
        with Game(self.folder, speed=FAST) as self.game:
            self.choose_language_country_class_and_switch()
            self.play_single_match()
            self.win_first_round()
            self.lose_second_round()
            kept = self.folder.stored()
            results = [entry["resultKey"] for entry in kept["boccia_diaryData"]]
            self.assertEqual(results[:2], ["diary.loss", "diary.win"])
            self.check_career(results)
            self.quit()
        self.assertEqual(kept["boccia_language"], "en")
        self.assertEqual(kept["boccia_gamesPlayed"], 3)
        self.assertEqual(kept["boccia_athleteXP"], results.count("diary.win"))
        self.assertIs(kept["boccia_isRealAthlete"], True)
        self.assertEqual(self.folder.stored(), kept)

        with Game(self.folder, speed=FAST) as self.game:
            self.picture("next-day")
            self.check_career(results)
            self.is_checked("radio button", "English")
            self.quit()
        self.assertEqual(self.folder.stored(), kept)


if __name__ == "__main__":
    unittest.main(verbosity=2)
