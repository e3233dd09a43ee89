"""What is kept: dialogues, macros and settings, from one system to the other, and when it is killed."""

import random
import shutil
import time

from copies import ENGLISH, GREEK
from desktop import TourFailed, press, type_text, wait_until
from scenes import connect, hang_up

SAVE = {ENGLISH: "Save dialogue as", GREEK: "Αποθήκευση διαλόγου ως"}
LOAD = {ENGLISH: "Load dialogue", GREEK: "Φόρτωμα διαλόγου"}
SAVE_COMMAND = {ENGLISH: "/SAVEDIALOGUEAS", GREEK: "/ΑΠΟΘΉΚΕΥΣΗΔΙΑΛΌΓΟΥΩΣ"}
LOAD_COMMAND = {ENGLISH: "/LOADDIALOGUE", GREEK: "/ΦΌΡΤΩΜΑΔΙΑΛΌΓΟΥ"}
EXTENSION_KEYS = {"rtf": ["Return"], "txt": ["Right", "Return"]}  # Yes has the focus, No is next


def choose_file(copy, command, title, file):
    extension = file.suffix[1:]
    copy.type_line(command)
    copy.answer(title, *EXTENSION_KEYS[extension])
    dialog = wait_until(lambda: copy.windows(f"^{title} (as|ως) {extension.upper()}|^{title} "
                                             f"{extension.upper()}"), "the file dialog opens")[-1]
    type_text(dialog, copy.native(file))
    press(dialog, "Return")
    wait_until(lambda: len(copy.windows()) == 1, "the file dialog closes")


def save(copy, file):
    choose_file(copy, SAVE_COMMAND[copy.language], SAVE[copy.language], file)
    wait_until(file.exists, f"{copy.name} saves {file.name}")


def load(copy, file):
    choose_file(copy, LOAD_COMMAND[copy.language], LOAD[copy.language], file)


def dialogues_and_macros(tour):
    """A macro of one system and its dialogue, opened on the other."""
    anna = tour.copy(True, "Άννα", GREEK)
    bob = tour.copy(False, "Bob", ENGLISH)
    (anna.folder / "macros" / "Γεια.rtf").write_bytes(
        rb"{\rtf1\ansi\ansicpg1253 {\b Hello} from $l's macro}")
    connect(anna, bob)
    anna.type_line("/γεια")
    bob.await_line("Άννα", "Hello from Άννα's macro")
    tour.say("a macro")
    bob.type_line("Ένα μήνυμα που φυλάσσεται")
    anna.await_line("Bob", "φυλάσσεται")
    for writer, reader in ((anna, bob), (bob, anna)):
        for extension in ("rtf", "txt"):
            file = tour.folder / f"Διάλογος της {writer.name}.{extension}"
            copied = tour.folder / f"Αντίγραφο {writer.name} {extension}.txt"
            save(writer, file)
            load(reader, file)
            save(reader, copied)
            for part in ("Hello from Άννα's macro", "Ένα μήνυμα που φυλάσσεται"):
                if part not in reader.text_of(copied):
                    raise TourFailed(f"{file.name} lacks “{part}” at {reader.name}'s place")
        tour.say(f"a dialogue of {writer.system} on {reader.system}")
    hang_up(anna, bob)
    tour.leave(anna, bob)


def settings(tour):
    """Kept over a restart, and read by the other system."""
    bob = tour.copy(True, "Bob", ENGLISH)
    bob.type_line("/NICK Βασίλης")
    bob.type_line("/TIME")
    wait_until(lambda: bob.setting("TimeStamp") == "True", "the setting is in the file")
    bob.end()
    before = bob.settings.read_bytes()
    bob.start()
    bob.type_line("/TIME")
    bob.end()
    if bob.settings.read_bytes() != before or bob.setting("Nickname") != "Βασίλης":
        raise TourFailed("the settings are others after a restart")
    carol = tour.copy(False, "Carol", ENGLISH)
    carol.kill()
    shutil.copy(bob.settings, carol.settings)
    # Folders of Windows are none here.
    carol.start(refuse=("Dialogue logging", "Macros folder definition"))
    carol.type_line("/NODATE")
    carol.end()
    if carol.setting("Nickname") != "Βασίλης":
        raise TourFailed("the settings of Windows are lost on Linux")
    tour.say("settings over a restart, and on Linux")


def killed(tour, times=12):
    """The file of settings is whole, whenever the program is killed while it writes."""
    bob = tour.copy(True, "Bob", ENGLISH)
    for _ in range(times):
        for command in ("/TIME", "/NOTIME") * 2:
            type_text(bob.window, command)
            press(bob.window, "Return")
        time.sleep(random.random() / 5)  # it is somewhere in its writing
        bob.kill()
        if bob.setting("Nickname") != "Bob" or bob.setting("Logdialogue") != "True":
            raise TourFailed("the settings are not whole")
        bob.start()
    bob.end()
    left = [file.name for file in bob.folder.glob(".verlume*")]
    if left:
        raise TourFailed(f"{left} are left beside the settings")
    tour.say(f"killed {times} times while it wrote")
