"""Who is attacked: this peer itself, or the program by way of socket_driver.

Both play one conversation after the other, in either role, and tell how it went.
"""

import queue
import threading
import time

import wire
from conversation import Conversation, NotExpected
from frames import CALLEE, CALLER, Broken
from wire import LIMIT, Late

QUIET = 0.05  # seconds between looks at what is to be said


class PythonVictim:
    """Plays in a thread of its own."""

    def __init__(self, own):
        self.own = own
        self._thread = None
        self._reset()

    def listen(self, asks=False):
        """Lets whoever calls next in, or waits for let_in. Returns the port."""
        self._reset()
        if asks:
            self._may_enter.clear()
        listener = wire.Listener()
        self._start(lambda: (self._accept(listener), CALLEE))
        return listener.port

    def let_in(self):
        self._may_enter.set()

    def call(self, port):
        self._reset()
        self._start(lambda: (wire.connect("127.0.0.1", port), CALLER))

    def expect(self, fingerprint):
        """The only key that is talked to from now on; None for any."""
        self.expected = fingerprint

    def say(self, line):
        self._to_say.put(line)

    def wait_for_line(self, part, limit=LIMIT):
        wait_until(lambda: any(part in line for line in self.lines()), limit)

    def wait_until_connected(self, limit=LIMIT):
        wait_until(self.is_connected, limit)

    def is_connected(self):
        return bool(self.conversation and self.conversation.connected)

    def wait_for_end(self, limit=LIMIT):
        self._thread.join(limit)
        if self._thread.is_alive():
            raise Late("the victim still talks")

    def hang_up(self):
        self._hanging_up = True

    def lines(self):
        return list(self.conversation.lines) if self.conversation else []

    def is_private(self):
        """Whether the peer was known to talk privately, at any time of the conversation."""
        road = self.conversation and self.conversation.road
        return bool(road and road.private and road.peer_name is not None)

    def is_clear(self):
        road = self.conversation and self.conversation.road
        return bool(road and not road.private)

    def safety_digits(self):
        return self.conversation.safety_digits()

    def close(self):
        self.hang_up()

    def _reset(self):
        if self._thread:
            self.hang_up()
            self.wait_for_end()
        self.conversation = None
        self.failure = None
        self.expected = getattr(self, "expected", None)
        self._to_say = queue.Queue()
        self._hanging_up = False
        self._may_enter = threading.Event()
        self._may_enter.set()

    def _accept(self, listener):
        try:
            caller = listener.accept()
        finally:
            listener.close()
        self._may_enter.wait(LIMIT)
        return caller

    def _start(self, reach):
        self._thread = threading.Thread(target=self._play, args=(reach,), daemon=True)
        self._thread.start()

    def _play(self, reach):
        try:
            connected, role = reach()
            self.conversation = Conversation(connected, role, self.own, "Victim",
                                             expected=self.expected)
            self.conversation.begin()
            self._talk()
        except (Broken, NotExpected, Late, OSError, ValueError) as error:
            self.failure = error
        finally:
            if self.conversation:
                self.conversation.close()

    def _talk(self):
        while not self.conversation.road.ended and not self._hanging_up:
            while not self._to_say.empty():
                self.conversation.say(self._to_say.get())
            try:
                self.conversation.step(QUIET)
            except Late:
                pass  # nothing has come


def wait_until(condition, limit=LIMIT):
    deadline = time.monotonic() + limit
    while not condition():
        if time.monotonic() > deadline:
            raise Late("the victim has not done what it should")
        time.sleep(0.002)
