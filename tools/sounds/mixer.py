"""What the game's own decoder and mixer make of a file: SDL2_mixer into its disk driver."""
import ctypes
import os
import pathlib
import tempfile
import time

import numpy as np

S16, STEREO, FRAMES, MUSIC_VOLUME = 0x8010, 2, 512, 128


def played_in_a_loop(path, seconds, rate=48000):
    """The first seconds (at least) of the file repeated for ever, one row a channel, full scale 1."""
    mixer = ctypes.CDLL("libSDL2_mixer-2.0.so.0")
    mixer.Mix_LoadMUS.restype = ctypes.c_void_p
    with tempfile.TemporaryDirectory() as folder:
        output = pathlib.Path(folder) / "played.raw"
        os.environ.update(SDL_AUDIODRIVER="disk", SDL_DISKAUDIOFILE=str(output), SDL_DISKAUDIODELAY="0")
        if mixer.Mix_OpenAudio(rate, S16, STEREO, FRAMES) != 0:
            raise RuntimeError("the mixer does not open")
        music = ctypes.c_void_p(mixer.Mix_LoadMUS(str(path).encode()))
        mixer.Mix_VolumeMusic(MUSIC_VOLUME)
        mixer.Mix_PlayMusic(music, -1)
        while output.stat().st_size < 4 * rate * seconds:
            time.sleep(0.02)
        mixer.Mix_HaltMusic()
        mixer.Mix_CloseAudio()
        played = np.frombuffer(output.read_bytes(), "<i2").reshape(-1, 2).T / 32768.0
    heard = np.flatnonzero(np.any(played != 0.0, axis=0))[0]
    return played[:, heard:]
