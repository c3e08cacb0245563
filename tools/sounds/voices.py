"""Talking voices without words: glottal harmonics shaped by formants, and a little frication."""
import numpy as np

# Formants in Hz of an adult man's vowels; the upper two hardly differ between vowels.
VOWELS = np.array([[730, 1090, 2440, 3400, 4500], [530, 1840, 2480, 3500, 4500], [390, 1990, 2550, 3500, 4500],
                   [270, 2290, 3010, 3600, 4600], [570, 840, 2410, 3300, 4400], [440, 1020, 2240, 3300, 4400],
                   [300, 870, 2240, 3200, 4400], [500, 1500, 2500, 3500, 4500]])
BANDWIDTHS = np.array([90.0, 110.0, 160.0, 250.0, 300.0])

# Pitch range in Hz, formant scale, how many of a hundred.
SPEAKERS = [((95, 140), 1.0, 46), ((170, 245), 1.16, 44), ((250, 320), 1.32, 10)]
HIGHEST_HARMONIC = 6500.0  # Hz


def formant_gain(frequencies, formants):
    """Magnitude of the vocal tract at each frequency, as resonances in cascade."""
    ratio = frequencies[:, None] / formants
    damping = frequencies[:, None] * BANDWIDTHS / formants**2
    return np.prod(1.0 / np.hypot(1.0 - ratio**2, damping), axis=1)


def syllable(rng, pitch, scale, length, rate):
    """One voiced syllable that glides from one vowel to another."""
    t = np.linspace(0.0, 1.0, length, endpoint=False)
    contour = pitch * (1.0 + rng.uniform(-0.16, 0.12) * t + 0.012 * np.sin(2 * np.pi * rng.uniform(0.6, 1.4) * t))
    phase = 2 * np.pi * np.cumsum(contour) / rate
    harmonics = np.arange(1, int(HIGHEST_HARMONIC / contour.max()) + 1)
    first, second = (formant_gain(harmonics * pitch, VOWELS[v] * scale) / harmonics**1.1
                     for v in rng.integers(len(VOWELS), size=2))
    glide = 0.5 - 0.5 * np.cos(np.pi * t)
    step = np.exp(1j * phase)
    power = np.ones_like(step)
    sound = np.zeros(length)
    for a, b in zip(first, second):
        power = power * step
        sound += (a + (b - a) * glide) * power.imag
    attack, release = rng.uniform(0.12, 0.3), rng.uniform(0.3, 0.55)
    envelope = np.minimum(1.0, t / attack) * np.minimum(1.0, (1.0 - t) / release)
    return sound * np.sin(0.5 * np.pi * envelope)**2 / np.sqrt(np.mean(sound**2))


def fricatives(rng, length, rate):
    """Circular noises of s, sh and f, to cut consonants from."""
    frequencies = np.fft.rfftfreq(length, 1 / rate)
    noises = []
    for centre, width in ((6200, 1500), (3200, 1100), (5000, 3500)):
        noise = np.fft.irfft(np.fft.rfft(rng.standard_normal(length))
                             * np.exp(-0.5 * ((frequencies - centre) / width)**2), length)
        noises.append(noise / noise.std())
    return noises


def add_at(track, start, sound):
    """Adds into a loop: what passes the end goes on at the beginning."""
    np.add.at(track, (start + np.arange(len(sound))) % len(track), sound)


def talk(rng, samples, rate, noises):
    """One person in conversation for a whole loop: phrases of syllables with pauses to listen."""
    shares = np.array([share for _, _, share in SPEAKERS], float)
    (low, high), scale, _ = SPEAKERS[rng.choice(len(SPEAKERS), p=shares / shares.sum())]
    base, scale = rng.uniform(low, high), scale * rng.uniform(0.95, 1.06)
    pace = rng.uniform(0.13, 0.21)  # seconds a syllable
    track = np.zeros(samples)
    now = rng.uniform(0.0, 3.0) * rate
    while now < samples - rate:
        count = rng.integers(3, 17)
        effort = rng.uniform(0.55, 1.0)
        for i in range(count):
            length = int(rate * pace * rng.uniform(0.7, 1.6))
            pitch = base * (1.12 - 0.22 * i / count) * rng.uniform(0.95, 1.06) * (0.92 + 0.12 * effort)
            if rng.random() < 0.55:
                burst = int(rate * rng.uniform(0.03, 0.09))
                noise = noises[rng.integers(len(noises))]
                begin = rng.integers(len(noise) - burst)
                add_at(track, int(now), 0.16 * effort * noise[begin:begin + burst] * np.hanning(burst))
                now += 0.7 * burst
            add_at(track, int(now), effort * rng.uniform(0.5, 1.0) * syllable(rng, pitch, scale, length, rate))
            now += 0.88 * length
        now += rate * rng.uniform(0.25, 2.6)
    return track / track.std()
