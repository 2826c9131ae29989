"""Shows the program where there is no display or no sound server.

demo.py PROGRAM [ARGUMENT...]                  records a voice on a private display, takes pictures of the screens, and ends
demo.py --with-display PROGRAM [ARGUMENT...]   runs the program on the user's display, with a private sound server whose
                                               microphone hears a voice over and over
"""

import os
import pathlib
import re
import shutil
import signal
import subprocess
import sys

from private_desktop import ROOT, PrivateDesktop, Trouble, wait_for

SPEECH = "This is a voice, spoken into a microphone that does not exist. One, two, three, four, five."
FOLDER = ROOT / "build/demo"
SILENT_BELOW_DB = -60.0


def speak(desktop, path):
    desktop.run("espeak-ng", "-v", "en", "-s", "150", "-w", path, SPEECH)
    if not path.exists() or path.stat().st_size < 50_000:
        raise Trouble("espeak-ng made no voice")
    return path


def level_of(desktop, recording):
    """Mean level in dBFS and length in seconds of a recording."""
    length = desktop.run("ffprobe", "-v", "error", "-show_entries", "format=duration", "-of", "csv=p=0", recording).stdout
    measured = desktop.run("ffmpeg", "-hide_banner", "-nostdin", "-i", recording, "-af", "volumedetect", "-f", "null", "-")
    found = re.search(r"mean_volume: (-?[\d.]+|-inf) dB", measured.stderr)
    if not found:
        raise Trouble(f"{recording} cannot be measured:\n{measured.stderr}")
    return float(found.group(1)), float(length)


def settled_picture(desktop, other_than):
    """Waits until the screen shows something that is not other_than, and keeps showing it."""
    seen = [b""]

    def settled():
        before, seen[0] = seen[0], desktop.picture()
        return seen[0] == before and seen[0] != other_than and desktop.colours(seen[0]) > 8

    wait_for(settled, "the screen to be drawn")
    return seen[0]


def record(desktop, command, speech):
    """Records the speech by command line and returns the recording's path."""
    documents = FOLDER / "Documents"
    desktop.run(*command, "record")
    wait_for(lambda: any(desktop.captures()), "the recording to start")
    desktop.run("paplay", "--device=mic_sink", speech)
    desktop.screenshot(FOLDER / "record.png")
    desktop.run(*command, "stop")
    wait_for(lambda: not desktop.captures(), "the recording to stop")
    return wait_for(lambda: next(documents.glob("*.m4a"), None), f"a recording in {documents}")


def demonstrate(program, arguments):
    shutil.rmtree(FOLDER, ignore_errors=True)
    FOLDER.mkdir(parents=True)
    command = [program, "--container", FOLDER]
    with PrivateDesktop() as desktop:
        speech = speak(desktop, desktop.folder / "speech.wav")
        app = desktop.spawn(*command, *arguments, log=FOLDER / "tavi.log")
        try:
            desktop.window(app)
            settled_picture(desktop, other_than=b"")
            recording = record(desktop, command, speech)
            level, seconds = level_of(desktop, recording)
            if level < SILENT_BELOW_DB or seconds < 2.0:
                raise Trouble(f"{recording} holds {seconds:.1f} s at {level:.1f} dBFS: that is no voice")
            shown = settled_picture(desktop, other_than=b"")
            for key, name in (("ctrl+2", "library"), ("ctrl+3", "settings")):
                desktop.keys(key)
                shown = settled_picture(desktop, other_than=shown)
                desktop.screenshot(FOLDER / f"{name}.png")
            print(desktop.run(*command, "list").stdout.rstrip())
        except (Trouble, subprocess.SubprocessError) as error:
            raise Trouble(f"{error}\nthe program said:\n{(FOLDER / 'tavi.log').read_text()}") from None
        if desktop.stop(app) != 0:
            raise Trouble(f"the program ended with status {app.returncode}:\n{(FOLDER / 'tavi.log').read_text()}")
    print(f"recorded {seconds:.1f} s at {level:.1f} dBFS")
    print(f"recording: {recording}")
    for name in ("record", "library", "settings"):
        print(f"screenshot: {FOLDER / name}.png")


def run_with_display(program, arguments):
    """The program on the user's display, until the user closes it."""
    has_bus = "DBUS_SESSION_BUS_ADDRESS" in os.environ or pathlib.Path(
        os.environ.get("XDG_RUNTIME_DIR", "/nonexistent"), "bus").is_socket()
    with PrivateDesktop(display=False, bus=not has_bus) as desktop:
        speech = speak(desktop, desktop.folder / "speech.wav")
        print("no sound server found: a private one stands in, and its microphone hears a voice", file=sys.stderr)
        desktop.spawn("sh", "-c", 'while paplay --device=mic_sink "$1"; do :; done', "voice", speech)
        app = desktop.spawn(program, *arguments, stdin=None, stdout=None, stderr=None)
        return app.wait()


def main(arguments):
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(128 + signal.SIGTERM))
    signal.signal(signal.SIGHUP, lambda *_: sys.exit(128 + signal.SIGHUP))
    try:
        if arguments[0] == "--with-display":
            return run_with_display(pathlib.Path(arguments[1]), arguments[2:])
        demonstrate(pathlib.Path(arguments[0]), arguments[1:])
    except KeyboardInterrupt:
        return 128 + signal.SIGINT
    except (Trouble, subprocess.SubprocessError, OSError) as error:
        print(f"error: {error}", file=sys.stderr)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
