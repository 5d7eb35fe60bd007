"""A desktop without a screen, X11 or Wayland, and keys and clicks for its windows from outside of their processes.

The Wayland compositor runs inside of the X server, so that both get their input in the same way. What the windows
do is seen without asking their process: the X server tells it, and the Wayland client library writes down what is
said on its connection."""
import os
import re
import subprocess
import tempfile
import time

LIMIT = 30  # seconds until something that should happen counts as not happening
WIDTH, HEIGHT = 1000, 800  # of the desktop; a dialog covers the middle, wherever it is put
ENDS_WITH_US = ["setpriv", "--pdeathsig", "TERM"]  # programs that are started, even when a time limit ends us
MARGIN = 40  # of the X server's screen, below the desktop


def wait_for(condition, what):
    """Waits until the condition gives something true, and gives that."""
    end = time.monotonic() + LIMIT
    while not (result := condition()):
        if time.monotonic() > end:
            raise AssertionError(f"did not happen: {what}")
        time.sleep(0.03)
    return result


class X11:
    """Windows as the X server tells them."""

    def __init__(self):
        read, write = os.pipe()
        self.server = subprocess.Popen(
            [*ENDS_WITH_US, "Xvfb", "-displayfd", str(write), "-screen", "0", f"{WIDTH}x{HEIGHT + MARGIN}x24",
             "-nolisten", "tcp", "-r", "-noreset"],  # a reset, after the last one leaves, refuses who comes
            pass_fds=[write], stderr=subprocess.DEVNULL)
        os.close(write)
        self.folder = tempfile.TemporaryDirectory()
        with os.fdopen(read) as pipe:
            self.environment = dict(
                os.environ, DISPLAY=":" + pipe.readline().strip(), HOME=self.folder.name, LC_ALL="C.UTF-8",
                XDG_CONFIG_HOME=self.folder.name, XDG_RUNTIME_DIR=self.folder.name, QT_ACCESSIBILITY="0",
                QT_SCALE_FACTOR="1", QT_FONT_DPI="96", GXHOST_QT_DIALOGS="1")
        self.programs = []

    def start(self, *command):
        environment = dict(self.environment, QT_QPA_PLATFORM="xcb")
        self.programs.append(subprocess.Popen([*ENDS_WITH_US, *command], env=environment))
        window = wait_for(self._visible, "a window").pop()
        self.xdotool("windowfocus", "--sync", window)  # as a window manager does

    def close(self):
        for program in [*self.programs, self.server]:
            program.terminate()
            program.wait()
        self.folder.cleanup()

    def xdotool(self, *arguments):
        return subprocess.run(["xdotool", *map(str, arguments)], env=self.environment, timeout=LIMIT,
                              stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True, check=False).stdout

    def key(self, *keys):
        self.xdotool("key", "--delay", 20, *keys)

    def type(self, text):
        self.xdotool("type", "--delay", 5, text)

    def move(self, point):
        self.xdotool("mousemove", *map(int, point))

    def press(self, point):
        self.move(point)
        self.xdotool("mousedown", 1)

    def release(self):
        self.xdotool("mouseup", 1)

    def click(self, point):
        self.press(point)
        self.release()

    def wait_for_window(self, title):
        """Waits until a window with that in its title has the keyboard."""
        def has_keyboard():
            self.hand_keyboard_on(title)
            return title in self.active_title()
        wait_for(has_keyboard, f"the window {title}")

    def hand_keyboard_on(self, title):
        """As a window manager does when the window with the keyboard goes."""
        if self.active_window() is None:
            self.xdotool("search", "--onlyvisible", "--name", title, "windowfocus")

    def active_title(self):
        window = self.active_window()
        return self.xdotool("getwindowname", window).strip() if window else ""

    def active_window(self):
        """Of the window with the keyboard, what tells it from others; None while there is none."""
        window = self.xdotool("getwindowfocus", "-f").strip()
        return window if window in self._visible() else None

    def active_bounds(self):
        """Left, top, width, height on the screen."""
        return self._bounds(self.active_window())

    def _bounds(self, window):
        values = dict(line.split("=") for line in self.xdotool("getwindowgeometry", "--shell", window).split())
        return tuple(int(values[name]) for name in ("X", "Y", "WIDTH", "HEIGHT"))

    def _visible(self):
        return set(self.xdotool("search", "--onlyvisible", "--class", ".").split())

    def open_popup(self, opener, window):
        """Holds the key (such as "alt+Down") or the mouse at the point that opens a list of the window at those
        bounds until the list is there: a compositor takes a list away that no key or button is down for. Gives
        the list's bounds."""
        before = self._popups()
        keys = opener.split("+") if isinstance(opener, str) else []
        for key in keys:
            self.xdotool("keydown", key)
        if not keys:
            self.press(opener)
        self.popup = wait_for(lambda: self._popups() - before, "a list that opens").pop()
        for key in reversed(keys):
            self.xdotool("keyup", key)
        if not keys:
            self.release()
        return self._popup_bounds(window)

    def _popups(self):
        return self._visible()

    def _popup_bounds(self, _window):
        return self._bounds(self.popup)

    def wait_for_popup_to_close(self):
        wait_for(lambda: self.popup not in self._popups(), "the list that closes")


