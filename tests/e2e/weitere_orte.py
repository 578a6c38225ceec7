"""End-to-end tests of the watchers of further autostart places: a changed Winlogon Shell
value and a new debugger below Image File Execution Options raise their warnings with
their texts; the first is accepted into daten\\Winlogon.txt, the second deleted, which
removes the Debugger value and leaves its key. A new scheduled task in system32\\Tasks is
accepted into daten\\GeplanteAufgaben.txt; another is deleted, and its file alone goes, with
a backup."""

import os

from e2e_gemeinsam import WARNING_TITLE, hidden_windows
from harness import check, test, wait_until

NT = r"Software\Microsoft\Windows NT\CurrentVersion"
WINLOGON = "HKLM\\" + NT + r"\Winlogon"
IFEO = "HKLM\\" + NT + r"\Image File Execution Options\kes-e2e.exe"


def reg_value(h, key, name):
    """The data of a value as reg query prints it; None when the key or value is missing."""
    out = h.run(["wine", "reg", "query", key, "/v", name], env=h.tool_env, check=False)
    if out.returncode != 0:
        return None
    for line in out.stdout.decode("cp1252", "replace").splitlines():
        parts = line.strip().split(None, 2)
        if len(parts) >= 2 and parts[0].lower() == name.lower() and parts[1].startswith("REG_"):
            return parts[2] if len(parts) == 3 else ""
    return None


def visible_texts(h):
    return [c["text"] for c in h.texts(WARNING_TITLE) if c["visible"]]


def baselines_taken(h):
    daten = os.path.join(h.folder, "daten")
    return all(os.path.exists(os.path.join(daten, f)) for f in ("Winlogon.txt", "ImageFileExecution.txt"))


@test
def winlogon_shell_accepted_and_ifeo_debugger_deleted(h):
    shell = reg_value(h, WINLOGON, "Shell")
    h.reg_delete(IFEO)
    h.program_folder("weitere")
    h.settings(aufab1=1, box2=1, box33=1, box35=1)
    h.start()
    try:
        check(wait_until(lambda: hidden_windows(h), 30), "the program did not start")
        check(wait_until(lambda: baselines_taken(h), 15), "the first pass took no baseline")

        h.reg_add(WINLOGON, "Shell", "explorer.exe kes-e2e.exe")
        hwnd = h.wait_window(WARNING_TITLE, 15)
        texts = visible_texts(h)
        check("Ein Winlogon-Eintrag in der Registry ist neu oder wurde geändert." in texts, f"headline: {texts}")
        check("Name: HKEY_LOCAL_MACHINE\\" + NT + "\\Winlogon\\Shell" in texts, f"name row: {texts}")
        check("Pfad: explorer.exe kes-e2e.exe" in texts, f"data row: {texts}")
        h.screenshot(os.path.join(h.shots, "warnung-winlogon.png"))
        h.click(hwnd, "Übernehmen")
        h.gone(hwnd, 10)
        with open(os.path.join(h.folder, "daten", "Winlogon.txt"), "rb") as f:
            baseline = f.read().decode("cp1252")
        check("\\Winlogon\\Shell\\explorer.exe kes-e2e.exe\r\n" in baseline, f"not accepted: {baseline!r}")

        h.reg_add(IFEO, "Debugger", r"C:\windows\notepad.exe")
        hwnd = h.wait_window(WARNING_TITLE, 15)
        texts = visible_texts(h)
        check("Ein Debugger für ein Programm wurde in der Registry eingetragen oder geändert." in texts,
              f"headline: {texts}")
        check("Name: HKEY_LOCAL_MACHINE\\" + NT + "\\Image File Execution Options\\kes-e2e.exe\\Debugger" in texts,
              f"name row: {texts}")
        h.click(hwnd, "Registry löschen")
        h.wait_window("Achtung!", 10)
        h.click("Achtung!", "Ja löschen")
        h.gone(hwnd, 10)
        check(reg_value(h, IFEO, "Debugger") is None, "the Debugger value is still there")
        out = h.run(["wine", "reg", "query", IFEO], env=h.tool_env, check=False)
        check(out.returncode == 0, "the delete took the key along with its value")
    finally:
        h.stop_program()
        if shell is not None:
            h.reg_add(WINLOGON, "Shell", shell)
        h.reg_delete(IFEO)


TASK_HEADLINE = "Eine geplante Aufgabe ist neu oder ihr Befehl wurde geändert."


