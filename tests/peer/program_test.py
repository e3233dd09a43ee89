"""The program talks with this peer as the document says, in both roles, private and not."""

import unittest

import frames
import messages
import tails
import wire
from attack_case import MALLORY, AttackCase
from attacker import Attacker, meet
from conversation import Conversation
from frames import CALLEE, CALLER
from victim import wait_until
from wire import Late


class ProgramCase(AttackCase):
    def setUp(self):
        self.addCleanup(self.victim.expect, None)
        self.addCleanup(self.victim.offer, "when")

    def begin(self, role, own=MALLORY):
        """A conversation with the program, which plays `role`, up to S and C."""
        made = Conversation(meet(self.victim, role), CALLER + CALLEE - role, own, "Κάρολος")
        self.addCleanup(made.close)
        made.begin()
        self.victim.wait_until_connected()
        self.assertEqual(made.peer_name, "Victim")
        return made

    def talk(self, peer, lines):
        """Each side says all of the lines, and hears all of the other's in their order."""
        for line in lines:
            self.victim.say(line)
            peer.say(line)
        documents = [messages.document(line) for line in lines]
        peer.wait_until(lambda: len(peer.lines) == len(lines))
        self.assertEqual(peer.lines, documents)
        peer.wait_for_delivery()
        wait_until(lambda: len(self.victim.lines()) == len(lines))
        self.assertEqual(self.victim.lines(), documents)

    def part(self, peer):
        self.victim.hang_up()
        return peer.wait_for_end()


class Private(ProgramCase):
    def test_conversation(self):
        def check(role):
            peer = self.begin(role)
            self.assertTrue(peer.road.private and self.victim.is_private())
            self.assertEqual(peer.peer_spki, self.victim.own.spki)
            self.assertEqual(peer.safety_digits(), self.victim.safety_digits())
            self.assertEqual(peer.road.peer_name, "Victim")
            self.assertEqual(self.victim.name_of_peer(), "Κάρολος")
            self.talk(peer, [f"line {number}: €, ж, 😀" for number in range(100)])
            self.assertEqual(self.part(peer), "goodbye")
        self.in_both_roles(check)

    def test_long_lines(self):
        def check(role):
            peer = self.begin(role)
            line = "x" * 300_000
            peer.say(line)
            self.victim.say(line)
            peer.wait_for_line(line)
            peer.wait_for_delivery()
            self.part(peer)
        self.in_both_roles(check)

    def test_long_names_are_cut_between_characters(self):
        self.addCleanup(self.victim.call_oneself, "Victim")
        for name, heard in (("😀" * 40, "😀" * 32), ("x" + "😀" * 40, "x" + "😀" * 31), ("", "")):
            self.victim.call_oneself(name)
            peer = self.begin(CALLEE)
            self.assertEqual(peer.road.peer_name, heard)
            self.part(peer)

    def test_names_of_peers(self):
        for name, heard in ((b"", ""), (b"x" * 128, "x" * 128), (b"a\xffb", "a\ufffdb"),
                            ("\u202e€\0\n".encode("utf-8"), "\u202e€\0\n")):
            with self.subTest(name=name):
                attacker = self.attacker(CALLEE).tails().handshake()
                body = bytes([frames.CALLER]) + attacker.transcript() + name
                attacker.send_frame(frames.HELLO, body)
                wait_until(self.victim.is_private)
                self.assertEqual(self.victim.name_of_peer(), heard)
                attacker.close()
                self.victim.wait_for_end()

    def test_goodbye_is_answered(self):
        """By the acknowledgement of all that came before it, and goodbye."""
        def check(role):
            attacker, road = self.talks_privately(role)
            texts = [frames.text(messages.document(f"line {number}")) for number in range(50)]
            attacker.tls.send(b"".join(texts) + frames.frame(frames.GOODBYE))
            came = frames.Decoder().feed(self.read_to_end(attacker.tls))
            self.assertEqual(came[-1], (frames.GOODBYE, b""))
            self.assertEqual(came[-2], (frames.ACKNOWLEDGEMENT, (51).to_bytes(8, "big")))
            attacker.close()
            self.victim.wait_for_end()
            self.assertEqual(len(self.victim.lines()), 50)
        self.in_both_roles(check)

    @staticmethod
    def read_to_end(tls):
        came = b""
        while data := tls.receive():
            came += data
        return came

    def test_the_peer_hangs_up(self):
        def check(role):
            peer = self.begin(role)
            peer.say("the last word")
            peer.close()
            self.victim.wait_for_end()
            self.assertEqual(len(self.victim.lines()), 1)
            self.assertTrue(self.victim.heard_goodbye)
        self.in_both_roles(check)

    def test_a_peer_that_is_cut_off_has_not_said_goodbye(self):
        def check(role):
            attacker, _ = self.talks_privately(role)
            attacker.tls.finish()  # the end of TLS alone
            attacker.close()
            self.victim.wait_for_end()
            self.assertFalse(self.victim.heard_goodbye)
        self.in_both_roles(check)

    def test_what_was_said_before_hanging_up_arrives(self):
        def check(role):
            peer = self.begin(role)
            self.victim.say("the last word")
            self.assertEqual(self.part(peer), "goodbye")
            self.assertEqual(len(peer.lines), 1)
        self.in_both_roles(check)

    def test_nothing_is_shown_or_acknowledged_before_the_peer_is_let_in(self):
        def check(role):
            connected = meet(self.victim, role, admits=False)
            peer = Conversation(connected, CALLER + CALLEE - role, MALLORY, "Carol")
            self.addCleanup(peer.close)
            peer.settle()
            peer.say("too early")
            # S goes to a caller even now, but no C comes back.
            with self.assertRaises(Late):
                peer.wait_for_delivery(0.5)
            wait_until(self.victim.is_private)
            self.assertEqual(peer.connected, role == CALLEE)
            self.assertFalse(self.victim.is_connected())
            self.assertEqual(self.victim.lines(), [])
            self.assertEqual(peer.road.acknowledged, 0)
            self.victim.admit()
            peer.wait_until(lambda: peer.connected)
            peer.wait_for_delivery()
            self.part(peer)
        self.in_both_roles(check)

    def test_a_peer_that_leaves_before_it_is_let_in(self):
        """What it has said is neither shown nor acknowledged, then or later."""
        def check(role):
            attacker = Attacker(meet(self.victim, role, admits=False), role, MALLORY)
            self.addCleanup(attacker.close)
            attacker.tails().handshake().road()
            attacker.tls.send(frames.text(messages.document("too early"))
                              + frames.frame(frames.GOODBYE))
            came = frames.Decoder().feed(self.read_to_end(attacker.tls))
            self.assertNotIn(frames.ACKNOWLEDGEMENT, [kind for kind, _ in came])
            attacker.close()
            self.victim.wait_for_end()
            self.victim.admit()
            self.assertGreater(self.victim.resources()[0], 0)  # it has been done
            self.assertEqual(self.victim.lines(), [])
        self.in_both_roles(check)

    def test_a_line_waits_until_the_peers_program_has_it(self):
        def check(role):
            attacker, road = self.talks_privately(role)
            for number in range(3):
                self.victim.say(f"line {number}")
            wait_until(lambda: step(road) and len(road.texts) == 3)
            self.assertEqual(self.victim.waiting(), 3)
            attacker.tls.send(frames.acknowledgement(road.acknowledgeable() - 1))
            wait_until(lambda: self.victim.waiting() == 1)
            attacker.tls.finish()
            self.victim.wait_for_end()
            self.assertEqual(self.victim.undelivered, 1)
        self.in_both_roles(check)


