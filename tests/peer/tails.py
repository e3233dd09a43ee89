"""What stands behind the NUL of the first S and C, and says what its sender can do."""

import messages

SECURE = "secure/1"
GREATEST = 64  # bytes, with + and NUL
PATIENCE = 1.0  # seconds for the rest of a tail that has begun


def tail(*words):
    return b"+" + " ".join(words).encode("ascii") + b"\0"


def with_tail(kind, name, *words):
    """S or C in clear, as a program that can talk privately sends it first."""
    return messages.to_clear(messages.named(kind, name)) + tail(*(words or (SECURE,)))


class Found:
    """A whole tail: its words, and how many bytes the message has with it."""

    def __init__(self, words, end):
        self.words = words
        self.end = end


BEGUN = "begun"


def find(data, kind):
    """The tail of what has come first: Found, BEGUN if its end may still come, None without one."""
    start = messages.to_clear(messages.MARKER + kind)
    name_end = data.find(b"\0", len(start))
    if not data.startswith(start) or name_end < 0 or data[name_end + 1:name_end + 2] != b"+":
        return None
    rest = data[name_end + 1:]
    end = rest.find(b"\0", 0, GREATEST)
    if end < 0:
        return BEGUN if len(rest) < GREATEST else None
    try:
        words = rest[1:end].decode("ascii").split(" ")
    except UnicodeDecodeError:
        return None
    return Found(words, name_end + 1 + end + 1)
