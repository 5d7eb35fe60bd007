"""What a screen reader is told of gxhost's windows, read as a screen reader reads them."""
import contextlib
import os
import unittest
from pathlib import Path

from display import wait_for
from screen_reader import ScreenReader, elements, labels, related, role_of, states

GXHOST = os.environ["GXHOST"]
SAMPLES = Path(os.environ["SAMPLES"])
CLASS = SAMPLES / "secondary-school.xml"
GRADEBOOK = SAMPLES / "village-school-canvas.csv"  # of other students

MAIN_WINDOW = "Biology 9 – Gradix"
CONTROLS = {"button", "button menu", "check box", "combo box", "dialog", "frame", "label", "list", "list item", "page tab",
            "page tab list", "panel", "radio button", "table", "text", "tree"}
STATISTICS = {"Students": "30", "Results": "29", "Missing": "1", "Mean": "4.19", "Median": "4.5", "Minimum": "1.5",
              "Maximum": "6", "Standard deviation": "1.42", "Points possible": "6"}

# Of controls the role with the name or label, and how begins what they say beside it: in the panes of the main window,
# then in windows, with the way through the menus and the beginning of the title.
PANES = {
    "Readiness": {("combo box", "System"): "Canvas", ("combo box", "Student field"): "Student ID",
                  ("combo box", "Kind of file"): "Classic file", ("tree", "What will happen"): "The file will be refused"},
    "Id Fields": {("tree", "Student fields"): "First name: 30 of 30", ("button", "Use This Field"): ""},
    "Assignment": {("combo box", "Assignment"): "Quiz 1: Cells"},
}
WINDOWS = [
    (("Export", "Canvas", "Current File…"), "Export – ",
     {("combo box", "Student field"): "Student ID", ("combo box", "Kind of file"): "Current file",
      ("combo box", "Separator"): "Commas", ("check box", "All assignments"): "[x]",
      ("list", "Assignments"): "[x] Quiz 1: Cells", ("button", "Save…"): ""}),
    (("Export", "Canvas", "Fill In a Downloaded Gradebook…"), "Fill In a Gradebook – Biology 9",
     {("button", "Choose a Download…"): "", ("button", "Save for Upload…"): "", ("button", "Close"): ""}),
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


def faults_of_pages(window):
    """The same behind each of its tabs in turn."""
    found = faults(window)
    for tab in [element for element in elements(window) if role_of(element) == "page tab"]:
        tab.queryAction().doAction(0)
        found += [f"{tab.name}: {fault}" for fault in faults(window)]
    return found


def says(control):
    """Of a control what it says beside its name; of a list or tree its first row."""
    role = role_of(control)
    said = control[0] if role == "list" else control[1] if role == "tree" else control
    mark = ("[x]" if "checked" in states(said) else "[ ]") if role in ("list", "check box") else ""
    text = said.name if role in ("list", "tree", "combo box") else ""
    return f"{mark} {text}".strip()


class AccessibilityTest(unittest.TestCase):
    maxDiff = None

    @classmethod
    def setUpClass(cls):
        cls.reader = ScreenReader(GXHOST, str(CLASS))
        cls.addClassCleanup(cls.reader.desktop.close)
        cls.main = cls.reader.window(MAIN_WINDOW)

    def check_controls(self, window, controls):
        said = {key: says(self.reader.find(*key, window)) for key in controls}
        self.assertEqual({key: said[key][:len(controls[key])] for key in controls}, controls)

    def show(self, pane):
        self.reader.find("page tab", pane, self.main).queryAction().doAction(0)

    def test_main_window(self):
        self.assertEqual(faults_of_pages(self.main), [])
        for pane, controls in PANES.items():
            self.show(pane)
            self.check_controls(self.main, controls)

    def test_statistics(self):
        self.show("Assignment")
        values = {labels(element)[0]: element.name for element in elements(self.main)
                  if role_of(element) == "label" and labels(element)}
        self.assertEqual(values, STATISTICS)
        self.assertRegex(self.reader.find("chart", "Score distribution", self.main).description,
                         "^29 results from 1.5 to 6 points; most, 7, from 5.4 to 6")

    def test_table(self):
        table = self.reader.find("table", "Students and their points", self.main).queryTable()
        self.assertEqual((table.nRows, table.nColumns), (30, 14))
        self.assertEqual([table.getColumnDescription(column) for column in range(3)],
                         ["Name", "Student ID", "Quiz 1: Cells"])
        name, *cells = [table.getAccessibleAt(0, column).name for column in range(3)]
        self.assertEqual(cells, ["204100", "5"])
        self.assertTrue(name.startswith("Inés Álvarez; The file will be refused"), name)

    def is_closed(self, window):
        """Otherwise Escape closes it, or what is open above it."""
        if window not in list(self.reader.program):
            return True
        self.reader.desktop.hand_keyboard_on(window.name)
        self.reader.desktop.key("Escape")
        return False

    @contextlib.contextmanager
    def opened(self, names, title):
        self.reader.choose(self.main, *names)
        window = self.reader.window(title)
        self.reader.desktop.wait_for_window(title)
        try:
            yield window
        finally:
            wait_for(lambda: self.is_closed(window), f"the end of {title}")

    def test_windows(self):
        for names, title, controls in WINDOWS:
            with self.subTest(title), self.opened(names, title) as window:
                self.check_controls(window, controls)
                self.assertTrue(any("focused" in states(element) for element in elements(window)))
                self.assertEqual(faults_of_pages(window), [])

    def test_filling(self):
        names, title, _ = next(row for row in WINDOWS if row[0][-1].startswith("Fill In"))
        with self.opened(names, title) as window:
            self.reader.find("button", "Choose a Download…", window).queryAction().doAction(0)
            dialog = self.reader.window("Choose a Download")
            self.assertEqual(faults(dialog), [])
            self.reader.desktop.wait_for_window("Choose a Download")
            self.reader.desktop.key("ctrl+a")
            self.reader.desktop.type(str(GRADEBOOK))
            self.reader.desktop.key("Return")
            wait_for(lambda: [tab for tab in elements(window) if tab.name.startswith("Not matched")], "what is matched")
            self.assertEqual(faults_of_pages(window), [])


if __name__ == "__main__":
    unittest.main(warnings="ignore")  # pyatspi uses old names
