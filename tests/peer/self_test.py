"""Two Python peers talk with each other over the loopback device."""

import threading
import unittest

import digits
import frames
import identity
import messages
import wire
from clear_road import is_incomplete
from conversation import Conversation, NotExpected
from frames import CALLEE, CALLER, Broken

BOB, CAROL = identity.Identity(), identity.Identity()


class Meeting:
    """Two ends of a connection. `talk` runs both sides at once and returns what each returned."""

    def __init__(self, caller_key, callee_key, expected=None):
        listener = wire.Listener()
        ends = wire.connect("127.0.0.1", listener.port), listener.accept()
        listener.close()
        self.caller = Conversation(ends[0], CALLER, caller_key, "Carol", expected=expected)
        self.callee = Conversation(ends[1], CALLEE, callee_key, "Βασίλης")

    def talk(self, caller, callee):
        """Exceptions are results too."""
        results = [None, None]
        pairs = ((0, caller, self.caller), (1, callee, self.callee))
        threads = [threading.Thread(target=self._run, args=(results, *pair)) for pair in pairs]
        for thread in threads:
            thread.start()
        for thread in threads:
            thread.join()
        return results

    @staticmethod
    def _run(results, index, act, side):
        try:
            results[index] = act(side)
        except (Broken, NotExpected, wire.Late, OSError) as error:
            results[index] = error
        finally:
            side.close()


def say_and_hear(said, heard):
    def act(side):
        side.begin()
        for line in said:
            side.say(line)
        for line in heard:
            side.wait_for_line(messages.document(line))
        side.wait_for_delivery()
        return side.peer_name
    return act


class Conversations(unittest.TestCase):
    LINES = ["hello", "€", "x" * 200_000] + [f"line {number}" for number in range(20)]

    def both_say(self, meeting):
        answer = ["and you"]
        results = meeting.talk(say_and_hear(self.LINES, answer), say_and_hear(answer, self.LINES))
        self.assertEqual(results, ["Βασίλης", "Carol"])

    def test_private(self):
        meeting = Meeting(CAROL, BOB, expected=BOB.fingerprint)
        self.both_say(meeting)
        self.assertEqual(meeting.caller.peer_spki, BOB.spki)
        self.assertEqual(meeting.callee.peer_spki, CAROL.spki)
        for side in (meeting.caller, meeting.callee):
            self.assertTrue(side.road.private)
            self.assertEqual(side.safety_digits(), digits.digits(BOB.spki, CAROL.spki))
        self.assertEqual(meeting.caller.road.ended, "goodbye")

    def test_one_that_cannot(self):
        for caller_key, callee_key in ((CAROL, None), (None, BOB), (None, None)):
            meeting = Meeting(caller_key, callee_key)
            self.both_say(meeting)
            self.assertFalse(meeting.caller.road.private or meeting.callee.road.private)

    def test_another_key_than_expected(self):
        for key in (BOB, None):
            meeting = Meeting(CAROL, key, expected=CAROL.fingerprint)
            results = meeting.talk(say_and_hear([], []), say_and_hear([], []))
            self.assertIsInstance(results[0], NotExpected)
            self.assertIsInstance(results[1], Broken)

    def test_nobody_talks_with_its_own_key(self):
        results = Meeting(BOB, BOB).talk(say_and_hear([], []), say_and_hear([], []))
        self.assertTrue(any("own key" in str(result) for result in results), results)

    def test_each_side_learns_how_it_ended(self):
        def hang_up(side):
            side.begin()

        def wait(side):
            side.begin()
            return side.wait_for_end()

        self.assertEqual(Meeting(CAROL, BOB).talk(hang_up, wait)[1], "goodbye")
        self.assertEqual(Meeting(CAROL, None).talk(hang_up, wait)[1], "closed")

        def vanish(side):
            side.begin()
            side.wire.reset()

        self.assertEqual(Meeting(CAROL, BOB).talk(vanish, wait)[1], "broken")


class Frames(unittest.TestCase):
    def test_wherever_the_bytes_are_cut(self):
        sent = (frames.hello(frames.CALLER, b"t" * 32, "Bob") + frames.frame(99, b"skipped")
                + frames.text("x" * 70_000) + frames.acknowledgement(3)
                + frames.frame(frames.GOODBYE))
        whole = frames.Decoder().feed(sent)
        self.assertEqual([kind for kind, _ in whole], [1, 99, 3, 2, 4, 6])
        for size in (1, 7, 4096):
            decoder, pieces = frames.Decoder(), []
            for start in range(0, len(sent), size):
                pieces += decoder.feed(sent[start:start + size])
            self.assertEqual(pieces, whole)

    def test_wrong_lengths(self):
        for kind, length in ((1, 32), (1, 162), (4, 7), (4, 9), (5, 1), (6, 1), (2, 65537),
                             (99, 65537)):
            with self.assertRaises(Broken):
                frames.Decoder().feed(length.to_bytes(4, "big") + bytes([kind]))

    def test_half_a_pair_becomes_one_character(self):
        self.assertEqual(frames.text("a\ud800b"), frames.text("a\ufffdb"))

    def test_documents_are_waited_for(self):
        for text in (r"{\rtf1 a", r"{\rtf1 {a}", r"{\rtf1 \}", messages.action(r"{\rtf1")):
            self.assertTrue(is_incomplete(text), text)
        for text in ("hello {", r"{\rtf1 \{}", messages.named("N", "{")):
            self.assertFalse(is_incomplete(text), text)


if __name__ == "__main__":
    unittest.main()
