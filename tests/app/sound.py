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


def levels(path, filters="anull"):
    """RMS in dBFS of each 20 ms of a file's first channel, behind FFmpeg's filters."""
    raw = subprocess.run(["ffmpeg", "-v", "error", "-nostdin", "-i", str(path), "-af", f"pan=mono|c0=c0,{filters}", "-ar",
                          str(RATE), "-f", "s16le", "-"], capture_output=True, check=True).stdout
    samples = array.array("h", raw)
    step = RATE // 50
    blocks = (samples[i:i + step] for i in range(0, len(samples) - step + 1, step))
    return [10 * math.log10(max(sum(value * value for value in block) / step / 32768.0 ** 2, 1e-16)) for block in blocks]


def tone_seconds(path, hertz):
    """For how long a tone sounds that is as loud as those of write_tone()."""
    return sum(level > -20.0 for level in levels(path, f"bandpass=f={hertz}:width_type=h:w=100")) / 50
