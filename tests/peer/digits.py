"""The sixty digits that two users compare."""

import hashlib

ROUNDS = 5200


def half(spki):
    """The thirty digits of one key."""
    value = hashlib.sha512(b"verlume-safety-1\0" + spki).digest()
    for _ in range(ROUNDS):
        value = hashlib.sha512(value + spki).digest()
    numbers = (int.from_bytes(value[i:i + 5], "big") % 100_000 for i in range(0, 30, 5))
    return " ".join(f"{number:05d}" for number in numbers)


def digits(spki, other):
    return " ".join(sorted((half(spki), half(other))))
