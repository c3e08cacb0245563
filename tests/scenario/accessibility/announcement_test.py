"""What the game says aloud reaches screen readers, by option only."""

import re
import unittest

import texts
from ears import Ears
from game import Folder, Game, wait_until

EN = texts.table("en")


class SpeechTest(unittest.TestCase):
    def setUp(self):
        self.folder = self.enterContext(Folder())
        self.ears = Ears()
        self.addCleanup(self.ears.close)

    def aim(self, speech):
        """A match of one's own, up to the aim of its first throw; returns the game."""
        self.folder.store("boccia_language", "text\nen")
        self.folder.store("boccia_option_speech", f"integer\n{speech}")
        game = self.enterContext(Game(self.folder))
        for button in ("menu.startGame", "menu.play", "menu.play"):
            game.press("push button", EN[button])
        game.find("label", EN["team.red.caps"])
        game.key("space")
        wait_until(lambda: EN["msg.aimingHint"] in game.messages, "the aim")
        return game

    def wait_for(self, part):
        self.ears.wait_for(re.escape(part))

    def test_the_aim_and_where_everything_lies_are_announced(self):
        game = self.aim(speech=1)
        self.wait_for("Straight ahead. Elevation 0 degrees.")
        game.key("Left", "Left", "Left")
        self.wait_for("Angle 9 degrees left. Elevation 0 degrees.")
        game.key("w")
        self.wait_for("No jack on the court. Balls left: red 6, blue 6. Score: red 0, blue 0.")
        self.assertNotIn("notification", [item.getRoleName() for item in game.items()])

    def test_without_the_option_nothing_is_announced(self):
        game = self.aim(speech=0)
        game.key("Left", "w")
        game.key("space")
        wait_until(lambda: EN["msg.lockPower"] in game.messages, "the power")
        self.assertEqual(self.ears.heard, [])


if __name__ == "__main__":
    unittest.main(verbosity=2)
