"""Peers that prove their key and then send frames that they may not."""

import unittest

import frames
import messages
from attack_case import AttackCase
from frames import (ACKNOWLEDGEMENT, ALIVE, CALLEE, CALLER, GOODBYE, HELLO, PART, TEXT, frame)

EVIL = r"{\rtf1\ansi evil}"
UNKNOWN = 77


def head(kind, length):
    """Of a frame whose body never comes."""
    return length.to_bytes(4, "big") + bytes([kind])


class BeforeHello(AttackCase):
    def refused_first(self, make):
        """`make` gets the attacker and returns the bytes that it sends first inside TLS."""
        def attack(attacker):
            attacker.tails().handshake()
            attacker.tls.send(make(attacker))
        self.in_both_roles(lambda role: self.refused(role, attack))

    def test_other_frames_first(self):
        for first in (frames.text(EVIL), frame(PART, b"evil"), frames.acknowledgement(0),
                      frame(ALIVE), frame(GOODBYE)):
            with self.subTest(first=first):
                self.refused_first(lambda attacker, first=first: first + self.good(attacker))

    def test_unknown_kinds_are_skipped_even_here(self):
        def begin(attacker):
            attacker.tails().handshake()
            attacker.send_frame(UNKNOWN, b"x" * 65536)
            attacker.send_frame(0)

        def check(role):
            _, road = self.talks_privately(role, begin)
            self.finish(road)
        self.in_both_roles(check)

    def test_hellos_of_wrong_lengths(self):
        for length in (0, 1, 32, 162, 65536):
            with self.subTest(length=length):
                self.refused_first(lambda attacker, length=length: frame(
                    HELLO, (self.good(attacker)[5:38] + b"x" * length)[:length]))

    def test_lengths_above_the_limit(self):
        for kind in (HELLO, TEXT, UNKNOWN):
            for length in (65537, 0x01000000, 0xffffffff):
                with self.subTest(kind=kind, length=length):
                    self.refused_first(lambda attacker, data=head(kind, length): data)

    def test_wrong_roles(self):
        for role in (lambda own: CALLER + CALLEE - own, lambda own: 0, lambda own: 255):
            self.refused_first(lambda attacker, role=role: frames.hello(
                role(attacker.role), attacker.transcript(), "Mallory"))

    def test_wrong_transcripts(self):
        self.refused_first(lambda attacker: frames.hello(attacker.role, b"\0" * 32, "Mallory"))
        self.refused_first(lambda attacker: frames.hello(
            attacker.role, attacker.transcript()[:31] + b"\0", "Mallory"))

    @staticmethod
    def good(attacker):
        return frames.hello(attacker.role, attacker.transcript(), "Mallory")


class BehindHello(AttackCase):
    def ends(self, make):
        """`make` gets the road and returns the bytes that it sends once it is let in."""
        def attack(attacker):
            road = attacker.tails().handshake().connect()
            attacker.tls.send(make(road))
        self.in_both_roles(lambda role: self.ended(role, attack))

    def test_a_second_hello(self):
        self.ends(lambda road: frames.hello(road.role, road.transcript, "Eve") + frames.text(EVIL))

    def test_wrong_lengths(self):
        for data in (frame(ALIVE, b"x"), frame(GOODBYE, b"x"), frame(ACKNOWLEDGEMENT, b"\0" * 7),
                     frame(ACKNOWLEDGEMENT, b"\0" * 9), frame(ACKNOWLEDGEMENT), head(TEXT, 65537),
                     head(PART, 65537), head(UNKNOWN, 65537), head(TEXT, 0xffffffff)):
            with self.subTest(data=data):
                self.ends(lambda road, data=data: data + frames.text(EVIL))

    def test_acknowledgements_that_lie(self):
        """One text was sent to the attacker, and acknowledged."""
        for count in (0, 2, 2**32 + 1, 2**63, 2**64 - 1):
            with self.subTest(count=count):
                self.ends(lambda road, count=count:
                          frames.acknowledgement(count) + frames.text(EVIL))

    def test_anything_behind_goodbye(self):
        for data in (frames.text(EVIL), frame(UNKNOWN), frame(GOODBYE)):
            with self.subTest(data=data):
                self.ends(lambda road, data=data: frame(GOODBYE) + data)


class Tolerated(AttackCase):
    def hears(self, make, heard):
        """The bytes that `make` makes of the road are heard as these lines."""
        def check(role):
            attacker, road = self.talks_privately(role)
            make(attacker)
            for line in heard:
                self.victim.wait_for_line(line)
            self.assertEqual(self.victim.lines(), heard)
            self.finish(road)
        self.in_both_roles(check)

    def test_unknown_kinds(self):
        line = messages.document("known")
        unknown = b"".join(frame(kind, b"x" * 1000) for kind in (0, 7, UNKNOWN, 255))
        self.hears(lambda attacker: attacker.tls.send(unknown + frames.text(line)), [line])

    def test_a_character_that_is_cut(self):
        cut = frame(PART, b"\xe2\x82") + frame(ALIVE) + frame(PART) + frame(TEXT, b"\xac uro")
        self.hears(lambda attacker: attacker.tls.send(cut), ["€ uro"])

    def test_bytes_that_are_no_utf8(self):
        self.hears(lambda attacker: attacker.tls.send(frame(TEXT, b"a\xffb")), ["a\ufffdb"])

    def test_records_of_one_byte(self):
        line = messages.document("slowly")

        def send(attacker):
            for byte in frames.text(line):
                attacker.tls.send(bytes([byte]))
        self.hears(send, [line])

    def test_many_texts_at_once(self):
        many = [messages.document(f"line {number}") for number in range(200)]
        self.hears(lambda attacker: attacker.tls.send(b"".join(map(frames.text, many))), many)


if __name__ == "__main__":
    unittest.main()
