"""Keeps recordings in a folder that another program syncs, by keys and as a screen reader does: test_cloud.py PROGRAM [OPTION OF
unittest...]"""

import pathlib
import sys
import unittest

import test_accessibility
import test_app
from sound import write_tone


class Cloud(test_accessibility.ReaderTest):
    def press(self, name, says):
        """Presses what is called so, once it is there, and waits for what is said then."""
        tool = ("/usr/bin/python3", "-B", test_accessibility.FOLDER / "accessible_tree.py", "tavi")
        self.wait(lambda: self.desktop.run(*tool, "--press", name, check=False).returncode == 0, f"{name} to press")
        self.wait_for_words(says)

    def wait_for_words(self, says, is_there=True):
        self.wait(lambda: (says in self.tree()) == is_there, says)

    def test_a_folder_is_connected_used_and_left(self):
        trash = self.container.with_suffix(".data")
        trash.mkdir()
        home = self.container.with_suffix(".home")
        synced = home / "Synced" / "Documents"
        synced.parent.mkdir(parents=True)
        self.desktop.environment |= {"XDG_DATA_HOME": str(trash), "HOME": str(home)}
        self.start()
        self.desktop.keys("ctrl+3")
        for name, says in (("Sync Recordings with the Cloud", "Where is your cloud?"),
                           ("A folder that another program syncs", "Choose the Cloud Folder"),
                           ("Synced", f"'{home}/Synced'"), ("Choose", "Another program syncs this folder."),
                           ("Back", "'Sync Recordings with the Cloud' checked")):
            self.press(name, says)

        self.tavi("record")
        self.play_while_recording()
        self.tavi("stop")
        saved = self.wait_saved()
        sound = saved.read_bytes()
        self.wait(lambda: (synced / saved.name).exists(), "the recording in the cloud")
        self.assertEqual((synced / saved.name).read_bytes(), sound)

        self.desktop.keys("ctrl+2")
        self.wait(lambda: self.tree().count(f"'{saved.name}'") == 2 and "In the cloud)" in self.tree(), "both rows")
        for says, *keys in (("'Rename Recording'", "End", "F2"), ("'Actions for talk.m4a'", *"talk", "Return"),
                            ("'Delete Recording'", "End", "Delete")):
            self.desktop.keys(*keys)
            self.wait_for_words(says)
        self.assertEqual((synced / "talk.m4a").read_bytes(), sound)
        self.desktop.keys("Right", "Return")
        self.wait(lambda: not (synced / "talk.m4a").exists(), "the recording to go from the cloud")
        self.assertEqual(self.recordings(), [saved])

        write_tone(synced / "Foreign.wav", 1000, 1.0)
        self.wait_for_words("'Foreign.wav' (281 KB | 00:01")
        write_tone(synced / "Late.wav", 1000, 1.0)
        self.desktop.keys("F5")
        self.wait_for_words("'Late.wav' (281 KB | 00:01")

        self.desktop.keys("ctrl+3")
        self.press("Cloud account", "'Disconnect'")
        self.press("Disconnect", "Disconnect the Cloud?")
        self.desktop.keys("Right", "Return")
        self.wait_for_words("'Sync Recordings with the Cloud' checked", False)
        self.assertEqual(self.tavi("cloud", "status").stdout, "no cloud\n")
        self.desktop.keys("ctrl+2")
        self.wait_for_words("Cloud Recordings", False)
        self.assertEqual(sorted(path.name for path in synced.iterdir()), ["Foreign.wav", "Late.wav"])


if __name__ == "__main__":
    test_app.PROGRAM = str(pathlib.Path(sys.argv.pop(1)).resolve())
    unittest.main()
