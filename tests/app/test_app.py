"""Drives the program as a user does: test_app.py PROGRAM [OPTION OF unittest...]"""

import itertools
import json
import os
import pathlib
import re
import shutil
import signal
import sys
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "scripts/lib"))

from private_desktop import PHONE, ROOT, PrivateDesktop, wait_for
from sound import levels, probe, tone_seconds, write_tone

PROGRAM = None
NAME = "com.quillfen.voicerecorder"
CAN_MOUNT = os.access("/dev/fuse", os.R_OK | os.W_OK) and (os.geteuid() == 0 or shutil.which("fusermount"))
FILE_NAME = r"^\d{4}_[A-Z][a-z]{2}_\d\d_\d\d_\d\d_\d\d\."


class AppTest(unittest.TestCase):
    """One desktop for a class; each test gets a container of its own."""

    has_services = True
    screen = PHONE
    numbers = itertools.count()

    @classmethod
    def setUpClass(cls):
        cls.desktop = PrivateDesktop(sound=cls.has_services, bus=cls.has_services, screen=cls.screen)
        cls.addClassCleanup(cls.desktop.close)
        if not cls.has_services:
            nobody = f"{cls.desktop.folder}/nobody"
            cls.desktop.environment |= {"PULSE_SERVER": f"unix:{nobody}", "DBUS_SESSION_BUS_ADDRESS": f"unix:path={nobody}",
                                        "XDG_RUNTIME_DIR": str(cls.desktop.folder)}
        cls.tone = write_tone(cls.desktop.folder / "tone.wav", 1000, 2.0)

    def setUp(self):
        self.container = self.desktop.folder / f"container-{next(self.numbers)}"
        self.documents = self.container / "Documents"
        self.log = self.container.with_suffix(".log")

    def start(self, *arguments):
        app = self.desktop.spawn(PROGRAM, "--container", self.container, *arguments, log=self.log)
        self.addCleanup(self.desktop.stop, app)
        self.desktop.window(app)
        if self.has_services:
            self.wait(lambda: NAME in self.bus_names(), "the name on the bus")
        return app

    def bus_names(self):
        return self.desktop.run("gdbus", "call", "--session", "--dest", "org.freedesktop.DBus", "--object-path", "/",
                                "--method", "org.freedesktop.DBus.ListNames").stdout

    def tavi(self, *arguments, check=True):
        return self.desktop.run(PROGRAM, "--container", self.container, *arguments, check=check)

    def assert_fails(self, why, *arguments, status=1):
        done = self.tavi(*arguments, check=False)
        self.assertEqual((done.returncode, done.stdout), (status, ""))
        self.assertRegex(done.stderr, why)

    def activate(self, action):
        name = re.search(rf"{re.escape(NAME)}[\w.]*", self.bus_names()).group()
        self.desktop.run("gdbus", "call", "--session", "--dest", name, "--object-path", "/" + NAME.replace(".", "/"),
                         "--method", "org.freedesktop.Application.ActivateAction", action, "[]", "{}")

    def wait(self, condition, what):
        try:
            return wait_for(condition, what)
        except Exception as error:
            said = self.log.read_text() if self.log.exists() else ""
            self.fail(f"{error}\nthe program said:\n{said}")

    def wait_shown(self):
        self.wait(lambda: self.desktop.colours() > 8, "the first screen")
        return self.desktop.picture()

    def wait_change(self, before, what, points=0):
        """Waits until more than that many points of the picture differ; the picture then."""
        return self.wait(lambda: sum(map(int.__ne__, now := self.desktop.picture(), before)) > points and now, what)

    def wait_capturing(self, running):
        self.wait(lambda: self.desktop.captures() == [running], f"the state of recording to be {running}")

    def recordings(self):
        """The oldest comes first."""
        return sorted((path for path in self.documents.glob("*") if path.is_file()), key=lambda path: path.stat().st_mtime)

    def wait_saved(self, count=1):
        return self.wait(lambda: len(self.recordings()) == count and self.recordings(), f"{count} recordings")[-1]

    def play(self, sound=None):
        self.desktop.run("paplay", "--device=mic_sink", sound or self.tone)

    def play_while_recording(self):
        self.wait_capturing(True)
        self.play()

    def assert_holds_tone(self, path, tolerance=0.5):
        """The tone is there for as long as it was played, without a gap, and as loud."""
        self.assertAlmostEqual(tone_seconds(path, 1000), 2.0, delta=0.1)
        loud = [level for level in levels(path) if level > -40.0]
        self.assertAlmostEqual(loud[len(loud) // 2], -9.03, delta=tolerance)


class Recording(AppTest):
    def test_command_line_records_each_type_as_set(self):
        cases = [
            ("m4a", "Low", ("alac", 8000, 1), 0.2),
            ("wav", "Medium", ("pcm_u8", 16000, 2), 0.5),
            ("aac", "High", ("aac", 44100, 2), 1.0),
            ("mp4", "Medium", ("aac", 16000, 2), 1.0),
            ("caf", "High", ("adpcm_ima_qt", 44100, 2), 1.0),
        ]
        self.start()
        for count, (file_type, quality, expected, tolerance) in enumerate(cases, start=1):
            with self.subTest(file_type=file_type, quality=quality):
                # The former recording holds type and quality for a moment after its file is there.
                self.wait(lambda: self.tavi("set", "AudioFileType", file_type, check=False).returncode == 0, "a free type")
                self.tavi("set", "AudioQualityType", quality)
                self.tavi("record")
                self.play_while_recording()
                self.assert_fails("recording", "set", "AudioFileType", "mp4")
                self.tavi("stop")
                saved = self.wait_saved(count)
                self.assertRegex(saved.name, FILE_NAME + file_type)
                found = probe(saved)
                self.assertEqual((found["codec"], found["rate"], found["channels"]), expected)
                self.assert_holds_tone(saved, tolerance=tolerance)

    def test_keys_the_bus_and_urls_record_pause_resume_and_stop(self):
        first = write_tone(self.desktop.folder / "first.wav", 500, 1.0)
        left_out = write_tone(self.desktop.folder / "left_out.wav", 3000, 1.0)
        app = self.start()
        shown = self.wait_shown()
        for count, record, stop in ((1, lambda: self.desktop.keys("space"), lambda: self.desktop.keys("ctrl+s")),
                                    (2, lambda: self.activate("record"), lambda: self.activate("stop")),
                                    (3, lambda: self.tavi("tavirecordstart://"), lambda: self.tavi("TAVIRECORDSTOP:"))):
            for sound in (first, left_out, self.tone):
                record()
                self.wait_capturing(sound != left_out)
                self.play(sound)
            stop()
            saved = self.wait_saved(count)
            for hertz, seconds in ((500, 1.0), (1000, 2.0), (3000, 0.0)):
                self.assertAlmostEqual(tone_seconds(saved, hertz), seconds, delta=0.1)
        for key in ("ctrl+2", "ctrl+3", "ctrl+1"):
            self.desktop.keys(key)
            shown = self.wait_change(shown, f"the screen after {key}")
        # Another start only shows the window that is there.
        self.assertEqual(self.tavi().returncode, 0)
        windows = self.desktop.run("xdotool", "search", "--onlyvisible", "--class", ".", check=False).stdout.split()
        self.assertEqual(len(windows), 1)
        self.assertEqual(self.desktop.stop(app), 0)

    def test_termination_saves_the_recording(self):
        app = self.start("TaviRecordStart:")
        self.play_while_recording()
        self.assertEqual(self.desktop.stop(app, signal.SIGTERM), 0)
        self.assert_holds_tone(self.wait_saved())
        # The test's bus has no desktop on it; nothing else is worth a word.
        self.assertRegex(self.log.read_text(),
                         r"^Nothing here keeps the screen on: .*\nNothing here holds up the end of the session: .*\n$")

    def test_a_display_that_goes_leaves_a_saved_recording(self):
        app = self.start("record")
        self.play_while_recording()
        self.desktop.kill_display()
        try:
            app.wait(20)
        finally:
            self.desktop.start_display()
        self.assert_holds_tone(self.wait_saved())

    def test_a_killed_recording_is_in_the_library_at_the_next_start(self):
        app = self.start("record")
        self.play_while_recording()
        self.assertRegex(self.tavi("recover").stdout, r"^in use: .*\n$")
        self.desktop.stop(app, signal.SIGKILL)
        self.assertEqual(self.recordings(), [])
        self.start()
        saved = self.wait_saved()
        self.assertRegex(saved.name, "^Recovered_" + FILE_NAME[1:] + "m4a")
        self.assertGreater(tone_seconds(saved, 1000), 1.0)


class Playing(AppTest):
    PLAYER = "org.mpris.MediaPlayer2.Player"

    def player(self, name, interface="org.freedesktop.DBus.Properties", method="Get"):
        """A property of the desktop's player; none where there is no player."""
        said = self.desktop.run("gdbus", "call", "--session", "--dest", "org.mpris.MediaPlayer2.tavi", "--object-path",
                                "/org/mpris/MediaPlayer2", "--method", f"{interface}.{method}",
                                *([self.PLAYER, name] if method == "Get" else []), check=False).stdout
        value = re.search(r"<(?:\w+ )?'?([^'>]+)'?>", said)
        return value and value.group(1)

    def test_keys_and_the_desktops_controls_play_a_recording(self):
        self.documents.mkdir(parents=True)
        write_tone(self.documents / "memo.wav", 1000, 40.0)
        self.tavi("set", "ForwardSong", "15")
        self.start("library")
        self.wait_shown()
        self.assertIsNone(self.player("PlaybackStatus"))
        for does, name, wanted in ((lambda: self.desktop.keys("Down", "Return"), "PlaybackStatus", "Playing"),
                                   (lambda: self.desktop.keys("space"), "PlaybackStatus", "Paused"),
                                   (lambda: self.desktop.keys("greater"), "Rate", "2.0"),
                                   (lambda: self.player("", self.PLAYER, "PlayPause"), "PlaybackStatus", "Playing")):
            does()
            self.wait(lambda: self.player(name) == wanted, f"{name} to be {wanted}")
        self.player("", self.PLAYER, "PlayPause")
        self.wait(lambda: self.player("PlaybackStatus") == "Paused", "a pause")
        position = lambda: int(self.player("Position")) / 1e6
        start = position()
        self.desktop.keys("l")
        self.wait(lambda: position() > start, "the skip forward")
        self.assertAlmostEqual(position(), start + 15.0, delta=0.01)
        # Deleted behind the program's back, it harms nothing.
        (self.documents / "memo.wav").unlink()
        self.desktop.keys("space", "Escape")
        self.wait(lambda: self.player("PlaybackStatus") is None, "the player to go")


class Trimming(AppTest):
    def test_keys_cut_a_recording_into_a_new_one(self):
        self.documents.mkdir(parents=True)
        memo = write_tone(self.documents / "memo.wav", 1000, 20.0)
        before = memo.read_bytes()
        self.start("library")
        shown = self.wait_shown()
        self.desktop.keys("Down", "t")
        self.wait_change(shown, "the trimmer", 20_000)
        # Past the buttons below and above to the first thumb, and back to the last of these buttons.
        self.desktop.keys(*["Tab"] * 6, *["shift+Right"] * 3, "shift+Tab", "Return")
        # It is made twice; meanwhile the first one steps aside.
        made = self.wait(lambda: next(self.documents.glob("Trim_*_[0-9][0-9].wav"), None), "the cut")
        self.wait(lambda: len(self.recordings()) == 2, "nothing but the two recordings")
        self.assertAlmostEqual(probe(made)["duration"], 17.5, delta=0.001)
        self.assertEqual(memo.read_bytes(), before)


class Sharing(AppTest):
    def test_keys_copy_a_recording_and_export_it_where_no_desktop_asks(self):
        name = os.fsdecode(b"memo %\xff\n.wav")
        self.documents.mkdir(parents=True)
        memo = write_tone(self.documents / name, 1000, 1.0)
        home = self.container.with_suffix(".home")
        home.mkdir()
        self.desktop.environment["HOME"] = str(home)
        self.start("library")
        shown = self.wait_shown()
        self.desktop.keys("Down", "ctrl+c")
        address = f"file://{self.documents}/memo%20%25%FF%0A.wav"
        for kind, wanted in (("text/uri-list", address + "\r\n"), ("x-special/gnome-copied-files", "copy\n" + address)):
            read = lambda: self.desktop.run("xclip", "-o", "-selection", "clipboard", "-t", kind, check=False).stdout
            self.wait(lambda: read() == wanted.replace("\r", ""), f"{kind} on the clipboard")
        self.desktop.keys("ctrl+e")
        self.wait_change(shown, "the question where to", 20_000)
        self.desktop.keys("Return")
        self.wait(lambda: (home / name).exists(), "the copy")
        self.assertEqual((home / name).read_bytes(), memo.read_bytes())


class Dragging(AppTest):
    """Beside the program is a window of another toolkit."""

    screen = (PHONE[0] + 300, PHONE[1])
    ROW = (150, 155)
    OTHER = (PHONE[0] + 150, 300)

    def drag(self, begin, end, meanwhile):
        """Moves the mouse from one place to the other with its button held, and lets go after meanwhile()."""
        self.desktop.run("xdotool", "mousemove", *begin, "mousedown", 1)
        for step in range(1, 11):
            at = (a + (b - a) * step // 10 for a, b in zip(begin, end))
            self.desktop.run("xdotool", "mousemove", "--sync", *at, "sleep", 0.02)
        meanwhile()
        self.desktop.run("xdotool", "mouseup", 1)

    def test_a_row_goes_to_another_program_as_a_copy_and_a_file_of_that_comes_in(self):
        self.documents.mkdir(parents=True)
        memo = write_tone(self.documents / "memo %\n.wav", 1000, 1.0)
        app = self.start("library")
        self.desktop.run("xdotool", "windowmove", "--sync", self.desktop.window(app), 0, 0)
        shown = self.wait_shown()
        heard = self.desktop.folder / "heard"
        self.desktop.spawn("/usr/bin/python3", "-B", pathlib.Path(__file__).with_name("drag_window.py"), PHONE[0] + 50, self.tone,
                           log=heard)
        hears = lambda what: self.wait(lambda: what in heard.read_text(), what)
        shown = self.wait_change(shown, "the other window", 20_000)

        def reload():
            hears("offered ['copy']\n")
            # The list makes its rows anew under the drag.
            self.tavi("import", *(write_tone(self.desktop.folder / name, 500, 0.5) for name in ("another.wav", "last.wav")))
            self.wait_change(shown, "the new rows", 2_000)

        self.drag(self.ROW, self.OTHER, reload)
        hears(f"got ['file://{self.documents}/memo%20%25%0A.wav']\n")
        self.drag(self.OTHER, self.ROW, lambda: None)
        hears("gave ['copy']\n")
        self.wait_saved(4)
        self.assertEqual((self.documents / self.tone.name).read_bytes(), self.tone.read_bytes())
        self.assertNotIn("delete", heard.read_text())
        self.assertTrue(memo.exists() and self.tone.exists() and app.poll() is None)


class CommandLine(AppTest):
    def test_completions_name_every_command_and_option(self):
        for program in ("tavi", "tavi-companion"):
            told = self.desktop.run(pathlib.Path(PROGRAM).with_name(program), "--help").stdout
            words = set(re.findall(r"^  (?:-h,)?([a-z-]+)", told, re.M)) - {program}
            self.assertIn("record", words)
            for file in (f"_{program}", f"{program}.bash"):
                text = (ROOT / "packaging/completions" / file).read_text()
                self.assertLessEqual(words, set(re.findall(r"[a-z-]+", text)), file)

    def test_commands_that_print_work_on_real_files(self):
        shown = json.loads(self.tavi("waveform", self.tone, "--points", "10", "--json").stdout)
        for channel in shown["data"]:
            # Two seconds of the tone in three of the file.
            self.assertAlmostEqual(channel[3], 0.5 / 2 ** 0.5, delta=0.004)
            self.assertLess(channel[9], 0.001)
        picture = self.desktop.folder / "wave.png"
        self.tavi("waveform", self.tone, "--png", picture)
        self.assertTrue(picture.read_bytes().startswith(b"\x89PNG"))
        made = pathlib.Path(self.tavi("trim", self.tone, "--from", "0.5", "--to", "2.25").stdout.strip())
        self.assertEqual(probe(made)["duration"], 1.75)
        self.assert_fails("exists", "waveform", made, "--png", made)
        self.assert_fails("already", "trim", made, "--from", "0", "--to", "1", "--out", made)
        self.assertEqual(probe(made)["duration"], 1.75)
        self.assertEqual(self.tavi("get", "Sort").stdout, "1\n")
        listed, = json.loads(self.tavi("list", "--json").stdout)
        self.assertEqual((listed["filename"], listed["duration"]), (made.name, "00:01"))

    @unittest.skipUnless(CAN_MOUNT, "no file system can be made here")
    def test_capitals_take_the_place_of_small_letters_where_both_are_one_name(self):
        real = self.container.with_suffix(".real")
        for folder in (real, self.documents):
            folder.mkdir(parents=True)
        for name in ("memo.wav", "talk.wav"):
            (real / name).write_text(name)
        mount = self.desktop.spawn("/usr/bin/python3", "-B", pathlib.Path(__file__).with_name("one_case.py"), real, self.documents,
                                   log=self.log)
        self.addCleanup(self.desktop.stop, mount)
        self.wait(self.documents.is_mount, "the file system")
        self.assert_fails("already", "rename", "memo.wav", "Talk")
        self.tavi("rename", "memo.wav", "Memo")
        self.assertEqual({path.name: path.read_text() for path in real.iterdir()}, {"Memo.wav": "memo.wav", "talk.wav": "talk.wav"})

    def test_mistakes_are_told_on_standard_error(self):
        for status, *arguments in ((2, "fly"), (1, "get", "NoSuchKey"), (1, "waveform", "/etc/passwd"), (1, "waveform", "/etc")):
            self.assert_fails(r"^tavi: .+\n$", *arguments, status=status)
        (self.container / "Caches/instance.lock").mkdir()
        self.assert_fails(r"^tavi: Cannot make the lock file “.*/instance\.lock”: .*\n$", "record")


class Importing(AppTest):
    """The desktop knows the program by its entry; its home is a private one."""

    ENTRY = pathlib.Path(__file__).resolve().parents[2] / "packaging" / f"{NAME}.desktop"
    # A file of each type, by its extension, as FFmpeg writes it: its codec.
    TYPES = {"audio/aac": ("aac", "aac"), "audio/ac3": ("ac3", "ac3"), "audio/basic": ("au", "pcm_s16be"),
             "audio/flac": ("flac", "flac"), "audio/mp2": ("mp2", "mp2"), "audio/mp4": ("m4a", "aac"),
             "audio/mpeg": ("mp3", "libmp3lame"), "audio/x-aifc": ("aifc", "pcm_s16be -f aiff"),
             "audio/x-aiff": ("aiff", "pcm_s16be"), "audio/x-caf": ("caf", "adpcm_ima_qt"), "audio/x-m4b": ("m4b", "aac -f ipod"),
             "audio/x-matroska": ("mka", "flac"), "audio/x-ms-wma": ("wma", "wmav2"), "audio/x-opus+ogg": ("opus", "libopus"),
             "audio/x-speex+ogg": ("spx", "libspeex"), "audio/x-tta": ("tta", "tta"),
             "audio/x-vorbis+ogg": ("ogg", "libvorbis"), "audio/x-wav": ("wav", "pcm_s16le"),
             "audio/x-wavpack": ("wv", "wavpack")}

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        home = cls.desktop.folder / "home"
        cls.desktop.environment |= {"HOME": str(home), "XDG_DATA_HOME": f"{home}/data", "XDG_CONFIG_HOME": f"{home}/config",
                                    "XDG_CACHE_HOME": f"{home}/cache"}
        applications = home / "data/applications"
        applications.mkdir(parents=True)
        (applications / cls.ENTRY.name).write_text(cls.ENTRY.read_text().replace("Exec=tavi", f"Exec={PROGRAM}"))
        types = home / "data/mime/packages"
        types.mkdir(parents=True)
        shutil.copy(cls.ENTRY.with_suffix(".xml"), types)
        cls.desktop.run("update-mime-database", types.parent)

    def test_each_type_of_the_desktop_entry_is_one_that_plays(self):
        listed = re.search(r"^MimeType=(.*)$", self.ENTRY.read_text(), re.MULTILINE).group(1).split(";")
        self.assertEqual({name for name in listed if name.startswith("audio/")}, set(self.TYPES))
        for name, (extension, codec) in self.TYPES.items():
            with self.subTest(name=name):
                sound = self.desktop.folder / f"sample.{extension}"
                self.desktop.run("ffmpeg", "-v", "error", "-nostdin", "-f", "lavfi", "-i", "sine=f=1000:d=2", "-strict", "-2",
                                 "-c:a", *codec.split(), sound)
                self.assertIn(f": {name}\n", self.desktop.run("gio", "info", "-a", "standard::content-type", sound).stdout)
                self.tavi("import", sound)
                heard = self.tavi("waveform", self.documents / sound.name, "--points", "4").stdout.split()
                self.assertAlmostEqual(float(heard[0]), 0.088, delta=0.01)
        for entry in json.loads(self.tavi("list", "--json").stdout):
            self.assertRegex(entry["duration"], "^00:0[12]$", entry["filename"])

    def test_files_come_in_from_the_desktop_and_the_terminal(self):
        files = [write_tone(self.desktop.folder / name, 1000, 0.1) for name in ("first.wav", "second.wav", "third.wav", "list")]
        # Where the program has no container, its name on the bus is that of the desktop entry.
        self.documents = pathlib.Path(self.desktop.environment["HOME"]) / "Music/Voice Recordings"
        tavi = lambda *arguments: self.desktop.run(PROGRAM, *arguments, check=False)
        wait_in = lambda file: self.wait(lambda: (self.documents / file.name).exists(), f"{file.name} among the recordings")
        left = self.documents / "Inbox/tavi-import-killed/half.wav"
        left.parent.mkdir(parents=True)
        left.write_text("half")
        app = self.desktop.spawn(PROGRAM, files[0], log=self.log)
        self.addCleanup(self.desktop.stop, app)
        self.desktop.window(app)
        wait_in(files[0])
        self.wait(lambda: not left.parent.exists(), "what a killed import left to go")
        self.wait(lambda: NAME in self.bus_names(), "the name on the bus")
        self.desktop.run("gio", "mime", "audio/x-wav", f"{NAME}.desktop")
        self.desktop.run("gio", "open", files[1])
        wait_in(files[1])
        self.assertEqual(tavi(files[2]).returncode, 0)
        wait_in(files[2])
        shown = self.wait_shown()
        self.assertEqual(tavi("import", files[3]).stdout, f"{self.documents}/list\n")
        shown = self.wait_change(shown, "the fourth recording")
        again = tavi(*files[:3])
        self.assertEqual((again.returncode, again.stderr.count(": there is a recording of that name already\n")), (1, 3))
        for words in (("import", files[0], "/etc"), ("rename", "first.wav", "second"), ("delete", "nobody"),
                      ("export", "first.wav", files[0])):
            self.assertEqual((tavi(*words).returncode, tavi(*words).stdout), (1, ""), words)
        self.assertEqual(tavi("rename", "--", "list", "-x").returncode, 0)
        self.assertEqual(tavi("export", "-x", self.desktop.folder).returncode, 2)
        self.assertEqual(tavi("export", "--", "-x", self.desktop.folder).returncode, 0)
        self.assertEqual((self.desktop.folder / "-x").read_bytes(), files[3].read_bytes())
        self.assertEqual(tavi("delete", "third.wav").returncode, 0)
        self.assertEqual(tavi("delete", "--permanently", "--", "-x").returncode, 0)
        self.wait_change(shown, "the two that are left")
        self.assertEqual([path.name for path in self.recordings()], ["first.wav", "second.wav"])
        # As another program finds it in the trash, with the place where it was.
        self.assertRegex(self.desktop.run("trash-list").stdout, rf"^[\d-]+ [\d:]+ {self.documents}/third.wav\n$")

    def test_an_import_that_is_killed_leaves_nothing_among_the_recordings(self):
        large = self.desktop.folder / "large.wav"
        with open(large, "wb") as file:
            file.truncate(1 << 30)
        copying = self.desktop.spawn(PROGRAM, "--container", self.container, "import", large, log=self.log)
        inbox = self.documents / "Inbox"
        self.wait(lambda: list(inbox.glob("tavi-import-*/.*")), "the copy to begin")
        self.assertEqual(self.desktop.stop(copying, signal.SIGKILL), -signal.SIGKILL)
        self.assertEqual(self.recordings(), [])
        self.tavi("import", self.tone)
        self.assertEqual([path.name for path in self.recordings()], [self.tone.name])
        self.assertEqual(list(inbox.iterdir()), [])


class WithoutServices(AppTest):
    """There is no sound server and no bus."""

    has_services = False

    def test_what_is_missing_is_said_and_the_rest_works(self):
        app = self.start()
        before = self.wait_shown()
        self.desktop.keys("space")
        self.wait_change(before, "the alert", 20_000)
        self.assertEqual(self.recordings(), [])
        self.assert_fails(rf"^tavi: The recorder is already running as process {app.pid} .* cannot be told\.\n$", "stop")
        self.assertEqual(self.desktop.stop(app), 0)
        self.assertRegex(self.log.read_text(), r"^There is no session bus.*\n$")

    def test_without_a_display_the_program_says_so_and_ends(self):
        del self.desktop.environment["DISPLAY"]
        self.assert_fails(r"^tavi: no window can be shown: .*\n$")


if __name__ == "__main__":
    PROGRAM = str(pathlib.Path(sys.argv.pop(1)).resolve())
    unittest.main()
