"""Measures the program, and beside it what a user would use instead, in one run: bench.py BIN [NAME...]

Each figure is a median over several rounds. Seconds differ from machine to machine; ratios hold better.
"""

import os
import pathlib
import random
import re
import signal
import statistics
import subprocess
import sys
import time

ROOT = pathlib.Path(__file__).resolve().parents[1]
sys.path[:0] = [str(ROOT / "scripts/lib"), str(ROOT / "tests/app")]

from private_dav import PrivateDav
from private_desktop import PrivateDesktop, Trouble, wait_for
from sound import levels, tone_seconds, write_tone

ROUNDS = 5
SECONDS = 20.0
BENCHES = {}


def bench(function):
    BENCHES[function.__name__] = function
    return function


def row(what, value, unit, beside=None, aim=None):
    """One line: the figure, the figure beside it with the ratio of the two, and what is aimed at (the most that is good)."""
    line = f"{what:<46} {value:>10.2f} {unit:<8}"
    measure = value
    if beside is not None:
        measure = value / beside if beside else float("inf")
        line += f" beside {beside:>9.2f}  ratio {measure:>5.2f}"
    if aim is not None:
        line += f"  aim <= {aim:<6.4g} {'met' if measure <= aim else 'MISSED'}"
    print(line, flush=True)


class Figures:
    """What the kernel counts for a process, by thread: nanoseconds on a processor and times it went to sleep."""

    def __init__(self, pid):
        self.pid = pid
        self.threads = {}
        for task in pathlib.Path(f"/proc/{pid}/task").iterdir():
            try:
                status = (task / "status").read_text()
                spent = int((task / "schedstat").read_text().split()[0])
                slept = int(re.search(r"^voluntary_ctxt_switches:\s*(\d+)", status, re.MULTILINE).group(1))
                name = "main thread" if int(task.name) == pid else (task / "comm").read_text().strip()
                self.threads[int(task.name)] = (name, spent, slept)
            except FileNotFoundError:
                continue

    def since(self, before):
        """Processor seconds and sleeps of each thread since an earlier look, by thread id."""
        return {tid: (name, (spent - before.threads.get(tid, (name, 0, 0))[1]) / 1e9,
                      slept - before.threads.get(tid, (name, 0, 0))[2])
                for tid, (name, spent, slept) in self.threads.items()}


def resident_kilobytes(pid):
    return int(re.search(r"^VmRSS:\s*(\d+)", pathlib.Path(f"/proc/{pid}/status").read_text(), re.MULTILINE).group(1))


class Program:
    """The program on a desktop, its traces and its recordings."""

    def __init__(self, desktop, binary, *arguments):
        self.desktop = desktop
        self.container = desktop.folder / "container"
        self.log = desktop.folder / "tavi.log"
        self.command = [binary, "--container", self.container]
        desktop.run(*self.command, "set", "AudioQualityType", "High")
        desktop.environment["TAVI_TRACE"] = "1"
        self.process = desktop.spawn(*self.command, *arguments, log=self.log)
        self.pid = self.process.pid
        desktop.window(self.process)
        wait_for(lambda: desktop.colours() > 8, "the record screen")

    def record(self):
        self.desktop.run(*self.command, "record")
        wait_for(lambda: any(self.desktop.captures()), "the recording to run")

    def stop(self):
        before = set(self.container.glob("Documents/*.m4a"))
        self.desktop.run(*self.command, "stop")
        return wait_for(lambda: next(iter(set(self.container.glob("Documents/*.m4a")) - before), None), "the recording")

    def traces(self, name):
        """Microseconds at which something was traced, and the numbers that came with it."""
        found = re.findall(rf"^trace: {name}((?: \d+)+)$", self.log.read_text(), re.MULTILINE)
        return [(int(numbers[-1]), *map(int, numbers[:-1])) for numbers in map(str.split, found)]


def endless_tone(desktop):
    tone = write_tone(desktop.folder / "endless.wav", 1000, 60.0)
    desktop.spawn("sh", "-c", 'while paplay --device=mic_sink "$1"; do :; done', "tone", tone)


