"""Exports as a teacher makes them: gxhost on a desktop of its own, with keys and clicks from outside."""
import json
import os
import shutil
import subprocess
import unittest
from pathlib import Path

from display import DESKTOPS, wait_for

GXHOST = os.environ["GXHOST"]
GXEXPORT = os.environ["GXEXPORT"]
SAMPLE = Path(os.environ["SAMPLES"]) / "secondary-school.xml"
TEMPLATE = Path(os.environ["DIALOG_TEMPLATE"])

MAIN_WINDOW = "Biology 9"
DIALOG = "Export Assignment Results for Canvas"
FILE_DIALOG = "Export To"
CANVAS, WITH_DIALOG = "c", "e"  # letters in the export menu and in that of the system
FIELDS = 7  # rows of the popup of student fields
ALIAS = 3
POPUP, LIST, SELECT_ALL, CLEAR_ALL, OK = 5, 7, 8, 9, 11  # items


def read_template():
    """The dialog's size, and left, top, width, height of each item."""
    lines = TEMPLATE.read_text(encoding="utf-8").splitlines()
    dialog = json.loads("\n".join(line for line in lines if not line.strip().startswith("//")))["dialogs"][0]
    return dialog["bounds"][2:], {item["number"]: item["rect"] for item in dialog["items"]}


class ExportTest(unittest.TestCase):
    def setUp(self):
        self.desktop = DESKTOPS[os.environ["DESKTOP"]]()
        self.addCleanup(self.desktop.close)
        # Its file is saved beside it: a path typed into the file dialog would open lists of what is there meanwhile.
        sample = shutil.copy(SAMPLE, self.desktop.folder.name)
        self.desktop.start(GXHOST, sample)
        self.desktop.wait_for_window(MAIN_WINDOW)  # the class is read
        window = self.desktop.active_bounds()
        self.desktop.open_popup("alt+e", window)
        self.desktop.open_popup(CANVAS, window)
        self.desktop.key(WITH_DIALOG)
        self.desktop.wait_for_window(DIALOG)
        self.dialog = self.desktop.active_window()
        self.window = self.desktop.active_bounds()

    def point(self, item, x=0.5, y=0.5):
        """A point of an item on the screen; fractions of its size, or pixels from its edges. The window may be
        larger than its template, as its font is."""
        size, rects = read_template()
        scale = self.window[2] / size[0], self.window[3] / size[1]
        place = []
        for axis, at in enumerate((x, y)):
            start, length = rects[item][axis] * scale[axis], rects[item][axis + 2] * scale[axis]
            offset = at * length if isinstance(at, float) else at if at >= 0 else length + at
            place.append(self.window[axis] + start + offset)
        return place

    def answer_alert(self):
        """Waits for an alert and has Return answer it."""
        def is_alert():
            title = self.desktop.active_title()
            return self.desktop.active_window() not in (None, self.dialog) and not any(
                other in title for other in (MAIN_WINDOW, FILE_DIALOG))
        wait_for(is_alert, "an alert")
        self.desktop.key("Return")

    def save(self):
        """Answers what comes after OK, and gives what was written."""
        self.desktop.wait_for_window(FILE_DIALOG)
        result = Path(self.desktop.folder.name) / "canvas result.csv"
        self.desktop.key("ctrl+a")
        self.desktop.type(result.name)
        self.desktop.key("Return")
        wait_for(lambda: result.exists() and result.stat().st_size, "the file")
        self.answer_alert()  # what was saved
        self.desktop.wait_for_window("Exported")
        return result.read_bytes()

    def expected(self, *rows):
        """What the command line writes for these rows of the list."""
        def run(*arguments):
            return subprocess.run([GXEXPORT, *arguments, str(SAMPLE)], check=True, stdout=subprocess.PIPE).stdout
        ids = [str(assignment["id"]) for assignment in json.loads(run("inspect", "--json"))["assignments"]]
        chosen = [part for row in rows for part in ("-a", ids[row])]
        return run("export", "-f", "canvas", "-u", "alias", *chosen)

    def test_by_keys(self):
        self.desktop.key("Down", "space", "shift+Tab")  # the list has the keyboard; its first row is checked
        self.desktop.open_popup("space", self.window)
        self.desktop.key("Escape")  # closes the list, not the dialog
        self.desktop.wait_for_popup_to_close()
        self.desktop.open_popup("alt+Down", self.window)
        self.desktop.key("Down", "Return")  # from "Student ID" to the next; not yet OK
        self.desktop.wait_for_popup_to_close()
        self.assertEqual(self.desktop.active_title(), DIALOG)
        self.desktop.key("Return")
        self.assertEqual(self.save(), self.expected(0, 1))

    def test_by_mouse(self):
        self.desktop.click(self.point(CLEAR_ALL))
        self.desktop.press(self.point(SELECT_ALL))  # and released outside: nothing happens
        self.desktop.move(self.point(LIST))
        self.desktop.release()
        self.desktop.click(self.point(OK))
        self.answer_alert()  # no assignment is checked
        self.desktop.wait_for_window(DIALOG)

        self.desktop.press(self.point(LIST, -8, 30))  # the scroll bar, down to the last row
        for part in range(1, 6):
            self.desktop.move(self.point(LIST, -8, 30 + part * 40))
        self.desktop.release()
        self.desktop.click(self.point(LIST, 12, -28))  # its check mark, or that of the row above it
        left, top, width, height = self.desktop.open_popup(self.point(POPUP), self.window)
        self.desktop.click((left + width / 2, top + height * (ALIAS + 0.5) / FIELDS))
        self.desktop.wait_for_popup_to_close()
        self.desktop.click(self.point(OK))
        self.assertIn(self.save(), [self.expected(-1), self.expected(-2)])


if __name__ == "__main__":
    unittest.main()
