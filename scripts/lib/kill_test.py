"""Kills the program while it records, and sees what "tavi recover" finds: kill_test.py PROGRAM COUNT

Each kill comes at a random moment: while it records, in a pause, or while it saves. Half of the first "tavi recover" are killed,
too. What is lost is the time from when the sound server begins to deliver to the kill, or to the tap that paused or stopped,
less the length of what decodes afterwards: with it what the server still held. "Stopped instead" tells what this comes to
where nothing is killed.
"""

import os
import pathlib
import random
import signal
import subprocess
import sys
import time

from private_desktop import PrivateDesktop, Trouble, wait_for

KINDS = ("recording", "recording", "paused", "saving")
TYPES = ("m4a", "mp4", "aac", "wav", "caf")
QUALITIES = {"Low": 8000, "Medium": 16000, "High": 44100}
# Frames that a decoder puts before the sound, since nothing in the file says that they are none.
PRIMING = {"aac": 1024}
RATE = 8000
# Half a second may be lost of what was captured. As much again is left to what the server holds and to a busy machine.
MOST_SECONDS = 1.0


class Recorder:
    """The program on a private desktop, recording one file after the other."""

    def __init__(self, desktop, program):
        self.desktop = desktop
        self.command = [program, "--container", desktop.folder / "container"]
        self.documents = desktop.folder / "container/Documents"
        self.log = desktop.folder / "tavi.log"
        desktop.environment["TAVI_TRACE"] = "1"

    def start(self, file_type, quality):
        self.priming = PRIMING.get(file_type, 0) / QUALITIES[quality]
        for name, value in (("AudioFileType", file_type), ("AudioQualityType", quality)):
            self.desktop.run(*self.command, "set", name, value)
        self.log.write_text("")
        self.app = self.desktop.spawn(*self.command, log=self.log)
        self.desktop.window(self.app)
        # What the program loads behind its first picture is no part of what is measured.
        wait_for(lambda: "libtavi-media" in pathlib.Path(f"/proc/{self.app.pid}/maps").read_text(), "its library")

    def tap(self):
        """Presses record; the moment at which the program has heard it."""
        before = self.log.read_text().count("record-tap")
        self.desktop.keys("space")
        while self.log.read_text().count("record-tap") == before:
            if self.app.poll() is not None:
                raise Trouble("the program ended:\n" + self.log.read_text())
            time.sleep(0.002)
        return time.monotonic()

    def record(self, seconds, kind="recording", rest=0.0):
        """Records for that long, and pauses or saves for the rest; how long it recorded in truth."""
        self.tap()
        start = wait_for(lambda: self.desktop.captures() == [True] and time.monotonic(), "the recording to start")
        time.sleep(seconds)
        end = self.tap() if kind == "paused" else time.monotonic()
        if kind == "saving":
            self.desktop.keys("ctrl+s")
        time.sleep(rest)
        return end - start

    def take_length(self):
        """How long what is among the recordings decodes, in seconds; it is removed, for the next one."""
        found = [path for path in self.documents.glob("*") if path.is_file()]
        if len(found) > 1:
            raise Trouble(f"there are {len(found)} recordings of one: {found}")
        for path in found:
            done = subprocess.run(["ffmpeg", "-v", "error", "-xerror", "-nostdin", "-i", path, "-ac", "1", "-ar", str(RATE), "-f",
                                   "s16le", "-"], capture_output=True)
            if done.returncode != 0 or done.stderr:
                raise Trouble(f"{path.name} is damaged:\n{done.stderr.decode()}")
            path.unlink()
            return len(done.stdout) / 2 / RATE - self.priming
        return 0.0


def lost_by_stop(recorder):
    recorder.start(TYPES[0], "High")
    truth = recorder.record(2.0, "saving")
    wait_for(lambda: any(path.is_file() for path in recorder.documents.glob("*")), "the recording")
    recorder.desktop.stop(recorder.app)
    return truth - recorder.take_length()


def lost_by_kill(recorder, file_type, quality, kind, chance):
    recorder.start(file_type, quality)
    rest = {"recording": 0.0, "paused": chance.uniform(0.1, 1.0), "saving": chance.uniform(0.0, 0.1)}[kind]
    truth = recorder.record(chance.uniform(0.0, 5.0), kind, rest)
    recorder.desktop.stop(recorder.app, signal.SIGKILL)
    if chance.random() < 0.5:
        rescue = recorder.desktop.spawn(*recorder.command, "recover")
        time.sleep(chance.uniform(0.0, 0.2))
        recorder.desktop.stop(rescue, signal.SIGKILL)
    recorder.desktop.run(*recorder.command, "recover")
    left = list(recorder.documents.parent.glob("Unsaved/*"))
    if left:
        raise Trouble(f"not recovered: {left}")
    length = recorder.take_length()
    if truth - length > MOST_SECONDS:
        print(f"too much: {length:.2f} s are left of {truth:.2f} s of {file_type}, {quality}, killed while {kind}")
    return truth - length


def main(program, count):
    seed = int(os.environ.get("SEED", random.randrange(10**6)))
    chance = random.Random(seed)
    lost = {(file_type, quality): [] for file_type in TYPES for quality in QUALITIES}
    with PrivateDesktop() as desktop:
        recorder = Recorder(desktop, program)
        stopped = lost_by_stop(recorder)
        for number in range(count):
            file_type = TYPES[number % len(TYPES)]
            quality, kind = chance.choice(list(QUALITIES)), chance.choice(KINDS)
            lost[file_type, quality].append((lost_by_kill(recorder, file_type, quality, kind, chance), kind))
    print(f"seconds lost by {count} kills, seed {seed}; stopped instead: {stopped:.2f}")
    print("type  quality  killed while  times   mean   most")
    for (file_type, quality), all_lost in lost.items():
        for wanted in sorted(set(KINDS)):
            some = [seconds for seconds, kind in all_lost if kind == wanted]
            if some:
                print(f"{file_type}   {quality:7}  {wanted:12}  {len(some):5}  {sum(some) / len(some):5.2f}  {max(some):5.2f}")
    return int(any(seconds > MOST_SECONDS for all_lost in lost.values() for seconds, _ in all_lost))


if __name__ == "__main__":
    try:
        sys.exit(main(pathlib.Path(sys.argv[1]).resolve(), int(sys.argv[2])))
    except Trouble as trouble:
        sys.exit(f"error: {trouble}")
