"""A user at the window talks with this peer, and with some who only say that they are it."""

import os
import unittest

import identity
import messages
import wire
from attacker import Attacker
from conversation import Conversation
from frames import CALLEE, CALLER, Broken
from wire import Late
from window import Window

PATH = os.environ["VERLUME_WINDOW"]
CAROL, MALLORY = identity.Identity(), identity.Identity()
NOT_PRIVATE = "A private connection could NOT be established."
SHORT = 1.0  # seconds in which nothing must come


class WindowCase(unittest.TestCase):
    def open(self, settings=""):
        self.window = Window(PATH, settings)
        self.addCleanup(self.window.close)

    def call(self, own=CAROL, name="Carol"):
        """The peer calls the window. Not begun yet."""
        port = self.window.wait_for_call()
        return self.conversation(wire.connect("127.0.0.1", port), CALLER, own, name)

    def be_called(self, own=CAROL, name="Carol", listener=None, what="/CALL 127.0.0.1 {port}"):
        """The window calls the peer. Not begun yet."""
        listener = listener or self.listen()
        self.window.enter(what.format(port=listener.port))
        return self.conversation(listener.accept(), CALLEE, own, name)

    def listen(self):
        made = wire.listen_below_32768()
        self.addCleanup(made.close)
        return made

    def conversation(self, *arguments):
        made = Conversation(*arguments)
        self.addCleanup(made.close)
        return made

    def talk(self, peer, word):
        peer.say(f"{word} of the peer €")
        self.window.enter(f"{word} of the window")
        self.window.wait_for_line(f"<{peer.name}>{word} of the peer €")
        peer.wait_for_line(f"{word} of the window")
        peer.wait_for_delivery()

    def hang_up(self, peer):
        self.window.enter("/CLOSE")
        how = peer.wait_for_end()
        peer.close()
        return how

    def is_held(self, peer, word):
        """Nothing that the peer says is shown or acknowledged, and nothing typed is sent."""
        if peer.own or peer.role == CALLER:
            peer.settle()
            peer.say(f"{word} of the peer")
        else:
            peer.wire.send(messages.to_clear(messages.named("S", peer.name)))
        self.window.enter(f"{word} of the window")
        with self.assertRaises(Late):
            peer.wait_for_line("", SHORT) if peer.road else peer.wire.receive(SHORT)
        self.assertFalse(any(word in line for line in self.window.lines))


class Friends(WindowCase):
    def test_both_call_each_other(self):
        self.open()
        for meet in (self.call, self.be_called):
            peer = meet()
            peer.begin()
            self.assertTrue(peer.road.private)
            self.talk(peer, meet.__name__)
            self.assertEqual(self.hang_up(peer), "goodbye")
        with open(os.path.join(self.window.folder, "Verlume.peers"), encoding="utf-8") as file:
            self.assertIn(CAROL.fingerprint.hex(), file.read().lower())

    def test_one_that_cannot(self):
        self.open()
        for meet in (self.call, self.be_called):
            peer = meet(own=None, name="Dave")
            peer.begin()
            self.talk(peer, meet.__name__)
            self.assertEqual(self.hang_up(peer), "closed")

    def test_never(self):
        self.open("PrivateConversations=Never")
        for meet in (self.call, self.be_called):
            peer = meet()
            peer.begin()
            self.assertFalse(peer.road.private)
            self.talk(peer, meet.__name__)
            self.hang_up(peer)


class Others(WindowCase):
    def test_the_host_that_was_called_last_has_another_key(self):
        self.open()
        listener = self.listen()
        peer = self.be_called(listener=listener)
        peer.begin()
        self.talk(peer, "first")
        self.hang_up(peer)
        other = self.be_called(own=MALLORY, listener=listener)
        self.is_held(other, "second")
        self.window.enter("/CLOSE")

    def test_a_name_that_is_known_as_private_comes_without(self):
        self.open()
        peer = self.call()
        peer.begin()
        self.talk(peer, "first")
        self.hang_up(peer)
        for meet in (self.call, self.be_called):
            other = meet(own=None)
            self.is_held(other, meet.__name__)
            self.window.enter("/CLOSE")
            other.close()

    def test_an_invitation(self):
        self.open()
        invitation = "verlume://127.0.0.1:{port}/?key=" + identity.as_link(CAROL.fingerprint)
        peer = self.be_called(what="/CALL " + invitation)
        peer.begin()
        self.talk(peer, "invited")
        self.hang_up(peer)
        for own in (MALLORY, None):
            self.window.seen.pop("status")
            other = self.be_called(own=own, what="/CALL " + invitation)
            with self.assertRaises((Broken, ConnectionError)):
                other.begin()
            self.window.wait_for("status", NOT_PRIVATE)
            self.assertFalse(other.connected)

    def test_somebody_between_who_disturbs(self):
        self.open()
        for meet in (self.call, self.be_called):
            other = meet()
            self.window.seen.pop("status", None)
            attacker = Attacker(other.wire, CALLER + CALLEE - other.role, MALLORY)
            attacker.tails(glued=b"in clear")
            self.window.wait_for("status", NOT_PRIVATE)
            self.assertEqual(self.window.lines, [])
        peer = self.call()
        peer.begin()
        self.talk(peer, "undisturbed")
        self.hang_up(peer)


if __name__ == "__main__":
    unittest.main()
