"""Where the program lies, and a second start of it: folders with long and odd names, what is handed over to
the first copy, and a pipe that somebody else has made before."""

import hashlib
import subprocess
import time

from copies import ENGLISH, GREEK, Copy
from desktop import TourFailed, wait_until
from names import expect
from scenes import CONNECTED, INCOMING, connect, hang_up, wait_for_call
from troubles import Foreign

ODD = "Ωμέγα & 100% 'it' 😀 (x86)"
LONG = "/".join(["Ένας φάκελος με μακρύ όνομα, όπως τους έχουν πολλοί"] * 6)
PATIENCE = 2.0  # seconds, of the program with a first copy that does not answer


def talk_from(tour, folder, what):
    anna = Copy(tour.programs[True], tour.folder / "odd" / folder, "Άννα", GREEK)
    tour.copies.append(anna)
    bob = tour.copy(False, "Bob", ENGLISH)
    (anna.folder / "macros" / "Γεια.rtf").write_bytes(rb"{\rtf1\ansi Hello from far away}")
    connect(anna, bob)
    anna.type_line("/γεια")
    bob.await_line("Άννα", "Hello from far away")
    bob.type_line("Good morning")
    anna.await_line("Bob", "Good morning")
    hang_up(anna, bob)
    anna.type_line("/NICK Μαρία")
    wait_until(lambda: anna.setting("Nickname") == "Μαρία", "the setting is in the file")
    tour.leave(anna, bob)
    tour.say(f"the program in {what}")


def hand_over(tour):
    """The first copy does what the second was started for, which ends."""
    anna, bob = tour.copy(True, "Anna", ENGLISH), tour.copy(False, "Bob", ENGLISH)
    port = wait_for_call(bob)
    second = subprocess.Popen(["wine", str(anna.program), "--call", "127.0.0.1", port], stderr=subprocess.DEVNULL)
    wait_until(lambda: second.poll() is not None, "the second copy ends")
    expect(second.returncode == 0, "the second copy fails")
    bob.answer(INCOMING[ENGLISH], "Return")
    anna.await_line("Bob", CONNECTED[ENGLISH])
    tour.say("a second start hands its call over")
    tour.leave(anna, bob)


def pipe_of(copy):
    path = copy.native(copy.folder).replace("\\", "/")
    return "verlume-" + hashlib.sha256(path.encode()).hexdigest()[:32]


def taken_pipe(tour):
    """Whoever has made the pipe before hears nothing, and keeps nobody waiting for long."""
    bob = tour.copy(True, "Bob", ENGLISH)
    bob.kill()
    usual = time_to_start(bob)
    bob.kill()
    foreign = Foreign(tour, "pipe", pipe_of(bob), tour.folder / (pipe_of(bob) + ".held"))
    others = []
    try:
        for start in ("first", "second"):
            took = time_to_start(bob)
            others.append(bob.process)
            if took > usual + PATIENCE + 2:
                raise TourFailed(f"with a pipe of somebody else the {start} start takes {took:.1f} s, else {usual:.1f}")
    finally:
        foreign.end()
        for process in others:
            process.kill()
    tour.say(f"a start takes {usual:.1f} s, with a pipe of somebody else {took:.1f} s")


def time_to_start(copy):
    begin = time.monotonic()
    copy.start()
    return time.monotonic() - begin


def places(tour):
    talk_from(tour, ODD, "a folder with an odd name")
    talk_from(tour, LONG, f"a path of {len(LONG)} characters")
    hand_over(tour)
    taken_pipe(tour)
