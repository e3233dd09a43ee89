"""The private conversation: frames inside TLS."""

import collections
import hashlib
import time

import frames
from frames import Broken
from wire import LIMIT, Late

ALIVE_AFTER = 10.0  # seconds without a frame of one's own
DEAD_AFTER = 30.0  # seconds without a byte of the other side


def transcript(s, c):
    """Of the clear S and C, each with its tail."""
    return hashlib.sha256(s + c).digest()


class PrivateRoad:
    private = True

    def __init__(self, tls, role, clear_transcript):
        self.tls = tls
        self.role = role
        self.transcript = clear_transcript
        self.peer_name = None  # until its hello has come
        self.texts = collections.deque()
        self.ended = ""  # "goodbye" or "broken"
        self.sent = 0
        self.acknowledged = 0
        self._came = 0
        self._taken = 0
        self._parts = b""
        self._decoder = frames.Decoder()
        self._last_sent = self._last_read = time.monotonic()

    def exchange_hellos(self, name, limit=LIMIT):
        self.send_frames(frames.hello(self.role, self.transcript, name))
        while self.peer_name is None:
            self.step(limit)
            if self.ended:
                raise Broken("ended before its hello")

    def send_frames(self, data, limit=LIMIT):
        try:
            self.tls.send(data, limit)
        except ConnectionError:
            self.ended = self.ended or "broken"
        self._last_sent = time.monotonic()

    def send(self, text, limit=LIMIT):
        self.sent += 1
        self.send_frames(frames.text(text), limit)

    def acknowledgeable(self):
        """How many texts have come."""
        return self._came

    def took(self):
        """One more text has been taken in."""
        self._taken += 1
        self._acknowledge()

    def step(self, limit):
        """Reads once. Raises Late, and Broken if the other side does not keep to the protocol."""
        deadline = time.monotonic() + limit
        while True:
            now = time.monotonic()
            next_alive = self._last_sent + ALIVE_AFTER
            try:
                data = self.tls.receive(min(deadline, next_alive) - now)
                break
            except Late:
                self._keep_alive(deadline)
        self._last_read = time.monotonic()
        if not data:
            self.ended = self.ended or "broken"
        for kind, body in self._decoder.feed(data):
            self._take(kind, body)

    def close(self, limit=2.0):
        """Says goodbye and reads what still comes."""
        try:
            if not self.ended:
                self.send_frames(frames.frame(frames.GOODBYE))
                self.tls.finish()
            while self.tls.receive(limit):
                pass
        except (Late, Broken, ConnectionError):
            pass  # the other side has its own way to end
        self.tls.close()
        self.ended = self.ended or "goodbye"

    def _keep_alive(self, deadline):
        now = time.monotonic()
        if now - self._last_read > DEAD_AFTER:
            raise Broken("30 s of silence")
        if now >= self._last_sent + ALIVE_AFTER:
            self.send_frames(frames.frame(frames.ALIVE))
        if now >= deadline:
            raise Late("nothing has come")

    def _take(self, kind, body):
        if self.ended:
            raise Broken("a frame behind goodbye")
        if kind not in frames.KNOWN:
            return
        if self.peer_name is None:
            self._take_hello(kind, body)
        elif kind == frames.HELLO:
            raise Broken("a second hello")
        elif kind == frames.PART:
            self._parts += body
        elif kind == frames.TEXT:
            self._came += 1
            self.texts.append((self._parts + body).decode("utf-8", "replace"))
            self._parts = b""
        elif kind == frames.ACKNOWLEDGEMENT:
            self._take_acknowledgement(int.from_bytes(body, "big"))
        elif kind == frames.GOODBYE:
            self._answer_goodbye()

    def _take_hello(self, kind, body):
        if kind != frames.HELLO:
            raise Broken(f"a frame of kind {kind} before hello")
        if body[0] != frames.CALLER + frames.CALLEE - self.role:
            raise Broken(f"the role {body[0]}")
        if body[1:33] != self.transcript:
            raise Broken("another transcript")
        self.peer_name = body[33:].decode("utf-8", "replace")

    def _take_acknowledgement(self, count):
        if not self.acknowledged <= count <= self.sent:
            raise Broken(f"{count} acknowledged of {self.sent}")
        self.acknowledged = count

    def _answer_goodbye(self):
        self.ended = "goodbye"
        self._taken = self._came
        self._acknowledge()
        self.send_frames(frames.frame(frames.GOODBYE))
        self.tls.finish()

    def _acknowledge(self):
        if not self.ended or self._taken == self._came:
            self.send_frames(frames.acknowledgement(self._taken))
