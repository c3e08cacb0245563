"""The real game by assistive technology: every control has a name, a role and a press that works, and is where
the keyboard reaches it."""

import tempfile
import unittest
from pathlib import Path

import pyatspi
import texts
from game import Folder, Game, identity, states, wait_until

EN = texts.table("en")
RU = texts.table("ru")


def buttons(*keys):
    return {("push button", EN[key]) for key in keys}


def choices(*names):
    return {("radio button", name) for name in names}


ATHLETE = {("check box", EN["menu.isRealAthlete"])}
SCREENS = {
    "main": buttons("menu.startGame", "menu.tournament", "menu.rules", "menu.about", "menu.exit")
    | choices(*texts.languages().values()) | ATHLETE,
    "country": buttons("menu.play", "menu.back")
    | choices(*(text for key, text in EN.items() if key.startswith("country."))),
    "class": buttons("menu.play", "menu.back") | choices("BC1", "BC2", "BC3", "BC4"),
    "rules": buttons("menu.back"),
    "diary": buttons("menu.back"),
    "display": choices(*(text for key, text in EN.items() if key.startswith("difficulty.")))
    | {("check box", f"{EN['label.aiToggle']}, {EN[side]}") for side in ("team.red.caps", "team.blue.caps")},
    "result": buttons("menu.mainMenu"),
}


