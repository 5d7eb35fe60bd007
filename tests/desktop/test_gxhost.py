"""An export as a teacher makes it: gxhost on an X server of its own, with keys from outside of the process."""
import json
import os
import subprocess
import tempfile
import time
import unittest
from pathlib import Path

from display import LIMIT, Display

GXHOST = os.environ["GXHOST"]
GXEXPORT = os.environ["GXEXPORT"]
SAMPLE = Path(os.environ["SAMPLES"]) / "secondary-school.xml"

EXPORT_MENU = (65, 8)  # in the menu bar of the window, which lies in the corner of the screen
CANVAS = 7  # place in that menu, counted from 1


class HostTest(unittest.TestCase):
    def setUp(self):
        self.display = Display()
        self.addCleanup(self.display.close)
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)
        environment = dict(self.display.environment, HOME=str(self.folder), XDG_CONFIG_HOME=str(self.folder),
                           XDG_RUNTIME_DIR=str(self.folder))
        self.host = subprocess.Popen([GXHOST, str(SAMPLE)], env=environment)
        self.addCleanup(self.host.wait)
        self.addCleanup(self.host.terminate)

    def wait_for_file(self, path):
        end = time.monotonic() + LIMIT
        while not (path.exists() and path.stat().st_size):
            self.assertLess(time.monotonic(), end, f"{path} was not written")
            time.sleep(0.1)

    def test_exporting_two_quizzes_to_canvas(self):
        self.display.wait_for_window("Biology 9")  # the class is read
        self.display.xdotool("mousemove", *EXPORT_MENU, "click", 1)
        time.sleep(0.5)
        self.display.key(*["Down"] * CANVAS, "Return")
        self.display.wait_for_window("Export Assignment Results for Canvas")
        # The list has the keyboard; its first row, the assignment of the host, is checked.
        self.display.key("Down", "space")
        self.display.key("shift+Tab", "Down")  # the popup of student fields: from "Student ID" to the next
        self.display.key("Return")
        self.display.wait_for_window("Export To")
        result = self.folder / "canvas result.csv"
        self.display.key("ctrl+a")
        self.display.xdotool("type", "--delay", 10, str(result))
        self.display.key("Return")
        self.wait_for_file(result)
        time.sleep(0.7)
        self.display.key("Return")  # "Assignment results have been saved in ..."
        self.display.wait_for_window("Exported")

        expected = self.folder / "expected.csv"
        ids = self.first_assignments(2)
        subprocess.run([GXEXPORT, "export", "-f", "canvas", "-u", "alias", "-a", ids[0], "-a", ids[1],
                        "-o", str(expected), str(SAMPLE)], check=True)
        self.assertEqual(result.read_bytes(), expected.read_bytes())

    def first_assignments(self, count):
        text = subprocess.run([GXEXPORT, "inspect", "--json", str(SAMPLE)], check=True, stdout=subprocess.PIPE).stdout
        return [str(row["id"]) for row in json.loads(text)["assignments"][:count]]


if __name__ == "__main__":
    unittest.main()
