"""An X server without a screen, and keys and clicks for its windows from outside of their processes."""
import os
import subprocess
import time

LIMIT = 20  # seconds until something that should happen counts as not happening


class Display:
    def __init__(self):
        read, write = os.pipe()
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write), "-screen", "0", "1280x1024x24", "-nolisten", "tcp"],
            pass_fds=[write], stderr=subprocess.DEVNULL)
        os.close(write)
        with os.fdopen(read) as pipe:
            self.environment = dict(os.environ, DISPLAY=":" + pipe.readline().strip(), QT_QPA_PLATFORM="xcb",
                                    QT_SCALE_FACTOR="1", QT_ACCESSIBILITY="0")

    def xdotool(self, *arguments):
        subprocess.run(["xdotool", *map(str, arguments)], env=self.environment, check=True, timeout=30,
                       stdout=subprocess.DEVNULL)

    def key(self, *keys):
        self.xdotool("key", "--delay", 30, *keys)

    def wait_for_window(self, name):
        """Waits until a window of that name shows, and has had time for its keyboard."""
        end = time.monotonic() + LIMIT
        while time.monotonic() < end:
            found = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", name], env=self.environment,
                                   stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, timeout=30, check=False)
            if found.stdout.strip():
                time.sleep(0.7)
                return
            time.sleep(0.1)
        raise AssertionError(f"no window {name}")

    def close(self):
        self.server.terminate()
        self.server.wait()
