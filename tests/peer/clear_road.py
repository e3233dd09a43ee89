"""The conversation in clear: one send is one message, one arrival is one message."""

import collections
import time

import messages
from wire import LIMIT, Late

PAUSE = 0.02  # seconds for the program there to read what its machine has acknowledged
PATIENCE = 20.0  # seconds for the rest of a document


class ClearRoad:
    private = False

    def __init__(self, wire, first=b""):
        self.wire = wire
        self.texts = collections.deque()
        self.ended = ""  # "closed" or "broken"
        self.sent = 0
        self._held = ""
        self._held_since = 0.0
        if first:
            self._take(messages.from_clear(first))

    @property
    def acknowledged(self):
        """How many texts the other machine has."""
        return self.sent if self.wire.unacknowledged() == 0 else self.sent - 1

    def send(self, text, limit=LIMIT):
        deadline = time.monotonic() + limit
        while self.wire.unacknowledged():
            if time.monotonic() > deadline:
                raise Late("nothing has been acknowledged")
            time.sleep(0.001)
        time.sleep(PAUSE)
        self.wire.send(messages.to_clear(text), limit)
        self.sent += 1

    def took(self):
        """Only a private peer is told."""

    def step(self, limit):
        """Reads once. Raises Late."""
        arrival = self.wire.receive(limit)
        if arrival:
            self._take(messages.from_clear(arrival))
            return
        self._hand_on()
        self.ended = "broken" if self.wire.broken else "closed"

    def close(self):
        self.wire.close()
        self.ended = "closed"

    def _take(self, text):
        now = time.monotonic()
        if self._held and now - self._held_since > PATIENCE:
            self._hand_on()
        self._held += text
        self._held_since = now
        if not is_incomplete(self._held):
            self._hand_on()

    def _hand_on(self):
        if self._held:
            self.texts.append(self._held)
            self._held = ""


def is_incomplete(text):
    """Whether it is a document whose braces are not balanced."""
    body = messages.content_of(text) if messages.kind_of(text) in ("", "M") else ""
    if not body.startswith("{\\rtf"):
        return False
    depth, escaped = 0, False
    for character in body:
        if escaped:
            escaped = False
        elif character == "\\":
            escaped = True
        else:
            depth += {"{": 1, "}": -1}.get(character, 0)
    return depth > 0
