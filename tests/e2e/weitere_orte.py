"""End-to-end tests of the watchers of further autostart places: a changed Winlogon Shell
value and a new debugger below Image File Execution Options raise their warnings with
their texts; the first is accepted into daten\\Winlogon.txt, the second deleted, which
removes the Debugger value and leaves its key. A shell hook written in the 32-bit view
warns by its Wow6432Node path with its server file and is accepted; a new Winsock name
space is deleted with its catalog subkey. A new scheduled task in system32\\Tasks is
accepted into daten\\GeplanteAufgaben.txt; another is deleted, and its file alone goes, with
a backup."""

import os
import re

from e2e_gemeinsam import WARNING_TITLE, hidden_windows
from harness import check, test, wait_until

NT = r"Software\Microsoft\Windows NT\CurrentVersion"
WINLOGON = "HKLM\\" + NT + r"\Winlogon"
IFEO = "HKLM\\" + NT + r"\Image File Execution Options\kes-e2e.exe"


def reg_value(h, key, name):
    """The data of a value as reg query prints it; None when the key or value is missing. The
    name "" is the key's default value, which reg prints as "(Default)" or "(Standard)"."""
    value = ["/ve"] if name == "" else ["/v", name]
    out = h.run(["wine", "reg", "query", key, *value], env=h.tool_env, check=False)
    if out.returncode != 0:
        return None
    for line in out.stdout.decode("cp1252", "replace").splitlines():
        # A name may hold blanks: the type is what splits name from data.
        m = re.match(r"^\s*(.*?)\s+(REG_\w+)\s?(.*)$", line)
        if not m:
            continue
        named = m.group(1).lower() == name.lower() if name else m.group(1).startswith("(")
        if named:
            return m.group(3).strip()
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


HOOKS = r"HKLM\Software\Microsoft\Windows\CurrentVersion\Explorer\ShellExecuteHooks"
HOOKS32_LONG = r"Software\Wow6432Node\Microsoft\Windows\CurrentVersion\Explorer\ShellExecuteHooks"
HOOK = "{4B657374-7265-6C6C-6133-32484F4F4B31}"
NAMESPACE = r"HKLM\System\CurrentControlSet\Services\WinSock2\Parameters\NameSpace_Catalog5\Catalog_Entries\000000000099"


def wow32(h, *args):
    """reg.exe in the 32-bit view, as a 32-bit installer writes."""
    h.run(["wine", "reg", *args, "/reg:32"], env=h.tool_env, check=False)


def remove_hook_and_name_space(h):
    wow32(h, "delete", HOOKS, "/v", HOOK, "/f")
    wow32(h, "delete", r"HKCR\CLSID" + "\\" + HOOK, "/f")
    h.reg_delete(NAMESPACE)


@test
def shell_hook_of_the_32bit_view_accepted_and_winsock_name_space_deleted(h):
    remove_hook_and_name_space(h)
    h.program_folder("weitere2")
    h.settings(aufab1=1, box2=1, box39=1, box40=1)
    h.start()
    try:
        check(wait_until(lambda: hidden_windows(h), 30), "the program did not start")
        daten = os.path.join(h.folder, "daten")
        check(wait_until(lambda: all(os.path.exists(os.path.join(daten, f))
                                     for f in ("Winsock.txt", "ShellErweiterungen.txt")), 15),
              "the first pass took no baseline")

        # The class first, then the hook that names it: a hook without a server file passes.
        wow32(h, "add", r"HKCR\CLSID" + "\\" + HOOK + r"\InprocServer32", "/ve", "/d", r"C:\windows\kes-hook.dll", "/f")
        wow32(h, "add", HOOKS, "/v", HOOK, "/d", "", "/f")
        hwnd = h.wait_window(WARNING_TITLE, 15)
        texts = visible_texts(h)
        check("Neuer Eintrag [ShellExecuteHooks / ShellIconOverlayIdentifiers]" in texts, f"headline: {texts}")
        check("Name: HKEY_LOCAL_MACHINE\\" + HOOKS32_LONG + "\\" + HOOK in texts, f"name row: {texts}")
        check("Pfad: C:\\windows\\kes-hook.dll" in texts, f"server row: {texts}")
        h.screenshot(os.path.join(h.shots, "warnung-shellexecutehooks.png"))
        h.click(hwnd, "Übernehmen")
        h.gone(hwnd, 10)
        with open(os.path.join(daten, "ShellErweiterungen.txt"), "rb") as f:
            baseline = f.read().decode("cp1252")
        check(HOOKS32_LONG + "\\" + HOOK + "\\C:\\windows\\kes-hook.dll\r\n" in baseline, f"not accepted: {baseline!r}")

        h.reg_add(NAMESPACE, "LibraryPath", r"%SystemRoot%\System32\kes-ns.dll", kind="REG_EXPAND_SZ")
        hwnd = h.wait_window(WARNING_TITLE, 15)
        texts = visible_texts(h)
        check("Ein neuer Winsock-Anbieter (Protokoll oder Namensraum) wurde im System eingetragen." in texts,
              f"headline: {texts}")
        check("Name: HKEY_LOCAL_MACHINE\\" + NAMESPACE[5:] in texts, f"name row: {texts}")
        check("Pfad: %SystemRoot%\\System32\\kes-ns.dll" in texts, f"library row: {texts}")
        h.click(hwnd, "Registry löschen")
        h.wait_window("Achtung!", 10)
        h.click("Achtung!", "Ja löschen")
        h.gone(hwnd, 10)
        out = h.run(["wine", "reg", "query", NAMESPACE], env=h.tool_env, check=False)
        check(out.returncode != 0, "the catalog entry is still there")
        out = h.run(["wine", "reg", "query", HOOKS, "/v", HOOK, "/reg:32"], env=h.tool_env, check=False)
        check(out.returncode == 0, "the accepted hook went too")
    finally:
        h.stop_program()
        remove_hook_and_name_space(h)


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
