"""The display on which the tour takes place: windows, keys and pictures, by way of X."""

import re
import subprocess
import time

LIMIT = 60.0


class TourFailed(Exception):
    pass


def run(*command, **options):
    return subprocess.run(command, check=False, text=True, stdout=subprocess.PIPE,
                          stderr=subprocess.DEVNULL, **options).stdout


def wait_until(condition, what, limit=LIMIT):
    """Returns what the condition returned, as soon as that is true."""
    end = time.monotonic() + limit
    while time.monotonic() < end:
        result = condition()
        if result:
            return result
        time.sleep(0.05)
    raise TourFailed(f"In {limit:.0f} seconds did not happen: {what}")


def windows_of(pid, title="."):
    found = run("xdotool", "search", "--all", "--onlyvisible", "--pid", str(pid), "--name", title)
    return found.split()


def title_of(window):
    return run("xdotool", "getwindowname", window).strip()


def active_window():
    return run("xdotool", "getactivewindow").strip()


def press(window, *keys):
    run("xdotool", "windowactivate", "--sync", window)
    run("xdotool", "key", *keys)


def type_text(window, text):
    """Keys where the keyboard has them; the rest is pasted. Wine is late with the Shift key."""
    run("xdotool", "windowactivate", "--sync", window)
    if re.fullmatch("[A-Za-z0-9 ./-]*", text):
        run("xdotool", "type", "--delay", "20", "--", text)
        return
    # Its child serves the clipboard and must not hold our pipes.
    subprocess.run(["xclip", "-selection", "clipboard", "-i"], input=text, text=True, check=True,
                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    time.sleep(0.3)  # Wine takes the clipboard over when it has the time
    run("xdotool", "key", "ctrl+v")


def type_fast(window, lines):
    """Lines of figures, each with Enter, as fast as X hands keys over."""
    run("xdotool", "windowactivate", "--sync", window)
    run("xdotool", "key", "--delay", "1", *(key for line in lines for key in (*line, "Return")))


def picture(file):
    subprocess.run(["import", "-window", "root", file], check=True)
