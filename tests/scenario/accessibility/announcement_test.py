"""What the game says aloud reaches screen readers, by option only."""

import unittest

import pyatspi
import texts
from game import GLib, Folder, Game, wait_until

EN = texts.table("en")


class SpeechTest(unittest.TestCase):
    def setUp(self):
        self.folder = self.enterContext(Folder())
        self.announced = []
        pyatspi.Registry.registerEventListener(self.shown, "object:state-changed:showing")
        self.addCleanup(pyatspi.Registry.deregisterEventListener, self.shown, "object:state-changed:showing")

    def shown(self, event):
        try:
            if event.detail1 and event.source and event.source.getRoleName() == "notification":
                self.announced.append(event.source.name)
        except GLib.Error:
            pass  # a late event of a game that has ended

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
        wait_until(lambda: any(part in text for text in self.announced), lambda: f"{part} in {self.announced}")

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
        self.assertEqual(self.announced, [])


if __name__ == "__main__":
    unittest.main(verbosity=2)