@bench
def cpu(binaries):
    """Processor time of a recording (44.1 kHz stereo Apple Lossless) beside FFmpeg's own recorder on the same source."""
    rounds = []
    with PrivateDesktop() as desktop:
        endless_tone(desktop)
        program = Program(desktop, binaries / "tavi")
        for number in range(ROUNDS):
            program.record()
            other = desktop.spawn("ffmpeg", "-loglevel", "error", "-f", "pulse", "-i", "microphone", "-ar", "44100", "-c:a",
                                  "alac", "-sample_fmt", "s16p", desktop.folder / f"other-{number}.m4a")
            wait_for(lambda: len(desktop.captures()) == 2, "both recorders")
            ours, theirs = Figures(program.pid), Figures(other.pid)
            time.sleep(SECONDS)
            ours, theirs = Figures(program.pid).since(ours), Figures(other.pid).since(theirs)
            desktop.stop(other, signal.SIGINT)
            program.stop()
            rounds.append((ours, sum(spent for _, spent, _ in theirs.values())))

    def median(choose):
        return 100 / SECONDS * statistics.median(choose(ours) for ours, _ in rounds)

    beside = 100 / SECONDS * statistics.median(theirs for _, theirs in rounds)
    names = sorted({name for ours, _ in rounds for name, _, _ in ours.values()})
    row("recording: whole program", median(lambda ours: sum(s for _, s, _ in ours.values())), "% core", beside)
    row("recording: all but the main thread",
        median(lambda ours: sum(s for name, s, _ in ours.values() if name != "main thread")), "% core", beside, aim=0.6)
    for name in names:
        spent = median(lambda ours: sum(s for other, s, _ in ours.values() if other == name))
        if spent >= 0.01:
            row(f"  {name}", spent, "% core")


@bench
def wakeups(binaries):
    """Times a second that a thread of the program goes to sleep, which is how often one wakes.

    The private microphone delivers every 50 ms whatever is asked for; a device, like the second source here, follows the
    program's wish.
    """
    for source, aim in (("microphone", None), ("device", 40)):
        with PrivateDesktop() as desktop:
            if source == "device":
                desktop.run("pactl", "load-module", "module-null-source", "source_name=device", "rate=48000")
                desktop.environment["PULSE_SOURCE"] = "device"
            else:
                endless_tone(desktop)
            program = Program(desktop, binaries / "tavi")

            def measure():
                before = Figures(program.pid)
                time.sleep(SECONDS)
                return Figures(program.pid).since(before)

            time.sleep(2.0)
            idle = measure()
            program.record()
            recording = measure()
            program.stop()
        row("wake-ups, idle on the record screen", sum(n for _, _, n in idle.values()) / SECONDS, "a second", aim=0)
        row(f"wake-ups, recording from the {source}", sum(n for _, _, n in recording.values()) / SECONDS, "a second", aim=aim)
        for name, _, count in sorted(recording.values(), key=lambda thread: -thread[2]):
            if count:
                row(f"  {name}", count / SECONDS, "a second")


@bench
def tap(binaries):
    """Time from the tap on record to the first captured frame."""
    with PrivateDesktop() as desktop:
        endless_tone(desktop)
        program = Program(desktop, binaries / "tavi")
        for _ in range(ROUNDS):
            program.record()
            wait_for(lambda: len(program.traces("first-captured-frame")) == len(program.traces("record-tap")), "a frame")
            # Recordings are named by the second.
            time.sleep(1.1)
            program.stop()
        # The encoder looks some times a second; it tells how many frames have gathered by then, at which rate. A virtual
        # microphone works ahead of time, so its frames may be a little older than the tap.
        both = zip(program.traces("record-tap"), program.traces("first-captured-frame"))
        waits = [((seen - tapped) / 1000, frames / rate * 1000) for (tapped,), (seen, frames, rate) in both]
    if len(waits) < ROUNDS:
        raise Trouble(f"the program traced {len(waits)} of {ROUNDS} recordings")
    starts = [max(0.0, seen - gathered) for seen, gathered in waits]
    row("record tap to first captured frame", statistics.median(starts), "ms", aim=60.0)
    row("  the slowest of them", max(starts), "ms")
    row("record tap to first frames encoded", statistics.median(seen for seen, _ in waits), "ms")


@bench
def startup(binaries):
    """Time from starting the process to its first picture, beside a bare Qt Quick window of the same size."""
    def first_frame(desktop, *command):
        started = time.monotonic()
        process = desktop.spawn(*command, stderr=subprocess.PIPE)
        for line in process.stderr:
            if line.startswith(b"trace: first-frame"):
                break
        else:
            raise Trouble(f"{command[0]} traced no first frame")
        taken = 1000 * (time.monotonic() - started)
        memory = resident_kilobytes(process.pid) / 1024
        process.stderr.close()
        desktop.stop(process)
        return taken, memory

    bare, ours = [], []
    with PrivateDesktop() as desktop:
        desktop.environment["TAVI_TRACE"] = "1"
        for _ in range(ROUNDS + 2):
            bare.append(first_frame(desktop, binaries / "bare_window"))
            ours.append(first_frame(desktop, binaries / "tavi", "--container", desktop.folder / "container"))
    middle = [[statistics.median(values) for values in zip(*rounds)] for rounds in (ours, bare)]
    row("start to first picture", middle[0][0], "ms", middle[1][0], aim=1.5)
    row("resident memory then", middle[0][1], "MB", middle[1][1])


