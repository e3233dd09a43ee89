"""What the scenes share: the commands and boxes in both languages, and how two copies talk."""

import pathlib
import random
import socket

from copies import ENGLISH, GREEK
from desktop import wait_until

CALL = {ENGLISH: "/CALL", GREEK: "/ΚΛΉΣΗ"}
WAIT = {ENGLISH: "/WAIT", GREEK: "/ΑΝΑΜΟΝΉ"}
CLOSE = {ENGLISH: "/CLOSE", GREEK: "/ΚΛΕΊΣΙΜΟ"}
INCOMING = {ENGLISH: "Incoming call", GREEK: "Εισερχόμενη κλήση"}
CONNECTED = {ENGLISH: "Active connection.", GREEK: "Ενεργός σύνδεση."}
DISCONNECTED = {ENGLISH: "Disconnected.", GREEK: "Αποσυνδ"}  # who hangs up reads another ending


def free_port():
    while True:
        port = random.randrange(10_000, 30_000)
        with socket.socket() as listener:
            try:
                listener.bind(("127.0.0.1", port))
                return str(port)
            except OSError:
                continue


def is_listened_to(port):
    listening = f":{int(port):04X} "
    lines = [line for file in ("/proc/net/tcp", "/proc/net/tcp6")
             for line in pathlib.Path(file).read_text().splitlines()]
    return any(listening in line and line.split()[3] == "0A" for line in lines)


def wait_for_call(callee):
    """Returns the port."""
    port = free_port()
    callee.type_line(f"{WAIT[callee.language]} {port}")
    wait_until(lambda: is_listened_to(port), f"{callee.name} waits for a call")
    return port


def connect(caller, callee):
    port = wait_for_call(callee)
    caller.type_line(f"{CALL[caller.language]} 127.0.0.1 {port}")
    callee.answer(INCOMING[callee.language], "Return")
    caller.await_line(callee.name, CONNECTED[caller.language])
    callee.await_line(caller.name, CONNECTED[callee.language])


def hang_up(one, other):
    one.type_line(CLOSE[one.language])
    for copy, peer in ((one, other), (other, one)):
        copy.await_line(peer.name, DISCONNECTED[copy.language])
        copy.log_file(peer.name).unlink()