def step(road):
    """Always true."""
    try:
        road.step(0.01)
    except Late:
        pass  # nothing has come
    return True


class Failures(ProgramCase):
    """What the program is told of a connection that ends before its peer is known."""

    def fails(self, role, attack, failure):
        self.refused(role, attack)
        self.assertEqual(self.victim.failure, failure)

    def test_another_key(self):
        self.victim.expect(bytes(32))
        self.fails(CALLER, lambda attacker: attacker.tails().handshake().road(), "OtherKey")

    def test_no_key_where_one_is_expected(self):
        self.victim.expect(bytes(32))
        self.fails(CALLER, lambda attacker: attacker.wire.send(plain_opening(attacker)),
                   "NotOffered")

    def test_who_calls_may_have_any_key(self):
        self.victim.expect(bytes(32))
        self.part(self.begin(CALLEE))

    def test_a_broken_rule(self):
        def attack(attacker):
            attacker.tails()
            attacker.wire.send(b"in clear")
        self.in_both_roles(lambda role: self.fails(role, attack, "Broken"))

    def test_a_peer_that_leaves_before_its_proof(self):
        self.in_both_roles(lambda role: self.fails(
            role, lambda attacker: attacker.tails().wire.finish(), "Broken"))


class Clear(ProgramCase):
    def test_a_peer_that_cannot(self):
        def check(role):
            peer = self.begin(role, own=None)
            self.assertTrue(self.victim.is_clear())
            self.talk(peer, [f"line {number}" for number in range(10)])
            self.assertEqual(self.part(peer), "closed")
        self.in_both_roles(check)

    def test_a_program_that_does_not_want_to(self):
        self.victim.offer("never")

        def check(role):
            peer = self.begin(role)
            self.assertFalse(peer.road.private)
            self.talk(peer, [f"line {number}" for number in range(10)])
            self.part(peer)
        self.in_both_roles(check)

    def test_not_a_byte_tells_of_never(self):
        self.victim.offer("never")
        caller = wire.connect("127.0.0.1", self.victim.listen())
        self.assertEqual(caller.receive(), messages.to_clear(messages.named("S", "Victim")))
        caller.close()
        self.victim.wait_for_end()
        callee = meet(self.victim, CALLER)
        callee.send(tails.with_tail("S", "Bob"))
        self.assertEqual(callee.receive(), messages.to_clear(messages.named("C", "Victim")))
        callee.close()
        self.victim.wait_for_end()

    def test_only_private_ones_are_talked_to(self):
        self.victim.offer("only")

        def check(role):
            self.refused(role, lambda attacker: attacker.wire.send(plain_opening(attacker)))
            self.assertEqual(self.victim.failure, "NotOffered")
            self.part(self.begin(role))
        self.in_both_roles(check)


def plain_opening(attacker):
    if attacker.role == CALLER:
        attacker.wire.receive()
        return messages.to_clear(messages.named("C", "Mallory"))
    return messages.to_clear(messages.named("S", "Mallory"))


if __name__ == "__main__":
    unittest.main()
