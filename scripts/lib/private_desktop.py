"""A display, a session bus and a sound server of one's own, for demonstrations, tests and measurements.

Nothing here touches the desktop that it runs on: homes, sockets and settings lie in a temporary folder, the bus activates no
services, and every process is ended by its own id.
"""

import os
import pathlib
import shutil
import signal
import subprocess
import tempfile
import time

ROOT = pathlib.Path(__file__).resolve().parents[2]
SOUND_SCRIPT = ROOT / "packaging/demo/private-pulse.pa"
BUS_CONFIGURATION = ROOT / "packaging/demo/private-bus.conf"
PHONE = (390, 844)


class Trouble(Exception):
    """Something that the person at the terminal should read as it stands."""


def wait_for(condition, what, seconds=30.0):
    """Polls until condition() is true and returns its value; the deadline only ends a wait that is in vain."""
    deadline = time.monotonic() + seconds
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > deadline:
            raise Trouble(f"waited {seconds:.0f} s in vain for {what}")
        time.sleep(0.05)


class PrivateDesktop:
    """Use it in a with statement, or call close()."""

    def __init__(self, display=True, sound=True, bus=True, screen=PHONE):
        self.screen = screen
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="tavi-"))
        self.environment = dict(os.environ)
        self._processes = []
        self._sound = None
        try:
            if sound:
                self.start_sound()
            if bus:
                self._start_bus()
            if display:
                self.start_display()
        except BaseException:
            self.close()
            raise

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.close()

    def close(self):
        while self._processes:
            self.stop(self._processes[-1])
        shutil.rmtree(self.folder, ignore_errors=True)

    def spawn(self, *command, log=None, **options):
        """Starts a process that ends with this desktop, and at the latest with this interpreter."""
        output = open(log, "ab") if log else subprocess.DEVNULL
        options = {"stdin": subprocess.DEVNULL, "stdout": output, "stderr": output, "env": self.environment} | options
        process = subprocess.Popen(["setpriv", "--pdeathsig", "TERM", "--", *map(str, command)], **options)
        if log:
            output.close()
        self._processes.append(process)
        return process

    def stop(self, process, with_signal=signal.SIGTERM):
        """Ends a process and returns its exit status."""
        if process in self._processes:
            self._processes.remove(process)
        if process.poll() is None:
            process.send_signal(with_signal)
            try:
                process.wait(20)
            except subprocess.TimeoutExpired:
                process.kill()
        return process.wait()

    def run(self, *command, check=True, seconds=60):
        """Runs a command to its end and returns what became of it, its output as text."""
        done = subprocess.run(list(map(str, command)), env=self.environment, capture_output=True, text=True, timeout=seconds,
                              stdin=subprocess.DEVNULL)
        if check and done.returncode != 0:
            raise Trouble(f"{' '.join(map(str, command))}: exit status {done.returncode}\n{done.stderr}")
        return done

    def start_sound(self):
        home = self.folder / "sound"
        shutil.rmtree(home, ignore_errors=True)
        home.mkdir(mode=0o700)
        self.environment |= {"PULSE_RUNTIME_PATH": str(home), "PULSE_SERVER": f"unix:{home}/native",
                             "PULSE_COOKIE": f"{home}/cookie"}
        server = self.environment | {"HOME": str(home), "XDG_RUNTIME_DIR": str(home), "XDG_CONFIG_HOME": str(home)}
        server.pop("PULSE_SERVER")
        self._sound = self.spawn(
            "pulseaudio", "-n", "--daemonize=no", "--use-pid-file=no", "--exit-idle-time=-1", "--realtime=no",
            "--high-priority=no", "-F", SOUND_SCRIPT, log=self.folder / "sound.log", env=server)

        def answers():
            if self._sound.poll() is not None:
                raise Trouble("the sound server ended:\n" + (self.folder / "sound.log").read_text())
            done = self.run("pactl", "info", check=False)
            return "Default Source: microphone" in done.stdout

        wait_for(answers, "the sound server")

    def kill_display(self):
        self.stop(self._display, signal.SIGKILL)

    def _start_bus(self):
        runtime = self.folder / "run"
        runtime.mkdir(mode=0o700)
        self.environment["XDG_RUNTIME_DIR"] = str(runtime)
        path = runtime / "bus"
        address = f"unix:path={path}"
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = address
        self.spawn("dbus-daemon", "--nofork", "--nopidfile", f"--config-file={BUS_CONFIGURATION}", f"--address={address}",
                   log=self.folder / "bus.log")
        wait_for(path.exists, "the session bus")

    def start_display(self):
        reader, writer = os.pipe()
        width, height = self.screen
        # Keys that a busy machine lets go of late do not repeat.
        self._display = self.spawn("Xvfb", "-r", "-displayfd", writer, "-screen", "0", f"{width}x{height}x24", "-nolisten", "tcp", "-noreset",
                                   log=self.folder / "display.log", pass_fds=[writer])
        os.close(writer)
        with os.fdopen(reader) as pipe:
            number = pipe.readline().strip()
        if not number:
            raise Trouble("the display did not start:\n" + (self.folder / "display.log").read_text())
        self.environment["DISPLAY"] = f":{number}"
        for name in ("WAYLAND_DISPLAY", "XAUTHORITY", "QT_QPA_PLATFORM"):
            self.environment.pop(name, None)

    def picture(self):
        """What the display shows, as rows of RGB bytes."""
        done = subprocess.run(self._grab("-f", "rawvideo", "-pix_fmt", "rgb24", "-"), capture_output=True, check=True)
        return done.stdout

    def screenshot(self, path):
        subprocess.run(self._grab("-y", str(path)), check=True)

    def _grab(self, *output):
        width, height = self.screen
        return ["ffmpeg", "-loglevel", "error", "-nostdin", "-f", "x11grab", "-draw_mouse", "0", "-video_size",
                f"{width}x{height}", "-i", self.environment["DISPLAY"], "-frames:v", "1", *output]

    def colours(self, picture=None):
        picture = picture or self.picture()
        return len({picture[i:i + 3] for i in range(0, len(picture), 3)})

    def window(self, process):
        """Waits for the process's window and gives it the keyboard; returns its id."""
        def find():
            if process.poll() is not None:
                raise Trouble(f"the program ended with status {process.returncode} before its window appeared")
            found = self.run("xdotool", "search", "--onlyvisible", "--pid", process.pid, check=False).stdout.split()
            return found[0] if found else None

        window = wait_for(find, "the program's window")
        self.run("xdotool", "windowfocus", "--sync", window)
        return window

    def keys(self, *names):
        self.run("xdotool", "key", *names)

    def captures(self):
        """The programs that record from the sound server: for each, whether it is running (True) or paused (False)."""
        listed = self.run("pactl", "list", "source-outputs", check=False).stdout.split("Source Output #")
        return ["Corked: no" in entry for entry in listed if "protocol-native.c" in entry]
