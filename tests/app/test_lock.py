"""Locks the program and looks at it from outside: test_lock.py PROGRAM [OPTION OF unittest...]"""

import contextlib
import os
import pathlib
import pty
import re
import signal
import subprocess
import sys
import unittest

import test_accessibility
import test_app
from sound import write_tone

LOGIN = ("--dest", "org.freedesktop.login1", "--object-path")
SESSION = "/org/freedesktop/login1/session/auto"


class Lock(test_accessibility.ReaderTest):
    """With a login manager on the private bus."""

    PLAYER = test_app.Playing.PLAYER
    player = test_app.Playing.player

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        environment = cls.desktop.environment
        environment |= {"DBUS_SYSTEM_BUS_ADDRESS": environment["DBUS_SESSION_BUS_ADDRESS"], "TAVI_TRACE": "1"}
        cls.desktop.spawn("/usr/bin/python3", "-m", "dbusmock", "--system", "--template", "logind",
                          log=cls.desktop.folder / "login.log")
        test_app.wait_for(lambda: cls.login("/org/freedesktop/login1", "org.freedesktop.DBus.Mock.AddSession", "auto", "seat0",
                                            "1000", "user", "true"), "the login manager")

    @classmethod
    def login(cls, path, method, *arguments):
        done = cls.desktop.run("gdbus", "call", "--session", *LOGIN, path, "--method", method, *arguments, check=False)
        return done.returncode == 0

    def session(self, method):
        self.assertTrue(self.login(SESSION, f"org.freedesktop.login1.Session.{method}"))

    def wait_for_words(self, words):
        self.wait(lambda: words in self.tree(), words)

    def type(self, digits):
        self.desktop.keys(*digits)

    def set_up(self, digits):
        """From the settings, as it is done by keys."""
        self.desktop.keys("ctrl+3")
        self.wait_for_words("heading 'Data Security'")
        self.wait(lambda: "'Passcode Lock' focused" in self.tree() or self.desktop.keys("Tab"), "the keyboard at the switch")
        self.desktop.keys("Return")
        self.wait_for_words("Enter a new passcode")
        self.type(digits)
        self.wait_for_words("Enter the new passcode again")
        self.type(digits)
        self.wait_for_words("heading 'Data Security'")

    def unlock(self, digits):
        self.wait_for_words("Enter your passcode")
        self.type(digits)
        self.wait_for_words("page tab 'Settings'")

    def test_nothing_shows_until_the_digits_are_entered(self):
        self.documents.mkdir(parents=True)
        write_tone(self.documents / "Secret.wav", 1000, 1.0)
        app = self.start()
        self.set_up("2580")
        window = self.desktop.window(app)

        self.desktop.run("xdotool", "windowunmap", "--sync", window)
        self.desktop.run("xdotool", "windowmap", "--sync", window)
        self.desktop.run("xdotool", "windowfocus", "--sync", window)
        self.expect_tree("locked")
        self.type("2581")
        self.expect_tree("locked")
        self.desktop.keys("Escape", "ctrl+2", "Return", "F1")
        self.expect_tree("locked")
        self.unlock("2580")

        self.session("Lock")
        self.expect_tree("covered")
        self.session("Unlock")
        self.unlock("2580")

        for ends_by in (signal.SIGTERM, signal.SIGKILL):
            self.desktop.stop(app, ends_by)
            app = self.start()
            self.expect_tree("locked")
            name = self.desktop.run("xdotool", "getwindowname", self.desktop.window(app)).stdout
            self.assertEqual(name, "Voice Recorder — Tavi\n")

        self.desktop.keys("ctrl+q")
        self.wait(lambda: app.poll() is not None, "the end")
        for file in [self.log, *self.container.rglob("*")]:
            if file.is_file():
                self.assertNotIn(b"2580", file.read_bytes(), file)
        settings = self.container / "Preferences/settings.ini"
        settings.write_text(settings.read_text().replace("PasscodeProtectionEnabled=YES", "PasscodeProtectionEnabled=NO"))
        self.start()
        self.wait_for_words("push button 'Record'")

    def test_no_object_says_anything_while_locked(self):
        self.documents.mkdir(parents=True)
        write_tone(self.documents / "Secret.wav", 1000, 1.0)
        self.start()
        self.set_up("2580")
        for says, *keys in (("'Secret.wav'", "ctrl+2"), ("'Pause'", "Down", "Return"), ("'Trim'", "t")):
            self.desktop.keys(*keys)
            self.wait_for_words(says)
        reader = self.desktop.spawn("/usr/bin/python3", "-B", test_accessibility.FOLDER / "accessible_tree.py", "tavi", "--keep",
                                    stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
        self.addCleanup(reader.stdin.close)
        self.addCleanup(reader.stdout.close)
        reader.stdout.readline()

        def said():
            print(file=reader.stdin, flush=True)
            return {line.strip() for line in iter(reader.stdout.readline, "\n")}

        self.assertTrue(said() > {"Secret.wav", "Trim", "Press"})
        # The program, its window, the cover and its place to drop files. What has a value offers to change it, and does not do so.
        expected = {"tavi", test_app.PROGRAM, "Voice Recorder", "Locked", "Drop sound files here to import them",
                    "Increase", "Decrease", "SetFocus"}
        for method, tree, more in (("Lock", "covered", ()),
                                   ("Unlock", "locked", ("Enter your passcode", "0 of 4 digits entered", "Press", "focused",
                                                         *"0123456789"))):
            self.session(method)
            self.expect_tree(tree)
            self.assertEqual(said(), expected.union(more))

    def test_a_keyring_that_asks_for_its_password_locks_nobody_out(self):
        home = self.desktop.folder / "keyring"
        home.mkdir(mode=0o700)
        keyring = ("gnome-keyring-daemon", "--foreground", "--components=secrets", f"--control-directory={home}", "--unlock")
        daemon = self.desktop.spawn(*keyring, stdin=subprocess.PIPE, env=self.desktop.environment | {"HOME": str(home)})
        self.addCleanup(self.desktop.stop, daemon)
        daemon.stdin.write(b"word")
        daemon.stdin.close()
        self.wait(lambda: "org.freedesktop.secrets" in self.bus_names(), "the keyring")
        app = self.start()
        self.set_up("2580")
        self.desktop.stop(app)
        self.desktop.run("gdbus", "call", "--session", "--dest", "org.freedesktop.secrets", "--object-path", "/org/freedesktop/secrets",
                         "--method", "org.freedesktop.Secret.Service.Lock", "['/org/freedesktop/secrets/collection/login']")

        app = self.start()
        locked = "which holds the passcode, is locked"
        self.wait_for_words(locked)
        self.type("2580")
        self.wait_for_words("0 of 4")
        self.wait_for_words(locked)

        prompter = self.desktop.spawn("/usr/libexec/gcr-prompter", log=self.desktop.folder / "prompter.log")
        self.addCleanup(self.desktop.stop, prompter)
        self.wait(lambda: "org.gnome.keyring.SystemPrompter" in self.bus_names(), "who asks")
        for answer, after in ((("Escape",), locked), ((*"word", "Return"), "0 of 4")):
            self.desktop.window(app)
            self.type("2580")
            self.wait_for_words("may be asking for the password of its keyring")
            self.desktop.window(prompter)
            self.desktop.keys(*answer)
            self.wait_for_words(after)
        self.wait(lambda: "keyring" not in self.tree(), "the trouble to go")
        self.desktop.window(app)
        self.unlock("2580")

    def on_terminal(self, typed, *arguments):
        """The exit code of a command on a terminal of its own, and what that shows."""
        process, terminal = pty.fork()
        if process == 0:
            os.execve(test_app.PROGRAM, [test_app.PROGRAM, "--container", str(self.container), *arguments],
                      self.desktop.environment)
        shown = b""
        with open(terminal, "r+b", buffering=0) as file:
            while not shown.endswith(b": "):
                shown += file.read(1)
            file.write(typed + b"\n")
            # A terminal that nobody has open any more reads as an error.
            with contextlib.suppress(OSError):
                while more := file.read(1000):
                    shown += more
        return os.waitstatus_to_exitcode(os.waitpid(process, 0)[1]), shown

    def test_nothing_leaves_the_locked_program(self):
        self.documents.mkdir(parents=True)
        secret = write_tone(self.documents / "Secret.wav", 1000, 60.0)
        app = self.start()
        self.set_up("2580")
        self.desktop.keys("ctrl+2")
        self.wait_for_words("Secret")
        self.desktop.keys("Down", "Return")
        metadata = lambda: self.desktop.run("gdbus", "call", "--session", "--dest", "org.mpris.MediaPlayer2.tavi", "--object-path",
                                            "/org/mpris/MediaPlayer2", "--method", "org.freedesktop.DBus.Properties.GetAll",
                                            self.PLAYER, check=False).stdout
        self.wait(lambda: "Secret" in metadata() and "'Playing'" in metadata(), "the recording to play")

        self.session("Lock")
        self.wait(lambda: "Secret" not in metadata(), "the title to go")
        self.assertRegex(metadata(), r"'PlaybackStatus': <'Playing'>")
        self.assertRegex(metadata(), r"'mpris:length': <int64 0>")
        self.assertRegex(metadata(), r"'Position': <int64 0>")
        for press in ("Next", "Pause", "Play", "PlayPause"):
            self.player("", self.PLAYER, press)
        self.assertRegex(metadata(), r"'PlaybackStatus': <'Paused'>")
        for arguments in (("list",), ("get", "Sort"), ("set", "Sort", "2"), ("waveform", secret), ("library",), ("recover",)):
            self.assert_fails("locked", *arguments, status=3)
        link = self.container.with_suffix(".link")
        link.symlink_to(self.container)
        for place, expected in ((link, 3), (self.container.with_suffix(".other"), 0)):
            done = self.desktop.run(test_app.PROGRAM, "--container", place, "list", check=False)
            self.assertEqual((done.returncode, done.stdout), (expected, ""))
        self.tavi("waveform", self.tone)
        shown = self.desktop.picture()
        said = self.listen()
        companion = pathlib.Path(test_app.PROGRAM).with_name("tavi-companion"), "--container", self.container
        self.desktop.run(*companion, "record")
        self.play_while_recording()
        self.assertEqual(self.desktop.run(*companion, "show", check=False).returncode, 3)
        name = re.search(rf"{re.escape(test_app.NAME)}[\w.]*", self.bus_names()).group()
        told = self.desktop.run("gdbus", "call", "--session", "--dest", name, "--object-path", "/com/quillfen/voicerecorder",
                                "--method", "org.freedesktop.DBus.Properties.GetAll", test_app.NAME + ".Recording").stdout
        self.assertEqual(set(re.findall("<.+?>", told)), {"<'locked'>", "<int64 0>"})
        self.desktop.run(*companion, "stop")
        saved = self.wait_saved(2)
        self.assertEqual(self.desktop.picture(), shown)
        self.session("Unlock")
        self.unlock("2580")
        self.wait(lambda: said.read_text() == f"listening\nSaved as {saved.name}\n", "the notice that waited, and nothing else")
        self.session("Lock")
        self.tavi(self.tone)
        self.session("Unlock")
        self.unlock("2580")
        self.wait(lambda: (self.documents / "tone.wav").exists(), "the file that waited")
        self.wait(lambda: "Secret" in metadata(), "the title to come back")
        self.assertIn("Secret.wav", self.tavi("list").stdout)

        self.desktop.stop(app)
        alone = subprocess.run([test_app.PROGRAM, "--container", self.container, "list"], env=self.desktop.environment,
                               capture_output=True, start_new_session=True)
        self.assertEqual((alone.returncode, alone.stdout), (3, b""))
        self.tavi("waveform", self.tone)
        for digits, status in ((b"2581", 3), (b"2580", 0)):
            code, shown = self.on_terminal(digits, "list")
            self.assertEqual((code, b"Secret" in shown), (status, status == 0), shown)
            self.assertNotIn(digits, shown)


if __name__ == "__main__":
    test_app.PROGRAM = str(pathlib.Path(sys.argv.pop(1)).resolve())
    unittest.main()
