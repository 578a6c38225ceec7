"""End-to-end test of the watchers of further registry places: a changed Winlogon Shell
value and a new debugger below Image File Execution Options raise their warnings with
their texts; the first is accepted into daten\\Winlogon.txt, the second deleted, which
removes the Debugger value and leaves its key. A shell hook written in the 32-bit view
warns by its Wow6432Node path with its server file and is accepted; a new Winsock name
space is deleted with its catalog subkey."""

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
