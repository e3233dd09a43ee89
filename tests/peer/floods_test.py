"""Peers that want to use up the memory or the descriptors of the program."""

import unittest

import frames
import tails
import wire
from attack_case import MALLORY, AttackCase
from attacker import Attacker, meet
from frames import ALIVE, CALLEE, CALLER, PART, TEXT, Broken, frame
from wire import Late

UNKNOWN = 77
MEGABYTE = 1024 * 1024
MOST_MEMORY = 48 * 1024  # KiB by which the victim may have grown at any time
BROKEN_OFF = 500  # connections in each role


class Measured(AttackCase):
    """The victim's memory and descriptors are those of before."""

    def setUp(self):
        self.before = self.victim.resources()

    def assert_small(self):
        memory, _ = self.victim.resources()
        self.assertLess(memory - self.before[0], MOST_MEMORY)

    def assert_as_before(self):
        self.victim.hang_up()
        self.assert_small()
        self.assertLessEqual(self.victim.resources()[1], self.before[1] + 2)


class Floods(Measured):
    def test_megabytes_while_the_user_is_asked(self):
        caller = wire.connect("127.0.0.1", self.victim.listen(asks=True))
        self.addCleanup(caller.close)
        self.flood(caller.send, b"x" * MEGABYTE, 64)
        self.assert_small()
        caller.close()
        self.victim.hang_up()
        self.assert_as_before()

    def test_megabytes_of_handshake(self):
        """Records of TLS that belong to one message of 16 MB."""
        record = b"\x16\x03\x03\x40\0"
        first = record + b"\x02\xff\xff\xff" + b"\0" * 0x3ffc
        data = first + (record + b"\0" * 0x4000) * 63

        def check(role):
            self.refused(role, lambda attacker: self.flood(attacker.tails().wire.send, data, 32))
            self.assert_as_before()
        self.in_both_roles(check)

    def test_megabytes_before_anybody_is_let_in(self):
        for data in (frames.text("x" * 60_000) * 16, frame(PART, b"x" * 65536) * 16,
                     frames.text("") * 50_000):
            with self.subTest(begin=data[:6]):
                attacker = Attacker(self.met_but_not_admitted(), CALLEE, MALLORY)
                self.addCleanup(attacker.close)
                attacker.tails().handshake().road()
                self.flood(attacker.tls.send, data, 48)
                self.assert_small()
                self.assertEqual(self.victim.lines(), [])
                attacker.close()
                self.assert_as_before()

    def met_but_not_admitted(self):
        return wire.connect("127.0.0.1", self.victim.listen(admits=False))

    def test_megabytes_that_are_skipped(self):
        self.swallows(frame(UNKNOWN, b"x" * 65536) * 16, 48)
        self.swallows(frame(ALIVE) * 50_000, 4)

    def test_a_text_without_an_end(self):
        self.swallows(frame(PART, b"x" * 65536) * 16, 48)
        self.swallows(frame(PART) * 50_000, 4)

    def test_texts_without_a_character(self):
        self.swallows(frame(TEXT) * 20_000, 2)

    def test_a_peer_that_never_reads(self):
        """It has all acknowledged that it sends, and takes no acknowledgement."""
        for frame_of_many in (frame(TEXT), frames.acknowledgement(1)):
            with self.subTest(frame=frame_of_many):
                attacker, _ = self.talks_privately(CALLEE)
                for _ in range(60):
                    send_without_reading(attacker, frame_of_many * 50_000)
                    self.assert_small()
                attacker.wire.reset()
                self.victim.wait_for_end()
                self.assert_as_before()

    def swallows(self, data, times):
        """All of it is read, and the victim still talks."""
        def check(role):
            attacker, road = self.talks_privately(role)
            for _ in range(times):
                attacker.tls.send(data)
                self.assert_small()
            attacker.tls.send(frame(TEXT, b" still there"))
            self.victim.wait_for_line(" still there", 30)
            self.finish(road)
            self.assert_as_before()
        self.in_both_roles(check)

    def flood(self, send, data, times):
        """Until the victim takes no more."""
        try:
            for _ in range(times):
                send(data, 1.0)
        except (Late, ConnectionError):
            pass  # its buffers are full, or it has hung up


def send_without_reading(attacker, data):
    """Waits only where the victim has stopped to read, which is an end as good as another."""
    attacker.wire.socket.settimeout(1.0)
    for start in range(0, len(data), 16384):
        attacker.tls.connection.sendall(data[start:start + 16384])
        try:
            attacker.wire.socket.sendall(attacker.tls.connection.bio_read(65536))
        except TimeoutError:
            return


class BrokenOff(Measured):
    def test_many_connections_that_are_broken_off(self):
        def check(role):
            for number in range(BROKEN_OFF):
                attacker = Attacker(meet(self.victim, role), role, MALLORY)
                try:
                    STAGES[number % len(STAGES)](attacker)
                except Broken:
                    self.fail("the victim was first")
                attacker.wire.reset()
                self.victim.wait_for_end()
            self.assertEqual(self.victim.lines(), [])
            self.assert_as_before()
            _, road = self.talks_privately(role)
            self.finish(road)
        self.in_both_roles(check)


def half_a_tail(attacker):
    """Waits until it is there, or a victim that listens might not be asked about this caller."""
    if attacker.role == CALLER:
        attacker.wire.receive()
        attacker.wire.send(tails.with_tail("C", "")[:-4])
    else:
        attacker.wire.send(tails.with_tail("S", "Mallory")[:-4])


def half_a_handshake(attacker):
    attacker.tails()
    attacker.wire.send(b"\x16\x03\x03\x00\x80\x02\x00\x00\x7c\x03\x03")


STAGES = [half_a_tail, lambda attacker: attacker.tails(), half_a_handshake,
          lambda attacker: attacker.tails().handshake(),
          lambda attacker: attacker.tails().handshake().road()]


if __name__ == "__main__":
    unittest.main()
