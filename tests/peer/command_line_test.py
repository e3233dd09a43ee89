"""peer.py does what its options say, in their order."""

import os
import subprocess
import sys
import tempfile
import unittest

PEER = os.path.join(os.path.dirname(os.path.abspath(__file__)), "peer.py")


class CommandLine(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = folder.name

    def start(self, *options):
        command = [sys.executable, "-B", PEER, "--limit", "10", *options]
        made = subprocess.Popen(command, stdout=subprocess.PIPE, text=True)
        self.addCleanup(made.stdout.close)
        return made

    def key(self, name):
        return ["--key", os.path.join(self.folder, name + ".pem")]

    def listen(self, *options):
        """The process, and what calls it."""
        made = self.start("--listen", "0", "--name", "Bob", *options)
        for line in made.stdout:
            if line.startswith("listening "):
                return made, ["--call", "localhost", line.split()[1], "--name", "Carol"]
        self.fail("nobody listens")

    def finish(self, process, status=0):
        lines = process.stdout.read().splitlines()
        self.assertEqual(process.wait(), status, lines)
        return lines

    def test_private(self):
        bob, calling = self.listen(*self.key("bob"), "--expect", "hello", "--say", "and you",
                                   "--digits", "--until-ended")
        carol = self.finish(self.start(*calling, *self.key("carol"), "--say", "hello",
                                       "--expect", "and you", "--until-delivered", "--digits"))
        bob = self.finish(bob)
        for lines in (bob, carol):
            self.assertIn("connected", lines)
            self.assertEqual(lines[-1], "done")
        self.assertIn("calls itself Bob", carol)
        self.assertIn("ended goodbye", bob)
        digits = [line for line in carol if line.startswith("digits ")]
        self.assertEqual(len(digits[0].split()), 13)
        self.assertIn(digits[0], bob)

    def test_in_clear(self):
        bob, calling = self.listen(*self.key("bob"), "--expect", "hello", "--until-ended")
        carol = self.finish(self.start(*calling, "--say", "hello", "--until-delivered"))
        bob = self.finish(bob)
        self.assertIn("clear", bob)
        self.assertIn("clear", carol)
        self.assertIn("ended closed", bob)

    def test_another_key(self):
        bob, calling = self.listen(*self.key("bob"))
        carol = self.finish(self.start(*calling, *self.key("carol"), "--expect-key", "A" * 43), 1)
        self.assertTrue(carol[-1].startswith("failed NotExpected"), carol)
        self.finish(bob, 1)

    def test_what_does_not_come(self):
        bob, calling = self.listen("--expect", "hello")
        carol = self.finish(self.start(*calling, "--say", "hello", "--expect", "and you"), 1)
        self.assertTrue(carol[-1].startswith("failed Broken"), carol)
        self.finish(bob)


if __name__ == "__main__":
    unittest.main()