@bench
def loss(binaries):
    """Frames lost while every processor is busy: what the program counted, and blocks of 20 ms in which the tone breaks."""
    with PrivateDesktop() as desktop:
        endless_tone(desktop)
        program = Program(desktop, binaries / "tavi")
        # A tone of a minute is followed by half a second of silence: what breaks there is not lost.
        hogs = [desktop.spawn("sh", "-c", "while :; do :; done") for _ in range(2)]
        program.record()
        time.sleep(50.0)
        recording = program.stop()
        for hog in hogs:
            desktop.stop(hog)
        blocks = levels(recording)
        tone = round(50 * tone_seconds(recording, 1000))
        said = program.log.read_text()
    counted = max((int(number) for number in re.findall(r"(\d+) frames of the recording were lost", said)), default=0)
    loud = sum(level > -40.0 for level in blocks)
    row("frames lost with all processors busy", counted, "frames", aim=0)
    row("blocks of 20 ms without sound", len(blocks) - loud, "of %d" % len(blocks), aim=27)
    row("blocks of 20 ms with a broken tone", loud - tone, "of %d" % len(blocks), aim=2)


@bench
def memory(binaries):
    """Resident memory of the program after one minute of recording and after some more."""
    minutes = 4
    with PrivateDesktop() as desktop:
        endless_tone(desktop)
        program = Program(desktop, binaries / "tavi")
        idle = resident_kilobytes(program.pid) / 1024
        program.record()
        time.sleep(60.0)
        early = resident_kilobytes(program.pid) / 1024
        time.sleep(60.0 * (minutes - 1))
        late = resident_kilobytes(program.pid) / 1024
        program.stop()
    row("resident memory, idle", idle, "MB")
    row("resident memory after 1 minute", early, "MB")
    row(f"resident memory after {minutes} minutes", late, "MB", early, aim=1.02)


def figures(program):
    """What a benchmark of one part prints: value, unit, value beside it and aim, by name. Test data are made once and kept."""
    done = subprocess.run([program], capture_output=True, text=True, check=True)
    found = re.findall(r"^figure: (\S+) ([\d.]+) (\S+)(?: beside ([\d.]+))?(?: aim ([\d.]+))?$", done.stdout, re.MULTILINE)
    return {name: (float(value), unit, *(float(other) if other else None for other in more))
            for name, value, unit, *more in found}


@bench
def listing(binaries):
    """Listing ten thousand recordings of all types with exact durations, beside libraries that tell durations."""
    found = figures(binaries / "library_bench")
    value = {name: figure[0] for name, figure in found.items()}
    row("files that TagLib has a length for", value["taglib-answered"], "files")
    row("first listing, beside libavformat", value["first"], "ms", value["libavformat"], aim=0.1)
    row("first listing, beside TagLib", value["first"], "ms", value["taglib"], aim=0.8)
    row("nothing changed", value["again"], "ms", aim=100)
    row("one new file", value["one-new"], "ms", aim=100)


@bench
def playing(binaries):
    """Playing a recording beside ffplay, both at the same time: processor, wake-ups, underruns, and when a jump is heard."""
    value = {name: figure[0] for name, figure in figures(binaries / "player_bench").items()}
    for rate in ("normal", "double"):
        row(f"playing at {rate} rate", value[f"{rate}-processor"], "% core", value[f"{rate}-processor-ffplay"], aim=1.0)
        row("  wake-ups", value[f"{rate}-wake-ups"], "a second", value[f"{rate}-wake-ups-ffplay"])
        row("  gaps with all processors busy", value[f"{rate}-gaps-all-busy"], "in 20 s", aim=0)
        row("  ffplay's then", value[f"{rate}-gaps-all-busy-ffplay"], "in 20 s")
    row("wake-ups while paused", value["paused-wake-ups"], "in 10 s", aim=0)
    row("jump to first sound from there", value["jump-heard-after"], "ms", aim=50)
    row("  the slowest of them", value["jump-heard-after-at-most"], "ms", aim=50)
    row("  the farthest off", value["jump-lands-off-by-at-most"], "ms", aim=10)


