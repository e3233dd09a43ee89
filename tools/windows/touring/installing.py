"""The installer, the links of the scheme, and the uninstaller, which leaves the user's own files."""

import os
import pathlib
import shutil
import subprocess
import time

from desktop import press, run, wait_until
from names import expect

SCHEME_KEY = r"HKCU\Software\Classes\verlume\shell\open\command"
UNINSTALL_KEY = r"HKCU\Software\Microsoft\Windows\CurrentVersion\Uninstall\Verlume"
INVITATION = "verlume://127.0.0.1:9/?key=" + "A" * 43
RUNNING = 2  # how both end then, silently


def user_folder():
    return next((pathlib.Path(os.environ["WINEPREFIX"]) / "drive_c/users").glob("[!P]*"))


def value_of(key):
    """The first value of a key, or nothing."""
    lines = run("wine", "reg", "query", key, encoding="utf-8", errors="replace").splitlines()
    return next((line.split("REG_SZ")[1].strip() for line in lines if "REG_SZ" in line), "")


def silently(program, *arguments):
    return subprocess.run(["wine", str(program), "/S", *arguments], check=False).returncode


def window(title):
    found = wait_until(lambda: run("xdotool", "search", "--onlyvisible", "--name", f"^{title}$").split(), title)
    return found[-1]


def open_link(tour, program):
    """As a browser does: Wine looks for schemes of the whole machine only."""
    command = value_of(SCHEME_KEY)
    expect(command.endswith('verlume.exe" "%1"'), "the scheme is not entered")
    process = subprocess.Popen(["wine", str(program), INVITATION], stderr=subprocess.DEVNULL)
    for _ in range(2):  # the first start asks for a folder, and says what comes without one
        press(window("Macros folder definition"), "Escape")
        time.sleep(1)
    question = window("Invitation")
    tour.picture("an invitation is opened")
    press(question, "Escape")
    return process


def installed(tour):
    installer = next(iter(tour.programs[True].parent.glob("verlume-*-x86_64.exe")))
    folder = user_folder() / "AppData/Local/Programs/Verlume"
    shortcut = user_folder() / "AppData/Roaming/Microsoft/Windows/Start Menu/Programs/Verlume.lnk"
    shutil.rmtree(folder, ignore_errors=True)  # of a tour that failed
    expect(silently(installer) == 0, "it cannot be installed")
    parts = sorted(str(file.relative_to(folder)) for file in folder.iterdir())
    expect(parts == ["VerlumeGR.hlp", "VerlumeUK.hlp", "licences", "uninstall.exe", "verlume.exe"], f"{parts}")
    expect(shortcut.exists() and value_of(UNINSTALL_KEY), "there is no entry")
    tour.say("installed")
    program = folder / "verlume.exe"
    process = open_link(tour, program)
    tour.say("an invitation of the scheme asks first")
    # Else a copy of it goes on, and its end cannot be waited for.
    here = "_?=C:" + str(folder).split("drive_c")[1].replace("/", "\\")
    for attempt in (installer,), (folder / "uninstall.exe", here):
        expect(silently(*attempt) == RUNNING and program.exists(), f"{attempt[0].name} does not wait for the program")
    process.kill()
    process.wait()
    settings = wait_until(lambda: list(folder.glob("Verlume.ini")) or list(folder.glob("*.pem")), "own files")
    expect(silently(folder / "uninstall.exe") == 0, "it cannot be taken away")
    wait_until(lambda: not program.exists() and not (folder / "uninstall.exe").exists(), "all is gone")
    expect(settings[0].exists(), "the user's own files are gone")
    expect(not shortcut.exists() and not value_of(UNINSTALL_KEY) and not value_of(SCHEME_KEY), "entries are left")
    for file in settings:
        file.unlink()
    tour.say("taken away, but for the user's own files")
