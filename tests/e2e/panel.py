"""End-to-end test of the control panel: every page reached through its sidebar entry or
menu item shows its heading and its controls; a picture of each page goes to
BUILD/e2e-shots for a person to look at."""

import os

from e2e_gemeinsam import PANEL_CLASS, hidden_windows, visible_of_class
from harness import check, test, wait_until

# (page, sidebar entry, menu item or None, heading)
PAGES = [
    (0, "Option", None, "Aktuelle Einstellungen"),
    (1, "Prozesse", None, "Prozesse"),
    (2, "Internet", "IExplorer Favoriten", "IExplorer Favoriten"),
    (3, "Internet", "IExplorer Startpage", "IExplorer Startpage"),
    (4, "Internet", "DFÜ-Verbindung", "DFÜ-Verbindung"),
    (5, "Autostart", "Autostart Ordner", "Autostart-Funktion Ordner"),
    (6, "Autostart", "Autostart Registry [RUN]", "Autostart-Funktion Registry"),
    (7, "Internet", "Nachrichtendienst", "Nachrichtendienst überwachen"),
    (8, "Internet", "Hosts-Datei", "Hosts Datei überwachen"),
    (9, "Datei System", None, "Ordner überwachen"),
    (10, "Später", None, "Alle zurückgestellten Einträge (Später)"),
    (11, "Hijacker", "Browser Helper Objects", "Browser Helper Objects"),
    (12, "Hijacker", "ActiveX-Objekte", "ActiveX-Objekte"),
    (13, "Hijacker", "ShellServiceObjectDelayLoad", " ShellServiceObjectDelayLoad"),
    (14, "Hijacker", "SharedTaskScheduler", " SharedTaskScheduler"),
    (15, "Sonstiges", None, "Sonstiges"),
    (16, "Hijacker", "Sonstige Registry Einträge", "Sonstige Registry Einträge"),
    (17, "Dienste", None, "Windows Dienste"),
    (18, "Internet", "IExplorer Vertrauenswürtige Seiten", "IExploere Vertauenswürdige Seiten"),
    (19, "Autostart", "Autostart Registry [Sonstige]", "Autostart Registry [Sonstiges]"),
    (21, "Autostart", "Weitere Autostart-Orte", "Weitere Autostart-Orte"),
    (22, "Hijacker", "Weitere Browser-Einträge", "Weitere Browser- und Shell-Einträge"),
]


def open_panel(h, name):
    """A watched program whose panel the user opened through the tray menu."""
    h.program_folder(name)
    h.settings(box15=1, box1=1, hostsgrösse=os.path.getsize(h.hosts_path()), aufab1=5)
    h.start()
    check(wait_until(lambda: hidden_windows(h), 30), "no hidden window appeared")
    h.kd("post", "KestrellaStart", "512", "0", "517")
    check(wait_until(lambda: "Einstellungen" in h.kd("menu", check=False), 5), "the tray menu did not open")
    h.kd("menu-click", "Einstellungen")
    hwnd = wait_until(lambda: visible_of_class(h, PANEL_CLASS), 10, 0.2)
    check(hwnd, "the panel did not open")
    return hwnd


def visible_group(h, hwnd):
    """The headings of the visible pages."""
    return [c["text"] for c in h.texts(hwnd) if c["visible"] and c["class"].lower() == "button"
            and c["text"] in {p[3] for p in PAGES} and not 100 <= c["id"] <= 110]


@test
def panel_shows_each_page_from_its_entry_or_menu(h):
    hwnd = open_panel(h, "panel")
    for page, entry, item, heading in PAGES:
        h.click(hwnd, entry)
        if item:
            check(wait_until(lambda: item in h.kd("menu", check=False), 5), f"menu of {entry!r} did not open")
            h.kd("menu-click", item)
        shown = wait_until(lambda: visible_group(h, hwnd) == [heading] and visible_group(h, hwnd), 5, 0.2)
        check(shown, f"page {page}: expected only {heading!r}, visible: {visible_group(h, hwnd)}")
        h.screenshot(os.path.join(h.shots, f"panel-{page:02d}.png"))
    texts = [c["text"] for c in h.texts(hwnd) if c["visible"]]
    check(PAGES[-1][3] in texts, f"page {PAGES[-1][0]} heading missing")


@test
def panel_watch_entry_switches_monitoring_on_and_hides(h):
    hwnd = open_panel(h, "panelwatch")
    h.click(hwnd, "Überwachen")
    check(wait_until(lambda: not visible_of_class(h, PANEL_CLASS), 5), "the panel stays open after Überwachen")
    h.kd("post", "KestrellaStart", "512", "0", "517")
    check(wait_until(lambda: "Überwachung ist aktiv" in h.kd("menu", check=False), 5),
          "the tray does not say monitoring is on")


@test
def panel_log_open_without_log_says_it_is_empty(h):
    hwnd = open_panel(h, "panellog")
    for name in os.listdir(h.folder):
        if name.lower() == "kestrella.log":
            os.remove(os.path.join(h.folder, name))
    h.click(hwnd, "Log-öffnen")
    h.wait_window("Kestrella-Info", 10)
    texts = [c["text"] for c in h.texts("Kestrella-Info")]
    check("Die Log-Datei ist noch leer!" in texts, f"the message says {texts}")
    h.click("Kestrella-Info", "OK")
    h.gone("Kestrella-Info", 5)
