"""The whole program with its window, by way of verlume_network_peer: a user types, and looks."""

import os
import shutil
import subprocess
import tempfile
import threading

import wire
from victim import wait_until
from wire import LIMIT

SETTINGS = """[General]
Language=0
Nickname=Victim
DateStamp=False
TimeStamp=False
Macrosfolder={0}/macros/
{1}
[Logging]
Logfolder={0}/logs/
Logdialogue=True
"""


class Window:
    def __init__(self, path, settings=""):
        """`settings` are lines of the section General."""
        self._folder = tempfile.TemporaryDirectory()
        self.folder = self._folder.name
        for name in ("macros", "logs"):
            os.mkdir(os.path.join(self.folder, name))
        with open(os.path.join(self.folder, "Verlume.ini"), "w", newline="\r\n") as file:
            file.write(SETTINGS.format(self.folder, settings))
        program = shutil.copy(path, self.folder)
        self.lines = []
        self.seen = {}  # the last report of each kind
        self.boxes = []
        self._process = subprocess.Popen(
            [program], stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True, encoding="utf-8",
            env={**os.environ, "QT_QPA_PLATFORM": "offscreen"})
        threading.Thread(target=self._read, daemon=True).start()
        self.wait_for("ready", "")

    def enter(self, line):
        self._process.stdin.write(f"enter {line}\n")
        self._process.stdin.flush()

    def wait_for_call(self):
        """Returns the port."""
        free = wire.listen_below_32768()
        free.close()
        self.enter(f"/WAIT {free.port}")
        self.wait_for("status", f"Local port: {free.port}. Waiting")
        return free.port

    def wait_for(self, report, text, limit=2 * LIMIT):
        wait_until(lambda: report in self.seen and text in self.seen[report], limit)

    def wait_for_line(self, part, limit=2 * LIMIT):
        wait_until(lambda: any(part in line for line in self.lines), limit)

    def close(self):
        self._process.stdin.close()
        status = self._process.wait(2 * LIMIT)
        self._process.stdout.close()
        self._folder.cleanup()
        if status:
            raise AssertionError(f"the program has ended with {status}")

    def _read(self):
        for report in self._process.stdout:
            kind, _, text = report.rstrip("\n").partition(" ")
            self.seen[kind] = text
            if kind == "line":
                self.lines.append(text)
            elif kind == "box":
                self.boxes.append(text)