OWN = {"library_bench", "player_bench", "ring_bench", "waveform_bench"}


@bench
def parts(binaries):
    """What the other benchmarks of single parts print, such as a simulated half hour at full speed."""
    for program in sorted(binaries.glob("*_bench")):
        if program.name not in OWN:
            for name, figure in figures(program).items():
                row(f"{program.name}: {name}", *figure)


@bench
def ring(binaries):
    """Time that the engine's ring takes for a block from one processor to the other, and for a message one way."""
    values = {name: figure[0] for name, figure in figures(binaries / "ring_bench").items()}
    for name, what, aim in (("block-512", "block of 512 bytes", 1 / 0.85), ("block-4096", "block of 4 KiB", 1 / 0.95),
                            ("block-65536", "block of 64 KiB", 1 / 0.95), ("one-way", "message, one way", 1.15)):
        row(f"{what}, beside libjack's ring", values[name], "ns", values[f"{name}-jack"], aim=aim)
        row(f"{what}, beside Boost's queue", values[name], "ns", values[f"{name}-boost"])


@bench
def waveform(binaries):
    """The waveform of an hour by type of file, beside FFmpeg's program decoding it into a pipe with a small reducer."""
    values = {name: figure[0] for name, figure in figures(binaries / "waveform_bench").items()}
    for name, aim in (("wav", 0.12), ("ima4", 0.03), ("aac", 0.35), ("lossless", 0.65), ("lossless-16k", 0.75),
                      ("aac-16k", 0.75), ("wav-8k", 0.75), ("aac-8k", 0.75)):
        row(f"waveform of an hour, {name}", values[name], "s", values[f"{name}-ffmpeg"], aim=aim)
        row("  most that a point differs", values[f"{name}-difference"], "%")
        row("  most memory", values[f"{name}-memory"], "MB", aim=64)


def hour(folder, name, *coding, hours=1):
    """A file of sound that swells, made once and kept."""
    path = folder / name
    if not path.exists():
        folder.mkdir(exist_ok=True)
        making = folder / f"making-{name}"
        sound = f"aevalsrc=(0.05+0.3*mod(t\\,60)/60)*sin(2000*t)+0.05*(random(0)-0.5):s=44100:d={3600 * hours}"
        subprocess.run(["ffmpeg", "-v", "error", "-nostdin", "-f", "lavfi", "-i", sound, "-ac", "2", *coding, making], check=True)
        making.rename(path)
    return path


