"""Conversations: Wine and Wine, Wine and Linux, both ways, private and plain, and at full speed."""

import random
import subprocess
import sys

from copies import ENGLISH, GREEK
from desktop import TourFailed, type_fast, wait_until
from scenes import connect, hang_up, wait_for_call

LINES = ("Good morning, $r!", "Καλημέρα, $r! Κοστίζει 5 €", r"C:\new {braces} \b 100%")


def talk(one, other):
    for sender, receiver in ((one, other), (other, one)):
        for line in LINES:
            sender.type_line(line)
            receiver.await_line(sender.name, f"<{sender.name}>" + line.replace("$r", receiver.name))


def conversations(tour):
    for other_is_windows in (True, False):
        for privacy in ("WhenPossible", "Never"):
            anna = tour.copy(True, "Άννα", GREEK, privacy)
            bob = tour.copy(other_is_windows, "Bob", ENGLISH)
            for caller, callee in ((anna, bob), (bob, anna)):
                connect(caller, callee)
                talk(caller, callee)
                tour.picture(f"talk with {bob.system}, {privacy}, {caller.name} calls")
                hang_up(caller, callee)
                tour.say(f"{caller.system} calls {callee.system}, {privacy}")
            tour.leave(anna, bob)


def said_in(copy, peer):
    begin = f"<{peer}>"
    stripped = (line.partition("]")[2] for line in copy.log(peer))
    return [line[len(begin):] for line in stripped if line.startswith(begin)]


def check_arrived(copy, peer, lines):
    arrived = said_in(copy, peer)
    if arrived != lines:
        raise TourFailed(f"{len(arrived)} lines of {len(lines)} arrived, or other ones")


def full_speed(tour):
    """As fast as keys come, and as fast as a peer can: each text stays one line, and none is lost."""
    anna, bob = tour.copy(True, "Άννα", GREEK, "Never"), tour.copy(True, "Bob", ENGLISH)
    connect(anna, bob)
    lines = [str(number) for number in range(300)]
    type_fast(anna.window, lines)
    bob.await_line("Άννα", f"<Άννα>{lines[-1]}")
    check_arrived(bob, "Άννα", lines)
    hang_up(anna, bob)
    tour.leave(anna)
    tour.say(f"{len(lines)} lines as fast as keys come, plain")

    lines = [f"text {number} " + "x" * random.randrange(1, 200) for number in range(2000)]
    port = wait_for_call(bob)
    said = [part for line in lines for part in ("--say", line)]
    flood = subprocess.Popen(
        [sys.executable, "-B", tour.peer, "--call", "127.0.0.1", port, "--name", "Flood", "--key",
         str(tour.folder / "flood.pem"), "--limit", "200", *said, "--until-delivered"], stdout=subprocess.DEVNULL)
    bob.answer("Incoming call", "Return")
    wait_until(lambda: flood.poll() == 0, "the flood is taken", 200)
    bob.await_line("Flood", "Disconnected.")
    check_arrived(bob, "Flood", lines)
    tour.say(f"{len(lines)} texts in one go, private")
    tour.leave(bob)
