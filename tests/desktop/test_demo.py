"""The demo dialog in a window of an X server of its own, driven from outside with xdotool."""
import json
import os
import subprocess
import time
import unittest

from display import LIMIT, Display

DEMO = os.environ["TOOLKIT_DEMO"]
RESOURCES = os.environ["DEMO_RESOURCES"]

OK, CANCEL, EDIT, COMBO, CHECKS, SELECT_ALL, CHECK_BOX, DISABLED, SINGLE = 1, 2, 4, 6, 8, 9, 15, 21, 12


class DemoTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.display = Display()

    @classmethod
    def tearDownClass(cls):
        cls.display.close()

    def setUp(self):
        self.demo = subprocess.Popen([DEMO, RESOURCES], env=self.display.environment, stdin=subprocess.PIPE,
                                     stdout=subprocess.PIPE, text=True, bufsize=1)
        self.addCleanup(self.stop)
        self.hits = []
        self.assertEqual(self.demo.stdout.readline().strip(), "ready")
        self.wait(lambda state: state.get("window"))
        time.sleep(0.5)  # until the window is mapped and has the keyboard
        self.origin = self.state()["window"]

    def stop(self):
        if self.demo.poll() is None:
            try:
                self.demo.communicate("close\n", timeout=LIMIT)
            except subprocess.TimeoutExpired:
                self.demo.kill()
                self.demo.communicate()
        self.demo.stdin.close()
        self.demo.stdout.close()

    def state(self):
        self.demo.stdin.write("state\n")
        self.demo.stdin.flush()
        for line in self.demo.stdout:
            if line.startswith("hit "):
                self.hits.append(int(line[4:]))
            else:
                return json.loads(line)
        self.fail("the demo ended")

    def wait(self, condition):
        end = time.monotonic() + LIMIT
        while time.monotonic() < end:
            state = self.state()
            if condition(state):
                return state
            time.sleep(0.05)
        self.fail(f"did not happen: {state}")

    def point(self, item, x=0.5, y=0.5):
        """A point of an item on the screen; fractions of its size, or pixels from its corner."""
        left, top, width, height = self.state()["items"][str(item)]
        return (self.origin[0] + left + (x * width if isinstance(x, float) else x),
                self.origin[1] + top + (y * height if isinstance(y, float) else y))

    def move(self, point):
        self.display.xdotool("mousemove", int(point[0]), int(point[1]))

    def click(self, item, x=0.5, y=0.5, times=1):
        self.move(self.point(item, x, y))
        self.display.xdotool("click", "--repeat", times, "--delay", 40, 1)

    def key(self, *keys):
        self.display.key(*keys)

    def settle(self):
        time.sleep(0.4)
        return self.state()

    def list_state(self, item, state=None):
        return (state or self.state())["lists"][str(item)]

    def test_a_click_presses_a_button(self):
        self.click(SELECT_ALL)
        state = self.wait(lambda s: len(self.list_state(CHECKS, s)["checked"]) == 40)
        self.assertEqual(self.hits, [SELECT_ALL])
        self.assertEqual(state["focus"], SELECT_ALL)

    def test_a_button_released_outside_does_nothing(self):
        self.move(self.point(SELECT_ALL))
        self.display.xdotool("mousedown", 1)
        time.sleep(0.2)
        self.move(self.point(CHECK_BOX))
        time.sleep(0.2)
        self.display.xdotool("mouseup", 1)
        state = self.settle()
        self.assertEqual(self.hits, [])
        self.assertEqual(self.list_state(CHECKS, state)["checked"], [1])
        self.assertEqual(state["checkBox"], 1)

    def test_a_button_left_and_entered_again_is_pressed(self):
        self.move(self.point(SELECT_ALL))
        self.display.xdotool("mousedown", 1)
        for item in CHECK_BOX, SELECT_ALL:
            time.sleep(0.2)
            self.move(self.point(item))
        time.sleep(0.2)
        self.display.xdotool("mouseup", 1)
        self.wait(lambda s: self.hits == [SELECT_ALL])

    def test_dragging_the_scroll_bar_scrolls_and_reports_nothing(self):
        start = self.point(CHECKS, 222, 24)
        self.move(start)
        self.display.xdotool("mousedown", 1)
        for step in range(1, 9):
            self.move((start[0], start[1] + 4 * step))
            time.sleep(0.03)
        self.display.xdotool("mouseup", 1)
        state = self.wait(lambda s: self.list_state(CHECKS, s)["top"] > 5)
        self.assertEqual(self.list_state(CHECKS, state)["selected"], [0])
        self.assertEqual(self.hits, [])

    def test_the_wheel_scrolls(self):
        self.move(self.point(CHECKS, 0.3))
        self.display.xdotool("click", 5)
        self.wait(lambda s: self.list_state(CHECKS, s)["top"] > 0)

    def test_double_click(self):
        self.click(SINGLE, 0.5, 12, times=2)
        state = self.wait(lambda s: len(self.hits) >= 2)
        self.assertEqual(self.list_state(SINGLE, state)["selected"], [0])
        self.assertEqual(set(self.hits), {SINGLE})

    def test_a_click_on_a_check_mark_checks_the_row(self):
        self.click(CHECKS, 10, 12)
        self.wait(lambda s: self.list_state(CHECKS, s)["checked"] == [0, 1])
        self.assertEqual(self.hits, [CHECKS])

    def test_a_disabled_item_ignores_clicks(self):
        self.click(DISABLED, 10)
        self.settle()
        self.assertEqual(self.hits, [])

    def test_choosing_from_the_popup(self):
        self.click(COMBO)
        time.sleep(0.5)
        self.key("Down", "Return")
        state = self.wait(lambda s: s["combo"] == 3)
        self.assertEqual((state["open"], self.hits), (True, [COMBO]))

    def test_keys(self):
        self.key("space")  # the focus is in the check list
        self.wait(lambda s: self.list_state(CHECKS, s)["checked"] == [0, 1])
        self.key("End")
        self.wait(lambda s: self.list_state(CHECKS, s)["selected"] == [39])
        self.key("Tab")
        self.wait(lambda s: s["focus"] == SELECT_ALL)
        self.key("shift+Tab", "shift+Tab", "shift+Tab")
        self.wait(lambda s: s["focus"] == EDIT)
        self.display.xdotool("type", "--delay", 30, "B5")  # tabbing into a field selects its text
        self.wait(lambda s: s["text"] == "B5")
        self.key("Escape")
        self.wait_for_end()
        self.assertEqual(self.hits[-1], CANCEL)

    def test_return_presses_the_default_button(self):
        self.click(EDIT)
        self.wait(lambda s: s["focus"] == EDIT)
        self.key("Return")
        self.wait_for_end()
        self.assertEqual(self.hits[-1], OK)

    def wait_for_end(self):
        """The demo ends with its dialog."""
        for line in self.demo.stdout:
            if line.startswith("hit "):
                self.hits.append(int(line[4:]))
        self.assertEqual(self.demo.wait(LIMIT), 0)


if __name__ == "__main__":
    unittest.main()
