"""End-to-end tests of the registry watchers without a baseline of their own: a task
manager lock released with "Freigeben", a changed open command of exe files put back at
once with box 31, and a new trusted site of the user accepted into daten\\V_seiten.txt."""

import os
import time

from e2e_gemeinsam import WARNING_TITLE, hidden_windows, visible_titles
from harness import check, test, wait_until
from szenario import Szenario, Warnung, enthält, log_enthält, reg_add, reg_delete, reg_fehlt, reg_query, szenario

POLICIES = r"HKCU\Software\Microsoft\Windows\CurrentVersion\Policies\System"
CLASSES = r"HKLM\Software\Classes"
DOMAINS = r"Software\Microsoft\Windows\CurrentVersion\Internet Settings\ZoneMap\Domains"
NEW_DOMAIN = "kestrella-e2e.example"

# The classes whose open commands the watcher compares, and what it expects of them.
OPEN_COMMANDS = {
    "exefile": '"%1" %*',
    "comfile": '"%1" %*',
    "batfile": '"%1" %*',
    "piffile": '"%1" %*',
    "htafile": 'mshta.exe "%1" %*',
}


def started(h, name, **settings):
    h.program_folder(name)
    h.settings(aufab1=1, **settings)
    h.start()
    check(wait_until(lambda: hidden_windows(h), 30), "the program did not start")


def default_value(h, key):
    """The data of the key's default value as reg query prints it; None when there is none."""
    out = reg_query(h, key, "/ve")
    if out is None:
        return None
    for line in out.splitlines():
        parts = line.strip().split(None, 2)
        if len(parts) >= 2 and parts[1].startswith("REG_"):
            return parts[2] if len(parts) == 3 else ""
    return None


def set_default(h, key, data):
    h.run(["wine", "reg", "add", key, "/ve", "/d", data, "/f"], env=h.tool_env)


def subkeys(h, key):
    """The names of the key's subkeys; reg query prints them with the long hive name."""
    out = reg_query(h, key) or ""
    hive, rest = key.split("\\", 1)
    prefix = ({"HKLM": "HKEY_LOCAL_MACHINE", "HKCU": "HKEY_CURRENT_USER"}[hive] + "\\" + rest + "\\").lower()
    return [line.strip()[len(prefix):] for line in out.splitlines() if line.strip().lower().startswith(prefix)]


szenario(Szenario(
    name="task_manager_lock_raises_its_warning_and_freigeben_removes_it",
    einstellungen=dict(box26=1, box2=1),
    vorher=[reg_delete(POLICIES, "DisableTaskMgr")],
    warnungen=[Warnung(
        änderung=[reg_add(POLICIES, "DisableTaskMgr", "1", "REG_DWORD")],
        texte=["Zugang des Taskmanager's wurde Deaktiviert. (Strg+Alt+Entf)", "DisableTaskMgr = 1"],
        knöpfe=["Freigeben"], ohne_knöpfe=["Später", "Übernehmen"], bild="warnung-taskmanager.png",
        antwort="Freigeben",
        danach=[reg_fehlt(POLICIES, "DisableTaskMgr"),
                log_enthält("Zugang auf den Taskmanager wurde Deaktiviert.", "< Freigegeben OK >")])],
    aufräumen=[reg_delete(POLICIES, "DisableTaskMgr")],
))


def sound_open_commands():
    """Two steps: every class the watcher reads gets its expected command, and afterwards
    the prefix is put back as it was. A fresh prefix lacks some classes (piffile) and has
    others with commands of its own; with box 30 on, each would come up in turn, one per
    cycle."""
    keys = {cls: CLASSES + "\\" + cls + r"\shell\open\command" for cls in OPEN_COMMANDS}
    before = {}

    def setzen(h):
        for cls, key in keys.items():
            before[cls] = (reg_query(h, CLASSES + "\\" + cls) is not None, default_value(h, key))
            set_default(h, key, OPEN_COMMANDS[cls])

    def zurück(h):
        h.stop_program()
        for cls, (existed, value) in before.items():
            if not existed:
                h.reg_delete(CLASSES + "\\" + cls)
            elif value is None:
                h.run(["wine", "reg", "delete", keys[cls], "/ve", "/f"], env=h.tool_env, check=False)
            else:
                set_default(h, keys[cls], value)

    return setzen, zurück


