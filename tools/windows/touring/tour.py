#!/usr/bin/python3
"""tour.py WINDOWS LINUX FOLDER PEER PICTURES [SCENE...]: operates the programs as users do, and says
what worked. WINDOWS and LINUX are the programs, FOLDER is where their copies go, PEER is the peer in
Python, PICTURES the folder of the pictures. Ends with 1 at the first thing that does not work."""

import pathlib
import sys

import desktop
from copies import Copy
from installing import installed
from keeping import dialogues_and_macros, killed, settings
from names import names
from pages import code_page
from places import places
from registry import system_info
from talking import conversations, full_speed
from troubles import troubles

SCENES = (conversations, full_speed, dialogues_and_macros, settings, killed, names, troubles, places,
          code_page, system_info, installed)


class Tour:
    def __init__(self, windows, linux, folder, peer, pictures):
        self.programs = {True: pathlib.Path(windows), False: pathlib.Path(linux)}
        self.folder, self.peer = pathlib.Path(folder), peer
        self.pictures = pathlib.Path(pictures)
        self.copies = []

    def copy(self, is_windows, name, language, privacy="WhenPossible"):
        folder = self.folder / f"{len(self.copies)} {name}"
        self.copies.append(Copy(self.programs[is_windows], folder, name, language, privacy))
        return self.copies[-1]

    def leave(self, *copies):
        for copy in copies:
            copy.kill()

    def picture(self, name):
        desktop.picture(self.pictures / f"{name}.png")

    def say(self, what):
        print(f"  works: {what}", flush=True)


def main(arguments):
    tour = Tour(*arguments[:5])
    wanted = arguments[5:]
    try:
        for scene in SCENES:
            if not wanted or scene.__name__ in wanted:
                print(scene.__name__, flush=True)
                scene(tour)
    except desktop.TourFailed as failure:
        tour.picture("failed")
        print(f"{failure}; see failed.png", file=sys.stderr)
        return 1
    finally:
        for copy in tour.copies:
            if copy.process and copy.process.poll() is None:
                copy.kill()
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
