"""The program's network layer as a victim, by way of verlume_socket_driver."""

import os
import subprocess
import tempfile
import threading

import identity
import messages
from victim import wait_until
from wire import LIMIT

ENVIRONMENT = {
    # What was freed is not kept for long, so that the memory that grows is memory in use.
    "ASAN_OPTIONS": "quarantine_size_mb=1:malloc_context_size=5:detect_leaks=0",
}


class DriverVictim:
    def __init__(self, path):
        self._folder = tempfile.TemporaryDirectory()
        key_file = os.path.join(self._folder.name, "Verlume.key")
        self._lock = threading.Lock()  # of what is sent
        self._answers = {}
        self._forget()
        self._process = subprocess.Popen(
            [path, key_file], stdin=subprocess.PIPE, stdout=subprocess.PIPE,
            env={**os.environ, **ENVIRONMENT})
        threading.Thread(target=self._read, daemon=True).start()
        if not self._ask("prepare", "key").startswith("Ready"):
            raise RuntimeError("the driver has no key")
        self.own = identity.load(key_file)
        self._do("name Victim")
        self._do("offer when")

    def listen(self, asks=False, admits=True):
        self._begin(asks, admits)
        return int(self._ask("listen 0", "listening"))

    def let_in(self):
        wait_until(lambda: self._request is not None)
        self._accept()

    def call(self, port, admits=True):
        self._begin(False, admits)
        self._do(f"call 127.0.0.1 {port}")

    def admit(self):
        self._do("admit")

    def expect(self, fingerprint):
        self._do("expect " + (fingerprint.hex() if fingerprint else "-"))

    def offer(self, offer):
        """when, only, never."""
        self._do("offer " + offer)

    def call_oneself(self, name):
        """In the hellos of connections that begin from now on."""
        self._do("name " + escaped(name))

    def say(self, line):
        self._do("line " + escaped(messages.document(line)))

    def is_connected(self):
        return self._connected

    def is_private(self):
        return bool(self._known) and self._known != "-"

    def name_of_peer(self):
        """What it calls itself in its hello."""
        return self._peer_name

    def is_clear(self):
        return self._known == "-"

    def wait_until_connected(self, limit=LIMIT):
        wait_until(lambda: self._connected, limit)

    def wait_for_line(self, part, limit=LIMIT):
        wait_until(lambda: any(part in line for line in self.lines()), limit)

    def wait_for_end(self, limit=LIMIT):
        wait_until(lambda: self.failure is not None, limit)

    def waiting(self):
        """How many lines the peer's program has not acknowledged."""
        return int(self._ask("waiting", "waiting"))

    def hang_up(self):
        self._do("close")
        if self.failure is None:
            self.failure = "HungUp"

    def lines(self):
        return list(self._lines)

    def safety_digits(self):
        """In groups of five."""
        plain = self._ask("digits", "digits")
        return " ".join(plain[i:i + 5] for i in range(0, len(plain), 5))

    def resources(self):
        """Resident memory in KiB, open descriptors."""
        memory, descriptors = self._ask("resources", "resources").split()
        return int(memory), int(descriptors)

    def close(self):
        self._process.stdin.close()
        status = self._process.wait(LIMIT)
        self._process.stdout.close()
        self._folder.cleanup()
        if status:
            raise AssertionError(f"the driver has ended with {status}")

    def _begin(self, asks, admits):
        self.hang_up()
        self._forget()
        self._asks, self._admits = asks, admits

    def _forget(self):
        self._asks, self._admits = False, True
        self._request = None
        self._known = ""
        self._peer_name = ""
        self._connected = False
        self._lines = []
        self.undelivered = 0
        self.heard_goodbye = False
        self.failure = None  # how the conversation has ended

    def _do(self, command):
        with self._lock:
            self._process.stdin.write(command.encode("ascii") + b"\n")
            self._process.stdin.flush()

    def _ask(self, command, answer):
        self._answers.pop(answer, None)
        self._do(command)
        wait_until(lambda: answer in self._answers)
        return self._answers.pop(answer)

    def _read(self):
        for line in self._process.stdout:
            word, _, rest = line.decode("ascii").rstrip("\n").partition(" ")
            react = getattr(self, "_on_" + word, None)
            if react:
                react(rest)
            else:
                self._answers[word] = rest

    def _on_request(self, number):
        self._request = number
        if not self._asks:
            self._accept()

    def _accept(self):
        self._do("accept " + self._request)
        self._do("signal " + escaped(messages.named("S", "Victim")))

    def _on_goodbye(self, _):
        self.heard_goodbye = True

    def _on_known(self, peer):
        self._known, _, name = peer.partition(" ")
        self._peer_name = unescaped(name)
        if self._admits:
            self._do("admit")

    def _on_arrival(self, arrival):
        text = unescaped(arrival.partition(" ")[2])
        kind = messages.kind_of(text)
        if kind == "S":
            self._do("signal " + escaped(messages.named("C", "Victim")))
        if kind in ("S", "C"):
            self._connected = True
        if kind in ("", "M"):
            self._lines.append(messages.content_of(text))

    def _on_closed(self, failure):
        self.failure = failure

    def _on_undelivered(self, lines):
        self.undelivered = int(lines)


def escaped(text):
    data = text.encode("utf-16-be")
    units = (int.from_bytes(data[i:i + 2], "big") for i in range(0, len(data), 2))
    return "".join(chr(unit) if 0x20 <= unit < 0x7f and unit != 0x5c else f"\\u{unit:04x}"
                   for unit in units)


def unescaped(text):
    halves = text.encode("ascii").decode("unicode_escape")
    return halves.encode("utf-16-le", "surrogatepass").decode("utf-16-le", "replace")
