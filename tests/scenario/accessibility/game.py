"""The real game in a real window, as assistive technology sees it, and its keyboard."""

import json
import os
import subprocess
import tempfile
import time
from pathlib import Path

import gi
import pyatspi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

PATIENCE = 30  # s, on a busy machine without a graphics card
Atspi.set_timeout(PATIENCE * 1000, PATIENCE * 1000)  # ms; an answer may have to wait for a screen to be made
INTERACTIVE = {"push button", "radio button", "check box", "link", "menu item"}


def wait_until(condition, what, seconds=PATIENCE):
    """Looks again and again, taking the bus's events meanwhile; returns the condition's first true value.
    `what` is awaited, a text or a function that makes one at the end."""
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        while GLib.MainContext.default().iteration(False):
            pass
        try:
            value = condition()
            if value:
                return value
        except (GLib.Error, AttributeError, LookupError):  # what it looked at is just going away
            pass
        time.sleep(0.01)
    raise AssertionError(f"not within {seconds} s: {what() if callable(what) else what}")


def states(item):
    return item.getState().getStates()


def identity(item):
    return item.getRoleName(), item.name


def process_id(application):
    """None for one that has ended and is still listed, or that is just going away."""
    try:
        return application.get_process_id()
    except (GLib.Error, AttributeError):
        return None


class Folder(tempfile.TemporaryDirectory):
    """A settings folder of its own, which outlives the game."""

    def __enter__(self):
        return self

    def store(self, key, content):
        path = Path(self.name, "vorbel")
        path.mkdir(exist_ok=True)
        (path / key).write_text(content, encoding="utf-8")

    def stored(self):
        """What the game keeps: the values by key."""
        readers = {"integer": int, "boolean": json.loads, "text": str, "bytes": json.loads}
        values = {}
        for path in Path(self.name, "vorbel").glob("boccia_*"):
            kind, content = path.read_text(encoding="utf-8").split("\n", 1)
            values[path.name] = readers[kind](content)
        return values


class Game:
    """A process of its own, with the keyboard, ended with this object. `focus` is what got the keyboard last,
    `messages` are the names that the message line took; both come as events from the accessibility bus."""

    def __init__(self, folder, speed=1, path=None):
        environment = dict(os.environ, XDG_CONFIG_HOME=folder.name, VORBEL_SPEED=str(speed),
                           SDL_AUDIODRIVER="dummy", QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1")
        if path:
            environment["PATH"] = f"{path}:{environment['PATH']}"
        self.focus = None
        self.messages = []
        pyatspi.Registry.registerEventListener(self._focused, "object:state-changed:focused")
        pyatspi.Registry.registerEventListener(self._renamed, "object:property-change:accessible-name")
        self.process = subprocess.Popen([os.environ["VORBEL_PROGRAM"]], env=environment)
        wait_until(lambda: self._application()[0], "the window on the accessibility bus")
        subprocess.run(["xdotool", "search", "--sync", "--onlyvisible", "--name", "^VORBEL$",
                        "windowfocus", "--sync"], check=True, timeout=PATIENCE, stdout=subprocess.DEVNULL)
        wait_until(lambda: pyatspi.STATE_ACTIVE in states(self._application()[0]), "the window has the keyboard")

    def __enter__(self):
        return self

    def __exit__(self, *_):
        pyatspi.Registry.deregisterEventListener(self._focused, "object:state-changed:focused")
        pyatspi.Registry.deregisterEventListener(self._renamed, "object:property-change:accessible-name")
        if self.process.poll() is None:
            self.process.terminate()
        self.process.wait(PATIENCE)

    def _application(self):
        desktop = pyatspi.Registry.getDesktop(0)
        return [app for app in desktop if process_id(app) == self.process.pid][0]

    def _focused(self, event):
        try:
            if event.detail1 and event.source and event.source.getRoleName() in INTERACTIVE:
                self.focus = identity(event.source)
        except GLib.Error:
            pass  # a late event of a game that has ended

    def _renamed(self, event):
        try:
            if event.source and event.source.getRoleName() == "alert":
                self.messages.append(event.source.name)
        except GLib.Error:
            pass  # a late event of a game that has ended

    def items(self):
        """All that is shown now, in order."""
        def below(item):
            for child in item:
                if pyatspi.STATE_SHOWING in states(child):
                    yield child
                yield from below(child)
        return list(below(self._application()[0]))

    def controls(self):
        return [item for item in self.items() if item.getRoleName() in INTERACTIVE]

    def find(self, role, name):
        """The shown item, once there is one."""
        return wait_until(lambda: next((i for i in self.items() if identity(i) == (role, name)), None),
                          lambda: f"{role} '{name}'; there are {[identity(i) for i in self.items()]}")

    def names(self, role):
        return [item.name for item in self.items() if item.getRoleName() == role]

    def key(self, *keys):
        """Presses keys as X names them ("space", "shift+Tab"), one after the other."""
        subprocess.run(["xdotool", "key", "--delay", "2", *keys], check=True, timeout=PATIENCE)

    def hold(self, key, seconds=2):
        """Keeps a key down. The desktop repeats it after 0.7 s, 25 times a second."""
        subprocess.run(["xdotool", "keydown", key, "sleep", str(seconds), "keyup", key], check=True, timeout=PATIENCE)

    def tab(self, key="Tab"):
        """Moves the keyboard to the next control, and says which that is."""
        self.focus = None
        self.key(key)
        return wait_until(lambda: self.focus, f"the keyboard moves with {key}")

    def press(self, role, name):
        """As assistive technology does: without the keyboard."""
        action = self.find(role, name).queryAction()
        actions = [action.getName(i) for i in range(action.nActions)]
        assert action.doAction(actions.index("Press")), name
