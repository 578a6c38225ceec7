"""End-to-end test of the further places of browser and shell: a new toolbar class of the
user warns with its server file and is accepted; a changed window title of the browser
warns with the new and the original text and "Original" puts the known one back; a new
lock of the Run command is released with "Freigeben"; a changed class of the .scr file
type is repaired to scrfile; with the option of every service on, a new service on demand is
deleted with its key, and a changed program of a service gets its known one back, still to be
expanded. Each warns once, and what was answered stays quiet."""

from harness import check
from szenario import (JA_LÖSCHEN, Szenario, Warnung, enthält, reg_add, reg_delete, reg_fehlt, reg_ist, reg_query,
                      szenario, wert_gemerkt)

TOOLBAR = r"HKCU\Software\Microsoft\Internet Explorer\Toolbar\WebBrowser"
LEISTE = "{4B657374-7265-6C6C-6154-4F4F4C424152}"
MAIN = r"HKCU\Software\Microsoft\Internet Explorer\Main"
EXPLORER_POL = r"HKCU\Software\Microsoft\Windows\CurrentVersion\Policies\Explorer"
SCR = r"HKCR\.scr"
SERVICES = r"HKLM\System\CurrentControlSet\Services"
NEW_SERVICE = SERVICES + r"\KesDienst"
OLD_SERVICE = SERVICES + r"\KesAlt"
OLD_PROGRAM = r"%SystemRoot%\system32\kes-alt.exe"


def program_put_back(h):
    shown = reg_query(h, OLD_SERVICE, "/v", "ImagePath") or ""
    check("REG_EXPAND_SZ" in shown and "kes-alt.exe" in shown, f"the service's program did not go back: {shown!r}")


TITEL_MERKEN, TITEL_ZURÜCK = wert_gemerkt(MAIN, "Window Title")
SCR_MERKEN, SCR_ZURÜCK = wert_gemerkt(SCR, "")
WEG = [reg_delete(TOOLBAR, LEISTE), reg_delete(r"HKCR\CLSID" + "\\" + LEISTE), reg_delete(EXPLORER_POL, "NoRun"),
       reg_delete(NEW_SERVICE)]
szenario(Szenario(
    name="browser_and_shell_places_warn_and_are_accepted_put_back_released_and_repaired",
    einstellungen=dict(box2=1, box41=1, box43=1, box44=1, box45=1, box46=1),
    vorher=[TITEL_MERKEN, SCR_MERKEN, *WEG, reg_add(MAIN, "Window Title", "Kestrella-Test"),
            reg_add(SCR, "", "scrfile"), reg_add(OLD_SERVICE, "ImagePath", OLD_PROGRAM, "REG_EXPAND_SZ"),
            reg_add(OLD_SERVICE, "Start", "4", "REG_DWORD")],
    grundlinien=["IEToolbar.txt", "Browsereinstellungen.txt", "WeitereSperren.txt", "Dateitypen.txt",
                 "Dienstpfade.txt"],
    warnungen=[
        Warnung(änderung=[reg_add(r"HKCR\CLSID" + "\\" + LEISTE + r"\InprocServer32", "", r"C:\windows\kes-leiste.dll"),
                          reg_add(TOOLBAR, LEISTE, "01", "REG_BINARY")],
                texte=["Neuer Eintrag [IExplorer Toolbar]", "Name: HKEY_CURRENT_USER\\" + TOOLBAR[5:] + "\\" + LEISTE,
                       "Pfad: C:\\windows\\kes-leiste.dll"],
                antwort="Übernehmen", danach=[enthält(r"daten\IEToolbar.txt", LEISTE)]),
        Warnung(änderung=[reg_add(MAIN, "Window Title", "Gekapert")],
                texte=["Fenstertitel oder Proxy des IExplorers wurde geändert.",
                       "Neuer Wert : Gekapert        Original war: Kestrella-Test"],
                bild="warnung-fenstertitel.png", antwort="Original",
                danach=[reg_ist(MAIN, "Window Title", "Kestrella-Test")]),
        Warnung(änderung=[reg_add(EXPLORER_POL, "NoRun", "1", "REG_DWORD")],
                texte=["Ein Zugang des Systems wurde durch eine Richtlinie gesperrt.", "NoRun = 1"],
                antwort="Freigeben", danach=[reg_fehlt(EXPLORER_POL, "NoRun")]),
        Warnung(änderung=[reg_add(SCR, "", "boesefile")],
                texte=["Die Zuordnung eines Programm-Dateityps wurde geändert.", "Name: HKEY_CLASSES_ROOT\\.scr"],
                antwort="Original", danach=[reg_ist(SCR, "", "scrfile")]),
        Warnung(änderung=[reg_add(NEW_SERVICE, "ImagePath", r"C:\windows\kes-dienst.exe -k"),
                          reg_add(NEW_SERVICE, "Start", "3", "REG_DWORD"),
                          reg_add(NEW_SERVICE + r"\Parameters", "Modus", "1")],
                texte=["Ein Dienst wurde eingetragen oder sein Programm geändert.",
                       "Name: HKEY_LOCAL_MACHINE\\" + NEW_SERVICE[5:]],
                antwort="Registry löschen", bestätigen=JA_LÖSCHEN, danach=[reg_fehlt(NEW_SERVICE)]),
        Warnung(änderung=[reg_add(OLD_SERVICE, "ImagePath", r"C:\windows\kes-boese.exe")],
                texte=["Neuer Wert : C:\\windows\\kes-boese.exe        Original war: " + OLD_PROGRAM],
                antwort="Original", danach=[program_put_back]),
    ],
    # Everything answered: the next ticks find nothing more.
    ruhig=3, aufräumen=[*WEG, reg_delete(OLD_SERVICE), TITEL_ZURÜCK, SCR_ZURÜCK],
))
