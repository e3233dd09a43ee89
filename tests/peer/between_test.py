"""Someone between changes, cuts, repeats and mixes what two that can talk privately say."""

import os
import unittest

import identity
import messages
import wire
from attack_case import MALLORY, ROLES, AttackCase
from attacker import Attacker
from between import CHANGES, Between, Cut, Faithful, Records, Replace, Strip
from frames import CALLEE, CALLER, Broken
from victim import PythonVictim, wait_until

HONEST = identity.Identity()
EVERY = int(os.environ.get("CUT_EVERY", "29"))  # bytes between the cuts inside TLS


class BetweenCase(AttackCase):
    def setUp(self):
        self.honest = PythonVictim(HONEST)

    def join(self, role, change):
        """The victim plays `role`, an honest peer the other one, with somebody between."""
        caller, callee = self.sides(role)
        between = Between(callee.listen(), change)
        caller.call(between.port)
        self.addCleanup(between.wait)
        return between

    def sides(self, role):
        return (self.victim, self.honest) if role == CALLER else (self.honest, self.victim)

    def part(self, between):
        """Both hang up, if they have not yet."""
        for side in (self.honest, self.victim):
            side.hang_up()
            side.wait_for_end()
        between.wait()


class Tails(BetweenCase):
    def test_one_who_changes_nothing(self):
        def check(role):
            between = self.join(role, Faithful())
            for side in (self.honest, self.victim):
                side.wait_until_connected()
                self.assertTrue(side.is_private())
            self.victim.say("a secret")
            self.honest.wait_for_line("a secret")
            self.assertEqual(self.honest.safety_digits(), self.victim.safety_digits())
            self.part(between)
            self.assertNotIn(b"a secret", b"".join(between.seen.values()))
        self.in_both_roles(check)

    def test_without_the_tail_of_s_both_go_clear(self):
        def check(role):
            between = self.join(role, Strip("S"))
            for side in (self.honest, self.victim):
                side.wait_until_connected()
                self.assertTrue(side.is_clear())
            self.victim.say("for everybody")
            self.honest.wait_for_line("for everybody")
            self.part(between)
        self.in_both_roles(check)

    def test_without_the_tail_of_c_the_caller_hangs_up(self):
        def check(role):
            between = self.join(role, Strip("C"))
            caller, callee = self.sides(role)
            callee.wait_until_connected()
            self.assertTrue(callee.is_clear())
            callee.say("for everybody")
            caller.wait_for_end()
            self.assertFalse(caller.is_private() or caller.is_clear())
            self.assertEqual(caller.lines(), [])
            self.part(between)
        self.in_both_roles(check)

    def test_changed_openings_are_noticed(self):
        for old, new in ((b"secure/1\0", b"secure/1 x\0"), (b"Victim\0", b"Vicky\0")):
            with self.subTest(new=new):
                self.in_both_roles(lambda role: self.nobody_talks(role, Replace(old, new)))

    def nobody_talks(self, role, change):
        between = self.join(role, change)
        for side in (self.honest, self.victim):
            side.wait_for_end()
            self.assertFalse(side.is_private())
            self.assertEqual(side.lines(), [])
        between.wait()


