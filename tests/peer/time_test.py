"""Whom the program gives up, and whom it keeps: half a minute each, all at once."""

import threading
import time
import unittest

from attack_case import MALLORY, make_victim
from attacker import Attacker, meet
from conversation import Conversation
from frames import CALLEE, CALLER
from wire import Late

LIMIT = 30.0  # seconds: of the proof, and of silence
MARGIN = 8.0  # seconds


def silent(attacker):
    attacker.tails()


def drip(attacker):
    """A byte of a record of TLS each second: something comes, but never the proof."""
    attacker.tails()
    if attacker.role == CALLER:
        attacker.wire.receive()  # ClientHello, before which no byte may come
    for byte in b"\x16\x03\x03\x40\0\x02\0\x3f\xf0" + b"\3" * 100:
        attacker.wire.send(bytes([byte]))
        try:
            if not attacker.wire.receive(1.0) or attacker.wire.ended:
                return
        except Late:
            pass  # the victim still waits


def without_hello(attacker):
    """The key is proved, and nothing is said."""
    attacker.tails().handshake()


def speechless(attacker):
    """Not even that it is alive."""
    attacker.tails().handshake().connect()


def gives_up(victim, role, act):
    attacker = Attacker(meet(victim, role), role, MALLORY)
    start = time.monotonic()
    act(attacker)
    attacker.drain(LIMIT + MARGIN)
    victim.wait_for_end(MARGIN)
    took = time.monotonic() - start
    attacker.close()
    if not LIMIT - MARGIN < took < LIMIT + MARGIN:
        raise AssertionError(f"after {took:.1f} s")


def stays(victim, role):
    """Both say nothing but that they are alive."""
    peer = Conversation(meet(victim, role), CALLER + CALLEE - role, MALLORY, "Carol")
    peer.begin()
    stay(peer)
    victim.say("still there")
    peer.say("still there")
    peer.wait_for_line("still there")
    peer.wait_for_delivery()
    peer.close()


def stays_while_the_user_thinks(victim, role):
    """Whether the peer is to be let in: its connection is kept, whatever it says."""
    connected = meet(victim, role, admits=False)
    peer = Conversation(connected, CALLER + CALLEE - role, MALLORY, "Carol")
    peer.settle()
    peer.say("too early")
    stay(peer)
    if victim.lines() or peer.connected and role == CALLER:
        raise AssertionError("was let in")
    victim.admit()
    peer.wait_for_delivery()
    victim.wait_for_line("too early")
    peer.close()


def stay(peer):
    deadline = time.monotonic() + LIMIT + MARGIN / 2
    while time.monotonic() < deadline:
        try:
            peer.step(deadline - time.monotonic())
        except Late:
            pass  # it was only alive


class Time(unittest.TestCase):
    def test_whom_it_gives_up_and_whom_it_keeps(self):
        self.errors = []
        acts = [stays, stays_while_the_user_thinks]
        acts += [lambda victim, role, act=act: gives_up(victim, role, act)
                 for act in (silent, drip, without_hello, speechless)]
        threads = [threading.Thread(target=self.play, args=(number, act, role))
                   for number, act in enumerate(acts) for role in (CALLER, CALLEE)]
        for thread in threads:
            thread.start()
        for thread in threads:
            thread.join()
        self.assertEqual(self.errors, [])

    def play(self, number, act, role):
        victim = make_victim()
        try:
            act(victim, role)
        except Exception as error:  # of a thread, for the test to tell
            self.errors.append(f"case {number}, role {role}: {error!r}")
        finally:
            victim.close()


if __name__ == "__main__":
    unittest.main()
