"""End-to-end tests that the user's answer to a warning holds: a StartUp shortcut accepted
once stays quiet for ten cycles (and one that an older version stored with its folder is
known too), a deferred process stays quiet for the run, a favourite deferred stays while
another is deleted, and the reset started from a program folder with blanks brings the
program back."""

import os
import subprocess

from beenden import reset_through_the_panel, restarted_into_the_assistant, started_with_icon
from e2e_gemeinsam import WARNING_TITLE, hidden_windows, visible_titles
from harness import E2EError, check, test, wait_until
from ordner import TEST_NAME, favorites_folder, read_cp1252, remove, startup_folder, write
from prozesse import Sleepers, start_watching




def quiet_for(h, secs):
    """True when no warning shows during SECS seconds."""
    return not wait_until(lambda: WARNING_TITLE in visible_titles(h), secs, 0.3)


def known_names(folder):
    return [n for n in os.listdir(folder) if os.path.isfile(os.path.join(folder, n))]


def write_list(path, lines):
    with open(path, "wb") as f:
        f.write("".join(line + "\r\n" for line in lines).encode("cp1252"))


@test
def answer_startup_lnk_accepted_once_stays_quiet_for_ten_cycles(h):
    folder = startup_folder(h)
    new = os.path.join(folder, TEST_NAME + ".lnk")
    old = os.path.join(folder, TEST_NAME + "-alt.lnk")
    remove(new)
    remove(old)
    try:
        write(old, b"L\0\0\0")
        h.program_folder("antwort-autostart")
        # What the folder holds is known; the older file as an older version stored it,
        # with its folder.
        known = [n for n in known_names(folder) if n != os.path.basename(old)]
        write_list(os.path.join(h.folder, "daten", "Autostart.txt"), known + [h.win_path(old)])
        h.settings(box2=1, aufab1=1, box11=1)
        h.start()
        check(wait_until(lambda: hidden_windows(h), 30), "the program did not start")
        check(quiet_for(h, 3), "a file stored with its folder was warned of")

        write(new, b"L\0\0\0")
        hwnd = h.wait_window(WARNING_TITLE, 15)
        texts = [c["text"] for c in h.texts(hwnd) if c["visible"]]
        check("Neuer Eintrag in der Autostart Ordner gefunden." in texts, f"headline missing: {texts}")
        h.click(hwnd, "Übernehmen")
        h.gone(hwnd, 10)
        baseline = read_cp1252(os.path.join(h.folder, "daten", "Autostart.txt"))
        check(baseline.endswith("\r\n" + TEST_NAME + ".lnk\r\n"), f"the name is not in daten\\Autostart.txt: {baseline!r}")
        # Ten cycles at stage 1, and one more interval after the window closed.
        check(quiet_for(h, 11), "the accepted shortcut was warned of again")
        check(os.path.exists(new), "the accepted shortcut is gone")
    finally:
        remove(new)
        remove(old)


@test
def answer_deferred_process_stays_quiet_for_the_run(h):
    sleepers = Sleepers(h)
    try:
        start_watching(h, "antwort-prozess")
        proc, _ = sleepers.start("spaeter")
        hwnd = h.wait_window(WARNING_TITLE, 15)
        h.click(hwnd, "Später")
        h.gone(hwnd, 10)
        check(quiet_for(h, 6), "the deferred process was warned of again")
        check(proc.poll() is None, "the deferred process was ended")
    finally:
        try:
            sleepers.stop()
        except (E2EError, OSError, subprocess.TimeoutExpired):
            pass


@test
def answer_favourite_deferred_stays_and_another_is_deleted(h):
    folder = favorites_folder(h)
    first = os.path.join(folder, TEST_NAME + "-a.url")
    second = os.path.join(folder, TEST_NAME + "-b.url")
    remove(first)
    remove(second)
    try:
        h.program_folder("antwort-favoriten")
        write_list(os.path.join(h.folder, "daten", "favoriten.txt"), known_names(folder))
        h.settings(box2=1, aufab1=1, box5=1)
        h.start()
        check(wait_until(lambda: hidden_windows(h), 30), "the program did not start")
        check(quiet_for(h, 2), "a warning came before the favourites were added")

        # Deleted first: a deferred favourite holds back the ones behind it in its folder.
        write(first)
        hwnd = h.wait_window(WARNING_TITLE, 15)
        h.click(hwnd, "Löschen")
        h.wait_window("Achtung!", 10)
        h.click("Achtung!", "Ja löschen")
        h.gone(hwnd, 10)
        check(not os.path.exists(first), "the deleted favourite is still in the folder")
        log = read_cp1252(os.path.join(h.folder, "Kestrella.log"))
        entry = "Favorit: " + h.win_path(first)
        check(entry.lower() in log.lower() and "< Favorit gelöscht OK >" in log, f"no delete entry in the log: {log!r}")

        write(second)
        hwnd = h.wait_window(WARNING_TITLE, 15)
        texts = [c["text"] for c in h.texts(hwnd) if c["visible"]]
        check(os.path.basename(second) in texts, f"not the second favourite: {texts}")
        h.click(hwnd, "Später")
        h.gone(hwnd, 10)
        check(quiet_for(h, 5), "the deferred favourite was warned of again")
        check(os.path.exists(second), "the deferred favourite is gone")
    finally:
        remove(first)
        remove(second)


@test
def answer_reset_from_a_program_folder_with_blanks_starts_the_program_again(h):
    proc = started_with_icon(h, "mit Leerzeichen im Pfad")
    check(" " in h.folder, f"no blank in {h.folder}")
    reset_through_the_panel(h, proc)
    restarted_into_the_assistant(h)
