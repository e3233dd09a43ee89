"""Someone between a caller and a callee, who carries what they say and changes it."""

import select
import threading

import wire
from wire import LIMIT, Late

# What becomes of a record, given the next one in the same direction, and whether that is needed.
CHANGES = {
    "swapped": (lambda record, other: other + record, True),
    "lost": (lambda record, other: other, True),
    "doubled": (lambda record, other: record + record, False),
    "flipped": (lambda record, other: record[:-1] + bytes([record[-1] ^ 1]), False),
    "glued": (lambda record, other: record + b"{\\rtf1\\ansi evil}", False),
}
CHANGE_CIPHER_SPEC = 0x14  # without a meaning in TLS 1.3: it may be lost
RECORD_HEAD = 5  # bytes: type, version, length


class Faithful:
    """Changes nothing. The methods get what has come, and return what is passed on; None cuts."""

    def to_caller(self, data):
        return data

    def to_callee(self, data):
        return data


class Strip(Faithful):
    """Takes the tail away from S, or from C."""

    def __init__(self, kind):
        self.kind = kind

    def to_caller(self, data):
        return self._strip(data, "S")

    def to_callee(self, data):
        return self._strip(data, "C")

    def _strip(self, data, kind):
        if kind != self.kind:
            return data
        self.kind = ""
        return data[:data.index(b"+")]


class Replace(Faithful):
    """Puts other bytes in the place of some, once, in each direction."""

    def __init__(self, old, new):
        self.left = {"to_caller": old, "to_callee": old}
        self.new = new

    def to_caller(self, data):
        return self._replace(data, "to_caller")

    def to_callee(self, data):
        return self._replace(data, "to_callee")

    def _replace(self, data, direction):
        old = self.left[direction]
        if old not in data:
            return data
        return data.replace(old, self.new, 1)


class Cut(Faithful):
    """Ends both connections after so many bytes in one direction."""

    def __init__(self, direction, count):
        self.left = count
        self.done = False
        self.last = b""  # is passed on before
        setattr(self, direction, self._count)

    def _count(self, data):
        if len(data) < self.left:
            self.left -= len(data)
            return data
        self.last = data[:self.left]
        self.done = True
        return None


class Records(Faithful):
    """Does one of CHANGES to one record of TLS in one direction."""

    def __init__(self, direction, number, name):
        self.number = number
        self.change, self.needs_next = CHANGES[name]
        self.done = False
        self._waiting = b""
        self._in_clear = True
        self._held = b""
        setattr(self, direction, self._pass)

    def _pass(self, data):
        if self._in_clear:
            self._in_clear = False
            end = data.index(b"\0", data.index(b"+")) + 1
            return data[:end] + self._pass(data[end:])
        self._waiting += data
        passed = b""
        while record := self._next():
            passed += self._one(record)
        return passed

    def _next(self):
        length = RECORD_HEAD + int.from_bytes(self._waiting[3:5], "big")
        if len(self._waiting) < max(length, RECORD_HEAD + 1):
            return b""
        record, self._waiting = self._waiting[:length], self._waiting[length:]
        return record

    def _one(self, record):
        if self._held:
            changed, self._held, self.done = self.change(self._held, record), b"", True
            return changed
        if record[0] == CHANGE_CIPHER_SPEC:
            return record
        self.number -= 1
        if self.number != -1:
            return record
        if self.needs_next:
            self._held = record
            return b""
        self.done = True
        return self.change(record, b"")


class Between:
    """Joins whoever calls its port with the callee that listens on another."""

    def __init__(self, callee_port, change):
        self.change = change
        self.seen = {"to_caller": b"", "to_callee": b""}
        self._callee_port = callee_port
        self._listener = wire.Listener()
        self.port = self._listener.port
        self._thread = threading.Thread(target=self._carry)
        self._thread.start()

    def wait(self, limit=LIMIT):
        """Until both connections have ended."""
        self._thread.join(limit)
        if self._thread.is_alive():
            raise Late("somebody still talks")

    def _carry(self):
        try:
            caller = self._listener.accept()
            callee = wire.connect("127.0.0.1", self._callee_port)
        finally:
            self._listener.close()
        ways = {caller: ("to_callee", callee), callee: ("to_caller", caller)}
        while ways:
            for source in ready(ways):
                if not self._pass(source, *ways[source]):
                    del ways[source]
        caller.close()
        callee.close()

    def _pass(self, source, direction, target):
        """Whether more can come."""
        data = source.receive(0)
        self.seen[direction] += data
        passed = getattr(self.change, direction)(data) if data else None
        try:
            target.send(self.change.last if passed is None and data else passed or b"")
        except (ConnectionError, Late):
            passed = None  # it has gone
        if passed is None:
            target.finish()
        return passed is not None


def ready(wires):
    """Those that have something to read, or have ended."""
    waiting = [one for one in wires if one.arrivals or one.ended]
    if waiting:
        return waiting
    by_number = {one.socket.fileno(): one for one in wires}
    poll = select.poll()
    for number in by_number:
        poll.register(number, select.POLLIN)
    return [by_number[number] for number, _ in poll.poll(LIMIT * 1000)]
