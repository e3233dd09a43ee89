"""A key pair on P-256, the certificate that carries it, and what names it."""

import base64
import datetime
import hashlib
import os

from cryptography import x509
from cryptography.hazmat.primitives import hashes, serialization
from cryptography.hazmat.primitives.asymmetric import ec
from cryptography.x509.oid import NameOID

PEM = serialization.Encoding.PEM
DER = serialization.Encoding.DER


def public_bytes(public_key):
    """The SubjectPublicKeyInfo in DER."""
    return public_key.public_bytes(DER, serialization.PublicFormat.SubjectPublicKeyInfo)


def fingerprint(spki):
    return hashlib.sha256(spki).digest()


def as_link(fingerprint_bytes):
    """The 43 characters of an invitation."""
    return base64.urlsafe_b64encode(fingerprint_bytes).rstrip(b"=").decode("ascii")


def from_link(text):
    """Of 43 characters, or of a whole invitation."""
    data = base64.urlsafe_b64decode(text.rpartition("key=")[2] + "=")
    if len(data) != 32:
        raise ValueError("a fingerprint has 43 characters")
    return data


class Identity:
    """`key` may be of any kind: a bad peer shows others than P-256."""

    def __init__(self, key=None):
        self.key = key or ec.generate_private_key(ec.SECP256R1())
        self.certificate = certificate(self.key)
        self.spki = public_bytes(self.key.public_key())
        self.fingerprint = fingerprint(self.spki)


def load(path):
    """The identity in the file, which is made if there is none."""
    if os.path.exists(path):
        with open(path, "rb") as file:
            return Identity(serialization.load_pem_private_key(file.read(), None))
    made = Identity()
    pem = made.key.private_bytes(PEM, serialization.PrivateFormat.PKCS8,
                                 serialization.NoEncryption())
    with open(os.open(path, os.O_WRONLY | os.O_CREAT | os.O_EXCL, 0o600), "wb") as file:
        file.write(pem)
    return made


def certificate(key, public_key=None, comment=""):
    """An envelope for the public key of `key`, or another, signed by `key`. `comment` fills it."""
    name = x509.Name([x509.NameAttribute(NameOID.COMMON_NAME, "peer")])
    builder = (x509.CertificateBuilder().subject_name(name).issuer_name(name)
               .public_key(public_key or key.public_key())
               .serial_number(x509.random_serial_number())
               .not_valid_before(datetime.datetime(2000, 1, 1))
               .not_valid_after(datetime.datetime(2001, 1, 1)))
    if comment:
        extension = x509.UnrecognizedExtension(x509.ObjectIdentifier("1.3.6.1.4.1.1.1"),
                                               comment.encode("ascii"))
        builder = builder.add_extension(extension, critical=False)
    return builder.sign(key, _digest(key))


def _digest(key):
    """Ed25519 has its own."""
    return None if type(key).__name__ == "_Ed25519PrivateKey" else hashes.SHA256()
