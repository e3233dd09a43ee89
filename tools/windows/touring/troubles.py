"""Troubles with files: held by another program, on a drive that vanishes, on a full disk. Each is told, nothing
that was written is lost, and the next conversation is logged again. An error ends the conversation."""

import os
import pathlib
import shutil
import subprocess

from copies import ENGLISH, GREEK
from desktop import run, wait_until
from names import call_as, expect

FOREIGN_SOURCE = pathlib.Path(__file__).with_name("foreign.c")


class Foreign:
    """A program of somebody else, under Wine, that holds a file or a pipe."""

    def __init__(self, tour, what, name, sign):
        program = tour.folder / "foreign.exe"
        if not program.exists():
            subprocess.run(["x86_64-w64-mingw32-gcc", "-municode", "-o", program, FOREIGN_SOURCE], check=True)
        self.process = subprocess.Popen(["wine", str(program), what, name], cwd=tour.folder)
        wait_until(sign.exists, f"somebody else holds {name}")
        sign.unlink()

    def end(self):
        self.process.kill()
        self.process.wait()


def hold(tour, copy, file):
    return Foreign(tour, "file", copy.native(file), file.with_name(file.name + ".held"))


class Drive:
    """A drive of Windows that can be taken out."""

    def __init__(self, folder):
        self.link = pathlib.Path(os.environ["WINEPREFIX"]) / "dosdevices" / "x:"
        self.folder, self.out = folder, folder.with_name(folder.name + " out")
        (folder / "logs").mkdir(parents=True)
        self.link.unlink(missing_ok=True)
        self.link.symlink_to(folder)

    def take_out(self):
        self.link.unlink()
        self.folder.rename(self.out)

    def put_in(self):
        self.out.rename(self.folder)
        self.link.symlink_to(self.folder)


def log_on_drive(copy):
    """Its log is kept on the drive X: from now on."""
    copy.kill()
    settings = copy.text_of(copy.settings)
    settings = settings.replace(f"Logfolder={copy.native(copy.folder)}\\", "Logfolder=X:\\")
    copy.settings.write_bytes(settings.replace("\n", "\r\n").encode())
    copy.start()


def held(tour):
    bob = tour.copy(True, "Bob", ENGLISH)
    call_as(tour, bob, "CON", "--stay", "300")
    foreign = hold(tour, bob, bob.log_file("CON_"))
    bob.type_line("Meanwhile")
    bob.await_line("CON_ (2)", "Meanwhile")
    foreign.end()
    tour.say("a log that another program holds goes on in another file")
    foreign = hold(tour, bob, bob.settings)
    bob.type_line("/TIME")
    bob.answer("Verlume, 234.", "Return")
    foreign.end()
    expect(bob.setting("Nickname") == "Bob", "the settings are lost")
    bob.type_line("/NOTIME")
    bob.type_line("/TIME")
    wait_until(lambda: bob.setting("TimeStamp") == "True", "the setting is in the file")
    tour.say("settings that another program holds")
    tour.leave(bob)


def spoil_log(tour, copy, spoil, mend, what):
    call_as(tour, copy, "CON", "--stay", "300")
    spoil()
    copy.type_line("Not logged")
    wait_until(lambda: copy.windows("^Verlume, 240.$"), f"{copy.name} is told of {what}")
    tour.picture(what)
    copy.answer("Verlume, 240.", "Return")
    mend()
    copy.await_line("CON_", "I am CON")
    call_as(tour, copy, "NUL", "--stay", "300")
    tour.say(what)


def troubles(tour):
    held(tour)
    drive = Drive(tour.folder / "drive")
    anna = tour.copy(True, "Άννα", GREEK)
    log_on_drive(anna)
    anna.log_file = lambda peer: drive.folder / "logs" / f"{peer}.txt"
    spoil_log(tour, anna, drive.take_out, drive.put_in, "a drive that is taken out")
    anna.kill()
    if os.geteuid() == 0:  # who may mount a small disk
        full_disk(tour, drive)
    drive.link.unlink()


def full_disk(tour, drive):
    shutil.rmtree(drive.folder)
    drive.folder.mkdir()
    run("mount", "-t", "tmpfs", "-o", "size=100k", "tmpfs", str(drive.folder))
    try:
        (drive.folder / "logs").mkdir()
        bob = tour.copy(True, "Bob", ENGLISH)
        log_on_drive(bob)
        bob.log_file = lambda peer: drive.folder / "logs" / f"{peer}.txt"
        fill = drive.folder / "fill"

        def spoil():
            log = bob.log_file("CON_")
            log.write_bytes((log.read_bytes() + b"\r\n" * 2048)[:4096])  # its last block is full, too
            run("dd", "if=/dev/zero", f"of={fill}", "bs=1k")
        spoil_log(tour, bob, spoil, fill.unlink, "a full disk")
        bob.kill()
    finally:
        run("umount", "--lazy", str(drive.folder))
