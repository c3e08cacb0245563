"""A match with eyes shut, from launch to the result and back in the menu: what the accessibility bus says is all that is
known of it, and what it offers all that is pressed."""

import unittest

import texts
from blind_player import BALLS, MY_TURN, BlindPlayer
from ears import Ears
from game import Folder, Game, wait_until

EN = texts.table("en")
NEAR = 0.5  # m from the jack


class BlindTest(unittest.TestCase):
    def setUp(self):
        self.folder = self.enterContext(Folder())
        self.folder.store("boccia_language", "text\nen")
        self.ears = Ears()
        self.addCleanup(self.ears.close)
        self.game = self.enterContext(Game(self.folder, speed=10))
        self.player = BlindPlayer(self.game, self.ears)

    def choose_options(self):
        self.game.press("menu bar", EN["menu.options"])
        self.game.press("menu item", EN["menu.options"] + " …")
        self.game.find("heading", EN["menu.options"])
        self.player.press("check box", EN["options.speech"])
        self.player.press("check box", EN["options.courtButtons"])
        self.player.press("radio button", EN["options.byKeys"])
        self.game.press("push button", EN["menu.back"])

    def begin_match(self):
        self.game.press("push button", EN["menu.startGame"])
        self.game.press("push button", EN["menu.play"])
        self.game.press("radio button", "BC2")
        self.game.press("push button", EN["menu.play"])
        self.game.press("check box", f"{EN['label.aiToggle']}, {EN['team.blue.caps']}")
        self.game.press("radio button", EN["difficulty.easy"])

    def play_until_the_result(self):
        """Returns how far each ball of each end lay from the jack."""
        ends = [[]]
        done = 0
        while True:
            wait_until(lambda: len(self.ears.heard) > done, lambda: f"more than {self.ears.heard[-3:]}", 120)
            told, done = self.ears.heard[done], done + 1
            if "new game" in told:
                return ends
            if "next end" in told:
                ends.append([])
                self.player.push("OK")
            elif MY_TURN.search(told):
                self.player.misses.clear()
                self.player.throw()
                ends[-1] += self.player.misses
                done = len(self.ears.heard) - 1  # the last says who is next

    def test_a_match_is_played_from_launch_to_the_result_and_four_of_six_balls_come_to_the_jack(self):
        self.choose_options()
        self.begin_match()
        ends = self.play_until_the_result()
        self.game.find("heading", EN["menu.matchResult"])
        self.game.press("push button", EN["menu.mainMenu"])
        self.game.find("push button", EN["menu.startGame"])
        print("metres from the jack:", [[round(miss, 2) for miss in end] for end in ends])
        self.assertGreaterEqual(len(ends), 4)
        self.assertEqual({len(end) for end in ends}, {BALLS})
        balls = [miss for end in ends for miss in end]
        self.assertGreaterEqual(sum(miss <= NEAR for miss in balls) / len(balls), 4 / 6)


if __name__ == "__main__":
    unittest.main(verbosity=2)
