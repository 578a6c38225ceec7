"""End-to-end tests of the folder watchers: a file in the user's Startup folder removed at
once with its balloon and log line, a file created in the system folder warned of and
deleted through "Datei löschen", files created in SysWOW64 (the 32-bit programs' system
folder) accepted and deleted, and a new favourite accepted into daten\\favoriten.txt.

The system folder test at XP scale: a build folder that holds copies of Kestrella.exe,
kestrella-dat.exe and tests/e2e/kd*.* beside an e2e-prefix made by tools/xp_machine.py, then
`e2e.py --build THAT_FOLDER -k system32`."""

import glob
import os
import time

from e2e_gemeinsam import WARNING_TITLE, hidden_windows, visible_titles
from harness import check, test, wait_until

TEST_NAME = "Kestrella-E2E"


def user_folder(h, *parts):
    """A folder of the prefix's one user (not Public), by its path below the profile. Names
    compare without regard to case, as Windows does: Wine spells the Startup folder "StartUp"."""
    for profile in sorted(glob.glob(os.path.join(h.prefix, "drive_c", "users", "*"))):
        if os.path.basename(profile).lower() == "public" or not os.path.isdir(os.path.join(profile, "AppData")):
            continue
        path = profile
        for part in parts:
            same = [n for n in os.listdir(path) if n.lower() == part.lower()] if os.path.isdir(path) else []
            path = os.path.join(path, same[0] if same else part)
        check(os.path.isdir(path), f"the prefix has no folder {path}")
        return path
    raise AssertionError("the prefix has no user profile")


def startup_folder(h):
    return user_folder(h, "AppData", "Roaming", "Microsoft", "Windows", "Start Menu", "Programs", "StartUp")


def favorites_folder(h):
    return user_folder(h, "Favorites")


def read_cp1252(path):
    with open(path, "rb") as f:
        return f.read().decode("cp1252")


def write(path, data=b"[InternetShortcut]\r\nURL=http://kestrella.invalid/\r\n"):
    with open(path, "wb") as f:
        f.write(data)


def remove(path):
    if os.path.exists(path):
        os.remove(path)


def start(h, name, **values):
    h.program_folder(name)
    h.settings(box2=1, aufab1=1, **values)
    h.start()
    check(wait_until(lambda: hidden_windows(h), 30), "the program did not start")


def balloon_shown(h):
    """True while the notification area shows a balloon: under Wine a visible tool tip
    window of the tray's process. Its text lies in another process, out of reach."""
    return any(w["visible"] and w["class"].lower() == "tooltips_class32" for w in h.windows())


@test
def startup_file_removed_at_once_with_balloon_and_log(h):
    folder = startup_folder(h)
    path = os.path.join(folder, TEST_NAME + ".lnk")
    remove(path)
    try:
        start(h, "startup", box11=1, box12=1)
        # The balloon of the start ("Überwachung ist aktiviert") goes first, so the one seen
        # below is the removal's.
        check(wait_until(lambda: not balloon_shown(h), 20, 0.3), "the balloon of the start does not go")
        write(path, b"L\0\0\0")
        check(wait_until(lambda: not os.path.exists(path), 10, 0.1), "the file is still in the Startup folder")
        log = os.path.join(h.folder, "Kestrella.log")
        check(wait_until(lambda: os.path.exists(log), 5), "no Kestrella.log")
        entry = f"Neuer Eintrag im Autostart Ordner.\r\nDatei: {TEST_NAME}.lnk\r\n< Gelöscht OK >"
        check(wait_until(lambda: entry in read_cp1252(log), 5), f"no removal entry in the log: {read_cp1252(log)!r}")
        check(WARNING_TITLE not in visible_titles(h), "a warning came although the file was removed alone")
        check(wait_until(lambda: balloon_shown(h), 10, 0.3), "no balloon for the removal")
        h.screenshot(os.path.join(h.shots, "autostart-sprechblase.png"))
    finally:
        remove(path)


@test
def system32_file_warned_within_two_intervals_and_deleted(h):
    system32 = os.path.join(h.prefix, "drive_c", "windows", "system32")
    path = os.path.join(system32, TEST_NAME + ".dll")
    remove(path)
    try:
        start(h, "system32", box20=1, box16=1, box17=1)
        time.sleep(2)
        write(path, b"MZ")
        created = time.monotonic()
        hwnd = h.wait_window(WARNING_TITLE, 15)
        # kdriver starts and polls in steps: the time seen is an upper bound.
        took = time.monotonic() - created
        check(took < 2 * 1.0 + 1.5, f"the warning came {took:.1f} s after the file, not within two intervals")
        controls = [c for c in h.texts(hwnd) if c["visible"]]
        texts = [c["text"] for c in controls]
        check("Datei wurde erstellt!" in texts, f"headline missing: {texts}")
        rows = [cell.lower() for c in controls for row in c["rows"] for cell in row]
        win = "C:\\windows\\system32\\" + TEST_NAME + ".dll"
        check(win.lower() in rows and (TEST_NAME + ".dll").lower() in rows, f"name or path missing: {rows}")
        for caption in ("Übernehmen", "Datei löschen", "Ausnahmeliste", "Später"):
            check(caption in texts, f"button {caption!r} missing: {texts}")
        h.screenshot(os.path.join(h.shots, "warnung-systemdatei.png"))
        h.click(hwnd, "Datei löschen")
        h.wait_window("Achtung!", 10)
        h.click("Achtung!", "Ja löschen")
        h.gone(hwnd, 10)
        check(not os.path.exists(path), "the file is still in system32 after Ja löschen")
        log = read_cp1252(os.path.join(h.folder, "Kestrella.log"))
        check("Datei wurde erstellt oder geändert.\r\nDatei: " in log and "< Gelöscht OK >" in log,
              f"no delete entry in the log: {log!r}")
    finally:
        remove(path)


