"""The game's own voice, which is heard where no screen reader runs: what reaches the desktop's speech service."""

import os
import shutil
import subprocess
import tempfile
import time
import unittest
from pathlib import Path

import texts

EN = texts.table("en")
PATIENCE = 30  # s, on a busy machine without a graphics card


def wait_until(condition, what):
    end = time.monotonic() + PATIENCE
    while not condition():
        if time.monotonic() > end:
            raise AssertionError(f"not within {PATIENCE} s: {what()}")
        time.sleep(0.01)


class Service:
    """A speech service of its own, whose synthesizer writes into a file what it is to say."""

    def __init__(self, folder):
        self.file = folder / "spoken"
        self.socket = folder / "socket"
        (folder / "modules").mkdir()
        (folder / "speechd.conf").write_text(
            f'LogLevel 1\nLogDir "{folder}"\nSymbolsPreproc "none"\nAddModule "file" "sd_generic" "file.conf"\n'
            'DefaultModule file\nAudioOutputMethod "alsa"\nTimeout 0\n')
        (folder / "modules" / "file.conf").write_text(
            f"""GenericExecuteSynth "echo \\'$DATA\\' >> {self.file}"\nAddVoice "en" "MALE1" "en"\n""")
        (folder / ".asoundrc").write_text("pcm.!default { type null }\nctl.!default { type null }\n")
        self.process = subprocess.Popen(
            ["speech-dispatcher", "-s", "-C", folder, "-P", folder / "pid", "-c", "unix_socket", "-S", self.socket],
            env=dict(os.environ, HOME=str(folder)), stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        wait_until(self.socket.exists, lambda: "the speech service")

    def close(self):
        self.process.terminate()
        self.process.wait(PATIENCE)

    def spoken(self):
        """The names of some languages come in the synthesizer's own encoding, which is not the game's doing."""
        return self.file.read_text(errors="replace") if self.file.exists() else ""

    def wait_for(self, part):
        wait_until(lambda: part in self.spoken(), lambda: f"'{part}' in '{self.spoken()}'")


@unittest.skipUnless(shutil.which("speech-dispatcher"), "no speech service is installed")
class VoiceTest(unittest.TestCase):
    def setUp(self):
        self.folder = Path(self.enterContext(tempfile.TemporaryDirectory()))
        self.service = Service(self.folder)
        self.addCleanup(self.service.close)

    def play(self, speech):
        settings = self.folder / "settings" / "vorbel"
        settings.mkdir(parents=True)
        (settings / "boccia_language").write_text("text\nen")
        (settings / "boccia_option_speech").write_text(f"integer\n{speech}")
        environment = dict(os.environ, XDG_CONFIG_HOME=str(settings.parent), SDL_AUDIODRIVER="dummy",
                           SPEECHD_ADDRESS=f"unix_socket:{self.service.socket}")
        self.game = subprocess.Popen([os.environ["VORBEL_PROGRAM"]], env=environment)
        self.addCleanup(self.game.wait, PATIENCE)
        self.addCleanup(self.game.terminate)
        subprocess.run(["xdotool", "search", "--sync", "--onlyvisible", "--name", "^VORBEL$", "windowfocus", "--sync"],
                       check=True, timeout=PATIENCE, stdout=subprocess.DEVNULL)

    def key(self, *keys):
        subprocess.run(["xdotool", "key", "--delay", "50", *keys], check=True, timeout=PATIENCE)

    def loaded(self):
        return "libspeechd" in Path(f"/proc/{self.game.pid}/maps").read_text()

    def test_the_menus_are_spoken(self):
        self.play(speech=1)
        wait_until(self.reaches_a_button, self.service.spoken)
        self.key("ctrl+comma")
        self.service.wait_for(EN["menu.back"])
        self.assertTrue(self.loaded())

    def reaches_a_button(self):
        self.key("Tab")
        return EN["menu.tournament"] in self.service.spoken()

    def test_without_the_option_the_game_does_not_even_open_the_library(self):
        self.play(speech=0)
        self.key("Tab", "Tab", "ctrl+comma", "Tab")
        self.assertFalse(self.loaded())
        self.assertEqual(self.service.spoken(), "")


if __name__ == "__main__":
    unittest.main(verbosity=2)
