"""Locks the program and looks at it from outside: test_lock.py PROGRAM [OPTION OF unittest...]"""

import pathlib
import signal
import sys
import unittest

import test_accessibility
import test_app
from sound import write_tone

LOGIN = ("--dest", "org.freedesktop.login1", "--object-path")
SESSION = "/org/freedesktop/login1/session/auto"


class Lock(test_accessibility.ReaderTest):
    """With a login manager on the private bus."""

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
        self.desktop.keys(*["Tab"] * 6, "Return")
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


if __name__ == "__main__":
    test_app.PROGRAM = str(pathlib.Path(sys.argv.pop(1)).resolve())
    unittest.main()
