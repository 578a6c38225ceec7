"""End-to-end tests of the watchers of further autostart places: a changed Winlogon Shell
value and a new debugger below Image File Execution Options raise their warnings with
their texts; the first is accepted into daten\\Winlogon.txt, the second deleted, which
removes the Debugger value and leaves its key. A shell hook written in the 32-bit view
warns by its Wow6432Node path with its server file and is accepted; a new Winsock name
space is deleted with its catalog subkey. A new scheduled task in system32\\Tasks is
accepted into daten\\GeplanteAufgaben.txt; another is deleted, and its file alone goes, with
a backup."""

import os

from harness import check
from szenario import (JA_LÖSCHEN, Szenario, Warnung, enthält, reg32, reg_add, reg_da, reg_delete, reg_fehlt,
                      szenario, text_ohne_fall, wert_gemerkt)

NT = r"Software\Microsoft\Windows NT\CurrentVersion"
WINLOGON = "HKLM\\" + NT + r"\Winlogon"
IFEO = "HKLM\\" + NT + r"\Image File Execution Options\kes-e2e.exe"


SHELL_MERKEN, SHELL_ZURÜCK = wert_gemerkt(WINLOGON, "Shell")
szenario(Szenario(
    name="winlogon_shell_accepted_and_ifeo_debugger_deleted",
    einstellungen=dict(box2=1, box33=1, box35=1),
    vorher=[SHELL_MERKEN, reg_delete(IFEO)], grundlinien=["Winlogon.txt", "ImageFileExecution.txt"],
    warnungen=[
        Warnung(änderung=[reg_add(WINLOGON, "Shell", "explorer.exe kes-e2e.exe")],
                texte=["Ein Winlogon-Eintrag in der Registry ist neu oder wurde geändert.",
                       "Name: HKEY_LOCAL_MACHINE\\" + NT + "\\Winlogon\\Shell", "Pfad: explorer.exe kes-e2e.exe"],
                bild="warnung-winlogon.png", antwort="Übernehmen",
                danach=[enthält(r"daten\Winlogon.txt", "\\Winlogon\\Shell\\explorer.exe kes-e2e.exe\r\n")]),
        Warnung(änderung=[reg_add(IFEO, "Debugger", r"C:\windows\notepad.exe")],
                texte=["Ein Debugger für ein Programm wurde in der Registry eingetragen oder geändert.",
                       "Name: HKEY_LOCAL_MACHINE\\" + NT + "\\Image File Execution Options\\kes-e2e.exe\\Debugger"],
                antwort="Registry löschen", bestätigen=JA_LÖSCHEN,
                # The value goes, its key stays.
                danach=[reg_fehlt(IFEO, "Debugger"), reg_da(IFEO)]),
    ],
    ruhig=0, aufräumen=[SHELL_ZURÜCK, reg_delete(IFEO)],
))

HOOKS = r"HKLM\Software\Microsoft\Windows\CurrentVersion\Explorer\ShellExecuteHooks"
HOOKS32_LONG = r"Software\Wow6432Node\Microsoft\Windows\CurrentVersion\Explorer\ShellExecuteHooks"
HOOK = "{4B657374-7265-6C6C-6133-32484F4F4B31}"
NAMESPACE = r"HKLM\System\CurrentControlSet\Services\WinSock2\Parameters\NameSpace_Catalog5\Catalog_Entries\000000000099"
HOOK_WEG = [reg32("delete", HOOKS, "/v", HOOK, "/f"), reg32("delete", r"HKCR\CLSID" + "\\" + HOOK, "/f"),
            reg_delete(NAMESPACE)]
szenario(Szenario(
    name="shell_hook_of_the_32bit_view_accepted_and_winsock_name_space_deleted",
    einstellungen=dict(box2=1, box39=1, box40=1),
    vorher=HOOK_WEG, grundlinien=["Winsock.txt", "ShellErweiterungen.txt"],
    warnungen=[
        # The class first, then the hook that names it: a hook without a server file passes.
        Warnung(änderung=[reg32("add", r"HKCR\CLSID" + "\\" + HOOK + r"\InprocServer32", "/ve", "/d",
                                r"C:\windows\kes-hook.dll", "/f"),
                          reg32("add", HOOKS, "/v", HOOK, "/d", "", "/f")],
                texte=["Neuer Eintrag [ShellExecuteHooks / ShellIconOverlayIdentifiers]",
                       "Name: HKEY_LOCAL_MACHINE\\" + HOOKS32_LONG + "\\" + HOOK, "Pfad: C:\\windows\\kes-hook.dll"],
                bild="warnung-shellexecutehooks.png", antwort="Übernehmen",
                danach=[enthält(r"daten\ShellErweiterungen.txt",
                                HOOKS32_LONG + "\\" + HOOK + "\\C:\\windows\\kes-hook.dll\r\n")]),
        Warnung(änderung=[reg_add(NAMESPACE, "LibraryPath", r"%SystemRoot%\System32\kes-ns.dll", "REG_EXPAND_SZ")],
                texte=["Ein neuer Winsock-Anbieter (Protokoll oder Namensraum) wurde im System eingetragen.",
                       "Name: HKEY_LOCAL_MACHINE\\" + NAMESPACE[5:], "Pfad: %SystemRoot%\\System32\\kes-ns.dll"],
                antwort="Registry löschen", bestätigen=JA_LÖSCHEN,
                danach=[reg_fehlt(NAMESPACE), reg_da(HOOKS, HOOK, "/reg:32")]),
    ],
    ruhig=0, aufräumen=HOOK_WEG,
))


