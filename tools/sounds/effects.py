"""The three effects, from decaying partials. Peaks are chosen so that all sounds at once cannot clip."""
import numpy as np

RATE = 48000


def timeline(seconds):
    return np.arange(int(RATE * seconds)) / RATE


def finish(sound, peak, fade=0.01):
    """Ends in silence, without offset, at the given peak of full scale."""
    last = int(RATE * fade)
    sound = sound.copy()
    sound[-last:] *= 0.5 + 0.5 * np.cos(np.pi * np.arange(1, last + 1) / last)
    shape = np.hanning(len(sound))
    sound -= shape * sound.sum() / shape.sum()
    return sound * peak / np.abs(sound).max()


def partials(t, table):
    """Sines of (Hz, level, decay time in seconds), all struck at once."""
    return sum(level * np.sin(2 * np.pi * hz * t) * np.exp(-t / decay) for hz, level, decay in table)


def pop():
    """A ball leaves the hand: a drop of pitch, like a cork far away."""
    t = timeline(0.11)
    pitch = 420 + 620 * np.exp(-t / 0.009)
    body = np.sin(2 * np.pi * np.cumsum(pitch) / RATE) * np.exp(-t / 0.02)
    return finish(body * np.minimum(1.0, t / 0.0015), 0.28)


def tink():
    """Ball against ball: a small bright tick."""
    t = timeline(0.16)
    strike = partials(t, [(2870, 1.0, 0.030), (4390, 0.8, 0.024), (6730, 0.55, 0.016), (9460, 0.3, 0.009),
                          (12100, 0.15, 0.005)])
    return finish(strike * np.minimum(1.0, t / 0.0003), 0.25)


def glass():
    """An end is scored: a struck glass bell; close pairs of partials make it shimmer."""
    t = timeline(1.3)
    bell = partials(t, [(1318.5, 1.0, 0.36), (1320.9, 0.6, 0.33), (2637.0, 0.55, 0.26), (2641.5, 0.3, 0.24),
                        (3633.0, 0.45, 0.17), (5274.0, 0.22, 0.11), (7110.0, 0.16, 0.06), (9870.0, 0.08, 0.03)])
    return finish(bell * np.minimum(1.0, t / 0.002), 0.25, fade=0.25)


EFFECTS = {"Pop": pop, "Tink": tink, "Glass": glass}
