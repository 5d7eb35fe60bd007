"""What a screen reader is told of gxhost's windows, read as a screen reader reads them."""
import os
import unittest
from pathlib import Path

from display import SpokenX11, wait_for

GXHOST = os.environ["GXHOST"]
SAMPLE = Path(os.environ["SAMPLES"]) / "secondary-school.xml"

MAIN_WINDOW = "Biology 9 – Gradix"
CONTROLS = {"check box", "combo box", "dialog", "frame", "label", "list", "list item", "page tab", "page tab list",
            "panel", "button", "radio button", "table", "text", "tree"}
STATISTICS = {"Students": "30", "Results": "29", "Missing": "1", "Mean": "4.19", "Median": "4.5", "Minimum": "1.5",
              "Maximum": "6", "Standard deviation": "1.42", "Points possible": "6"}

# Way through the menus, window, and of its controls the role with the name or label, and what the control says.
WINDOWS = [
    (("Export", "Assignment Results for Canvas"), "Export Assignment Results for Canvas",
     {("combo box", "Extract User ID from"): "Student ID", ("list", "Assignments to export"): "[x] Quiz 1: Cells, 2023-09-08",
      ("button", "Select All"): "", ("button", "OK"): "", ("button", "Cancel"): ""}),
    (("Export", "Detailed Results as Text"), "Export Detailed Results as Text",
     {("combo box", "Assignment to report"): "Quiz 1: Cells", ("combo box", "Question columns"): "Question Responses",
      ("check box", "Mark correct answers with an asterisk"): "[x]", ("check box", "Write the answer key"): "[ ]",
      ("list", "Optional student information"): "[ ] Password", ("button", "Help"): ""}),
]


def elements(parent):
    """All that is shown in it; of tables and lists not what they hold."""
    for element in parent:
        if element and "showing" in states(element):
            yield element
            if role_of(element) not in ("table", "tree", "list"):
                yield from elements(element)


def role_of(element):
    return element.getRoleName().removeprefix("push ")  # the push button's name has changed


def states(element):
    return {pyatspi.stateToString(state) for state in element.getState().getStates()}


def related(element, relation):
    return [found.getTarget(i) for found in element.getRelationSet() if found.getRelationType() == relation
            for i in range(found.getNTargets())]


def labels(element):
    return [label.name.removesuffix(":") for label in related(element, pyatspi.RELATION_LABELLED_BY)
            if role_of(label) == "label"]


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
                name.endswith(":") and not related(element, pyatspi.RELATION_LABEL_FOR))
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
        cls.desktop = SpokenX11()
        cls.addClassCleanup(cls.desktop.close)
        cls.desktop.start(GXHOST, str(SAMPLE))
        global pyatspi  # looks for the bus when it is imported
        import pyatspi
        desktop = pyatspi.Registry.getDesktop(0)
        desktop.set_cache_mask(0)
        cls.program = wait_for(lambda: next((program for program in desktop if program), None), "a program on the bus")
        cls.main = cls.window(MAIN_WINDOW)

    @classmethod
    def window(cls, title):
        def find():
            return next((window for window in cls.program if window and window.name == title), None)
        return wait_for(find, f"the window {title}")

    def find(self, role, name, parent=None):
        for element in elements(parent or self.main):
            if role_of(element) == role and name in [element.name, *labels(element)]:
                return element
        raise AssertionError(f"no {role} {name!r}")

    def choose(self, *names):
        """A menu item, by its own action."""
        def item():
            found = next(element for element in self.main if role_of(element) == "menu bar")
            for name in names:
                items = [child for menu in (found, *found) for child in menu]
                found = next((child for child in items if child.name == name), None)
                if not found:
                    return None
            return found if "enabled" in states(found) else None
        wait_for(item, f"the menu item {names}").queryAction().doAction(0)

    def test_main_window(self):
        self.assertEqual(faults(self.main), [])

    def test_statistics(self):
        values = {labels(element)[0]: element.name for element in elements(self.main)
                  if role_of(element) == "label" and labels(element)}
        self.assertEqual(values, STATISTICS)

    def test_histogram(self):
        self.assertRegex(self.find("chart", "Score distribution").description,
                         "^29 results from 1.5 to 6 points; most, 7, from 5.4 to 6")

    def test_table(self):
        table = self.find("table", "Students and their points").queryTable()
        self.assertEqual((table.nRows, table.nColumns), (30, 14))
        self.assertEqual([table.getColumnDescription(column) for column in range(3)],
                         ["Name", "Student ID", "Quiz 1: Cells"])
        self.assertEqual([table.getAccessibleAt(0, column).name for column in range(3)],
                         ["Inés Álvarez", "204100", "5"])

    def test_windows(self):
        for names, title, controls in WINDOWS:
            with self.subTest(title):
                self.choose(*names)
                window = self.window(title)
                self.desktop.wait_for_window(title)
                try:
                    self.assertEqual(faults(window), [])
                    self.assertEqual({key: says(self.find(*key, window)) for key in controls}, controls)
                    self.assertTrue(any("focused" in states(element) for element in elements(window)))
                finally:
                    self.desktop.key("Escape")
                    wait_for(lambda: window not in list(self.program), f"the end of {title}")


if __name__ == "__main__":
    unittest.main(warnings="ignore")  # pyatspi uses old names
