"""Tails, what is no tail, and what is put in clear behind one."""

import time
import unittest

import messages
import tails
import wire
from attack_case import AttackCase
from clear_road import ClearRoad
from frames import CALLEE, CALLER
from victim import wait_until
from wire import LIMIT

EVIL = messages.to_clear(messages.document("evil"))


def opening(attacker):
    """The attacker's S or C without a tail."""
    kind, name = ("S", "Mallory") if attacker.role == CALLEE else ("C", "")
    return messages.to_clear(messages.named(kind, name))


class Glued(AttackCase):
    def test_in_the_same_write(self):
        for glued in (EVIL, b"\0", b"+", tails.tail(tails.SECURE), b"\x16\x03\x01\0\x05hello",
                      messages.to_clear(messages.named("N", "Eve"))):
            with self.subTest(glued=glued):
                self.in_both_roles(lambda role: self.refused(
                    role, lambda attacker: attacker.tails(glued)))

    def test_behind_both_tails(self):
        def attack(attacker):
            attacker.tails()
            attacker.wire.send(EVIL)
        self.in_both_roles(lambda role: self.refused(role, attack))

    def test_both_openings_twice(self):
        def attack(attacker):
            attacker.tails()
            attacker.wire.send(attacker.s if attacker.role == CALLEE else attacker.c)
        self.in_both_roles(lambda role: self.refused(role, attack))

    def test_nothing_in_clear_follows_the_tails(self):
        """Whatever else goes wrong: what the victim has sent behind its tail is TLS."""
        def attack(attacker):
            attacker.tails()
            attacker.wire.send(b"\x15\x03\x03\0\2\2\x28")  # handshake_failure

        def check(role):
            came = self.ended(role, attack)
            self.assertIn(came[:1], (b"", b"\x15", b"\x16"))
            self.assertNotIn(b"maet", came)
        self.in_both_roles(check)


class NoTails(AttackCase):
    def goes_clear(self, behind_name, split=None):
        """A first message that ends so is one of a peer that cannot talk privately."""
        def check(role):
            attacker = self.attacker(role)
            data = opening(attacker) + behind_name
            if attacker.role == CALLER:
                first = attacker.wire.receive()
                self.assertTrue(tails.find(first, "S"))
            attacker.wire.send(data[:split])
            if split:
                attacker.wire.send(data[split:])
            self.talks_in_clear(attacker)
        self.in_both_roles(check)

    def talks_in_clear(self, attacker):
        road = ClearRoad(attacker.wire)
        if attacker.role == CALLEE:
            while not road.texts:
                road.step(LIMIT)
            self.assertEqual(messages.kind_of(road.texts.popleft()), "C")
        self.victim.wait_until_connected()
        self.assertTrue(self.victim.is_clear())
        road.send(messages.document("in clear"))
        self.victim.wait_for_line("in clear")
        self.victim.say("so be it")
        while not any("so be it" in text for text in road.texts):
            road.step(LIMIT)
        road.close()
        self.victim.wait_for_end()

    def test_what_is_no_tail(self):
        for behind in (b"", b"secure/1\0", b"\0+secure/1\0", b" +secure/1\0", b"+\0",
                       b"+secure/11\0", b"+secure\0", b"+Secure/1\0", b"+tls other/1\0",
                       b"+secure/1" + b" " + b"x" * 54 + b"\0", b"+secure/1 \xe1\0"):
            with self.subTest(behind=behind):
                self.goes_clear(behind)

    def test_a_tail_that_does_not_end(self):
        start = time.monotonic()
        self.goes_clear(b"+secure/1")
        # Once in each role; timers need not be exact.
        self.assertGreater(time.monotonic() - start, 2 * 0.9 * tails.PATIENCE)


class Variants(AttackCase):
    def test_other_words_are_ignored(self):
        def begin(attacker):
            words = ("later/2", tails.SECURE, "x")
            if attacker.role == CALLER:
                attacker.s = attacker.wire.receive()
                attacker.c = tails.with_tail("C", "", *words)
                attacker.wire.send(attacker.c)
            else:
                attacker.s = tails.with_tail("S", "Mallory", *words)
                attacker.wire.send(attacker.s)
                attacker.c = attacker.wire.receive()
            attacker.handshake()
        self.begins_well(begin)

    def test_a_tail_in_pieces(self):
        def begin(attacker):
            if attacker.role == CALLER:
                attacker.s = attacker.wire.receive()
                attacker.c = tails.with_tail("C", "")
                self.send_in_pieces(attacker.wire, attacker.c)
            else:
                attacker.s = tails.with_tail("S", "Mallory")
                self.send_in_pieces(attacker.wire, attacker.s)
                attacker.c = attacker.wire.receive()
            attacker.handshake()
        self.begins_well(begin)

    def begins_well(self, begin):
        def check(role):
            _, road = self.talks_privately(role, begin)
            self.finish(road)
        self.in_both_roles(check)

    @staticmethod
    def send_in_pieces(connected, data):
        """Each is acknowledged by the other machine, and read there, before the next goes."""
        cut = data.index(b"+") + 1
        for piece in (data[:cut], data[cut:cut + 3], data[cut + 3:]):
            road = ClearRoad(connected)
            road.send(messages.from_clear(piece))


class OutOfTurn(AttackCase):
    def test_a_confirmation_before_the_start(self):
        """C before S is one of a peer that cannot talk privately, tail or not."""
        caller = wire.connect("127.0.0.1", self.victim.listen(asks=True))
        self.addCleanup(caller.close)
        caller.send(tails.with_tail("C", ""))
        wait_until(lambda: not caller.unacknowledged())
        self.victim.let_in()
        self.victim.wait_until_connected()
        self.assertTrue(self.victim.is_clear())

    def test_the_opening_of_the_other_side(self):
        """S to the callee, C to the caller: each is the one of a peer that cannot."""
        for role, kind in ((CALLEE, "S"), (CALLER, "C")):
            with self.subTest(kind=kind):
                attacker = self.attacker(role)
                if role == CALLEE:
                    attacker.wire.receive()
                attacker.wire.send(tails.with_tail(kind, "Mallory"))
                self.victim.wait_until_connected()
                self.assertTrue(self.victim.is_clear())
                attacker.close()
                self.victim.wait_for_end()


if __name__ == "__main__":
    unittest.main()
