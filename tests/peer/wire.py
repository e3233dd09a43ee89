"""A TCP connection that waits with a limit, and never stops reading while it sends."""

import collections
import fcntl
import select
import socket
import struct
import termios
import time

GREATEST_TYPED = 32767  # the last port that they can type
LIMIT = 10.0  # seconds, for what should take none


class Late(Exception):
    """What was waited for did not come in time."""


def connect(host, port, limit=LIMIT):
    return Wire(socket.create_connection((host, port), limit))


class Listener:
    def __init__(self, port=0, host="127.0.0.1"):
        self.socket = socket.create_server((host, port))
        self.port = self.socket.getsockname()[1]

    def accept(self, limit=LIMIT):
        self.socket.settimeout(limit)
        try:
            return Wire(self.socket.accept()[0])
        except socket.timeout:
            raise Late("nobody has called") from None

    def close(self):
        self.socket.close()


def listen_below_32768():
    """On a port that the program's users can type."""
    for port in range(GREATEST_TYPED, 10000, -1):
        try:
            return Listener(port)
        except OSError:
            pass  # taken
    raise OSError("no port is free")


class Wire:
    """An arrival is what one read brings. b"" is the end, after which nothing comes."""

    def __init__(self, connected):
        self.socket = connected
        self.socket.setblocking(False)
        self.socket.setsockopt(socket.IPPROTO_TCP, socket.TCP_NODELAY, 1)
        self.arrivals = collections.deque()
        self.ended = False
        self.broken = False  # ended by a reset

    def receive(self, limit=LIMIT):
        """The next arrival. Raises Late."""
        deadline = time.monotonic() + limit
        while not self.arrivals and not self.ended:
            self._wait(deadline - time.monotonic(), False)
            self._read()
        return self.arrivals.popleft() if self.arrivals else b""

    def send(self, data, limit=LIMIT):
        """Raises Late, and ConnectionError if the other side is gone."""
        deadline = time.monotonic() + limit
        rest = memoryview(data)
        while rest:
            readable, writable = self._wait(deadline - time.monotonic(), True)
            if readable:
                self._read()
            if writable:
                rest = rest[self.socket.send(rest):]

    def unacknowledged(self):
        """How many bytes the other machine has not acknowledged."""
        return struct.unpack("i", fcntl.ioctl(self.socket, termios.TIOCOUTQ, b"\0" * 4))[0]

    def finish(self):
        """Nothing more is sent; what the other side sends can still be read."""
        try:
            self.socket.shutdown(socket.SHUT_WR)
        except OSError:
            pass  # the connection is gone

    def close(self):
        self.socket.close()

    def reset(self):
        """Ends the connection as a crash of the machine would: what waits is thrown away."""
        self.socket.setsockopt(socket.SOL_SOCKET, socket.SO_LINGER, struct.pack("ii", 1, 0))
        self.socket.close()

    def _wait(self, limit, sending):
        """Whether bytes or the end can be read, and whether some can be sent."""
        if self.socket.fileno() < 0:
            raise ConnectionError("closed")
        reading = 0 if self.ended else select.POLLIN
        poll = select.poll()  # unlike select() it knows descriptors above 1023
        poll.register(self.socket, reading | (select.POLLOUT if sending else 0))
        ready = poll.poll(max(0, limit) * 1000)
        if not ready:
            raise Late(f"nothing has come in {limit:.1f} s")
        failed = ready[0][1] & (select.POLLHUP | select.POLLERR)
        readable = ready[0][1] & select.POLLIN or failed and reading
        return readable, ready[0][1] & select.POLLOUT or failed

    def _read(self):
        try:
            data = self.socket.recv(65536)
        except BlockingIOError:
            return
        except ConnectionError:
            data, self.broken = b"", True
        if data:
            self.arrivals.append(data)
        else:
            self.ended = True
