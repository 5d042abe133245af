"""A display of its own on which the real program runs, with folders of its own, for scripts that drive it with
keys. Only an ordinary user may do that."""

import os
import shutil
import signal
import subprocess
import sys
import tempfile
import time

# A program that was built with a sanitizer writes what it found to the file of messages.
SANITIZER = {name: os.environ[name] for name in ("ASAN_OPTIONS", "UBSAN_OPTIONS") if name in os.environ}
PATIENCE = 60  # seconds for a window to appear


def table(path, rows):
    lines = [";", "; Values for colour, font type, font size, cell height, cell width", ";", "!16777215",
             "!Arial", "!12", "!372", ";", "; Column names", ";", "!Text", "!1920", "!More", "!1920", ";",
             "; File data", ";"]
    for row in range(1, rows + 1):
        lines += [f"@row_{row}", "?0000", "\xa716777215", "\xa70", "@col_1", "", "@col_2", "more " * 20]
    lines += [";", f"; End of File: {path}", ";", ""]
    return "\r\n".join(lines).encode("latin-1")


class Seat:
    """A display with folders of its own, on which one copy of the program runs."""

    def __init__(self, program, number):
        self.folder = tempfile.mkdtemp(prefix=f"korvane-seat-{number}-")
        read, write = os.pipe()
        self.xvfb = subprocess.Popen(["Xvfb", "-displayfd", str(write), "-screen", "0", "1280x900x24", "-nolisten",
                                      "tcp", "-noreset"], pass_fds=[write], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.close(write)
        # The number and the line end come separately, and Xvfb ends when nobody reads the second.
        with os.fdopen(read) as answer:
            display = answer.readline().strip()
        self.environment = {"PATH": os.environ["PATH"], "DISPLAY": f":{display}", "QT_QPA_PLATFORM": "xcb",
                            "LANG": "C.UTF-8", "QT_ACCESSIBILITY": "0", **SANITIZER}
        for name in ("HOME", "XDG_STATE_HOME", "XDG_CONFIG_HOME", "XDG_RUNTIME_DIR", "TMPDIR"):
            self.environment[name] = self.path(name.lower())
        self.program = program
        self.running = None

    def path(self, *names):
        return os.path.join(self.folder, *names)

    def clear(self):
        for name in os.listdir(self.folder):
            shutil.rmtree(self.path(name)) if os.path.isdir(self.path(name)) else os.remove(self.path(name))
        for name in ("home", "xdg_state_home", "xdg_config_home", "xdg_runtime_dir", "tmpdir", "bin"):
            os.mkdir(self.path(name), 0o700)
        shutil.copy(self.program, self.path("bin", "korvane"))
        shutil.copy(os.path.join(os.path.dirname(__file__), "..", "packaging", "Korvane.ini"), self.path("bin"))

    def start(self, *arguments):
        with open(self.path("messages"), "ab") as messages:
            self.running = subprocess.Popen([self.path("bin", "korvane"), *arguments], env=self.environment,
                                            cwd=self.path("home"), start_new_session=True, stdout=messages,
                                            stderr=messages)

    def ended(self):
        return self.running.poll() is not None

    def kill(self):
        if not self.ended():
            os.killpg(self.running.pid, signal.SIGKILL)
        self.running.wait()

    def state(self):
        return f"it ended with {self.running.returncode}" if self.ended() else "it runs without a window"

    def show(self, what):
        """Keeps the folder of a run in which something went wrong, for a person to look at."""
        shutil.copytree(self.folder, f"{self.folder}-{what}", symlinks=True,
                        ignore=shutil.ignore_patterns("*.socket"))

    def xdotool(self, *arguments):
        result = subprocess.run(["xdotool", *arguments], env=self.environment, capture_output=True, timeout=60)
        return result.stdout.decode().split()

    def windows(self):
        return self.xdotool("search", "--onlyvisible", "--name", "Korvane")

    def go_to_window(self, other_than=None):
        end = time.monotonic() + PATIENCE
        while time.monotonic() < end and not self.ended():
            for window in self.windows():
                if window != other_than:
                    self.xdotool("windowfocus", window)
                    return window
            time.sleep(0.05)
        return None

    def close(self):
        if self.running is not None:
            self.kill()
        self.xvfb.terminate()
        self.xvfb.wait()
        shutil.rmtree(self.folder, ignore_errors=True)


def refuse_root():
    if os.getuid() == 0:
        sys.exit("not as root, because the program gets random keys")