@test
def syswow64_file_warned_accepted_and_another_deleted(h):
    syswow64 = os.path.join(h.prefix, "drive_c", "windows", "syswow64")
    # A Wine without its 32-bit part names the folder all the same but does not make it.
    made = not os.path.isdir(syswow64)
    os.makedirs(syswow64, exist_ok=True)
    accepted = os.path.join(syswow64, TEST_NAME + "-32.dll")
    deleted = os.path.join(syswow64, TEST_NAME + "-weg.dll")
    for path in (accepted, deleted):
        remove(path)
    try:
        start(h, "syswow64", box32=1, box16=1, box17=1)
        time.sleep(2)
        write(accepted, b"MZ")
        hwnd = h.wait_window(WARNING_TITLE, 15)
        controls = [c for c in h.texts(hwnd) if c["visible"]]
        texts = [c["text"] for c in controls]
        check("Datei wurde erstellt!" in texts, f"headline missing: {texts}")
        rows = [cell.lower() for c in controls for row in c["rows"] for cell in row]
        win = "C:\\windows\\syswow64\\" + TEST_NAME + "-32.dll"
        check(win.lower() in rows, f"the path in SysWOW64 missing: {rows}")
        h.click(hwnd, "Übernehmen")
        h.gone(hwnd, 10)
        check(os.path.exists(accepted), "the accepted file went")
        time.sleep(2.5)
        check(WARNING_TITLE not in visible_titles(h), "the accepted file raised a warning again")

        write(deleted, b"MZ")
        hwnd = h.wait_window(WARNING_TITLE, 15)
        rows = [cell.lower() for c in h.texts(hwnd) for row in c["rows"] for cell in row]
        check((TEST_NAME + "-weg.dll").lower() in rows, f"the second file missing: {rows}")
        h.click(hwnd, "Datei löschen")
        h.wait_window("Achtung!", 10)
        h.click("Achtung!", "Ja löschen")
        h.gone(hwnd, 10)
        check(not os.path.exists(deleted), "the file is still in syswow64 after Ja löschen")
        log = read_cp1252(os.path.join(h.folder, "Kestrella.log"))
        check("Neue Datei wurde erstellt.\r\nDatei: " in log and "< Gelöscht OK >" in log,
              f"no accept or delete entry in the log: {log!r}")
    finally:
        for path in (accepted, deleted):
            remove(path)
        if made:
            os.rmdir(syswow64)


@test
def new_favourite_warned_and_accepted_into_the_baseline(h):
    folder = favorites_folder(h)
    path = os.path.join(folder, TEST_NAME + ".url")
    remove(path)
    try:
        h.program_folder("favoriten")
        # What the prefix has already is known, as after the assistant.
        known = [n for n in os.listdir(folder) if os.path.isfile(os.path.join(folder, n))]
        with open(os.path.join(h.folder, "daten", "favoriten.txt"), "wb") as f:
            f.write("".join(n + "\r\n" for n in known).encode("cp1252"))
        h.settings(box2=1, aufab1=1, box5=1)
        h.start()
        check(wait_until(lambda: hidden_windows(h), 30), "the program did not start")
        time.sleep(2)
        check(WARNING_TITLE not in visible_titles(h), "a warning came before the favourite was added")
        write(path)
        hwnd = h.wait_window(WARNING_TITLE, 15)
        texts = [c["text"] for c in h.texts(hwnd) if c["visible"]]
        check("Neuer IExplorer Favorit wurde hinzugefügt." in texts, f"headline missing: {texts}")
        check(TEST_NAME + ".url" in texts, f"name missing: {texts}")
        h.click(hwnd, "Übernehmen")
        h.gone(hwnd, 10)
        baseline = read_cp1252(os.path.join(h.folder, "daten", "favoriten.txt"))
        check(baseline.endswith(TEST_NAME + ".url\r\n"), f"not in daten\\favoriten.txt: {baseline!r}")
        log = read_cp1252(os.path.join(h.folder, "Kestrella.log"))
        check("Neuer IExplorer Favorit gefunden." in log and "< Favorit hinzugefügt OK >" in log,
              f"no accept entry in the log: {log!r}")
        time.sleep(2.5)
        check(WARNING_TITLE not in visible_titles(h), "the accepted favourite raised a warning again")
    finally:
        remove(path)
