"""The murmur of two full stands, as a stereo loop."""
import numpy as np

import hall
import voices

RATE = 48000
SECONDS = 60
LOUDNESS = 0.085      # root mean square of full scale: about −21 dB
VOICES = 42           # each is heard from a near seat and from two far ones
GROUPS = 7            # blocks of seats, each with its own reflections
LIVELY = 0.5          # how much louder some people talk than others
DIRECT = 2.0          # direct sound of the near seats against their reverberation
FAR = 0.4             # the far seats against the near ones
SWELL = 0.12          # about ±1.0 dB

# The voices as they sound in the stands: the hall swallows the lowest octaves, distance the highest ones.
DISTANCE = [(20, -40), (90, -14), (200, -1), (700, 0), (1400, 3), (2500, 5), (4000, 3), (8000, -6), (12000, -30)]


def slow_wave(rng, samples, cycles):
    """A smooth random wave of unit deviation that closes on itself."""
    t = np.arange(samples) / samples
    wave = sum(np.sin(2 * np.pi * (k * t + rng.random())) / np.sqrt(k) for k in cycles)
    return wave / wave.std()


def even_out(stereo, rate, seconds=3.0, share=0.8):
    """Takes back that share (in decibels) of what the loudness over a few seconds strays from its mean."""
    window = np.zeros(stereo.shape[1])
    window[:int(rate * seconds)] = np.hanning(int(rate * seconds))
    window = np.roll(window / window.sum(), -int(rate * seconds / 2))
    power = np.maximum(hall.circular(np.mean(stereo**2, axis=0), window), 1e-12)
    return stereo * (power / power.mean())**(-0.5 * share)


def stands(rng, rate, samples):
    """Left and right ear, from the groups of talkers."""
    noises = voices.fricatives(rng, samples, rate)
    ears = np.zeros((2, samples))
    far = np.zeros((2, samples))
    talkers = [rng.lognormal(0.0, LIVELY) * voices.talk(rng, samples, rate, noises) for _ in range(VOICES)]
    for group in range(GROUPS):
        swell = np.exp(0.25 * slow_wave(rng, samples, (2, 3, 5, 7)))
        mixed = swell * sum(talkers[group::GROUPS])
        side = group / (GROUPS - 1)  # 0 left … 1 right
        for ear, pan in enumerate((np.cos(0.5 * np.pi * side), np.sin(0.5 * np.pi * side))):
            direct = (0.25 + 0.75 * pan) * mixed
            ears[ear] += DIRECT * direct + hall.circular(direct, hall.impulse(rng, rate))
    for ear in range(2):
        for talker in talkers + talkers:
            far[ear] += np.roll(talker, rng.integers(samples))
        far[ear] = hall.circular(far[ear], hall.impulse(rng, rate, early=0))
    return ears / ears.std() + FAR * far / far.std()


def crowd(rng):
    """Two channels at RATE, a seamless loop of SECONDS."""
    half = RATE // 2
    samples = half * SECONDS
    ears = stands(rng, half, samples)
    ears += 0.02 * rng.standard_normal(ears.shape)
    ears = np.stack([hall.shelve(ear, half, DISTANCE) for ear in ears])
    ears = even_out(ears, half) * np.exp(SWELL * slow_wave(rng, samples, (1, 2, 3, 4)))
    loop = np.stack([hall.resample_double(ear - ear.mean()) for ear in ears])
    return loop * LOUDNESS / loop.std()