class Sealed(BetweenCase):
    def test_changed_records(self):
        """Who receives the changed record ends the connection, whatever it was."""
        for direction, receiver in (("to_caller", CALLER), ("to_callee", CALLEE)):
            for number in range(4):
                for name, (_, needs_next) in CHANGES.items():
                    # Nothing follows ClientHello before it is answered.
                    if needs_next and (direction, number) == ("to_caller", 0):
                        continue
                    with self.subTest(direction=direction, number=number, change=name):
                        self.changed(receiver, Records(direction, number, name))

    def changed(self, role, change):
        between = self.join(role, change)
        self.victim.wait_for_end()
        self.honest.hang_up()
        between.wait()
        self.assertTrue(change.done)
        self.assertEqual(self.victim.lines(), [])
        self.assertFalse(self.victim.is_clear())

    def test_every_cut_ends_both(self):
        for direction in ("to_caller", "to_callee"):
            length = self.length_of_beginning(direction)
            for name, role in ROLES.items():
                for count in [*range(90), *range(90, length, EVERY)]:
                    with self.subTest(direction=direction, victim=name, count=count):
                        self.cut(role, direction, count)

    def length_of_beginning(self, direction):
        """How many bytes go there until both are connected."""
        between = self.join(CALLER, Faithful())
        for side in (self.honest, self.victim):
            side.wait_until_connected()
        length = len(between.seen[direction])
        self.part(between)
        return length

    def cut(self, role, direction, count):
        change = Cut(direction, count)
        between = self.join(role, change)
        wait_until(lambda: change.done or self.honest.is_connected())
        if not change.done:
            self.honest.hang_up()  # so little may not have been sent
        self.victim.wait_for_end()
        self.honest.wait_for_end()
        between.wait()
        # A marker that is cut is none, and so a line.
        self.assertTrue(all(messages.MARKER.startswith(line) for line in self.victim.lines()))

    def test_what_was_recorded_cannot_be_played_again(self):
        def check(role):
            between = self.join(role, Faithful())
            self.honest.wait_until_connected()
            self.honest.say("once and no more")
            self.victim.wait_for_line("once and no more")
            self.part(between)
            recorded = between.seen["to_caller" if role == CALLER else "to_callee"]
            self.refused(role, lambda attacker: replay(attacker, recorded))
        self.in_both_roles(check)


def replay(attacker, recorded):
    """What came from the other side, and at its time: behind the first word of the victim."""
    if attacker.role == CALLER:
        attacker.wire.receive()
    end = recorded.index(b"\0", recorded.index(b"+")) + 1
    attacker.wire.send(recorded[:end])
    attacker.wire.receive()
    attacker.wire.send(recorded[end:])


class Keys(BetweenCase):
    """Somebody between who talks privately with each of the two."""

    def meet_both(self):
        """The victim calls, and the honest side is called. Returns the roads to them."""
        callee_port = self.honest.listen()
        listener = wire.Listener()
        self.victim.call(listener.port)
        to_victim = Attacker(listener.accept(), CALLER, MALLORY)
        to_honest = Attacker(wire.connect("127.0.0.1", callee_port), CALLEE, MALLORY)
        listener.close()
        self.roads = to_victim, to_honest
        for road in self.roads:
            self.addCleanup(road.close)
        to_honest.s = to_honest.wire.receive()
        to_victim.s, to_honest.c = to_honest.s, b""
        to_victim.wire.send(to_victim.s)
        to_victim.c = to_honest.c = to_victim.wire.receive()
        to_honest.wire.send(to_honest.c)
        return to_victim.handshake().connect(), to_honest.handshake().connect()

    def test_the_digits_tell(self):
        to_victim, to_honest = self.meet_both()
        self.assertTrue(self.victim.is_private() and self.honest.is_private())
        self.assertNotEqual(self.victim.safety_digits(), self.honest.safety_digits())
        for road in (to_victim, to_honest):
            road.close()
        for side in (self.victim, self.honest):
            side.wait_for_end()

    def test_who_expects_a_key_hangs_up(self):
        self.victim.expect(HONEST.fingerprint)
        self.addCleanup(self.victim.expect, None)
        with self.assertRaises((Broken, ConnectionError)):
            self.meet_both()
        self.victim.wait_for_end()
        self.assertFalse(self.victim.is_private() or self.victim.is_clear())
        for road in self.roads:
            road.close()
        self.honest.wait_for_end()

    def test_who_expects_a_key_gets_it(self):
        self.victim.expect(HONEST.fingerprint)
        self.addCleanup(self.victim.expect, None)
        between = self.join(CALLER, Faithful())
        self.victim.wait_until_connected()
        self.assertTrue(self.victim.is_private())
        self.part(between)

    def test_who_expects_a_key_says_nothing_in_clear(self):
        self.victim.expect(HONEST.fingerprint)
        self.addCleanup(self.victim.expect, None)
        between = self.join(CALLER, Strip("S"))
        self.victim.wait_for_end()
        between.wait()
        self.assertEqual(between.seen["to_callee"], b"")
        self.assertEqual(self.victim.lines(), [])


if __name__ == "__main__":
    unittest.main()
