"""Local files are in the code page of Windows: logs, settings and dialogues of a Greek Windows."""

from copies import ENGLISH, GREEK
from desktop import run, wait_until
from keeping import save
from names import expect
from registry import set_value
from scenes import connect, hang_up

PAGES = r"HKLM\SYSTEM\CurrentControlSet\Control\Nls\CodePage"
GREEK_PAGE = "1253"


def local_page():
    lines = run("wine", "reg", "query", PAGES, "/v", "ACP").splitlines()
    return next(line.split()[-1] for line in lines if "REG_SZ" in line)


def talk_and_look(tour):
    anna, bob = tour.copy(True, "Άννα", GREEK), tour.copy(False, "Bob", ENGLISH)
    connect(anna, bob)
    anna.type_line("Καλημέρα, κοστίζει 5 €")
    bob.type_line("Γειά σου")
    anna.await_line("Bob", "Γειά σου")
    dialogue = anna.folder / "dialogue.txt"
    save(anna, dialogue)
    for file in (anna.log_file("Bob"), dialogue):
        content = file.read_bytes()
        for line in ("Καλημέρα, κοστίζει 5 €", "Γειά σου"):
            expect(line.encode("cp1253") in content, f"“{line}” is not in the code page in {file.name}")
    hang_up(anna, bob)
    anna.type_line("/NICK Βασίλης")
    wait_until(lambda: b"Nickname=" + "Βασίλης".encode("cp1253") in anna.settings.read_bytes(),
               "the settings are in the code page")
    tour.leave(anna, bob)
    tour.say("logs, dialogues and settings in the code page of a Greek Windows")


def code_page(tour):
    before = local_page()
    set_value(PAGES, "ACP", "REG_SZ", GREEK_PAGE)
    try:
        talk_and_look(tour)
    finally:
        set_value(PAGES, "ACP", "REG_SZ", before)
