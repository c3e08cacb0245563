"""Someone who plays with eyes shut: hears what the game announces on the accessibility bus, and presses what it offers
there. Knows nothing of the game but that: how far a ball rolls is learnt from the balls thrown before."""

import itertools
import math
import re

from game import INTERACTIVE, identity, wait_until

LENGTH = r"([\d.]+) (centimetre|metre)s?"
JACK = re.compile(rf"Jack {LENGTH} away, (?:straight ahead|{LENGTH} to the (left|right))\.")
ANGLE = re.compile(r"Straight ahead\.|Angle (\d+) degrees? (left|right)\.")
REST = re.compile(rf"Ball at rest, (?:{LENGTH} (short of|beyond)|level with) the jack\.(?: {LENGTH} to its (?:left|right)\.)?"
                  r"|The ball is out\.")
MY_TURN = re.compile(r"Red's turn|Turn passes to Red|to start aiming")
POWER = re.compile(r"Power (\d+) of 100\.")
ANGLE_STEP = 3  # degrees, as it is said
BALLS = 6  # of a side in an end
FIRST_GUESS = 50  # percent, for the first ball of all


def metres(number, unit):
    return 0 if number is None else float(number) / (100 if unit == "centimetre" else 1)


class BlindPlayer:
    """Plays red."""

    def __init__(self, game, ears):
        self.game = game
        self.ears = ears
        self.buttons = {}
        self.thrown = []  # each power in percent with the metres that it rolled
        self.misses = []  # metres from the jack, of each coloured ball
        self.lines = itertools.cycle((0, ANGLE_STEP / 2, -ANGLE_STEP / 2))  # a ball in the last one's line stops behind it

    # --- The menus

    def press(self, role, name):
        """Also what is scrolled away: what gets the keyboard comes into view."""
        control = wait_until(lambda: next((i for i in self.everything() if identity(i) == (role, name)), None), name)
        control.queryComponent().grabFocus()
        self.game.press(role, name)

    def everything(self):
        def below(item):
            for child in item:
                yield child
                yield from below(child)
        return [item for item in below(self.game._application()[0]) if item.getRoleName() in INTERACTIVE]

    # --- A throw

    def push(self, name, times=1):
        """A button on the court, which is looked for once."""
        if name not in self.buttons:
            action = self.game.find("push button", name).queryAction()
            self.buttons[name] = action, [action.getName(i) for i in range(action.nActions)].index("Press")
        action, press = self.buttons[name]
        for _ in range(times):
            assert action.doAction(press), name

    def throw(self):
        told = self.listen_after(lambda: self.push("OK"), ANGLE)
        jack = JACK.search(told)
        distance, aside = None, 0
        if jack:
            distance = metres(*jack.group(1, 2))
            aside = metres(*jack.group(3, 4)) * (-1 if jack[5] == "left" else 1)
        self.turn_to(math.degrees(math.asin(aside / distance)) + next(self.lines) if jack else 0, told)
        told = self.listen_after(lambda: self.push("OK"), POWER)
        power = self.set_power(distance, int(POWER.search(told)[1]))
        told = self.listen_after(lambda: self.push("OK"), REST if jack else r"Jack .* away|The jack went out")
        self.learn(power, distance, told)

    def listen_after(self, act, pattern):
        since = len(self.ears.heard)
        act()
        return self.ears.wait_for(pattern, since).string

    def turn_to(self, wanted, told):
        def said(text):
            angle = ANGLE.search(text)
            return 0 if angle[1] is None else int(angle[1]) * (-1 if angle[2] == "left" else 1)
        at = said(told)
        while abs(wanted - at) > ANGLE_STEP / 2:
            side = "Right" if wanted > at else "Left"
            at = said(self.listen_after(lambda side=side: self.push(side), ANGLE))

    def set_power(self, distance, at):
        power = FIRST_GUESS
        if distance and self.thrown:
            recent = self.thrown[-BALLS:]  # the nearest of them; of equal ones the last, which knows what lies in the way
            known, rolled = min(reversed(recent), key=lambda throw: round(abs(throw[1] - distance), 1))
            power = min(max(round(known * distance / rolled), 10), 100)

        def press():
            tens, ones = divmod(abs(power - at), 10)
            self.push("+10" if power > at else "−10", tens)
            self.push("Up" if power > at else "Down", ones)
        if power != at:
            self.listen_after(press, rf"Power {power} of 100")
        return power

    def learn(self, power, distance, told):
        jack = JACK.search(told)
        if distance is None:
            if jack:
                self.thrown.append((power, metres(*jack.group(1, 2))))
            return
        rest = REST.search(told)
        if rest.string[rest.start():].startswith("The ball is out"):
            self.misses.append(math.inf)
            return
        along, aside = metres(*rest.group(1, 2)), metres(*rest.group(4, 5))
        self.misses.append(math.hypot(along, aside))
        self.thrown.append((power, distance + (along if rest[3] == "beyond" else -along)))
