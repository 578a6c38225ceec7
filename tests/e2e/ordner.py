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
from szenario import JA_LÖSCHEN, Szenario, Warnung, log_enthält, szenario

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


def datei(pfad, inhalt=b"MZ"):
    """A step that writes the file at PFAD(h)."""
    return lambda h: write(pfad(h), inhalt)


def weg(*pfade):
    return lambda h: [remove(p(h)) for p in pfade]


def fehlt(pfad):
    return lambda h: check(not os.path.exists(pfad(h)), f"{pfad(h)} is still there")


def system32(name):
    return lambda h: os.path.join(h.prefix, "drive_c", "windows", "system32", name)


def syswow64(name):
    return lambda h: os.path.join(h.prefix, "drive_c", "windows", "syswow64", name)


STAND = {}  # what a step notes for a later check of the same run


def within_two_intervals(h):
    # kdriver starts and polls in steps: the time seen is an upper bound.
    took = time.monotonic() - STAND["geschrieben"]
    check(took < 2 * 1.0 + 1.5, f"the warning came {took:.1f} s after the file, not within two intervals")


DLL = system32(TEST_NAME + ".dll")
szenario(Szenario(
    name="system32_file_warned_within_two_intervals_and_deleted",
    einstellungen=dict(box2=1, box20=1, box16=1, box17=1),
    vorher=[weg(DLL)], ruhig_vorher=2,
    warnungen=[Warnung(
        änderung=[datei(DLL), lambda h: STAND.update(geschrieben=time.monotonic())],
        im_fenster=[within_two_intervals], texte=["Datei wurde erstellt!"],
        zellen=["C:\\windows\\system32\\" + TEST_NAME + ".dll", TEST_NAME + ".dll"],
        knöpfe=["Übernehmen", "Datei löschen", "Ausnahmeliste", "Später"], bild="warnung-systemdatei.png",
        antwort="Datei löschen", bestätigen=JA_LÖSCHEN,
        danach=[fehlt(DLL), log_enthält("Datei wurde erstellt oder geändert.\r\nDatei: ", "< Gelöscht OK >")])],
    ruhig=0, aufräumen=[weg(DLL)],
))


def syswow64_made(h):
    # A Wine without its 32-bit part names the folder all the same but does not make it.
    STAND["gemacht"] = not os.path.isdir(syswow64("")(h))
    os.makedirs(syswow64("")(h), exist_ok=True)


def syswow64_gone(h):
    weg(DLL32, DLL_WEG)(h)
    if STAND.pop("gemacht", False):
        os.rmdir(syswow64("")(h))


DLL32, DLL_WEG = syswow64(TEST_NAME + "-32.dll"), syswow64(TEST_NAME + "-weg.dll")
szenario(Szenario(
    name="syswow64_file_warned_accepted_and_another_deleted",
    einstellungen=dict(box2=1, box32=1, box16=1, box17=1),
    vorher=[syswow64_made, weg(DLL32, DLL_WEG)], ruhig_vorher=2,
    warnungen=[
        Warnung(änderung=[datei(DLL32)], texte=["Datei wurde erstellt!"],
                zellen=["C:\\windows\\syswow64\\" + TEST_NAME + "-32.dll"],
                antwort="Übernehmen", danach=[lambda h: check(os.path.exists(DLL32(h)), "the accepted file went")],
                ruhig=2.5),
        Warnung(änderung=[datei(DLL_WEG)], zellen=[TEST_NAME + "-weg.dll"],
                antwort="Datei löschen", bestätigen=JA_LÖSCHEN,
                danach=[fehlt(DLL_WEG), log_enthält("Neue Datei wurde erstellt.\r\nDatei: ", "< Gelöscht OK >")]),
    ],
    ruhig=0, aufräumen=[syswow64_gone],
))


def favorite(h):
    return os.path.join(favorites_folder(h), TEST_NAME + ".url")


def favourites_known(h):
    """What the prefix has already is known, as after the assistant."""
    folder = favorites_folder(h)
    known = [n for n in os.listdir(folder) if os.path.isfile(os.path.join(folder, n))]
    with open(os.path.join(h.folder, "daten", "favoriten.txt"), "wb") as f:
        f.write("".join(n + "\r\n" for n in known).encode("cp1252"))


def accepted_last(h):
    baseline = read_cp1252(os.path.join(h.folder, "daten", "favoriten.txt"))
    check(baseline.endswith(TEST_NAME + ".url\r\n"), f"not in daten\\favoriten.txt: {baseline!r}")


szenario(Szenario(
    name="new_favourite_warned_and_accepted_into_the_baseline",
    einstellungen=dict(box2=1, box5=1),
    vorher=[weg(favorite)], im_ordner=[favourites_known], ruhig_vorher=2,
    warnungen=[Warnung(
        änderung=[datei(favorite, b"[InternetShortcut]\r\nURL=http://kestrella.invalid/\r\n")],
        texte=["Neuer IExplorer Favorit wurde hinzugefügt.", TEST_NAME + ".url"],
        antwort="Übernehmen",
        danach=[accepted_last, log_enthält("Neuer IExplorer Favorit gefunden.", "< Favorit hinzugefügt OK >")])],
    aufräumen=[weg(favorite)],
))
