"""The examples of docs/protocol.md: what its dumps say."""

import os
import re

PATH = os.path.join(os.path.dirname(os.path.abspath(__file__)), "../../docs/protocol.md")
LINE = re.compile(r"([0-9a-f]{4})  ((?:[0-9a-f]{2} ){1,16})")
SHOWN_FROM = 55  # the column of the characters


def dumps(chapter):
    """The bytes of each dump of the chapter, in its order."""
    return [data for data in map(_bytes, _blocks(chapter)) if data]


def digits():
    """The lines of the example that hold digits alone."""
    lines = (line for block in _blocks("An example") for line in block.splitlines())
    return " ".join(line for line in lines if re.fullmatch(r"\d{5}( \d{5}){5}", line))


def chapter(title):
    with open(PATH, encoding="utf-8") as file:
        text = file.read()
    start = re.search(rf"^(#+) {re.escape(title)}$", text, re.MULTILINE)
    rest = text[start.end():]
    end = re.search(rf"^#{{1,{len(start[1])}}} ", rest, re.MULTILINE)
    return rest[:end.start()] if end else rest


def _blocks(title):
    return re.findall(r"^```\n(.*?)^```$", chapter(title), re.DOTALL | re.MULTILINE)


def _bytes(block):
    """b"" for what is no dump. Raises ValueError for one whose columns do not agree."""
    data, first = b"", 0
    for line in block.splitlines():
        match = LINE.match(line)
        if not match:
            return b""
        row = bytes.fromhex(match[2])
        first = first if data else int(match[1], 16)
        if int(match[1], 16) != first + len(data) or line[SHOWN_FROM:] != _shown(row):
            raise ValueError(line)
        data += row
    return data


def _shown(row):
    return "".join(chr(byte) if 32 <= byte < 127 else "." for byte in row)
