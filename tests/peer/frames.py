"""The frames inside TLS."""

HELLO, TEXT, PART, ACKNOWLEDGEMENT, ALIVE, GOODBYE = 1, 2, 3, 4, 5, 6
KNOWN = range(HELLO, GOODBYE + 1)
GREATEST = 65536  # bytes of a body
CALLER, CALLEE = 1, 2
GREATEST_NAME = 128  # bytes


class Broken(Exception):
    """The other side has not kept to the protocol."""


def frame(kind, body=b""):
    return len(body).to_bytes(4, "big") + bytes([kind]) + body


def hello(role, transcript, name):
    return frame(HELLO, bytes([role]) + transcript + name.encode("utf-8"))


def text(characters):
    """One text, in as many frames as it needs."""
    data = to_utf8(characters)
    last = (len(data) - 1) // GREATEST * GREATEST if data else 0
    parts = (frame(PART, data[i:i + GREATEST]) for i in range(0, last, GREATEST))
    return b"".join(parts) + frame(TEXT, data[last:])


def to_utf8(characters):
    """Half of a surrogate pair becomes U+FFFD."""
    units = characters.encode("utf-16-le", "surrogatepass")
    return units.decode("utf-16-le", "replace").encode("utf-8")


def acknowledgement(count):
    return frame(ACKNOWLEDGEMENT, count.to_bytes(8, "big"))


_LENGTHS = {
    HELLO: range(33, 33 + GREATEST_NAME + 1),
    ACKNOWLEDGEMENT: range(8, 9),
    ALIVE: range(1),
    GOODBYE: range(1),
}


class Decoder:
    """Takes bytes as they come, and gives whole frames as pairs of kind and body."""

    def __init__(self):
        self._waiting = bytearray()

    def feed(self, data):
        """Raises Broken, even for a frame of which only the head has come."""
        self._waiting += data
        found = []
        while len(self._waiting) >= 5:
            length, kind = int.from_bytes(self._waiting[:4], "big"), self._waiting[4]
            if length > GREATEST or length not in _LENGTHS.get(kind, range(GREATEST + 1)):
                raise Broken(f"a frame of kind {kind} with {length} bytes")
            if len(self._waiting) < 5 + length:
                break
            found.append((kind, bytes(self._waiting[5:5 + length])))
            del self._waiting[:5 + length]
        return found
