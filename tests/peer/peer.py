#!/usr/bin/python3
"""Talks to one Verlume, and prints what happens, a line for each event.

  peer.py --listen 0 --key bob.pem --name Bob --expect hello --say "hello yourself"
  peer.py --call localhost 12345 --key carol.pem --say hello --expect yourself --digits

Without --key it is a peer that cannot talk privately. What is to be done follows the connection in
the order in which it is written. The exit code is 0 if everything was done.
"""

import argparse
import sys
import time

import identity
import wire
from conversation import Conversation, NotExpected
from frames import CALLEE, CALLER, Broken


def parse(arguments):
    parser = argparse.ArgumentParser(description=__doc__,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    way = parser.add_mutually_exclusive_group(required=True)
    way.add_argument("--call", nargs=2, metavar=("HOST", "PORT"))
    way.add_argument("--listen", type=int, metavar="PORT", help="0 for a free one")
    parser.add_argument("--key", metavar="FILE", help="of the own key; made if there is none")
    parser.add_argument("--name", default="Python")
    parser.add_argument("--expect-key", type=identity.from_link, metavar="LINK",
                        help="an invitation, or its 43 characters")
    parser.add_argument("--limit", type=float, default=30.0, help="seconds for each wait")
    parser.set_defaults(steps=[])
    for option, kind, words in (
            ("--say", str, "sends a line"),
            ("--expect", str, "waits for a line that contains this"),
            ("--stay", float, "listens for so many seconds")):
        parser.add_argument(option, type=kind, action=Step, help=words)
    for option, words in (("--digits", "prints the safety digits"),
                          ("--until-delivered", "waits for the acknowledgement of what was said"),
                          ("--until-ended", "waits until the other side hangs up")):
        parser.add_argument(option, nargs=0, action=Step, help=words)
    return parser.parse_args(arguments)


class Step(argparse.Action):
    """Keeps the order in which different options were written."""

    def __call__(self, parser, namespace, values, option=None):
        namespace.steps = namespace.steps + [(self.dest, values)]


def report(line):
    print(line.encode("unicode_escape").decode("ascii"), flush=True)


def reach(arguments):
    """A connection, and the role in it."""
    if arguments.call:
        host, port = arguments.call
        return wire.connect(host, int(port), arguments.limit), CALLER
    listener = wire.Listener(arguments.listen)
    report(f"listening {listener.port}")
    try:
        return listener.accept(arguments.limit), CALLEE
    finally:
        listener.close()


def stay(conversation, seconds):
    deadline = time.monotonic() + seconds
    try:
        while not conversation.road.ended:
            conversation.step(deadline - time.monotonic())
    except wire.Late:
        pass  # nothing more has come


def do(conversation, step, value, limit):
    if step == "say":
        conversation.say(value)
    elif step == "expect":
        conversation.wait_for_line(value, limit)
    elif step == "stay":
        stay(conversation, value)
    elif step == "digits":
        report("digits " + conversation.safety_digits())
    elif step == "until_delivered":
        conversation.wait_for_delivery(limit)
    else:
        report("ended " + conversation.wait_for_end(limit))


def main(arguments):
    own = identity.load(arguments.key) if arguments.key else None
    if own:
        report("own key " + identity.as_link(own.fingerprint))
    conversation = None
    try:
        connected, role = reach(arguments)
        conversation = Conversation(connected, role, own, arguments.name, report,
                                    arguments.expect_key)
        conversation.begin(arguments.limit)
        report("connected")
        for step, value in arguments.steps:
            do(conversation, step, value, arguments.limit)
    except (Broken, NotExpected, wire.Late, OSError) as error:
        report(f"failed {type(error).__name__}: {error}")
        return 1
    finally:
        if conversation:
            conversation.close()
    report("done")
    return 0


if __name__ == "__main__":
    sys.exit(main(parse(sys.argv[1:])))
