"""The other end of a victim's connection, which goes as far as it should and then goes wrong."""

import time

import frames
import messages
import tails
import wire
from frames import CALLEE, CALLER, Broken
from private_road import PrivateRoad, transcript
from tls import TlsWire, context
from wire import LIMIT


def meet(victim, role, **how):
    """A connection to the victim, which plays `role` in it, and lets the peer in as `how` says."""
    if role == CALLEE:
        return wire.connect("127.0.0.1", victim.listen(**how))
    listener = wire.Listener()
    victim.call(listener.port, **how)
    try:
        return listener.accept()
    finally:
        listener.close()


class Attacker:
    """Each step is what a good peer does; between them one does what one likes."""

    def __init__(self, connected, victims_role, own):
        self.wire = connected
        self.role = CALLER + CALLEE - victims_role
        self.own = own
        self.tls = None
        self.s = self.c = b""

    def tails(self, glued=b"", name="Mallory"):
        """Both tails, and `glued` in the same write behind the own one."""
        if self.role == CALLEE:
            self.s = tails.with_tail("S", name)
            self.wire.send(self.s + glued)
            self.c = self.wire.receive() if not glued else b""
        else:
            self.s = self.wire.receive()
            self.c = tails.with_tail("C", "")
            self.wire.send(self.c + glued)
        return self

    def handshake(self, tls_context=None):
        self.tls = TlsWire(self.wire, tls_context or context(self.own), self.role == CALLER)
        self.tls.handshake()
        return self

    def transcript(self):
        return transcript(self.s, self.c)

    def road(self, name="Mallory"):
        """Up to both hellos."""
        made = PrivateRoad(self.tls, self.role, self.transcript())
        made.exchange_hellos(name)
        return made

    def connect(self):
        """Up to S and C inside, and the acknowledgement of both."""
        made = self.road()
        opening, answer = ("S", "C") if self.role == CALLEE else ("C", "S")
        if self.role == CALLEE:
            made.send(messages.named(opening, "Mallory"))
        wait_for_text(made, answer)
        if self.role == CALLER:
            made.send(messages.named(opening, "Mallory"))
        while made.acknowledged < made.sent:
            made.step(LIMIT)
        return made

    def send_frame(self, kind, body=b""):
        self.tls.send(frames.frame(kind, body))

    def drain(self, limit=LIMIT):
        """What still comes in clear or sealed, until the victim has ended. Raises Late."""
        came = b""
        deadline = time.monotonic() + limit
        while arrival := self.wire.receive(deadline - time.monotonic()):
            came += arrival
        return came

    def close(self):
        self.wire.close()


def wait_for_text(road, kind):
    while not any(messages.kind_of(text) == kind for text in road.texts):
        if road.ended:
            raise Broken("ended: " + road.ended)
        road.step(LIMIT)
    while road.texts:
        road.texts.popleft()
        road.took()
