"""Peers whose key or certificate is not what it has to be."""

import subprocess
import tempfile
import unittest

from OpenSSL import SSL, crypto
from cryptography.hazmat.primitives import serialization
from cryptography.hazmat.primitives.asymmetric import ec, ed25519, rsa

import identity
import tls
from attack_case import MALLORY, AttackCase
from frames import CALLER


def any_context(own):
    """Of an attacker that signs with whatever it has."""
    return tls.context(own, signature=None)


def show(make_context):
    return lambda attacker: attacker.tails().handshake(make_context(attacker.own)).road()


FRIEND = identity.Identity()


class Keys(AttackCase):
    def test_a_good_key_is_let_in(self):
        def check(role):
            attacker, road = self.talks_privately(
                role, lambda attacker: attacker.tails().handshake(any_context(attacker.own)))
            self.assertEqual(attacker.tls.peer_key(MALLORY.spki), self.victim.own.spki)
            self.finish(road)
        self.in_both_roles(check)

    def test_keys_of_other_kinds(self):
        for key in (rsa.generate_private_key(65537, 2048), ed25519.Ed25519PrivateKey.generate(),
                    ec.generate_private_key(ec.SECP384R1()),
                    ec.generate_private_key(ec.SECP256K1())):
            with self.subTest(key=type(key).__name__, curve=getattr(key, "curve", None)):
                own = identity.Identity(key)
                self.in_both_roles(lambda role: self.refused(role, show(any_context), own))

    def test_keys_that_are_written_in_another_way(self):
        for option in ("-conv_form", "compressed"), ("-param_enc", "explicit"):
            with self.subTest(option=option):
                own = written_with(option)
                self.in_both_roles(lambda role: self.refused(role, show(any_context), own))

    def test_the_victims_own_key(self):
        self.in_both_roles(lambda role: self.refused(role, show(any_context), self.victim.own))

    def test_no_certificate(self):
        """A server of TLS cannot begin without one."""
        self.refused(CALLER, show(lambda own: tls.context(None)))

    def test_two_certificates(self):
        def two(own):
            made = any_context(own)
            made.add_extra_chain_cert(crypto.X509.from_cryptography(FRIEND.certificate))
            return made
        self.in_both_roles(lambda role: self.refused(role, show(two)))

    def test_a_certificate_of_a_megabyte(self):
        own = identity.Identity()
        own.certificate = identity.certificate(own.key, comment="x" * 1_000_000)
        self.in_both_roles(lambda role: self.refused(role, show(any_context), own))

    def test_somebody_elses_certificate(self):
        self.in_both_roles(lambda role: self.refused(role, show(borrowed)))

    def test_an_earlier_session_proves_nothing(self):
        """The client of TLS asks to go on with its last session, which would need no key."""
        context = any_context(MALLORY)
        attacker, road = self.talks_privately(
            CALLER, lambda attacker: attacker.tails().handshake(context))
        session = attacker.tls.connection.get_session()
        self.finish(road)
        attacker = self.attacker(CALLER).tails()
        attacker.tls = tls.TlsWire(attacker.wire, context, server=False)
        attacker.tls.connection.set_session(session)
        attacker.tls.handshake()
        self.assertEqual(0, tls.lib.SSL_session_reused(attacker.tls.connection._ssl))
        road = attacker.connect()
        self.victim.wait_until_connected()
        self.finish(road)

    def test_older_tls(self):
        def older(own):
            made = any_context(own)
            tls.lib.SSL_CTX_set_min_proto_version(made._context, SSL.TLS1_2_VERSION)
            made.set_max_proto_version(SSL.TLS1_2_VERSION)
            return made
        self.in_both_roles(lambda role: self.refused(role, show(older)))


def written_with(option):
    """An identity whose certificate holds its point or its curve in an unusual form."""
    made = identity.Identity()
    secret = made.key.private_bytes(identity.PEM, serialization.PrivateFormat.TraditionalOpenSSL,
                                    serialization.NoEncryption())
    with tempfile.NamedTemporaryFile() as file:
        file.write(run("openssl", "ec", *option, sent=secret))
        file.flush()
        pem = run("openssl", "req", "-x509", "-subj", "/CN=x", "-key", file.name, sent=b"")
    made.certificate = crypto.load_certificate(crypto.FILETYPE_PEM, pem)
    return made


def run(*command, sent):
    return subprocess.run(command, input=sent, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL,
                          check=True).stdout


def borrowed(own):
    """The certificate of a friend, shown by somebody who does not have its secret key."""
    shown = crypto.X509.from_cryptography(own.certificate)
    made = tls.context(None, signature=None)
    made.use_certificate(shown)
    made.use_privatekey(crypto.PKey.from_cryptography_key(own.key))
    # The context checks that they belong together only when they are given to it.
    friend = crypto.PKey.from_cryptography_key(FRIEND.key)
    shown.set_pubkey(friend)
    shown.sign(friend, "sha256")
    return made


if __name__ == "__main__":
    unittest.main()
