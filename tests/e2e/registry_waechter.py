"""End-to-end tests of the registry watchers without a baseline of their own: a task
manager lock released with "Freigeben", a changed open command of exe files put back at
once with box 31, and a new trusted site of the user accepted into daten\\V_seiten.txt."""

import contextlib
import os
import time

from e2e_gemeinsam import WARNING_TITLE, hidden_windows, visible_titles
from harness import check, test, wait_until

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


def visible_texts(h):
    return [c["text"] for c in h.texts(WARNING_TITLE) if c["visible"]]


def buttons(h):
    return [c["text"] for c in h.texts(WARNING_TITLE) if c["class"].lower() == "button" and c["visible"]]


def log_text(h):
    path = os.path.join(h.folder, "Kestrella.log")
    if not os.path.exists(path):
        return ""
    with open(path, "rb") as f:
        return f.read().decode("cp1252")


def reg_query(h, key, *args):
    """reg query's output, or None when the key or value is not there."""
    out = h.run(["wine", "reg", "query", key, *args], env=h.tool_env, check=False)
    return out.stdout.decode("cp1252", "replace") if out.returncode == 0 else None


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


@test
def task_manager_lock_raises_its_warning_and_freigeben_removes_it(h):
    h.reg_delete(POLICIES, "DisableTaskMgr")
    started(h, "sperre", box26=1, box2=1)
    h.reg_add(POLICIES, "DisableTaskMgr", "1", "REG_DWORD")
    try:
        hwnd = h.wait_window(WARNING_TITLE, 15)
        texts = visible_texts(h)
        check("Zugang des Taskmanager's wurde Deaktiviert. (Strg+Alt+Entf)" in texts, f"headline missing: {texts}")
        check("DisableTaskMgr = 1" in texts, f"value line missing: {texts}")
        shown = buttons(h)
        check("Freigeben" in shown and "Später" not in shown and "Übernehmen" not in shown,
              f"the bar should offer Freigeben and no Später, it shows {shown}")
        h.screenshot(os.path.join(h.shots, "warnung-taskmanager.png"))
        h.click(hwnd, "Freigeben")
        h.gone(hwnd, 10)
        check(reg_query(h, POLICIES, "/v", "DisableTaskMgr") is None, "DisableTaskMgr is still set after Freigeben")
        check("Zugang auf den Taskmanager wurde Deaktiviert." in log_text(h)
              and "< Freigegeben OK >" in log_text(h), f"no release entry in the log: {log_text(h)!r}")
        time.sleep(2.5)
        check(WARNING_TITLE not in visible_titles(h), "the released lock raised its warning again")
    finally:
        h.reg_delete(POLICIES, "DisableTaskMgr")


@contextlib.contextmanager
def sound_open_commands(h):
    """Every class the watcher reads holds its expected command while the block runs. A
    fresh prefix lacks some classes (piffile) and has others with commands of its own; with
    box 30 on, each would come up in turn, one per cycle. The prefix is put back after."""
    keys = {cls: CLASSES + "\\" + cls + r"\shell\open\command" for cls in OPEN_COMMANDS}
    before = {cls: (reg_query(h, CLASSES + "\\" + cls) is not None, default_value(h, key))
              for cls, key in keys.items()}
    try:
        for cls, key in keys.items():
            set_default(h, key, OPEN_COMMANDS[cls])
        yield keys
    finally:
        h.stop_program()
        for cls, key in keys.items():
            existed, value = before[cls]
            if not existed:
                h.reg_delete(CLASSES + "\\" + cls)
            elif value is None:
                h.run(["wine", "reg", "delete", key, "/ve", "/f"], env=h.tool_env, check=False)
            else:
                set_default(h, key, value)


@test
def changed_exe_open_command_is_put_back_at_once_with_box_31(h):
    with sound_open_commands(h) as keys:
        started(h, "shellopen", box30=1, box31=1, box7=1)
        exe = r"HKCR\exefile\shell\open\command"
        set_default(h, exe, 'C:\\windows\\boese.exe "%1" %*')
        check(wait_until(lambda: default_value(h, exe) == '"%1" %*', 15, 0.5),
              f"the open command was not put back: {default_value(h, exe)!r}")
        time.sleep(2.5)
        check(WARNING_TITLE not in visible_titles(h), "a repair raised a warning")
        for cls, key in keys.items():
            check(default_value(h, key) == OPEN_COMMANDS[cls], f"{cls} changed: {default_value(h, key)!r}")


