"""From a class to the file for upload, as a teacher gets there: gxhost on a desktop of its own, with keys from outside
and a screen reader's eyes."""
import json
import os
import subprocess
import unittest
from pathlib import Path

from display import wait_for
from screen_reader import ScreenReader, states

GXHOST = os.environ["GXHOST"]
GXEXPORT = os.environ["GXEXPORT"]
SAMPLES = Path(os.environ["SAMPLES"])
CLASS = SAMPLES / "village-school.xml"
GRADEBOOK = SAMPLES / "village-school-canvas.csv"
TROUBLE = 6  # exit status: something was left out


def run(*arguments):
    return subprocess.run([GXEXPORT, *map(str, arguments), str(CLASS)], stdout=subprocess.PIPE,
                          stderr=subprocess.DEVNULL, check=False)


class FillTest(unittest.TestCase):
    def setUp(self):
        self.reader = ScreenReader(GXHOST, str(CLASS))
        self.desktop = self.reader.desktop
        self.addCleanup(self.desktop.close)
        self.main = self.reader.window("Class 2 – Gradix")

    def readiness(self):
        """What is said on the chosen system, finding by finding."""
        rows = self.reader.find("tree", "What will happen", self.main)
        return [row.name for row in rows if "What to do" in row.name]

    def answer(self, dialog, path):
        self.desktop.wait_for_window(dialog)
        self.desktop.key("ctrl+a")
        self.desktop.type(str(path))
        self.desktop.key("Return")

    def test_from_readiness_to_upload(self):
        self.reader.choose(self.main, "Export", "Canvas", "Fill In a Downloaded Gradebook…")
        self.desktop.wait_for_window("Fill In a Gradebook")
        window = self.reader.window("Fill In a Gradebook – Class 2")
        said = self.readiness()
        findings = json.loads(run("check", "-f", "canvas", "--json").stdout)["classes"][0]["findings"]
        self.assertEqual(len(said), len(findings))
        for sentence, finding in zip(said, findings):
            self.assertIn(finding["what"], sentence)
            self.assertIn(finding["advice"], sentence)

        self.desktop.key("alt+h")
        self.answer("Choose a Download", GRADEBOOK)
        self.desktop.wait_for_window("Fill In a Gradebook")
        wait_for(lambda: "sensitive" in states(self.reader.find("button", "Save for Upload…", window)), "a plan to save")
        self.desktop.key("alt+s")
        result = Path(self.desktop.folder.name) / "upload.csv"
        self.answer("Export To", result)
        self.desktop.wait_for_window("Exported file")

        command = run("fill", "--gradebook", GRADEBOOK, "-o", "-")
        self.assertEqual(command.returncode, TROUBLE)
        self.assertEqual(result.read_bytes(), command.stdout)
        self.assertEqual(sorted(path.name for path in result.parent.glob("*.csv")), [result.name])


if __name__ == "__main__":
    unittest.main(warnings="ignore")  # pyatspi uses old names
