"""Names that Windows refuses: devices, streams, dots and blanks at the end."""

import subprocess
import sys

from copies import ENGLISH, GREEK
from desktop import TourFailed, press, type_text, wait_until
from keeping import SAVE, SAVE_COMMAND
from scenes import DISCONNECTED, INCOMING, wait_for_call

# The nickname of a peer, and how its log is called.
LOGS = {"CON": "CON_", "NUL": "NUL_", "com1": "com1_", "AUX.txt": "AUX_.txt", "LPT1 .x": "LPT1 _.x",
        "a:b": "a_b", "name.": "name.", "name ": "name ", "..": "_"}
REFUSED_MACROS = ("con", "NUL", "com1", "a:b", "x.y")
NO_MACROS = ("/con", "/nul", "/a:b", r"/..\x", r"/\\.\pipe\x", "/NUL.rtf")
REFUSED_FILES = ("con.rtf", "NUL", "aux", "x:y.rtf", "name.rtf.", "name.rtf ", "name.rtf::$DATA")
MACRO_NAME = {ENGLISH: "Macro name", GREEK: "Όνομα μακροεντολής"}
# F10 opens the first menu of this system.
SAVE_MACRO_KEYS = ("F10", "Right", "Right", "Right", "Down", "Return")


def files_in(folder):
    return sorted(str(file.relative_to(folder)) for file in folder.rglob("*"))


def expect(truth, what):
    if not truth:
        raise TourFailed(what)


def call_as(tour, copy, name, *steps):
    """A peer of that name calls, and is accepted."""
    port = wait_for_call(copy)
    key = tour.folder / f"{name.encode().hex()}.pem"
    peer = subprocess.Popen([sys.executable, "-B", tour.peer, "--call", "127.0.0.1", port, "--name", name,
                             "--key", str(key), "--limit", "60", "--say", f"I am {name}", *steps],
                            stdout=subprocess.DEVNULL)
    copy.answer(INCOMING[copy.language], "Return")
    copy.await_line(LOGS[name], f"I am {name}")
    return peer


def logs(tour, copy):
    for name, log in LOGS.items():
        peer = call_as(tour, copy, name, "--expect", "Good", "--until-delivered")
        copy.type_line("Good")
        wait_until(lambda: peer.poll() is not None, f"{name} hears the answer")
        expect(peer.returncode == 0, f"{name} did not hear the answer")
        copy.await_line(log, DISCONNECTED[copy.language])
        copy.log_file(log).unlink()
    expect(not files_in(copy.folder / "logs"), "there are other logs")
    tour.say("conversations with " + ", ".join(LOGS))


def other_window(copy, title, known, what):
    found = wait_until(lambda: [window for window in copy.windows(title) if window not in known], what)
    return found[-1]


def macros(tour, copy):
    title = f"^{MACRO_NAME[copy.language]}$"
    type_text(copy.window, "Hello from a macro")
    press(copy.window, *SAVE_MACRO_KEYS)
    question = other_window(copy, title, (), "the name is asked for")
    for name in (*REFUSED_MACROS, "possible"):
        press(question, "ctrl+a")
        type_text(question, name)
        press(question, "Return")
        if name == "possible":
            break
        refusal = other_window(copy, title, (question,), f"a macro {name} is refused")
        press(refusal, "Return")
        question = other_window(copy, title, (question, refusal), "the name is asked for again")
    wait_until((copy.folder / "macros" / "possible.rtf").exists, "the macro is saved")
    for line in NO_MACROS:
        copy.type_line(line)
    expect(files_in(copy.folder / "macros") == ["possible.rtf"], "there are other macros")
    expect(len(copy.windows()) == 1, "a line that is no macro opens a box")
    tour.say("macros: " + ", ".join(REFUSED_MACROS) + " are refused")


def dialogues(tour, copy):
    """The file dialog stays open, the conversation goes on, and the dialogue can still be saved."""
    peer = call_as(tour, copy, "CON", "--stay", "300")
    before = files_in(copy.folder)
    copy.type_line(SAVE_COMMAND[copy.language])
    copy.answer(SAVE[copy.language], "Return")
    title = f"^{SAVE[copy.language]} RTF$"
    dialog = other_window(copy, title, (), "the file dialog opens")
    for name in REFUSED_FILES:
        press(dialog, "ctrl+a")
        type_text(dialog, copy.native(copy.folder) + "\\" + name)
        press(dialog, "Return")
        refusal = other_window(copy, title, (dialog,), f"{name} is refused")
        press(refusal, "Return")
        wait_until(lambda gone=refusal: gone not in copy.windows(title), "the refusal closes")
    expect(files_in(copy.folder) == before, "there are other files")
    press(dialog, "ctrl+a")
    type_text(dialog, copy.native(copy.folder) + "\\possible.rtf")
    press(dialog, "Return")
    wait_until((copy.folder / "possible.rtf").exists, "the dialogue is saved")
    copy.type_line("Still here")
    copy.await_line(LOGS["CON"], "Still here")
    expect(peer.poll() is None, "the conversation has ended")
    peer.kill()
    tour.say("dialogues: " + ", ".join(REFUSED_FILES) + " are refused")


def names(tour):
    for language in (ENGLISH, GREEK):
        bob = tour.copy(True, "Bob", language)
        if language == ENGLISH:
            logs(tour, bob)
        macros(tour, bob)
        if language == GREEK:  # in English the file dialog is the system's, which refuses by itself
            dialogues(tour, bob)
        tour.leave(bob)
