"""End-to-end tests of the first run: the assistant takes the machine as it stands and
ends in the tray with monitoring on, or leaves everything to the user and ends in the
open control panel with monitoring off. Pictures go to BUILD/e2e-shots."""

import os

from e2e_gemeinsam import ASSISTANT_CLASS, PANEL_CLASS, QUESTION_TITLE, by_class, visible_of_class
from harness import check, test, wait_until

RUN = r"HKCU\SOFTWARE\Microsoft\Windows\CurrentVersion\Run"


def assistant(h):
    """Starts the program in a fresh folder without settings; gives the assistant's hwnd."""
    h.start()
    hwnd = wait_until(lambda: visible_of_class(h, ASSISTANT_CLASS), 30, 0.3)
    check(hwnd, "the assistant did not appear")
    texts = [c["text"] for c in h.texts(hwnd) if c["visible"]]
    check("Willkommen zum KestrellaAssistent" in texts, f"heading missing: {texts}")
    return hwnd


def exists(folder, name):
    """Whether the file is there, in any case of its letters, as Windows sees it."""
    parts = name.split("/")
    for part in parts:
        if not os.path.isdir(folder):
            return False
        hits = [e for e in os.listdir(folder) if e.lower() == part.lower()]
        if not hits:
            return False
        folder = os.path.join(folder, hits[0])
    return True


def visible_texts(h, hwnd):
    return [c["text"] for c in h.texts(hwnd) if c["visible"]]


def tray_menu(h):
    """The tray menu as the user opens it with the right button."""
    h.kd("post", "KestrellaStart", "512", "0", "517")
    return wait_until(lambda: h.kd("menu", check=False), 5)


def run_value(h):
    res = h.run(["wine", "reg", "query", RUN, "/v", "Halvenik-Kestrella"], env=h.tool_env, check=False)
    return res.stdout.decode("cp1252", "replace") if res.returncode == 0 else ""


@test
def first_run_takes_all_values_and_ends_in_tray_with_monitoring_on(h):
    h.reg_delete(RUN, "Halvenik-Kestrella")
    try:
        folder = h.program_folder("assistent-alle")
        hwnd = assistant(h)
        title = [w["title"] for w in h.windows() if w["hwnd"] == hwnd][0]
        check(title == "Kestrella V2.2.0 AddOn Halvenik", f"title is {title!r}")
        h.screenshot(os.path.join(h.shots, "assistent-1-werte.png"))
        h.click(hwnd, "Alle Werte des Systems übernehmen")
        check(wait_until(lambda: "Fertig" in visible_texts(h, hwnd), 60, 0.5), "the page with Fertig did not come")
        check("Assistent wurde abgeschlossen." in visible_texts(h, hwnd), "the closing line is missing")
        h.screenshot(os.path.join(h.shots, "assistent-2-fertig.png"))
        check(not exists(folder, "kestrella.dat"), "settings written before Fertig")
        h.click(hwnd, "Fertig")
        h.wait_window(QUESTION_TITLE, 20)
        question = " ".join(c["text"] for c in h.texts(QUESTION_TITLE))
        check("Wollen sie jetzt die Einstellungen vornehmen ?" in question, f"question text: {question!r}")
        h.screenshot(os.path.join(h.shots, "assistent-3-frage.png"))
        h.click(QUESTION_TITLE, "Nein")
        h.gone(QUESTION_TITLE, 10)
        h.gone(hwnd, 10)
        check(not visible_of_class(h, PANEL_CLASS), "the panel opened although the answer was No")
        menu = tray_menu(h)
        check("Überwachung ist aktiv" in menu, f"the tray menu does not say monitoring is on: {menu}")
        for name in ("kestrella.dat", "daten/prozesse.txt", "daten/dienste.ini"):
            check(exists(folder, name), f"{name} was not written")
        with open(os.path.join(folder, "daten", "dienste.ini"), "rb") as f:
            check(b"[1]" in f.read(), "dienste.ini holds no service")
        value = run_value(h)
        check(h.win_path(os.path.join(folder, "Kestrella.exe")) + " /s" in value, f"Run value: {value!r}")
    finally:
        h.reg_delete(RUN, "Halvenik-Kestrella")


@test
def first_run_by_hand_opens_panel_with_monitoring_off(h):
    h.reg_delete(RUN, "Halvenik-Kestrella")
    folder = h.program_folder("assistent-selbst")
    hwnd = assistant(h)
    h.click(hwnd, "Ich möchte die Einstellung  selbst vornehmen!")
    check(wait_until(lambda: "Fertig" in visible_texts(h, hwnd), 20, 0.3), "the page with Fertig did not come")
    h.click(hwnd, "Fertig")
    panel = wait_until(lambda: visible_of_class(h, PANEL_CLASS), 20, 0.3)
    check(panel, "the control panel did not open")
    h.gone(hwnd, 10)
    h.screenshot(os.path.join(h.shots, "assistent-4-panel.png"))
    check(exists(folder, "kestrella.dat"), "kestrella.dat was not written")
    check(not exists(folder, "daten/prozesse.txt"), "prozesse.txt was written by hand")
    check(not run_value(h), "the Run value was set by hand")
    menu = tray_menu(h)
    check("Überwachung ist deaktiviert" in menu, f"the tray menu does not say monitoring is off: {menu}")


@test
def assistant_closed_by_close_box_writes_nothing(h):
    folder = h.program_folder("assistent-zu")
    hwnd = assistant(h)
    h.kd("close", hwnd)
    h.gone(hwnd, 10)
    check(not exists(folder, "kestrella.dat"), "closing the assistant wrote settings")
    check(by_class(h, "KestrellaStart"), "the hidden window went with the assistant")
