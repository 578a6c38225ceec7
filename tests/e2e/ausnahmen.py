"""End-to-end tests of the control panel's exception lists, driven as the mouse does: a
helper object accepted from its warning stands in the panel's list; removed there through
the list's context menu (right button), its section leaves daten\\bho.ini and the next watch
cycle warns of it again. The helper object is made on the main prefix with `wine reg add`,
and removed again at the end. A list box opens its menu on the release of either button:
trusted makers removed so leave daten\\Firma.txt, empty after the last one."""

import configparser
import os

from e2e_gemeinsam import HIDDEN_CLASS, PANEL_CLASS, WARNING_TITLE, hidden_windows, visible_of_class, visible_titles
from harness import check, test, unescape, wait_until

HKLM_BHO = r"HKLM\SOFTWARE\Microsoft\Windows\CurrentVersion\Explorer\Browser Helper Objects"
BHO = "{4B657374-7265-6C6C-6145-324542484F32}"
CLASS_KEY = r"HKCR\CLSID" + "\\" + BHO
SERVER = r"C:\windows\system32\kernel32.dll"
HEADLINE = "Neuer Eintrag [Browser Helper Objects]"


def bho_sections(h):
    """The sections of daten\\bho.ini that name our class."""
    parser = configparser.RawConfigParser()
    path = os.path.join(h.folder, "daten", "bho.ini")
    if os.path.exists(path):
        parser.read(path, encoding="cp1252")
    return [s for s in parser.sections() if parser.get(s, "Clisd", fallback="") == BHO]


def warning_of_our_class(h):
    """Waits for the warning and gives its handle once it names our class."""
    check(wait_until(lambda: WARNING_TITLE in visible_titles(h), 15, 0.2), "no warning for the helper object")
    hwnd = h.wait_window(WARNING_TITLE, 5)
    controls = h.texts(hwnd)
    texts = [c["text"] for c in controls if c["visible"]]
    check(HEADLINE in texts, f"not the helper object headline: {texts}")
    rows = [r for c in controls for r in c["rows"]]
    check(any(r and r[0] == "BHO" and len(r) > 3 and r[3] == BHO for r in rows), f"not our class: {rows}")
    return hwnd


def menu_items(h):
    """The texts of the open popup menu, as they are shown ([] when none is open)."""
    return [unescape(line.split("\t")[1]) for line in h.kd("menu", check=False).splitlines() if "\t" in line]


def tray_menu(h, entry):
    h.kd("post", HIDDEN_CLASS, "512", "0", "517")
    check(wait_until(lambda: entry in h.kd("menu", check=False), 5), "the tray menu did not open")
    h.kd("menu-click", entry)


@test
def bho_removed_on_the_panel_leaves_bho_ini_and_is_warned_of_again(h):
    h.reg_delete(HKLM_BHO + "\\" + BHO)
    h.reg_delete(CLASS_KEY)
    try:
        h.run(["wine", "reg", "add", CLASS_KEY + r"\InprocServer32", "/ve", "/d", SERVER, "/f"], env=h.tool_env)
        h.run(["wine", "reg", "add", HKLM_BHO + "\\" + BHO, "/ve", "/d", "Kestrella Test", "/f"], env=h.tool_env)
        h.program_folder("bhoweg")
        h.settings(box21=1, aufab1=1)
        h.start()
        check(wait_until(lambda: hidden_windows(h), 30), "the program did not start")

        hwnd = warning_of_our_class(h)
        h.click(hwnd, "Übernehmen")
        h.gone(hwnd, 10)
        check(wait_until(lambda: bho_sections(h), 5), "the accepted helper object is not in daten\\bho.ini")

        tray_menu(h, "Einstellungen")
        panel = wait_until(lambda: visible_of_class(h, PANEL_CLASS), 10)
        check(panel, "the panel did not open")
        h.click(panel, "Hijacker")
        check(wait_until(lambda: "Browser Helper Objects" in h.kd("menu", check=False), 5),
              "the menu of Hijacker did not open")
        h.kd("menu-click", "Browser Helper Objects")

        def our_row():
            rows = [r for c in h.texts(panel) if c["visible"] for r in c["rows"]]
            return next((r for r in rows if len(r) > 1 and r[1] == BHO), None)

        row = wait_until(our_row, 5)
        check(row, "the panel's list of helper objects does not show the accepted one")
        h.kd("row-click", panel, row[0])
        entry = f'"{row[0]}" --> Eintrag aus der Liste löschen'
        check(wait_until(lambda: entry in menu_items(h), 5), f"no context menu with {entry!r}: {menu_items(h)}")
        h.kd("menu-click", entry)
        check(wait_until(lambda: not bho_sections(h), 5), "the section is still in daten\\bho.ini")
        check(not our_row(), "the row is still in the panel's list")

        # Watching again: the next cycle finds the helper object unknown.
        h.click(panel, "Überwachen")
        warning_of_our_class(h)
    finally:
        h.reg_delete(HKLM_BHO + "\\" + BHO)
        h.reg_delete(CLASS_KEY)


@test
def trusted_maker_list_opens_its_menu_on_either_release_and_rewrites_firma_txt(h):
    h.program_folder("firmaweg")
    firma = os.path.join(h.folder, "daten", "Firma.txt")
    with open(firma, "wb") as f:
        f.write(b"Testfirma Eins\r\nTestfirma Zwei\r\n")
    h.settings(box15=1, hostsgrösse=os.path.getsize(h.hosts_path()), aufab1=5)
    h.start()
    check(wait_until(lambda: hidden_windows(h), 30), "the program did not start")
    tray_menu(h, "Einstellungen")
    panel = wait_until(lambda: visible_of_class(h, PANEL_CLASS), 10)
    check(panel, "the panel did not open")
    h.click(panel, "Prozesse")
    shown = lambda: any(r == ["Testfirma Zwei"] for c in h.texts(panel) if c["visible"] for r in c["rows"])
    check(wait_until(shown, 5), "the page of processes does not list the trusted makers")
    h.kd("row-click", panel, "Testfirma Zwei", "left")
    entry = '"Testfirma Zwei" Eintrag löschen'
    check(wait_until(lambda: entry in menu_items(h), 5), f"no context menu with {entry!r}: {menu_items(h)}")
    h.kd("menu-click", entry)

    def content():
        with open(firma, "rb") as f:
            return f.read()

    check(wait_until(lambda: content() == b"Testfirma Eins\r\n", 5), f"daten\\Firma.txt holds {content()!r}")

    # The right button as well; the last line gone leaves the file, empty.
    h.kd("row-click", panel, "Testfirma Eins", "right")
    entry = '"Testfirma Eins" Eintrag löschen'
    check(wait_until(lambda: entry in menu_items(h), 5), f"no context menu with {entry!r}: {menu_items(h)}")
    h.kd("menu-click", entry)
    check(wait_until(lambda: content() == b"", 5), f"daten\\Firma.txt holds {content()!r}")
