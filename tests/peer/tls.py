"""TLS over a Wire: what is said privately, and the key of the other side."""

from OpenSSL import SSL, crypto
from OpenSSL._util import lib

import identity
from frames import Broken
from wire import LIMIT, Late

SIGNATURE = "ecdsa_secp256r1_sha256"


def context(own, signature=SIGNATURE):
    """Of one side that proves `own`; None shows no certificate."""
    made = SSL.Context(SSL.TLS_METHOD)
    made.set_min_proto_version(SSL.TLS1_3_VERSION)
    made.set_session_cache_mode(SSL.SESS_CACHE_OFF)
    made.set_verify(SSL.VERIFY_PEER | SSL.VERIFY_FAIL_IF_NO_PEER_CERT, lambda *_: True)
    if signature:
        lib.SSL_CTX_set1_sigalgs_list(made._context, signature.encode("ascii"))
    if own:
        certificate = own.certificate
        if not isinstance(certificate, crypto.X509):
            certificate = crypto.X509.from_cryptography(certificate)
        made.use_certificate(certificate)
        made.use_privatekey(crypto.PKey.from_cryptography_key(own.key))
    return made


class TlsWire:
    """Reads and writes as a Wire does. Ends with close_notify."""

    def __init__(self, wire, tls_context, server):
        self.wire = wire
        self.server = server
        self.connection = SSL.Connection(tls_context)
        if server:
            self.connection.set_accept_state()
        else:
            self.connection.set_connect_state()

    def handshake(self, limit=LIMIT):
        """Raises Broken if it fails, Late."""
        while True:
            try:
                self.connection.do_handshake()
                break
            except SSL.WantReadError:
                self._flush()
                self._feed(limit)
            except SSL.Error as error:
                self._flush()
                raise Broken(f"TLS: {error}") from None
        self._flush()

    def peer_key(self, own_spki):
        """The SubjectPublicKeyInfo of the other side. Raises Broken if it may not talk."""
        leaf = self.connection.get_peer_certificate()
        chain = self.connection.get_peer_cert_chain() or []
        # A server is not told the leaf as a part of the chain.
        count = len(chain) + (1 if self.server and leaf else 0)
        if not leaf or count != 1:
            raise Broken(f"{count} certificates")
        key = leaf.to_cryptography().public_key()
        if getattr(getattr(key, "curve", None), "name", "") != "secp256r1":
            raise Broken("a key that is not on P-256")
        # Made of the numbers alone, it is in the one form in which a key may be written.
        spki = identity.public_bytes(key.public_numbers().public_key())
        if spki not in leaf.to_cryptography().tbs_certificate_bytes:
            raise Broken("a key that is not written as it should")
        if spki == own_spki:
            raise Broken("the own key")
        return spki

    def receive(self, limit=LIMIT):
        """What has come, b"" at the end. Raises Late and Broken."""
        while True:
            try:
                return self.connection.recv(65536)
            except SSL.WantReadError:
                self._flush()
                if not self._feed(limit, ends=False):
                    return b""
            except (SSL.ZeroReturnError, SSL.SysCallError):
                return b""
            except SSL.Error as error:
                self._flush()
                raise Broken(f"TLS: {error}") from None

    def send(self, data, limit=LIMIT):
        for start in range(0, len(data), 16384):
            try:
                self.connection.sendall(data[start:start + 16384])
            except SSL.Error:
                raise ConnectionError("TLS has ended") from None
            self._flush(limit)

    def finish(self):
        try:
            self.connection.shutdown()
            self._flush()
        except (SSL.Error, ConnectionError, Late):
            pass  # the other side is gone
        self.wire.finish()

    def close(self):
        self.wire.close()

    def _feed(self, limit, ends=True):
        data = self.wire.receive(limit)
        if data:
            self.connection.bio_write(data)
        elif ends:
            raise Broken("the connection has ended in the handshake")
        return data

    def _flush(self, limit=LIMIT):
        try:
            while True:
                self.wire.send(self.connection.bio_read(65536), limit)
        except SSL.WantReadError:
            pass  # all has been sent
