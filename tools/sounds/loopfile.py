"""Sound files: WAV for effects, and an MP3 that loops without a seam."""
import struct
import subprocess
import tempfile
import wave

import numpy as np

ROLL = 2304     # samples of the loop's other end encoded on each side, cut off again by the decoder
BIT_RATE = 160  # kbit/s


def write_wav(path, channels, rate):
    """16 bit; `channels` has one row a channel, full scale 1."""
    with wave.open(str(path), "wb") as file:
        file.setnchannels(len(channels))
        file.setsampwidth(2)
        file.setframerate(rate)
        file.writeframes(np.round(32767.0 * np.asarray(channels).T).astype("<i2").tobytes())


def crc16(data):
    """The checksum of the LAME tag (polynomial 0x8005, reflected)."""
    crc = 0
    for byte in data:
        crc ^= byte
        for _ in range(8):
            crc = (crc >> 1) ^ (0xA001 if crc & 1 else 0)
    return crc


def widen_cut(mp3, roll):
    """Makes the decoder drop `roll` more samples at both ends, by the delay and padding of the LAME tag."""
    info = max(mp3.find(b"Info"), mp3.find(b"Xing"))
    frame = mp3.rfind(b"\xff", 0, info - 1)
    delays = info + 141
    packed = int.from_bytes(mp3[delays:delays + 3], "big")
    delay, padding = (packed >> 12) + roll, (packed & 0xFFF) + roll
    assert delay < 4096 and padding < 4096, "the tag holds 12 bits each"
    tagged = bytearray(mp3)
    tagged[delays:delays + 3] = (delay << 12 | padding).to_bytes(3, "big")
    tagged[frame + 190:frame + 192] = struct.pack(">H", crc16(tagged[frame:frame + 190]))
    return bytes(tagged)


def write_loop(path, channels, rate):
    """Encodes the loop with its own other end around it, so that both sides of the seam are decoded from
    whole frames: a plain encoding would start from silence and be inexact in the first milliseconds."""
    rolled = np.concatenate([channels[:, -ROLL:], channels, channels[:, :ROLL]], axis=1)
    with tempfile.TemporaryDirectory() as folder:
        write_wav(f"{folder}/loop.wav", rolled, rate)
        subprocess.run(["lame", "--quiet", "--cbr", "-b", str(BIT_RATE), "-m", "j", "-q", "2",
                        f"{folder}/loop.wav", f"{folder}/loop.mp3"], check=True)
        with open(f"{folder}/loop.mp3", "rb") as file:
            path.write_bytes(widen_cut(file.read(), ROLL))
