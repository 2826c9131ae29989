"""Drives the recorder from its companion, as commands and as an icon: test_companion.py PROGRAM [OPTION OF unittest...]"""

import pathlib
import re
import sys
import unittest

import test_app

ICON = "org.kde.StatusNotifierItem"


class Companion(test_app.AppTest):
    def companion(self, *arguments, status=0):
        done = self.desktop.run(self.program, "--container", self.container, *arguments, check=False)
        self.assertEqual(done.returncode, status, done.stderr)
        return done

    def setUp(self):
        super().setUp()
        self.program = pathlib.Path(test_app.PROGRAM).with_name("tavi-companion")
        self.said = self.container.with_suffix(".said")

    def lines(self):
        return self.said.read_text().split("\n")[:-1] if self.said.exists() else []

    def listen(self):
        listener = self.desktop.spawn(self.program, "--container", self.container, "listen", log=self.said)
        self.addCleanup(self.desktop.stop, listener)
        self.wait(lambda: self.lines(), "the first line")

    def end_recorder(self, with_signal):
        """The one that the companion has started."""
        process = int(re.search(r"\d+", (self.container / "Caches/instance.lock").read_text()).group())
        self.desktop.run("kill", f"-{with_signal}", process)
        self.wait(lambda: not pathlib.Path(f"/proc/{process}/stat").exists()
                  or " Z " in pathlib.Path(f"/proc/{process}/stat").read_text(), "the end of the recorder")

    def test_commands_start_pause_stop_and_tell(self):
        self.listen()
        self.assertIn("not running", self.companion("stop", status=1).stderr)
        without_bus = self.desktop.run("env", "DBUS_SESSION_BUS_ADDRESS=unix:path=/nobody", self.program, "--container", self.container,
                                       "stop", check=False)
        self.assertIn("not running", without_bus.stderr)
        self.companion("record")
        self.play_while_recording()
        self.companion("record")
        self.wait_capturing(False)
        self.companion("record")
        self.wait_capturing(True)
        self.companion("stop")
        self.assert_holds_tone(self.wait_saved())
        self.companion("show")
        self.assertEqual(self.tavi("get", "AppStart").stdout, "true\n")
        self.companion("record")
        self.wait_capturing(True)
        self.end_recorder("KILL")
        self.wait(lambda: self.lines()[-1:] == ["absent"], "the word that it is gone")
        self.assertEqual(self.tavi("get", "AppStart").stdout, "false\n")
        words = [line.split()[0] for line in self.lines()]
        # One that is started to record may do so before it can be asked.
        self.assertEqual(words[:1] + words[words.index("recording"):],
                         ["absent", "recording", "paused", "recording", "idle", "recording", "absent"])
        times = [line.split()[1] for line in self.lines() if " " in line]
        self.assertEqual((times[0], times[1] >= "00:00:01", times[3]), ("00:00:00", True, "00:00:00"))

    def test_every_channel_starts_and_stops(self):
        for way in ("file", "coordinated", "context", "transfer", "message"):
            with self.subTest(way=way):
                app = self.start(f"--companion-channel={way}")
                for _ in range(2 if way == "context" else 1):
                    self.companion(f"--channel={way}", "record")
                    self.wait_capturing(True)
                    self.companion(f"--channel={way}", "stop")
                    self.wait(lambda: not self.desktop.captures(), "the recording to end")
                self.companion(f"--channel={way}", "say", "a text")
                self.assertEqual(self.desktop.stop(app), 0)
        self.assertEqual((self.container / "Groups").stat().st_mode & 0o777, 0o700)

    def icon(self, method, *arguments, path="/MenuBar"):
        name = re.search(rf"{re.escape(ICON)}-\d+-1", self.bus_names()).group()
        return self.desktop.run("gdbus", "call", "--session", "--dest", name, "--object-path", path, "--method", method,
                                "--", *arguments).stdout

    def menu(self):
        return self.icon("com.canonical.dbusmenu.GetLayout", "0", "-1", "[]")

    def choose(self, label):
        number = re.search(rf"\((\d+), {{[^}}]*'label': <'{label}'>", self.menu()).group(1)
        self.icon("com.canonical.dbusmenu.Event", number, "clicked", "<0>", "0")

    def test_the_icon_shows_the_time_and_its_menu_records(self):
        self.start()
        watcher = self.desktop.spawn("/usr/bin/python3", "-m", "dbusmock", "-l", self.said, "org.kde.StatusNotifierWatcher",
                                     "/StatusNotifierWatcher", "org.kde.StatusNotifierWatcher")
        self.addCleanup(self.desktop.stop, watcher)
        self.wait(lambda: "StatusNotifierWatcher" in self.bus_names(), "the status area")
        self.desktop.run("gdbus", "call", "--session", "--dest", "org.kde.StatusNotifierWatcher", "--object-path",
                         "/StatusNotifierWatcher", "--method", "org.freedesktop.DBus.Mock.AddMethod", "''",
                         "RegisterStatusNotifierItem", "s", "", "")
        icon = self.desktop.spawn(self.program, "--container", self.container, log=self.log)
        self.addCleanup(self.desktop.stop, icon)
        self.wait(lambda: ICON in "".join(self.lines()), "the icon")
        self.wait(lambda: "Ready to record" in self.menu(), "the state")
        self.assertIn("already", self.companion(status=1).stderr)
        self.choose("Record")
        self.wait_capturing(True)
        self.wait(lambda: re.search("Recording, 00:00:0[2-9]", self.menu()), "the time to go on")
        self.choose("Pause")
        self.wait_capturing(False)
        self.assertIn("media-playback-pause", self.icon("org.freedesktop.DBus.Properties.GetAll", ICON,
                                                        path="/StatusNotifierItem"))
        self.choose("Stop and Save")
        self.wait_saved()
        self.icon(f"{ICON}.Activate", "0", "0", path="/StatusNotifierItem")
        self.choose("Remove Icon")
        self.assertEqual(icon.wait(20), 0)


if __name__ == "__main__":
    test_app.PROGRAM = str(pathlib.Path(sys.argv.pop(1)).resolve())
    unittest.main()
