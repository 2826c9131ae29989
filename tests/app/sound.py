"""Sounds for the microphone, and measurements of what was recorded. Standard library and FFmpeg's tools only."""

import array
import json
import math
import subprocess
import wave

RATE = 48000


def write_tone(path, hertz, seconds):
    """A stereo sine at half the full scale, and half a second of silence so that its end is not lost in a buffer."""
    samples = array.array("h")
    for i in range(int(seconds * RATE)):
        value = round(16384 * math.sin(2 * math.pi * hertz * i / RATE))
        samples.extend((value, value))
    samples.extend([0] * RATE)
    with wave.open(str(path), "wb") as file:
        file.setnchannels(2)
        file.setsampwidth(2)
        file.setframerate(RATE)
        file.writeframes(samples.tobytes())
    return path


def probe(path):
    """What ffprobe reads in the container: codec, rate, channels, duration in seconds."""
    done = subprocess.run(["ffprobe", "-v", "error", "-show_streams", "-show_format", "-of", "json", str(path)],
                          capture_output=True, text=True)
    if done.returncode != 0:
        raise AssertionError(f"{path} cannot be read: {done.stderr}")
    found = json.loads(done.stdout)
    stream = found["streams"][0]
    return {"codec": stream["codec_name"], "rate": int(stream["sample_rate"]), "channels": stream["channels"],
            "duration": float(found["format"]["duration"])}


class Sound:
    """The first channel of a decoded file, in blocks of 20 ms."""

    def __init__(self, path):
        raw = subprocess.run(["ffmpeg", "-v", "error", "-nostdin", "-i", str(path), "-af", "pan=mono|c0=c0", "-ar", str(RATE),
                              "-f", "s16le", "-"], capture_output=True, check=True).stdout
        samples = array.array("h", raw)
        step = RATE // 50
        self.blocks = [samples[i:i + step] for i in range(0, len(samples) - step + 1, step)]

    def loud(self):
        """The blocks above -40 dBFS."""
        return [block for block in self.blocks if level(block) > -40.0]

    def tone_seconds(self, hertz):
        """For how long a tone is the greatest part of what sounds."""
        return sum(1 for block in self.loud() if _power(block, hertz) > 0.5 * _mean_square(block)) / 50


def level(block):
    """RMS in dBFS."""
    return 10 * math.log10(max(_mean_square(block), 1e-16))


def _mean_square(block):
    return sum(value * value for value in block) / len(block) / 32768.0 ** 2


def _power(block, hertz):
    """Mean square of one frequency's part of a block, by Goertzel's algorithm."""
    factor = 2 * math.cos(2 * math.pi * hertz / RATE)
    before = last = 0.0
    for value in block:
        before, last = last, value / 32768.0 + factor * last - before
    return 2 * (before * before + last * last - factor * before * last) / len(block) ** 2
