"""The messages of the protocol as texts, and their bytes on the road in clear."""

TEXTS = ("Verlume", "Verlume", "Δημιουργία της ομάδας Verlume", "Made by the Verlume team")
MARKER = "\0" + "".join(TEXTS)[::-1] + "\0"
KINDS = "SCNM"


def named(kind, name):
    """A message that carries a nickname: S, C or N."""
    return MARKER + kind + name + "\0"


def action(document):
    return MARKER + "M" + document


def kind_of(text):
    """S, C, N or M; "" for a chat line."""
    kind = text[len(MARKER):len(MARKER) + 1]
    return kind if text.startswith(MARKER) and kind and kind in KINDS else ""


def content_of(text):
    """What stands behind the marker and the kind: all of a chat line, up to the NUL of a nickname.

    Raises ValueError for a nickname without its NUL.
    """
    kind = kind_of(text)
    if not kind:
        return text
    rest = text[len(MARKER) + 1:]
    return rest if kind == "M" else rest[:rest.index("\0")]


def to_clear(text):
    return text.encode("cp1253", "replace")


def from_clear(data):
    """Bytes that Windows-1253 leaves undefined stand for the character of the same number."""
    try:
        return data.decode("cp1253")
    except UnicodeDecodeError:
        return "".join(_from_byte(byte) for byte in data)


def _from_byte(byte):
    try:
        return bytes([byte]).decode("cp1253")
    except UnicodeDecodeError:
        return chr(byte)


def document(text):
    """The shortest rich text that shows `text`."""
    return r"{\rtf1\ansi\ansicpg1253 " + "".join(map(_escaped, text)) + "}"


def _escaped(character):
    if character in "\\{}":
        return "\\" + character
    if " " <= character <= "~":
        return character
    data = character.encode("cp1253", "ignore")
    if data:
        return rf"\'{data[0]:02x}"
    data = character.encode("utf-16-le")
    units = (data[i:i + 2] for i in range(0, len(data), 2))
    return "".join(rf"\u{int.from_bytes(unit, 'little', signed=True)}?" for unit in units)