class AccessibilityTest(unittest.TestCase):
    def setUp(self):
        self.folder = self.enterContext(Folder())

    def start(self, language="en", **how):
        self.folder.store("boccia_language", f"text\n{language}")
        self.game = self.enterContext(Game(self.folder, **how))
        return self.game

    def check_screen(self, screen, expected=None):
        """Exactly the expected controls, each with a press, and each where Tab leads. A screen with one control
        is left by it."""
        expected = expected or SCREENS[screen]
        with self.subTest(screen):
            wait_until(lambda: {identity(i) for i in self.game.controls()} == expected,
                       lambda: f"{screen}: {expected ^ {identity(i) for i in self.game.controls()}}", 10)
            controls = self.game.controls()
            self.assertEqual(len(controls), len(expected))
            for control in controls:
                self.assertTrue(control.name)
                action = control.queryAction()
                self.assertIn("Press", [action.getName(i) for i in range(action.nActions)], control.name)
            focusable = {identity(i) for i in controls if pyatspi.STATE_FOCUSABLE in states(i)}
            if len(focusable) == 1:
                self.leave_by(*focusable)
            else:
                self.assertEqual(self.reached_by("Tab", len(focusable)), focusable)

    def reached_by(self, key, count):
        round_trip = [self.game.tab(key) for _ in range(count + 1)]
        self.assertEqual(round_trip[0], round_trip[-1], "Tab leads round and round")
        return set(round_trip)

    def leave_by(self, only_control):
        """Tab has nowhere else to go: Return still presses the control."""
        self.game.key("Tab", "Return")
        wait_until(lambda: only_control not in {identity(i) for i in self.game.controls()}, "the screen closes")

    def test_every_control_of_every_screen_has_a_name_a_role_and_a_press_and_is_reached_by_tab(self):
        game = self.start()
        self.check_screen("main")
        game.press("push button", EN["menu.startGame"])
        self.check_screen("country")
        game.press("push button", EN["menu.play"])
        self.check_screen("class")
        game.press("push button", EN["menu.back"])
        game.press("push button", EN["menu.rules"])
        self.check_screen("rules")
        game.press("push button", EN["menu.about"])
        link = [identity(i) for i in wait_until(game.controls, "about") if i.getRoleName() == "link"]
        self.assertEqual(len(link), 1)
        self.check_screen("about", buttons("menu.back") | set(link))
        game.press("push button", EN["menu.back"])
        game.press("check box", EN["menu.isRealAthlete"])
        self.check_screen("main with the diary", SCREENS["main"] | buttons("menu.diary"))
        game.press("push button", EN["menu.diary"])
        self.check_screen("diary")

    def test_a_language_chosen_by_assistive_technology_renames_every_control_at_once(self):
        game = self.start("ru")
        game.find("push button", RU["menu.startGame"])
        self.assertIn(pyatspi.STATE_CHECKED, states(game.find("radio button", "Русский")))
        game.press("radio button", "English")
        self.check_screen("main")
        wait_until(lambda: pyatspi.STATE_CHECKED in states(game.find("radio button", "English")), "English is checked")
        self.assertNotIn(pyatspi.STATE_CHECKED, states(game.find("radio button", "Русский")))
        self.assertIn(EN["menu.gameMenu"], game.names("menu bar"))
        self.assertEqual(self.folder.stored()["boccia_language"], "en")

    def test_the_switch_is_worked_and_says_how_it_stands(self):
        game = self.start()
        for on in (True, False):
            game.press("check box", EN["menu.isRealAthlete"])
            switch = game.find("check box", EN["menu.isRealAthlete"])
            wait_until(lambda: (pyatspi.STATE_CHECKED in states(switch)) == on, f"the switch is {on}")
            wait_until(lambda: self.folder.stored()["boccia_isRealAthlete"] == on, "stored")
            wait_until(lambda: (EN["menu.diary"] in game.names("push button")) == on, "the diary's button")

    def test_choices_say_which_one_is_selected_and_screens_what_they_are(self):
        game = self.start()
        game.press("push button", EN["menu.startGame"])
        for heading, choice, other in ((EN["menu.chooseCountry"], EN["country.japan"], EN["country.france"]),
                                       (EN["menu.sportClass"], "BC3", "BC4")):
            game.find("heading", heading)
            self.assertIn(pyatspi.STATE_CHECKED, states(game.find("radio button", other)))
            game.press("radio button", choice)
            wait_until(lambda: pyatspi.STATE_CHECKED in states(game.find("radio button", choice)), choice)
            self.assertNotIn(pyatspi.STATE_CHECKED, states(game.find("radio button", other)))
            game.find("heading", heading)
            game.press("push button", EN["menu.play"])
        game.find("label", EN["label.rampHint"])

    def test_the_rules_are_read_out_and_the_link_opens_the_browser(self):
        with tempfile.TemporaryDirectory() as programs:
            browser = Path(programs, "xdg-open")
            browser.write_text(f'#!/bin/sh\necho "$1" >{programs}/opened\n')
            browser.chmod(0o700)
            game = self.start(path=programs)
            game.press("push button", EN["menu.rules"])
            game.find("label", EN["rules.text"])
            game.press("push button", EN["menu.back"])
            game.press("push button", EN["menu.about"])
            game.find("label", EN["about.text"])
            link = wait_until(lambda: game.names("link"), "the link")[0]
            game.press("link", link)
            opened = Path(programs, "opened")
            wait_until(lambda: opened.exists() and opened.read_text().endswith("\n"), "the browser")
            self.assertRegex(opened.read_text(), r"^file:///.*/pages/en\.html\n$")

    def test_the_game_menu_is_opened_and_its_commands_work(self):
        game = self.start()
        bar = wait_until(lambda: [i for i in game.items() if identity(i) == ("menu bar", EN["menu.gameMenu"])], "bar")
        self.assertTrue(bar[0].queryAction().doAction(0))
        commands = [EN[f"menu.{key}"] for key in ("startGame", "rules", "about", "toggleFullScreen")]
        wait_until(lambda: game.names("menu item") == commands, "the commands")
        game.press("menu item", EN["menu.rules"])
        game.find("heading", EN["menu.rules"])
        wait_until(lambda: not game.names("menu item"), "the menu closes")

    def test_a_key_pressed_twice_acts_twice(self):
        game = self.start()
        game.find("push button", EN["menu.startGame"])
        game.key("Return")
        game.find("heading", EN["menu.chooseCountry"])
        self.go_to(EN["menu.back"], "shift+Tab")
        game.key("Return")
        game.find("heading", "VORBEL")
        game.key("Return")
        game.find("heading", EN["menu.chooseCountry"])

    def test_a_key_held_for_long_acts_once(self):
        game = self.start()
        self.go_to(EN["menu.rules"])
        game.hold("Return")
        game.find("heading", EN["menu.rules"])
        game.key("Return")
        game.find("heading", "VORBEL")
        for button in ("menu.startGame", "menu.play", "menu.play"):
            game.press("push button", EN[button])
        wait_until(lambda: game.names("alert") == [EN["msg.initial"]], "the match")
        game.messages.clear()
        game.hold("space")
        game.tab()  # comes after all that the held key did
        self.assertEqual(game.messages, [EN["msg.aimingHint"]])

    def test_a_switch_of_ones_own_acts_once_while_it_is_held(self):
        for option, value in (("switchOn", 1), ("switchKey", ord("J")), ("switchRest", 0)):
            self.folder.store(f"boccia_option_{option}", f"integer\n{value}")
        game = self.start()
        for button in ("menu.startGame", "menu.play", "menu.play"):
            game.press("push button", EN[button])
        wait_until(lambda: EN["msg.initial"] in game.names("alert"), "the match")
        game.messages.clear()
        game.hold("j")
        wait_until(lambda: game.messages, "the aim")
        self.assertEqual(game.messages, [EN["msg.aimingHint"]])

    def go_to(self, name, key="Tab"):
        wait_until(lambda: self.game.tab(key)[1] == name, name)

    def test_the_game_ends_well_when_asked_to(self):
        game = self.start()
        game.press("push button", EN["menu.exit"])
        self.assertEqual(game.process.wait(30), 0)

    def test_while_the_menu_is_open_the_display_behind_it_is_not_there(self):
        game = self.start()
        game.find("push button", EN["menu.startGame"])
        self.assertEqual(game.names("alert"), [])
        self.assertNotIn(EN["team.red.caps"], game.names("label"))

    def test_a_match_is_played_by_assistive_technology_and_every_message_is_announced(self):
        game = self.start(speed=25)
        for button in ("menu.startGame", "menu.play", "menu.play"):
            game.press("push button", EN[button])
        self.check_screen("display")
        for key in ("msg.aimingHint", "msg.lockPower", "msg.ballInPlay"):
            game.key("space")
            wait_until(lambda: EN[key] in game.messages, f"announced: {EN[key]}")
        game.press("radio button", EN["difficulty.easy"])
        wait_until(lambda: pyatspi.STATE_CHECKED in states(game.find("radio button", EN["difficulty.easy"])), "easy")
        for _, name in sorted(i for i in SCREENS["display"] if i[0] == "check box"):
            game.press("check box", name)
            wait_until(lambda: pyatspi.STATE_CHECKED in states(game.find("check box", name)), name)
        self.play_on_until_the_result()
        game.find("heading", EN["menu.matchResult"])
        self.check_screen("result")
        self.check_screen("main")

    def play_on_until_the_result(self):
        end_over = EN["msg.nextEndPrompt.format"].replace("%@", "").strip()

        def result():
            if self.game.messages and self.game.messages[-1].endswith(end_over):
                self.game.key("space")
            return self.folder.stored().get("boccia_gamesPlayed") == 1
        wait_until(result, "the match ends", 300)
        aiming = EN["msg.aiAiming.format"]
        for side in ("team.red", "team.blue"):
            self.assertIn(aiming.replace("%@", EN[side]), self.game.messages)


if __name__ == "__main__":
    unittest.main(verbosity=2)