def seconds_of(*command):
    started = time.monotonic()
    subprocess.run(list(map(str, command)), check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    return time.monotonic() - started


def beside(what, ours, theirs, aim):
    """One line for two commands, each run in turn."""
    rounds = [(ours(), theirs()) for _ in range(ROUNDS)]
    mine, others = (1000 * statistics.median(taken) for taken in zip(*rounds))
    row(what, mine, "ms", others, aim=aim)


@bench
def commands(binaries):
    """Whole processes, the disk included: "tavi waveform" of an hour beside a plain reducer, and "tavi trim" beside ffmpeg's copy."""
    folder = binaries.parent / "bench-data"
    tavi = binaries / "tavi"
    lossless = ("-c:a", "alac", "-sample_fmt", "s16p")
    for name, coding, aim in (("hour.wav", ("-c:a", "pcm_u8"), 0.20), ("hour.mp4", ("-c:a", "aac", "-b:a", "128k"), 0.28),
                              ("hour.m4a", lossless, 0.38), ("hour-16k.m4a", (*lossless, "-ar", "16000"), 0.45)):
        path = hour(folder, name, *coding)
        beside(f"tavi waveform {name}", lambda: seconds_of(tavi, "waveform", "--json", path),
               lambda: seconds_of(binaries / "plain_waveform", path, "1024"), aim)
    for name, coding, aim in (("three.m4a", lossless, 0.95), ("three.wav", ("-c:a", "pcm_u8"), 1.0)):
        path, cut = hour(folder, name, *coding, hours=3), folder / f"cut-{name}"

        def run(*command):
            cut.unlink(missing_ok=True)
            return seconds_of(*command)

        beside(f"tavi trim {name}, 30 minutes", lambda: run(tavi, "trim", path, "--from", "3600", "--to", "5400", "--out", cut),
               lambda: run("ffmpeg", "-nostdin", "-ss", "3600", "-to", "5400", "-i", path, "-c", "copy", cut), aim)
        cut.unlink(missing_ok=True)


@bench
def companions(binaries):
    """How long a message takes from one program to the listener of another, and how often its ends wake while idle."""
    for way in ("file", "coordinated", "context", "transfer", "message"):
        with PrivateDesktop(display=False, sound=False) as desktop:
            command = binaries / "channel_peer", "{}", way, desktop.folder
            listener, sender = (
                desktop.spawn(*(end if word == "{}" else word for word in command), stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                              text=True, bufsize=1) for end in ("recorder", "companion"))

            def until(peer, word):
                return next(line for line in peer.stdout if line.startswith(word))

            if way in ("context", "transfer", "message"):
                until(listener, "reached")
                until(sender, "reached")
            print("time Record", file=listener.stdin)
            until(listener, "done")
            took = []
            for _ in range(201):
                print("now Record", file=sender.stdin)
                took.append(int(until(listener, "took").split()[1]) / 1000)
            row(f"from passing to the listener, {way}", statistics.median(took), "ms", aim=5)
            time.sleep(2.0)
            before = [Figures(peer.pid) for peer in (listener, sender)]
            time.sleep(SECONDS)
            woken = sum(n for peer, look in zip((listener, sender), before) for _, _, n in Figures(peer.pid).since(look).values())
            row(f"wake-ups of both ends, idle, {way}", woken / SECONDS, "a second", aim=0)
    with PrivateDesktop(display=False, sound=False) as desktop:
        icon = desktop.spawn(binaries / "tavi-companion", "--container", desktop.folder)
        time.sleep(3.0)
        before = Figures(icon.pid)
        time.sleep(SECONDS)
        row("wake-ups of the icon, idle", sum(n for _, _, n in Figures(icon.pid).since(before).values()) / SECONDS, "a second", aim=0)


@bench
def cloud(binaries):
    """Keeping step with a WebDAV server on this machine: listings and polls, and a gigabyte beside curl sending and fetching it."""
    for count in (1000, 10_000):
        with PrivateDav(binaries / "tavi", "nginx") as server:
            start, _ = server.run("cloud", "status")
            for number in range(count):
                (server.files / f"{number}.m4a").write_bytes(b"sound %d" % number)
            server.asked()
            # Offered, and not fetched yet: the journal learns what is there.
            for what in (f"{count} files, first listing and fetching", f"{count} files, unchanged poll"):
                seconds, most = server.run("cloud", "sync")
                requests, size = server.asked()
                is_poll = "poll" in what
                row(f"{what}, requests", requests, "", aim=2 if is_poll else None)
                row(f"{what}, sent and received", size / 1e6, "MB")
                row(f"{what}, processor", (seconds - start) * 1000, "ms", aim=50 if is_poll and count == 1000 else None)
                row(f"{what}, memory", most / 1024, "MB")
    with PrivateDav(binaries / "tavi", "nginx") as server:
        large = server.path / "large"
        with open(large, "wb") as file:
            for _ in range(1024):
                file.write(random.randbytes(1 << 20))
        curl = ("curl", "-s", "-f", "-u", "u:p")
        figures = []
        for number in range(3):
            name = f"large-{number}.wav"
            os.link(large, server.documents / name)
            begin = time.monotonic()
            _, most = server.run("cloud", "sync")
            ours = time.monotonic() - begin
            sent = seconds_of(*curl, "-T", large, server.url + "curl")
            fetched = seconds_of(*curl, "-o", server.path / "back", server.url + "curl")
            figures.append((ours, sent, fetched, most))
            for path in (server.documents / name, server.files / name, server.files / "curl"):
                path.unlink()
        ours, sent, fetched, most = (statistics.median(column) for column in zip(*figures))
        row("1 GB sent and read back, beside curl -T and -o", ours, "s", beside=sent + fetched, aim=1.1)
        row("the same, beside curl -T alone", ours, "s", beside=sent)
        row("the same, memory", most / 1024, "MB")


def main(binaries, *names):
    unknown = [name for name in names if name not in BENCHES]
    if unknown:
        print(f"error: no benchmark {', '.join(unknown)}; there are {', '.join(BENCHES)}", file=sys.stderr)
        return 2
    for name in names or BENCHES:
        print(f"\n{name}: {BENCHES[name].__doc__}")
        try:
            BENCHES[name](pathlib.Path(binaries))
        except Trouble as error:
            print(f"error: {name}: {error}", file=sys.stderr)
            return 1
    return 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