@test
def changed_hta_open_command_raises_its_warning_and_original_writes_it_back(h):
    with sound_open_commands(h):
        started(h, "shellwarn", box30=1, box2=1)
        hta = r"HKLM\Software\Classes\htafile\shell\open\command"
        set_default(h, hta, "boese.exe")
        hwnd = h.wait_window(WARNING_TITLE, 15)
        texts = visible_texts(h)
        check("Registryschlüssel wurde geändert." in texts, f"headline missing: {texts}")
        check('Alter Wert: mshta.exe "%1" %*      Neuer Wert: boese.exe' in texts, f"value line missing: {texts}")
        rows = [r for c in h.texts(WARNING_TITLE) for r in c["rows"] if r and r[0] == "Autostart"]
        check(rows and rows[0][1:5] == ["HKEY_CLASSES_ROOT", r"htafile\Shell\Open\Command", "(Standart)",
                                        'mshta.exe "%1" %*'], f"registry row: {rows}")
        shown = buttons(h)
        check("Original" in shown and "Später" in shown and "Übernehmen" not in shown, f"the bar shows {shown}")
        h.screenshot(os.path.join(h.shots, "warnung-shell.png"))
        h.click(hwnd, "Original")
        h.gone(hwnd, 10)
        check(default_value(h, hta) == 'mshta.exe "%1" %*', f"not written back: {default_value(h, hta)!r}")
        check("< Zurückgesetzt OK > auf " in log_text(h), f"no entry in the log: {log_text(h)!r}")
        time.sleep(2.5)
        check(WARNING_TITLE not in visible_titles(h), "the command written back raised a warning")


@test
def new_trusted_site_of_the_user_raises_its_warning_and_is_accepted(h):
    hkcu = "HKCU\\" + DOMAINS + "\\" + NEW_DOMAIN
    h.reg_delete(hkcu)
    h.program_folder("seiten")
    # The prefix's own domains are known from the start.
    known = subkeys(h, "HKLM\\" + DOMAINS) + subkeys(h, "HKCU\\" + DOMAINS)
    with open(os.path.join(h.folder, "daten", "V_seiten.txt"), "wb") as f:
        f.write("".join(d + "\r\n" for d in known).encode("cp1252"))
    h.settings(aufab1=1, box29=1, box2=1)
    h.start()
    check(wait_until(lambda: hidden_windows(h), 30), "the program did not start")
    time.sleep(2.5)
    check(WARNING_TITLE not in visible_titles(h), f"a warning came for the prefix's own domains {known}")
    h.run(["wine", "reg", "add", hkcu, "/v", "http", "/t", "REG_DWORD", "/d", "2", "/f"], env=h.tool_env)
    try:
        hwnd = h.wait_window(WARNING_TITLE, 15)
        texts = visible_texts(h)
        check("Eintrag in Vertrauenswürdige Seiten [IExplorer Sicherheit]" in texts, f"headline missing: {texts}")
        shown = buttons(h)
        check("Übernehmen" in shown and "Löschen" in shown, f"the bar shows {shown}")
        h.screenshot(os.path.join(h.shots, "warnung-seiten.png"))
        h.click(hwnd, "Übernehmen")
        h.gone(hwnd, 10)
        with open(os.path.join(h.folder, "daten", "V_seiten.txt"), "rb") as f:
            baseline = f.read().decode("cp1252")
        check(baseline.endswith(NEW_DOMAIN + "\r\n"), f"the domain is not in daten\\V_seiten.txt: {baseline!r}")
        log = log_text(h)
        check("Eintrag in der Registry Vertrauenswürdige Seiten (IExplorer).\r\nRegistry: HKEY_CURRENT_USER\\" in log
              and "< Übernommen OK >" in log, f"no accept entry in the log: {log!r}")
        time.sleep(2.5)
        check(WARNING_TITLE not in visible_titles(h), "the accepted domain raised a warning again")
    finally:
        h.reg_delete(hkcu)
