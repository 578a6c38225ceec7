"""End-to-end test of the further places of browser and shell: a new toolbar class of the
user warns with its server file and is accepted; a changed window title of the browser
warns with the new and the original text and "Original" puts the known one back; a new
lock of the Run command is released with "Freigeben"; a changed class of the .scr file
type is repaired to scrfile; with the option of every service on, a new service on demand is
deleted with its key, and a changed program of a service gets its known one back, still to be
expanded. Each warns once, and what was answered stays quiet."""

import os
import time

from e2e_gemeinsam import WARNING_TITLE, hidden_windows, visible_titles
from harness import check, test, wait_until
from weitere_orte import reg_value, visible_texts

TOOLBAR = r"HKCU\Software\Microsoft\Internet Explorer\Toolbar\WebBrowser"
LEISTE = "{4B657374-7265-6C6C-6154-4F4F4C424152}"
MAIN = r"HKCU\Software\Microsoft\Internet Explorer\Main"
EXPLORER_POL = r"HKCU\Software\Microsoft\Windows\CurrentVersion\Policies\Explorer"
SCR = r"HKCR\.scr"
SERVICES = r"HKLM\System\CurrentControlSet\Services"
NEW_SERVICE = SERVICES + r"\KesDienst"
OLD_SERVICE = SERVICES + r"\KesAlt"


def answered(h, hwnd, button):
    h.click(hwnd, button)
    h.gone(hwnd, 10)


def warning_with(h, *rows):
    hwnd = h.wait_window(WARNING_TITLE, 15)
    texts = visible_texts(h)
    for row in rows:
        check(row in texts, f"no {row!r} in {texts}")
    return hwnd


@test
def browser_and_shell_places_warn_and_are_accepted_put_back_released_and_repaired(h):
    title = reg_value(h, MAIN, "Window Title")
    scr = reg_value(h, SCR, "")
    h.reg_delete(TOOLBAR, LEISTE)
    h.reg_delete(r"HKCR\CLSID" + "\\" + LEISTE)
    h.reg_delete(EXPLORER_POL, "NoRun")
    h.reg_add(MAIN, "Window Title", "Kestrella-Test")
    h.reg_add(SCR, "", "scrfile")
    h.reg_delete(NEW_SERVICE)
    h.reg_add(OLD_SERVICE, "ImagePath", r"%SystemRoot%\system32\kes-alt.exe", kind="REG_EXPAND_SZ")
    h.reg_add(OLD_SERVICE, "Start", "4", kind="REG_DWORD")
    h.program_folder("browser")
    h.settings(aufab1=1, box2=1, box41=1, box43=1, box44=1, box45=1, box46=1)
    h.start()
    try:
        check(wait_until(lambda: hidden_windows(h), 30), "the program did not start")
        daten = os.path.join(h.folder, "daten")
        files = ("IEToolbar.txt", "Browsereinstellungen.txt", "WeitereSperren.txt", "Dateitypen.txt",
                 "Dienstpfade.txt")
        check(wait_until(lambda: all(os.path.exists(os.path.join(daten, f)) for f in files), 15),
              "the first pass took no baselines")

        h.reg_add(r"HKCR\CLSID" + "\\" + LEISTE + r"\InprocServer32", "", r"C:\windows\kes-leiste.dll")
        h.reg_add(TOOLBAR, LEISTE, "01", kind="REG_BINARY")
        hwnd = warning_with(h, "Neuer Eintrag [IExplorer Toolbar]",
                            "Name: HKEY_CURRENT_USER\\" + TOOLBAR[5:] + "\\" + LEISTE,
                            "Pfad: C:\\windows\\kes-leiste.dll")
        answered(h, hwnd, "Übernehmen")

        h.reg_add(MAIN, "Window Title", "Gekapert")
        hwnd = warning_with(h, "Fenstertitel oder Proxy des IExplorers wurde geändert.",
                            "Neuer Wert : Gekapert        Original war: Kestrella-Test")
        h.screenshot(os.path.join(h.shots, "warnung-fenstertitel.png"))
        answered(h, hwnd, "Original")
        check(reg_value(h, MAIN, "Window Title") == "Kestrella-Test", "the title did not go back")

        h.reg_add(EXPLORER_POL, "NoRun", "1", kind="REG_DWORD")
        hwnd = warning_with(h, "Ein Zugang des Systems wurde durch eine Richtlinie gesperrt.", "NoRun = 1")
        answered(h, hwnd, "Freigeben")
        check(reg_value(h, EXPLORER_POL, "NoRun") is None, "the lock is still there")

        h.reg_add(SCR, "", "boesefile")
        hwnd = warning_with(h, "Die Zuordnung eines Programm-Dateityps wurde geändert.",
                            "Name: HKEY_CLASSES_ROOT\\.scr")
        answered(h, hwnd, "Original")
        check(reg_value(h, SCR, "") == "scrfile", "the file type was not repaired")

        h.reg_add(NEW_SERVICE, "ImagePath", r"C:\windows\kes-dienst.exe -k")
        h.reg_add(NEW_SERVICE, "Start", "3", kind="REG_DWORD")
        h.reg_add(NEW_SERVICE + r"\Parameters", "Modus", "1")
        hwnd = warning_with(h, "Ein Dienst wurde eingetragen oder sein Programm geändert.",
                            "Name: HKEY_LOCAL_MACHINE\\" + NEW_SERVICE[5:])
        h.click(hwnd, "Registry löschen")
        h.wait_window("Achtung!", 10)
        h.click("Achtung!", "Ja löschen")
        h.gone(hwnd, 10)
        out = h.run(["wine", "reg", "query", NEW_SERVICE], env=h.tool_env, check=False)
        check(out.returncode != 0, "the new service's key is still there")

        h.reg_add(OLD_SERVICE, "ImagePath", r"C:\windows\kes-boese.exe")
        hwnd = warning_with(h, "Neuer Wert : C:\\windows\\kes-boese.exe        Original war: "
                            "%SystemRoot%\\system32\\kes-alt.exe")
        answered(h, hwnd, "Original")
        out = h.run(["wine", "reg", "query", OLD_SERVICE, "/v", "ImagePath"], env=h.tool_env, check=False)
        shown = out.stdout.decode("utf-8", "replace")
        check("REG_EXPAND_SZ" in shown and "kes-alt.exe" in shown, f"the service's program did not go back: {shown!r}")

        # Everything answered: the next ticks find nothing more.
        time.sleep(3)
        check(WARNING_TITLE not in visible_titles(h), "a place warned again")
        with open(os.path.join(daten, "IEToolbar.txt"), "rb") as f:
            check(LEISTE in f.read().decode("cp1252"), "the toolbar was not accepted")
    finally:
        h.stop_program()
        h.reg_delete(TOOLBAR, LEISTE)
        h.reg_delete(r"HKCR\CLSID" + "\\" + LEISTE)
        h.reg_delete(EXPLORER_POL, "NoRun")
        h.reg_delete(NEW_SERVICE)
        h.reg_delete(OLD_SERVICE)
        if title is None:
            h.reg_delete(MAIN, "Window Title")
        else:
            h.reg_add(MAIN, "Window Title", title)
        if scr is not None:
            h.reg_add(SCR, "", scr)
