"""What a screen reader is told of gxhost's windows, read as a screen reader reads them."""
import os
import unittest
from pathlib import Path

from display import wait_for
from screen_reader import ScreenReader, elements, labels, related, role_of, states

GXHOST = os.environ["GXHOST"]
SAMPLE = Path(os.environ["SAMPLES"]) / "secondary-school.xml"

MAIN_WINDOW = "Biology 9 – Gradix"
CONTROLS = {"check box", "combo box", "dialog", "frame", "label", "list", "list item", "page tab", "page tab list",
            "panel", "button", "radio button", "table", "text", "tree"}
STATISTICS = {"Students": "30", "Results": "29", "Missing": "1", "Mean": "4.19", "Median": "4.5", "Minimum": "1.5",
              "Maximum": "6", "Standard deviation": "1.42", "Points possible": "6"}

# Way through the menus, window, and of its controls the role with the name or label, and what the control says.
WINDOWS = [
    (("Export", "Canvas", "With the Export Window…"), "Export Assignment Results for Canvas",
     {("combo box", "Extract User ID from"): "Student ID", ("list", "Assignments to export"): "[x] Quiz 1: Cells, 2023-09-08",
      ("button", "Select All"): "", ("button", "OK"): "", ("button", "Cancel"): ""}),
    (("Export", "Detailed Results as Text", "With the Export Window…"), "Export Detailed Results as Text",
     {("combo box", "Assignment to report"): "Quiz 1: Cells", ("combo box", "Question columns"): "Question Responses",
      ("check box", "Mark correct answers with an asterisk"): "[x]", ("check box", "Write the answer key"): "[ ]",
      ("list", "Optional student information"): "[ ] Password", ("button", "Help"): ""}),
]


def faults(window):
    """What keeps a window from being told."""
    found = [] if role_of(window) in ("alert", "dialog", "frame") else [f"the window is a {role_of(window)}"]
    for element in elements(window):
        role, name, label = role_of(element), element.name, labels(element)
        has_tabs = any(role_of(child) == "page tab list" for child in element)  # which take the keyboard for it
        if "focusable" in states(element) and not has_tabs:
            found += [f"{role} {name!r} takes the keyboard"] * (role not in CONTROLS)
            found += [f"a {role} in {element.parent.name!r} has no name"] * (not name and not label)
        found += [f"combo box {name!r} has no label"] * (role == "combo box" and not label)
        if role == "label":
            found += [f"the value of {name!r} is hidden by its name"] * (name.removesuffix(":") in label)
            found += [f"{name!r} is joined to nothing"] * (
                name.endswith(":") and not related(element, "LABEL_FOR"))
    return found


def says(control):
    """Of a control what it says beside its name; of a list its first row."""
    role = role_of(control)
    said = control[0] if role == "list" else control
    mark = ("[x]" if "checked" in states(said) else "[ ]") if role in ("list", "check box") else ""
    text = said.name if role in ("list", "combo box") else ""
    return f"{mark} {text}".strip()


class AccessibilityTest(unittest.TestCase):
    maxDiff = None

    @classmethod
    def setUpClass(cls):
        cls.reader = ScreenReader(GXHOST, str(SAMPLE))
        cls.addClassCleanup(cls.reader.desktop.close)
        cls.main = cls.reader.window(MAIN_WINDOW)

    def test_main_window(self):
        self.assertEqual(faults(self.main), [])

    def test_statistics(self):
        values = {labels(element)[0]: element.name for element in elements(self.main)
                  if role_of(element) == "label" and labels(element)}
        self.assertEqual(values, STATISTICS)

    def test_histogram(self):
        self.assertRegex(self.reader.find("chart", "Score distribution", self.main).description,
                         "^29 results from 1.5 to 6 points; most, 7, from 5.4 to 6")

    def test_table(self):
        table = self.reader.find("table", "Students and their points", self.main).queryTable()
        self.assertEqual((table.nRows, table.nColumns), (30, 14))
        self.assertEqual([table.getColumnDescription(column) for column in range(3)],
                         ["Name", "Student ID", "Quiz 1: Cells"])
        self.assertEqual([table.getAccessibleAt(0, column).name for column in range(3)],
                         ["Inés Álvarez", "204100", "5"])

    def test_windows(self):
        for names, title, controls in WINDOWS:
            with self.subTest(title):
                self.reader.choose(self.main, *names)
                window = self.reader.window(title)
                self.reader.desktop.wait_for_window(title)
                try:
                    self.assertEqual(faults(window), [])
                    self.assertEqual({key: says(self.reader.find(*key, window)) for key in controls}, controls)
                    self.assertTrue(any("focused" in states(element) for element in elements(window)))
                finally:
                    self.reader.desktop.key("Escape")
                    wait_for(lambda: window not in list(self.reader.program), f"the end of {title}")


if __name__ == "__main__":
    unittest.main(warnings="ignore")  # pyatspi uses old names