def task_xml(command, arguments):
    """A task as Windows writes it: UTF-16 LE with its byte order mark."""
    text = ('<?xml version="1.0" encoding="UTF-16"?>\r\n'
            '<Task version="1.2" xmlns="http://schemas.microsoft.com/windows/2004/02/mit/task">\r\n'
            "  <Settings><ExecutionTimeLimit>PT72H</ExecutionTimeLimit></Settings>\r\n"
            '  <Actions Context="Author">\r\n'
            f"    <Exec><Command>{command}</Command><Arguments>{arguments}</Arguments></Exec>\r\n"
            "  </Actions>\r\n</Task>\r\n")
    return b"\xff\xfe" + text.encode("utf-16-le")


def tasks_folder(h):
    """The system folder's task folder by a name compared without regard to case, as Windows
    compares it (Wine makes "tasks"); made when there is none."""
    system32 = os.path.join(h.prefix, "drive_c", "windows", "system32")
    same = [n for n in os.listdir(system32) if n.lower() == "tasks"]
    path = os.path.join(system32, same[0] if same else "Tasks")
    os.makedirs(path, exist_ok=True)
    return path


def files_below(folder):
    return sorted(os.path.relpath(os.path.join(d, n), folder) for d, _, names in os.walk(folder) for n in names)


def task_dropped(name, arguments):
    """The file put in place whole, by a rename: the program never reads it half written."""
    def drop(h):
        temp = os.path.join(h.prefix, "drive_c", "windows", "temp", "kes-e2e-aufgabe.tmp")
        os.makedirs(os.path.dirname(temp), exist_ok=True)
        with open(temp, "wb") as f:
            f.write(task_xml(r"C:\windows\kes-e2e.exe", arguments))
        os.replace(temp, os.path.join(tasks_folder(h), name))
    return drop


def tasks_removed(h):
    for name in ("kes-e2e-neu", "kes-e2e-zwei"):
        path = os.path.join(tasks_folder(h), name)
        if os.path.exists(path):
            os.remove(path)


def accepted_task(h):
    lines = open(os.path.join(h.folder, "daten", "GeplanteAufgaben.txt"), "rb").read().decode("cp1252").lower()
    entry = r"C:\windows\system32\Tasks\kes-e2e-neu|C:\windows\kes-e2e.exe /x" + "\r\n"
    check(entry.lower() in lines, f"not accepted: {lines!r}")


VORHER = {}


def deleted_alone_with_backup(h):
    after = files_below(tasks_folder(h))
    check(after == [n for n in VORHER["tasks"] if n != "kes-e2e-zwei"], f"not the task alone went: {after}")
    backups = os.listdir(os.path.join(h.folder, "daten", "Sicherung"))
    check(any(n.endswith("-kes-e2e-zwei") for n in backups), f"no backup of the task: {backups}")


TASKS = "Name: C:\\windows\\system32\\Tasks\\"
szenario(Szenario(
    name="scheduled_task_accepted_and_another_deleted_alone",
    einstellungen=dict(box2=1, box42=1),
    vorher=[tasks_removed], grundlinien=["GeplanteAufgaben.txt"],
    warnungen=[
        Warnung(änderung=[task_dropped("kes-e2e-neu", "/x")],
                texte=["Eine geplante Aufgabe ist neu oder ihr Befehl wurde geändert.",
                       "Pfad: C:\\windows\\kes-e2e.exe /x"],
                im_fenster=[text_ohne_fall(TASKS + "kes-e2e-neu")],
                bild="warnung-aufgabe.png", antwort="Übernehmen", danach=[accepted_task]),
        # Both unknown, the first by name would warn first: a warning of the second shows
        # that the accepted task warns no more.
        Warnung(änderung=[task_dropped("kes-e2e-zwei", "/y")],
                texte=["Pfad: C:\\windows\\kes-e2e.exe /y"],
                im_fenster=[text_ohne_fall(TASKS + "kes-e2e-zwei"),
                            lambda h: VORHER.update(tasks=files_below(tasks_folder(h)))],
                antwort="Löschen", bestätigen=JA_LÖSCHEN, danach=[deleted_alone_with_backup]),
    ],
    ruhig=0, aufräumen=[tasks_removed],
))