@test
def changed_exe_open_command_is_put_back_at_once_with_box_31(h):
    setzen, zurück = sound_open_commands()
    try:
        setzen(h)
        started(h, "shellopen", box30=1, box31=1, box7=1)
        exe = r"HKCR\exefile\shell\open\command"
        set_default(h, exe, 'C:\\windows\\boese.exe "%1" %*')
        check(wait_until(lambda: default_value(h, exe) == '"%1" %*', 15, 0.5),
              f"the open command was not put back: {default_value(h, exe)!r}")
        time.sleep(2.5)
        check(WARNING_TITLE not in visible_titles(h), "a repair raised a warning")
        for cls, command in OPEN_COMMANDS.items():
            key = CLASSES + "\\" + cls + r"\shell\open\command"
            check(default_value(h, key) == command, f"{cls} changed: {default_value(h, key)!r}")
    finally:
        zurück(h)


def registry_row(*expected):
    """The warning's registry row reads EXPECTED after its first column."""
    def prüfen(h):
        rows = [r for c in h.texts(WARNING_TITLE) for r in c["rows"] if r and r[0] == "Autostart"]
        check(rows and rows[0][1:1 + len(expected)] == list(expected), f"registry row: {rows}")
    return prüfen


def written_back(key, data):
    return lambda h: check(default_value(h, key) == data, f"not written back: {default_value(h, key)!r}")


HTA = r"HKLM\Software\Classes\htafile\shell\open\command"
SOUND, PUT_BACK = sound_open_commands()
szenario(Szenario(
    name="changed_hta_open_command_raises_its_warning_and_original_writes_it_back",
    einstellungen=dict(box30=1, box2=1),
    vorher=[SOUND],
    warnungen=[Warnung(
        änderung=[lambda h: set_default(h, HTA, "boese.exe")],
        texte=["Registryschlüssel wurde geändert.", 'Alter Wert: mshta.exe "%1" %*      Neuer Wert: boese.exe'],
        im_fenster=[registry_row("HKEY_CLASSES_ROOT", r"htafile\Shell\Open\Command", "(Standart)",
                                 'mshta.exe "%1" %*')],
        knöpfe=["Original", "Später"], ohne_knöpfe=["Übernehmen"], bild="warnung-shell.png",
        antwort="Original",
        danach=[written_back(HTA, 'mshta.exe "%1" %*'), log_enthält("< Zurückgesetzt OK > auf ")])],
    aufräumen=[PUT_BACK],
))


def known_domains(h):
    """The prefix's own domains are known from the start."""
    known = subkeys(h, "HKLM\\" + DOMAINS) + subkeys(h, "HKCU\\" + DOMAINS)
    with open(os.path.join(h.folder, "daten", "V_seiten.txt"), "wb") as f:
        f.write("".join(d + "\r\n" for d in known).encode("cp1252"))


NEW_SITE = "HKCU\\" + DOMAINS + "\\" + NEW_DOMAIN
szenario(Szenario(
    name="new_trusted_site_of_the_user_raises_its_warning_and_is_accepted",
    einstellungen=dict(box29=1, box2=1),
    vorher=[reg_delete(NEW_SITE)], im_ordner=[known_domains], ruhig_vorher=2.5,
    warnungen=[Warnung(
        änderung=[reg_add(NEW_SITE, "http", "2", "REG_DWORD")],
        texte=["Eintrag in Vertrauenswürdige Seiten [IExplorer Sicherheit]"],
        knöpfe=["Übernehmen", "Löschen"], bild="warnung-seiten.png",
        antwort="Übernehmen",
        danach=[enthält(os.path.join("daten", "V_seiten.txt"), NEW_DOMAIN + "\r\n"),
                log_enthält("Eintrag in der Registry Vertrauenswürdige Seiten (IExplorer).\r\n"
                            "Registry: HKEY_CURRENT_USER\\", "< Übernommen OK >")])],
    aufräumen=[reg_delete(NEW_SITE)],
))
