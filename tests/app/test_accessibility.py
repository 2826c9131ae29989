"""Uses the program as a screen reader does: test_accessibility.py PROGRAM [OPTION OF unittest...]

The trees of the screens are compared with trees/*.txt. With TAVI_RENEW_TREES=1 in the environment these are written anew: read
the difference before you commit it.
"""

import os
import pathlib
import re
import sys
import unittest

import test_app
from sound import write_tone

FOLDER = pathlib.Path(__file__).resolve().parent
BUS = "/usr/libexec/at-spi-bus-launcher"
DATES = re.compile(r"\d\d [A-Z][a-z]{2},? ?\d{4}( \| \d\d:\d\d [AP]M)?")


class ReaderTest(test_app.AppTest):
    """A screen reader, on an accessibility bus of its own."""

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.desktop.environment["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1"
        cls.desktop.spawn(BUS, "--launch-immediately", log=cls.desktop.folder / "accessibility.log")

    def tree(self):
        done = self.desktop.run("/usr/bin/python3", "-B", FOLDER / "accessible_tree.py", "tavi")
        return DATES.sub("DATE", done.stdout)

    def listen(self):
        """A file that what is announced from now on is written to, a line each."""
        said = self.container.with_suffix(".said")
        self.desktop.spawn("/usr/bin/python3", "-B", FOLDER / "accessible_tree.py", "tavi", "--listen", log=said)
        self.wait(lambda: "listening" in said.read_text(), "the listener")
        return said

    def expect_tree(self, name):
        path = FOLDER / f"trees/{name}.txt"
        if os.environ.get("TAVI_RENEW_TREES"):
            # What was asked for a moment ago is there when two looks see the same.
            seen = [None, self.tree()]
            self.wait(lambda: seen.append(self.tree()) or seen[-1] == seen[-2], "the tree to stay as it is")
            path.write_text(seen[-1])
        expected = path.read_text()
        try:
            self.wait(lambda: self.tree() == expected, "the tree")
        except AssertionError:
            self.assertEqual(self.tree(), expected)


class Reading(ReaderTest):
    def test_what_every_screen_says(self):
        self.documents.mkdir(parents=True)
        write_tone(self.documents / "Harbour.wav", 1000, 2.0)
        write_tone(self.documents / "Meeting.wav", 500, 1.0)
        self.start()
        self.expect_tree("record")
        for name, *keys in (("library", "ctrl+2"), ("player", "Down", "Return"), ("closed", "Escape"),
                            ("actions", "shift+F10"), ("rename", "Down", "Return"), ("trimmer", "Escape", "t"),
                            ("settings", "Escape", "ctrl+3"), ("choices", "Return"), ("shortcuts", "Escape", "F1")):
            with self.subTest(name):
                self.desktop.keys(*keys)
                self.expect_tree(name)

    def test_keys_rename_and_delete_a_recording_and_bring_it_back(self):
        trash = self.container.with_suffix(".data")
        trash.mkdir()
        self.desktop.environment["XDG_DATA_HOME"] = str(trash)
        self.documents.mkdir(parents=True)
        sound = write_tone(self.documents / "memo.wav", 1000, 1.0).read_bytes()
        talk = self.documents / "talk.wav"
        self.start("library")
        for says, *keys in (("'memo.wav'",), ("'Rename'", "Down", "shift+F10"), ("'Rename Recording'", "Down", "Return"),
                            ("'talk.wav'", *"talk", "Return"), ("'Delete Recording'", "Delete"), ("'Undo'", "Right", "Return")):
            self.desktop.keys(*keys) if keys else None
            self.wait(lambda: says in self.tree(), says)
        self.assertEqual(self.recordings(), [])
        self.wait(lambda: "'Undo' focused" in self.tree() or self.desktop.keys("Tab"), "the keyboard at the button")
        self.desktop.keys("Return")
        self.wait(talk.exists, "the recording to be back")
        self.assertEqual(talk.read_bytes(), sound)

    def test_what_is_announced(self):
        self.start()
        self.tree()
        said = self.listen()
        self.tavi("record")
        self.wait_capturing(True)
        self.desktop.keys("space")
        self.wait_capturing(False)
        self.tavi("stop")
        saved = self.wait_saved()
        expected = ["listening", "Recording", "Paused", f"Saved as {saved.name}"]
        self.wait(lambda: said.read_text().splitlines() == expected, f"{expected} to be announced")


if __name__ == "__main__":
    test_app.PROGRAM = str(pathlib.Path(sys.argv.pop(1)).resolve())
    unittest.main()
