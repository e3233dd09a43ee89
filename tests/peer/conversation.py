"""One side of a conversation: settles which road it takes, and follows it."""

import time

import digits
import identity
import messages
import tails
from clear_road import ClearRoad
from frames import CALLEE, CALLER, Broken
from private_road import PrivateRoad, transcript
from tls import TlsWire, context
from wire import LIMIT, Late

PROOF_LIMIT = 30.0  # seconds from the C with a tail to both hellos


class NotExpected(Exception):
    """The other side shows another key than the expected one, or none."""


class Conversation:
    """`own` is the identity, None for a peer that cannot talk privately.

    `report` is called with a line for whatever happens. `expected` is the only fingerprint that is
    talked to.
    """

    def __init__(self, wire, role, own, name, report=lambda line: None, expected=None):
        self.wire = wire
        self.role = role
        self.own = own
        self.name = name
        self.report = report
        self.expected = expected
        self.road = None
        self.peer_spki = None
        self.peer_name = None  # of S, C and N
        self.lines = []
        self.connected = False

    def begin(self, limit=LIMIT):
        """Up to S and C, in clear or inside. Raises Late, Broken, NotExpected."""
        self.settle(limit)
        self.wait_until(lambda: self.connected, limit)

    def settle(self, limit=LIMIT):
        """Chooses the road; a private one up to both hellos, and S. Raises as begin does."""
        s, hasty = b"", False
        if self.role == CALLEE:
            hasty = self._has_come()
            s = self._opening("S", self.name)
            self.wire.send(s)
        first, found = self._first_arrival("S" if self.role == CALLER else "C", limit)
        if found and not hasty:
            self._become_private(s, first)
        elif self.expected:
            raise NotExpected("it cannot talk privately")
        else:
            self.road = ClearRoad(self.wire, first)
            self.report("clear")
            self._take_texts()

    def say(self, text):
        """`text` as a chat line."""
        self.road.send(messages.document(text))

    def step(self, limit):
        self.road.step(limit)
        self._take_texts()

    def wait_until(self, condition, limit=LIMIT):
        """Raises Late. Raises Broken when the conversation ends before."""
        deadline = time.monotonic() + limit
        while not condition():
            if self.road.ended:
                raise Broken(f"the conversation has ended: {self.road.ended}")
            self.step(deadline - time.monotonic())

    def wait_for_line(self, part, limit=LIMIT):
        self.wait_until(lambda: any(part in line for line in self.lines), limit)

    def wait_for_delivery(self, limit=LIMIT):
        self.wait_until(lambda: self.road.acknowledged == self.road.sent, limit)

    def wait_for_end(self, limit=LIMIT):
        """How it has ended: "goodbye", "closed" or "broken"."""
        deadline = time.monotonic() + limit
        while not self.road.ended:
            self.step(deadline - time.monotonic())
        return self.road.ended

    def close(self):
        (self.road or self.wire).close()

    def safety_digits(self):
        """"" in clear."""
        if not self.road.private:
            return ""
        return digits.digits(self.own.spki, self.peer_spki)

    def _has_come(self):
        """Whether the caller has not waited for S."""
        try:
            self.wire.arrivals.appendleft(self.wire.receive(0))
            return True
        except Late:
            return False

    def _opening(self, kind, name):
        if self.own:
            return tails.with_tail(kind, name)
        return messages.to_clear(messages.named(kind, name))

    def _first_arrival(self, kind, limit):
        """What comes first, and its tail if both sides can talk privately."""
        first = self.wire.receive(limit)
        found = tails.find(first, kind) if self.own else None
        deadline = time.monotonic() + tails.PATIENCE
        while found == tails.BEGUN:
            try:
                more = self.wire.receive(deadline - time.monotonic())
            except Late:
                break
            first += more
            found = tails.find(first, kind) if more else None
        if not isinstance(found, tails.Found) or tails.SECURE not in found.words:
            return first, None
        if len(first) > found.end:
            raise Broken("text in clear behind a tail")
        return first, found

    def _become_private(self, s, first):
        if self.role == CALLER:
            s, c = first, self._opening("C", "")
            self.wire.send(c)
        else:
            c = first
        deadline = time.monotonic() + PROOF_LIMIT
        self.report("becoming private")
        tls = TlsWire(self.wire, context(self.own), server=self.role == CALLER)
        tls.handshake(PROOF_LIMIT)
        self.peer_spki = tls.peer_key(self.own.spki)
        fingerprint = identity.fingerprint(self.peer_spki)
        if self.expected and fingerprint != self.expected:
            raise NotExpected("another key: " + identity.as_link(fingerprint))
        self.road = PrivateRoad(tls, self.role, transcript(s, c))
        self.road.exchange_hellos(self.name, deadline - time.monotonic())
        self.report("private " + identity.as_link(fingerprint))
        self.report("calls itself " + self.road.peer_name)
        if self.role == CALLEE:
            self.road.send(messages.named("S", self.name))
        self._take_texts()

    def _take_texts(self):
        while self.road.texts:
            self._take(self.road.texts.popleft())
            self.road.took()

    def _take(self, text):
        kind, content = messages.kind_of(text), messages.content_of(text)
        if kind in ("", "M"):
            self.lines.append(content)
            self.report(("action " if kind else "line ") + content)
            return
        self.peer_name = content
        self.report(f"{kind} {content}")
        if kind == "S":
            self.road.send(messages.named("C", self.name))
        if kind in ("S", "C"):
            self.connected = True
