"""What all attacks share: a victim, an attacker with a key, and how it has to end."""

import os
import unittest

import identity
from attacker import Attacker, meet
from driver_victim import DriverVictim
from frames import CALLEE, CALLER, Broken
from victim import PythonVictim

ROLES = {"caller": CALLER, "callee": CALLEE}  # of the victim
MALLORY = identity.Identity()


def make_victim():
    """The program, if VERLUME_DRIVER says where its driver is."""
    driver = os.environ.get("VERLUME_DRIVER")
    return DriverVictim(driver) if driver else PythonVictim(identity.Identity())


class AttackCase(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.victim = make_victim()
        cls.addClassCleanup(cls.victim.close)

    def attacker(self, role, own=MALLORY):
        made = Attacker(meet(self.victim, role), role, own)
        self.addCleanup(made.close)
        return made

    def in_both_roles(self, check):
        """`check` gets the role of the victim."""
        for name, role in ROLES.items():
            with self.subTest(victim=name):
                check(role)

    def refused(self, role, attack, own=MALLORY):
        """The victim ends the connection before it knows anybody, and nothing was shown or sent."""
        self.ended(role, attack, own)
        self.assertFalse(self.victim.is_private())

    def ended(self, role, attack, own=MALLORY):
        """The victim ends the connection, and shows nothing. Returns what it has sent since."""
        attacker = self.attacker(role, own)
        try:
            attack(attacker)
        except (Broken, ConnectionError):
            pass  # the victim has ended the connection already
        came = attacker.drain()
        attacker.close()
        self.victim.wait_for_end()
        self.assertEqual(self.victim.lines(), [])
        self.assertFalse(self.victim.is_clear())
        return came

    def talks_privately(self, role, begin=lambda attacker: attacker.tails().handshake(),
                        own=MALLORY):
        """A peer that begins in this way is let in. Returns attacker and road."""
        attacker = self.attacker(role, own)
        begin(attacker)
        road = attacker.connect()
        self.assertTrue(self.victim.is_private())
        self.victim.wait_until_connected()
        return attacker, road

    def finish(self, road):
        road.close()
        self.victim.wait_for_end()