def task_xml(command, arguments):
    """A task as Windows writes it: UTF-16 LE with its byte order mark."""
    text = ('<?xml version="1.0" encoding="UTF-16"?>\r\n'
            '<Task version="1.2" xmlns="http://schemas.microsoft.com/windows/2004/02/mit/task">\r\n'
            "  <Settings><ExecutionTimeLimit>PT72H</ExecutionTimeLimit></Settings>\r\n"
            '  <Actions Context="Author">\r\n'
            f"    <Exec><Command>{command}</Command><Arguments>{arguments}</Arguments></Exec>\r\n"
            "  </Actions>\r\n</Task>\r\n")
    return b"\xff\xfe" + text.encode("utf-16-le")


def drop(h, path, data):
    """The file put in place whole, by a rename: the program never reads it half written."""
    temp = os.path.join(h.prefix, "drive_c", "windows", "temp", "kes-e2e-aufgabe.tmp")
    os.makedirs(os.path.dirname(temp), exist_ok=True)
    with open(temp, "wb") as f:
        f.write(data)
    os.replace(temp, path)


def files_below(folder):
    return sorted(os.path.relpath(os.path.join(d, n), folder) for d, _, names in os.walk(folder) for n in names)


def system_folder_entry(h, name):
    """A folder of the prefix's system folder by a name compared without regard to case, as
    Windows compares it (Wine makes "tasks"); made when there is none."""
    system32 = os.path.join(h.prefix, "drive_c", "windows", "system32")
    same = [n for n in os.listdir(system32) if n.lower() == name.lower()]
    path = os.path.join(system32, same[0] if same else name)
    os.makedirs(path, exist_ok=True)
    return path


@test
def scheduled_task_accepted_and_another_deleted_alone(h):
    tasks = system_folder_entry(h, "Tasks")
    accepted = os.path.join(tasks, "kes-e2e-neu")
    deleted = os.path.join(tasks, "kes-e2e-zwei")
    for path in (accepted, deleted):
        if os.path.exists(path):
            os.remove(path)
    win = "C:\\windows\\system32\\Tasks\\"
    h.program_folder("aufgaben")
    h.settings(aufab1=1, box2=1, box42=1)
    baseline = os.path.join(h.folder, "daten", "GeplanteAufgaben.txt")
    h.start()
    try:
        check(wait_until(lambda: hidden_windows(h), 30), "the program did not start")
        check(wait_until(lambda: os.path.exists(baseline), 15), "the first pass took no baseline")

        drop(h, accepted, task_xml(r"C:\windows\kes-e2e.exe", "/x"))
        hwnd = h.wait_window(WARNING_TITLE, 15)
        texts = visible_texts(h)
        lower = [t.lower() for t in texts]
        check(TASK_HEADLINE in texts, f"headline: {texts}")
        check(("Name: " + win + "kes-e2e-neu").lower() in lower, f"name row: {texts}")
        check("Pfad: C:\\windows\\kes-e2e.exe /x" in texts, f"command row: {texts}")
        h.screenshot(os.path.join(h.shots, "warnung-aufgabe.png"))
        h.click(hwnd, "Übernehmen")
        h.gone(hwnd, 10)
        with open(baseline, "rb") as f:
            lines = f.read().decode("cp1252").lower()
        check((win + "kes-e2e-neu|C:\\windows\\kes-e2e.exe /x\r\n").lower() in lines, f"not accepted: {lines!r}")

        # Both unknown, the first by name would warn first: a warning of the second shows
        # that the accepted task warns no more.
        drop(h, deleted, task_xml(r"C:\windows\kes-e2e.exe", "/y"))
        hwnd = h.wait_window(WARNING_TITLE, 15)
        texts = visible_texts(h)
        check(("Name: " + win + "kes-e2e-zwei").lower() in [t.lower() for t in texts], f"name row: {texts}")
        check("Pfad: C:\\windows\\kes-e2e.exe /y" in texts, f"command row: {texts}")
        before = files_below(tasks)
        h.click(hwnd, "Löschen")
        h.wait_window("Achtung!", 10)
        h.click("Achtung!", "Ja löschen")
        h.gone(hwnd, 10)
        after = files_below(tasks)
        check(after == [n for n in before if n != "kes-e2e-zwei"], f"not the task alone went: {before} -> {after}")
        backups = os.listdir(os.path.join(h.folder, "daten", "Sicherung"))
        check(any(n.endswith("-kes-e2e-zwei") for n in backups), f"no backup of the task: {backups}")
    finally:
        h.stop_program()
        for path in (accepted, deleted):
            if os.path.exists(path):
                os.remove(path)
