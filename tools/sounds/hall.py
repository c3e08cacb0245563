"""A sports hall: circular convolution with reverberation that dies faster the higher the tone."""
import numpy as np

# Octave centre in Hz and reverberation time in seconds of a hall with people in it.
REVERBERATION = [(125, 1.6), (250, 1.5), (500, 1.4), (1000, 1.3), (2000, 1.1), (4000, 0.8), (8000, 0.5)]


def impulse(rng, rate, seconds=2.4, early=14):
    """One ear's response to one seat: early reflections, then a diffuse tail."""
    length = int(rate * seconds)
    t = np.arange(length) / rate
    frequencies = np.fft.rfftfreq(length, 1 / rate)
    octave = np.log2(np.maximum(frequencies, 20.0))
    spectrum = np.fft.rfft(rng.standard_normal(length))
    tail = np.zeros(length)
    for centre, time in REVERBERATION:
        band = np.clip(1.0 - np.abs(octave - np.log2(centre)), 0.0, 1.0)
        tail += np.fft.irfft(spectrum * band, length) * 10.0**(-3.0 * t / time)
    tail *= np.clip((t - 0.012) / 0.05, 0.0, 1.0)
    response = tail / np.sqrt(np.sum(tail**2))
    for delay in rng.uniform(0.004, 0.07, early):
        response[int(delay * rate)] += rng.choice((-1, 1)) * 0.22 * np.exp(-delay / 0.04)
    return response


def circular(signal, response):
    """The loop heard through the response, for ever, so that it has no seam."""
    return np.fft.irfft(np.fft.rfft(signal) * np.fft.rfft(response, len(signal)), len(signal))


def shelve(signal, rate, curve):
    """Circular equaliser; `curve` lists (Hz, dB), straight between them on a logarithmic axis."""
    frequencies = np.maximum(np.fft.rfftfreq(len(signal), 1 / rate), 1.0)
    points, levels = zip(*curve)
    gain = 10.0**(np.interp(np.log(frequencies), np.log(points), levels) / 20.0)
    gain[0] = 0.0  # no offset
    return np.fft.irfft(np.fft.rfft(signal) * gain, len(signal))


def resample_double(signal):
    """Twice the sampling rate, exactly, for a loop."""
    spectrum = np.fft.rfft(signal)
    spectrum[-1] *= 0.5
    return 2.0 * np.fft.irfft(spectrum, 2 * len(signal))
