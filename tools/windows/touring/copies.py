"""Copies of the program, under Wine or on Linux, each in a folder of its own."""

import os
import pathlib
import shutil
import signal
import subprocess
import time

from desktop import active_window, press, type_text, wait_until, windows_of

SETTINGS = """[General]
Language={language}
Nickname={name}
DateStamp=False
TimeStamp=False
Macrosfolder={folder}macros{slash}
PrivateConversations={privacy}
CheckSpelling=False
AskRouter=1
[Logging]
Logfolder={folder}logs{slash}
Logdialogue=True
"""
ENGLISH, GREEK = 0, 1


def decode(line):
    """As the program reads local text: UTF-8, or the code page of the machine."""
    for encoding in ("utf-8", "cp1253", "cp1252"):
        try:
            return line.decode(encoding)
        except UnicodeDecodeError:
            continue
    return line.decode("latin-1")


class Copy:
    def __init__(self, program, folder, name, language, privacy="WhenPossible"):
        self.is_windows = program.suffix == ".exe"
        self.folder = pathlib.Path(folder)
        self.name, self.language = name, language
        for part in ("macros", "logs"):
            (self.folder / part).mkdir(parents=True, exist_ok=True)
        self.program = self.folder / program.name
        for file in (program, *program.parent.glob("*.hlp")):
            shutil.copy(file, self.folder)
        self.settings = self.folder / "Verlume.ini"
        text = SETTINGS.format(language=language, name=name, privacy=privacy,
                               folder=self.native(self.folder) + self.slash, slash=self.slash)
        self.settings.write_bytes(text.replace("\n", "\r\n").encode())
        self.process = None
        self.start()

    @property
    def system(self):
        return "Wine" if self.is_windows else "Linux"

    @property
    def slash(self):
        return "\\" if self.is_windows else "/"

    def native(self, path):
        """The path as the program calls it."""
        return "Z:" + str(path).replace("/", "\\") if self.is_windows else str(path)

    def start(self, *arguments, refuse=()):
        """Waits until it takes keys; `refuse` are the titles of questions to which No is said before."""
        command = ["wine"] if self.is_windows else []
        environment = dict(os.environ)
        if not self.is_windows:  # they must not look for each other where the user's own copy is
            environment["XDG_RUNTIME_DIR"] = str(self.folder)
        self.process = subprocess.Popen([*command, str(self.program), *arguments], env=environment,
                                        cwd=self.folder, stdout=subprocess.DEVNULL,
                                        stderr=subprocess.DEVNULL)
        self.window = wait_until(lambda: self.windows("^Verlume$"), f"{self.name} starts")[-1]
        for title in refuse:
            self.answer(title, "Escape")
        wait_until(lambda: active_window() == self.window, f"{self.name} has the keyboard")
        time.sleep(1)  # Wine takes no key yet

    def windows(self, title="."):
        return windows_of(self.process.pid, title)

    def type_line(self, line):
        type_text(self.window, line)
        press(self.window, "Return")

    def answer(self, title, *keys):
        """Waits for a box and presses keys in it until it is gone. A box that nobody asked for takes
        no key during its first second."""
        box = wait_until(lambda: self.windows(f"^{title}$"), f"{self.name} is asked {title}")[-1]

        def is_gone():
            press(box, *keys)
            time.sleep(1.2)
            return not self.windows(f"^{title}$")
        wait_until(is_gone, f"{title} is answered")

    def log_file(self, peer):
        return self.folder / "logs" / f"{peer}.txt"

    def log(self, peer):
        file = self.log_file(peer)
        lines = file.read_bytes().split(b"\r\n") if file.exists() else []
        return [decode(line) for line in lines]

    def await_line(self, peer, part):
        wait_until(lambda: any(part in line for line in self.log(peer)),
                   f"{self.name}'s log of {peer} has “{part}”")

    @staticmethod
    def text_of(file):
        return "\n".join(decode(line) for line in file.read_bytes().split(b"\r\n"))

    def setting(self, key):
        for line in self.text_of(self.settings).splitlines():
            if line.startswith(key + "="):
                return line.partition("=")[2]
        return None

    def end(self):
        """As a user does; during a conversation the program would ask."""
        self.type_line("/EXIT" if self.language == ENGLISH else "/ΈΞΟΔΟΣ")
        wait_until(lambda: self.process.poll() is not None, f"{self.name} ends")

    def kill(self):
        self.process.send_signal(signal.SIGKILL)
        self.process.wait()
