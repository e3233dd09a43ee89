"""The peer, the document and other programs agree about every byte."""

import re
import subprocess
import unittest

from cryptography.hazmat.primitives.asymmetric import ec

import digits
import document
import frames
import identity
import messages
import tails
from private_road import transcript

MARKER = messages.to_clear(messages.MARKER)


def known(number):
    """The identity whose secret key is the number."""
    return identity.Identity(ec.derive_private_key(number, ec.SECP256R1()))


CAROL, BOB = known(1), known(2)
S, C = tails.with_tail("S", "Bob"), tails.with_tail("C", "")
HELLO_LINE = r"{\rtf1\ansi hello}"


class Clear(unittest.TestCase):
    def test_marker(self):
        self.assertEqual(document.dumps("The marker"), [MARKER])
        self.assertEqual(len(MARKER), 69)

    def test_messages(self):
        start, nickname, action, line = document.dumps("Examples")
        self.assertEqual(start, messages.to_clear(messages.named("S", "Bob")))
        self.assertEqual(MARKER + nickname, messages.to_clear(messages.named("N", "Βασίλης")))
        waving = messages.action(r"{\rtf1\ansi Bob waves}")
        self.assertEqual(MARKER + action, messages.to_clear(waving))
        self.assertEqual(line, messages.to_clear(HELLO_LINE))

    def test_a_tail_is_found_where_it_stands(self):
        for sent, kind in ((S, "S"), (C, "C")):
            found = tails.find(sent, kind)
            self.assertEqual((found.words, found.end), ([tails.SECURE], len(sent)))
            self.assertEqual(tails.find(sent[:-1], kind), tails.BEGUN)
            self.assertIsNone(tails.find(sent[:sent.index(b"+")], kind))
            self.assertIsNone(tails.find(sent, "SC".replace(kind, "")))
        self.assertIsNone(tails.find(tails.with_tail("S", "Bob", "x" * 63), "S"))
        self.assertTrue(tails.find(tails.with_tail("S", "Bob", "x" * 62), "S"))
        plain = messages.to_clear(messages.named("S", "Bob"))
        self.assertIsNone(tails.find(plain + b"secure/1\0", "S"))


class Private(unittest.TestCase):
    def test_example(self):
        hash_of_both = transcript(S, C)
        parts = (frames.frame(frames.PART, b"\xe2\x82") + frames.frame(frames.ALIVE)
                 + frames.frame(frames.TEXT, b"\xac"))
        self.assertEqual(document.dumps("An example"), [
            S[len(MARKER):],
            C[len(MARKER):],
            frames.hello(frames.CALLER, hash_of_both, "Carol"),
            frames.hello(frames.CALLEE, hash_of_both, "Bob"),
            frames.text(messages.named("S", "Bob")),
            frames.text(HELLO_LINE),
            frames.acknowledgement(2),
            parts,
            frames.frame(frames.GOODBYE),
            CAROL.spki,
            CAROL.fingerprint,
        ])

    def test_lengths_that_the_example_names(self):
        text = document.chapter("An example")
        for length, what in ((len(S), "S"), (len(C), "C")):
            self.assertIn(f"the {length} bytes of `{what}` with a tail", text)
        self.assertIn(f"the marker has {len(messages.MARKER.encode('utf-8'))} bytes", text)

    def test_digits_and_invitation(self):
        self.assertEqual(document.digits(), digits.digits(BOB.spki, CAROL.spki))
        invitation = re.search(r"`(verlume://\S+)`", document.chapter("An example"))[1]
        self.assertEqual(identity.from_link(invitation), CAROL.fingerprint)
        self.assertTrue(invitation.endswith("=" + identity.as_link(CAROL.fingerprint)))


class OtherPrograms(unittest.TestCase):
    """Programs that share nothing with this peer name the same key alike."""

    def test_digits_of_perl(self):
        script = r"""
            use Digest::SHA qw(sha512); binmode STDIN; local $/; my $key = <STDIN>;
            my $hash = sha512("verlume-safety-1\0" . $key);
            $hash = sha512($hash . $key) for 1..5200;
            my @five = map { [unpack 'C5', substr($hash, 5 * $_, 5)] } 0..5;
            my @numbers = map { my $n = 0; $n = $n * 256 + $_ for @$_; $n % 100000 } @five;
            print join ' ', map { sprintf '%05d', $_ } @numbers;"""
        for spki in (CAROL.spki, BOB.spki, identity.Identity().spki):
            digits_of_perl = run("perl", "-e", script, sent=spki)
            self.assertEqual(digits_of_perl.decode("ascii"), digits.half(spki))

    def test_fingerprint_of_openssl(self):
        made = identity.Identity()
        certificate = made.certificate.public_bytes(identity.PEM)
        public_key = run("openssl", "x509", "-noout", "-pubkey", sent=certificate)
        spki = run("openssl", "pkey", "-pubin", "-outform", "DER", sent=public_key)
        self.assertEqual(spki, made.spki)
        self.assertEqual(run("openssl", "dgst", "-sha256", "-binary", sent=spki), made.fingerprint)


def run(*command, sent):
    return subprocess.run(command, input=sent, stdout=subprocess.PIPE, check=True).stdout


if __name__ == "__main__":
    unittest.main()
