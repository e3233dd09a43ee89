"""About > System Info: the program that the registry names, or a box that says that there is none."""

import os
import pathlib
import shutil
import subprocess

from copies import ENGLISH, GREEK
from desktop import press, run, wait_until
from names import expect

TOOL_KEY = r"HKLM\SOFTWARE\Microsoft\Shared Tools\MSINFO"
FOLDER_KEY = r"HKLM\SOFTWARE\Microsoft\Shared Tools Location"
ABOUT = {ENGLISH: ("/HELPABOUT", "About"), GREEK: ("/ΒΟΉΘΕΙΑΣΧΕΤΙΚΆ", "Σχετικά")}
UNAVAILABLE = {ENGLISH: "System information", GREEK: "Πληροφορίες συστήματος"}
OF_TOOL = "About System Information"  # how winver titles its box when it is called MSINFO32.EXE
# Values that start nothing: the type and the content.
USELESS = (("REG_DWORD", "7"), ("REG_BINARY", "41004200"), ("REG_MULTI_SZ", "C:\\a.exe"), ("REG_SZ", ""),
           ("REG_SZ", "C:\\nowhere\\x.exe"), ("REG_SZ", "C:\\windows"), ("REG_SZ", "C:\\" + "x" * 7000))


def set_value(key, value, kind, content):
    subprocess.run(["wine", "reg", "add", key, "/v", value, "/t", kind, "/d", content, "/f"], check=True,
                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)


def forget_values():
    for key in (TOOL_KEY, FOLDER_KEY):
        run("wine", "reg", "delete", key, "/f")


def tools_windows():
    return run("xdotool", "search", "--onlyvisible", "--name", f"^{OF_TOOL}$").split()


def ask(copy, is_there):
    """Presses the button, and closes what comes."""
    command, title = ABOUT[copy.language]
    copy.type_line(command)
    about = wait_until(lambda: copy.windows(f"^{title}$"), "the box About opens")[-1]
    press(about, "Tab", "space")
    if is_there:
        tool = wait_until(tools_windows, "System Info starts the program")[-1]
        press(tool, "Escape")
        wait_until(lambda: not tools_windows(), "the program ends")
    else:
        copy.answer(UNAVAILABLE[copy.language], "Return")
    expect(copy.windows(f"^{title}$"), "the box About has closed")
    press(about, "Escape")
    wait_until(lambda: len(copy.windows()) == 1, "the box About closes")


def system_info(tour):
    tool = tour.folder / "MSINFO32.EXE"
    shutil.copy(pathlib.Path(os.environ["WINEPREFIX"]) / "drive_c/windows/system32/winver.exe", tool)
    try:
        for language in (ENGLISH, GREEK):
            bob = tour.copy(True, "Bob", language)
            forget_values()
            ask(bob, False)
            for kind, content in USELESS if language == ENGLISH else ():
                set_value(TOOL_KEY, "PATH", kind, content)
                ask(bob, False)
            set_value(TOOL_KEY, "PATH", "REG_SZ", bob.native(tool))
            ask(bob, True)
            forget_values()
            set_value(FOLDER_KEY, "MSINFO", "REG_SZ", bob.native(tour.folder))
            ask(bob, True)
            tour.leave(bob)
            tour.say("System Info, with and without its program")
    finally:
        forget_values()