class Wayland(X11):
    """Windows as they are talked about on the program's connection."""

    EVENTS = {name: re.compile(pattern.replace("@", "[@#]")) for name, pattern in {
        "surface": r"get_xdg_surface\(new id (xdg_surface@\d+), (wl_surface@\d+)\)",
        "toplevel": r"(xdg_surface@\d+)\.get_toplevel\(new id (xdg_toplevel@\d+)\)",
        "title": r'(xdg_toplevel@\d+)\.set_title\("(.*)"\)$',
        "size": r"(xdg_surface@\d+)\.set_window_geometry\(0, 0, (\d+), (\d+)\)",
        "keyboard": r"wl_keyboard@\d+\.enter\(\d+, (wl_surface@\d+)",
        "left": r"(wl_keyboard@\d+)\.leave\(",
        "entered": r"wl_pointer@\d+\.enter\(\d+, (wl_surface@\d+), ([\d.-]+), ([\d.-]+)\)",
        "moved": r"wl_pointer@\d+\.motion\(\d+, ([\d.-]+), ([\d.-]+)\)",
        "popup": r"(xdg_popup@\d+)\.configure\((-?\d+), (-?\d+), (\d+), (\d+)\)",
        "closed": r"(xdg_popup@\d+)\.destroy\(\)",
    }.items()}

    def __init__(self):
        super().__init__()
        socket = os.path.join(self.folder.name, "wayland-test")
        log = os.path.join(self.folder.name, "weston.log")
        configuration = os.path.join(self.folder.name, "weston.ini")
        with open(configuration, "w", encoding="utf-8") as file:
            file.write("[keyboard]\nrepeat-delay=100000\n"  # no key is held on a busy machine
                       "[shell]\nstartup-animation=none\nanimation=none\nlocking=false\npanel-position=none\n")
        self.programs.append(subprocess.Popen(
            [*ENDS_WITH_US, "weston", "--backend=x11-backend.so", f"--width={WIDTH}", f"--height={HEIGHT}",
             f"--config={configuration}", "--socket=wayland-test", "--idle-time=0", f"--log={log}"], env=self.environment,
            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL))
        wait_for(lambda: os.path.exists(socket), "a Wayland compositor")
        self.move((WIDTH // 2, HEIGHT // 2))
        self.talk = os.path.join(self.folder.name, "talk")
        self.windows, self.titles, self.sizes, self.popups = {}, {}, {}, {}
        self.keyboard = self.pointer = None

    def start(self, *command):
        environment = dict(self.environment, QT_QPA_PLATFORM="wayland", WAYLAND_DISPLAY="wayland-test",
                           WAYLAND_DEBUG="1", QT_WAYLAND_DISABLE_WINDOWDECORATION="1")
        del environment["DISPLAY"]
        with open(self.talk, "w", encoding="utf-8") as talk:
            self.programs.insert(0, subprocess.Popen([*ENDS_WITH_US, *command], env=environment, stderr=talk))
        self.lines = open(self.talk, encoding="utf-8", errors="replace")

    def close(self):
        self.lines.close()
        super().close()

    def move(self, point):
        super().move(point)
        self.position = tuple(map(int, point))

    def _listen(self):
        while True:
            start = self.lines.tell()
            line = self.lines.readline()
            if not line.endswith("\n"):
                self.lines.seek(start)
                return
            for name, pattern in self.EVENTS.items():
                if match := pattern.search(line):
                    self._note(name, *match.groups())

    def _note(self, name, *values):
        if name == "surface":
            self.windows[values[1]] = values[0]
            self.titles.pop(values[0], None)
        elif name == "toplevel":
            self.titles[values[1]] = ""
            self.windows[values[0]] = values[1]
        elif name == "title":
            self.titles[values[0]] = values[1]
        elif name == "size":
            self.sizes[values[0]] = tuple(map(int, values[1:]))
        elif name == "keyboard":
            self.keyboard = values[0]
        elif name == "left":
            self.keyboard = None
        elif name == "entered":
            self.pointer = tuple(map(float, values[1:]))
        elif name == "moved":
            self.pointer = tuple(map(float, values))
        elif name == "popup":
            self.popups[values[0]] = tuple(map(int, values[1:]))
        elif name == "closed":
            self.popups.pop(values[0], None)

    def active_window(self):
        self._listen()
        return self.windows.get(self.windows.get(self.keyboard))

    def active_title(self):
        return self.titles.get(self.active_window(), "")

    def hand_keyboard_on(self, title):
        pass  # the compositor does

    def _move_in_window(self):
        """Moves the mouse and gives where in the window it is then told to be. When nothing is told, brings the mouse
        in from outside and gives None: a compositor that began under the mouse knows its moves, not its place."""
        self._listen()
        self.pointer = None
        self.move((WIDTH // 2 + (self.position[0] == WIDTH // 2), HEIGHT // 2))
        end = time.monotonic() + 0.5
        while self.pointer is None and time.monotonic() < end:
            time.sleep(0.02)
            self._listen()
        if self.pointer is None:
            self.move((WIDTH // 2, HEIGHT + MARGIN // 2))
        return self.pointer

    def active_bounds(self):
        """Moves the mouse in the window: what it is told tells where the window is."""
        for _ in range(2):  # what is told at first may be of an earlier place
            at = wait_for(self._move_in_window, "a mouse that moves in the window")
        left, top = (int(screen - inside) for screen, inside in zip(self.position, at))
        return left, top, *self.sizes[self.windows[self.keyboard]]

    def _popups(self):
        self._listen()
        return set(self.popups)

    def _popup_bounds(self, window):
        left, top, width, height = self.popups[self.popup]
        return window[0] + left, window[1] + top, width, height


class SpokenX11(X11):
    """With the bus of screen readers, which the program and this process are on; once in a process."""

    def __init__(self):
        super().__init__()
        for name in ("AT_SPI_BUS_ADDRESS", "DBUS_SESSION_BUS_ADDRESS", "WAYLAND_DISPLAY"):
            self.environment.pop(name, None)
        self.environment.update(QT_ACCESSIBILITY="1", QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1")
        # The session, and all that it starts, lives as long as our end of the pipe.
        self.session = subprocess.Popen(
            ["dbus-run-session", "--", "sh", "-c", 'echo "$DBUS_SESSION_BUS_ADDRESS"; cat'], env=self.environment,
            stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = self.session.stdout.readline().strip()
        os.environ.update(self.environment)

    def close(self):
        self.session.communicate()
        super().close()


DESKTOPS = {"x11": X11, "wayland": Wayland}
