"""What is heard on the accessibility bus."""

import re

import pyatspi
from game import GLib, wait_until


class Ears:
    """What is announced, in order."""

    def __init__(self):
        self.heard = []
        pyatspi.Registry.registerEventListener(self._shown, "object:state-changed:showing")

    def close(self):
        pyatspi.Registry.deregisterEventListener(self._shown, "object:state-changed:showing")

    def _shown(self, event):
        try:
            if event.detail1 and event.source and event.source.getRoleName() == "notification":
                self.heard.append(event.source.name)
        except GLib.Error:
            pass  # a late event of a game that has ended

    def wait_for(self, pattern, since=0, seconds=60):
        """The first match in what was announced after the first `since` announcements."""
        return wait_until(lambda: next((m for m in map(re.compile(pattern).search, self.heard[since:]) if m), None),
                          lambda: f"'{pattern}' in {self.heard[since:]}", seconds)
