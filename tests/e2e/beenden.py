"""End-to-end tests of the ways out: the task manager's "End task" (a WM_CLOSE posted from
another process to a hidden window of the program) and the end of the session (the system's
WM_QUERYENDSESSION and WM_ENDSESSION) end it at once, without the question, and take the
tray icon with it; the tray menu's "Beenden" asks first, and an "End task" that comes while
that question is open does not start a second way out. "Zurücksetzen" on the panel deletes
the stored state, keeps the exception files and the log, and starts the program anew,
which shows the assistant."""

import os
import subprocess

from e2e_gemeinsam import (ASSISTANT_CLASS, HIDDEN_CLASS, WARNING_TITLE, hidden_windows, hosts_grown,
                           start_monitoring, visible_of_class, visible_titles)
from harness import check, test, wait_until

WM_CLOSE = "16"
PANEL_CLASS = "KestrellaPanel"
QUESTION_TITLE = "Kestrella-Info!"
QUESTION_TEXT = "Wollen sie die Überwachung beenden?"


def tray_icons(h):
    return int(h.kd("tray").strip())


def started_with_icon(h, name):
    proc = start_monitoring(h, name)
    check(wait_until(lambda: tray_icons(h) == 1, 15), f"no tray icon after the start ({tray_icons(h)} icons)")
    return proc


def ended_cleanly(h, proc, how):
    """The process ends on its own, with exit code 0, and leaves neither windows nor icon."""
    try:
        code = proc.wait(15)
    except subprocess.TimeoutExpired:
        raise AssertionError(f"the program still runs 15 s after {how}; visible windows: {visible_titles(h)}") from None
    check(code == 0, f"the program ended with exit code {code} after {how}")
    check(not hidden_windows(h), f"a hidden {HIDDEN_CLASS} window is left after {how}")
    check(wait_until(lambda: tray_icons(h) == 0, 5), f"the tray icon is left after {how}")


def end_task(h, window_class, name):
    proc = started_with_icon(h, name)
    h.kd("post", window_class, WM_CLOSE, "0", "0")
    # Whichever comes first: the question, or the end of the process.
    asked = wait_until(lambda: QUESTION_TITLE in visible_titles(h) or proc.poll() is not None, 15, 0.1)
    check(not (asked and proc.poll() is None), "End task brought the question up")
    ended_cleanly(h, proc, f"WM_CLOSE to the hidden {window_class} window")


@test
def end_task_on_hidden_start_window_quits_without_question_and_removes_icon(h):
    end_task(h, HIDDEN_CLASS, "endtaskstart")


@test
def end_task_on_hidden_panel_quits_without_question_and_removes_icon(h):
    end_task(h, PANEL_CLASS, "endtaskpanel")


@test
def tray_beenden_asks_and_end_task_meanwhile_leaves_the_question_to_decide(h):
    proc = started_with_icon(h, "beenden")
    h.kd("post", HIDDEN_CLASS, "512", "0", "517")
    check(wait_until(lambda: "Beenden" in h.kd("menu", check=False), 5), "the tray menu did not open")
    h.kd("menu-click", "Beenden")
    question = h.wait_window(QUESTION_TITLE, 10)
    texts = [c["text"] for c in h.texts(question)]
    check(QUESTION_TEXT in texts, f"question text missing, the box says {texts}")
    # An End task while the program's own close is asking: the question stays, alone.
    h.kd("post", HIDDEN_CLASS, WM_CLOSE, "0", "0")
    h.kd("post", PANEL_CLASS, WM_CLOSE, "0", "0")
    check(not wait_until(lambda: proc.poll() is not None, 2), "the program ended under its own question")
    boxes = [w for w in h.windows() if w["visible"] and w["title"] == QUESTION_TITLE]
    check(len(boxes) == 1, f"expected the one question, found {len(boxes)}")
    check(tray_icons(h) == 1, "the tray icon went before the question was answered")
    h.click(question, "Ja")
    ended_cleanly(h, proc, "Beenden and Ja")


@test
def session_end_during_a_warning_quits_without_question_and_removes_icon(h):
    proc = started_with_icon(h, "sitzungsende")
    hosts_grown(h)
    h.wait_window(WARNING_TITLE, 15)
    answers = [line.split("\t") for line in h.kd("end-session", HIDDEN_CLASS).splitlines()]
    check(answers and all(a[2] != "0" for a in answers), f"a window refused the end of the session: {answers}")
    check(QUESTION_TITLE not in visible_titles(h), "the end of the session brought the question up")
    ended_cleanly(h, proc, "the end of the session")


# The files a reset deletes, and those it must leave (the exception files and the log).
RESET_FILES = ["daten\\toolbar.ini", "daten\\prozesse.txt", "daten\\dienste.ini", "daten\\dienstefirmen.txt",
               "daten\\0190.txt", "daten\\AutostartREG.txt", "daten\\favoriten.txt", "daten\\shellservice.ini",
               "daten\\taskscheduler.ini", "daten\\URLSearchHook.txt", "daten\\kestrella.log", "kestrella.dat",
               "daten\\Firma.txt", "daten\\Winlogon.txt", "daten\\AppInit.txt", "daten\\ImageFileExecution.txt",
               "daten\\PoliciesRun.txt", "daten\\ActiveSetup.txt", "daten\\BootSicherheit.txt",
               "daten\\Winsock.txt", "daten\\ShellErweiterungen.txt", "daten\\IEToolbar.txt",
               "daten\\Browsereinstellungen.txt", "daten\\WeitereSperren.txt", "daten\\Dateitypen.txt",
               "daten\\Dienstpfade.txt",
               "daten\\GeplanteAufgaben.txt"]
KEPT_FILES = ["daten\\bho.ini", "daten\\Autostart.txt", "daten\\activex.txt", "daten\\windows.txt",
              "daten\\V_seiten.txt", "Kestrella.log"]
RESET_TITLE = "Achtung!!"
RESET_TEXT = "Wollen sie alle Einstellungen und Werte zurücksetzen ?\r\nDer Kestrella wird dann neugestartet."


def local(h, name):
    return os.path.join(h.folder, *name.split("\\"))


@test
def reset_deletes_its_files_keeps_bho_ini_and_log_and_restarts_into_the_assistant(h):
    proc = started_with_icon(h, "zuruecksetzen")
    for name in RESET_FILES:
        if name == "kestrella.dat":
            continue  # the settings the program runs with
        with open(local(h, name), "wb") as f:
            f.write(b"weg\r\n")
    kept = {name: f"bleibt {i}\r\n".encode() for i, name in enumerate(KEPT_FILES)}
    for name, content in kept.items():
        with open(local(h, name), "wb") as f:
            f.write(content)
    reset_through_the_panel(h, proc)
    left = [name for name in RESET_FILES if os.path.exists(local(h, name))]
    check(not left, f"the reset left {left}")
    for name, content in kept.items():
        with open(local(h, name), "rb") as f:
            check(f.read() == content, f"{name} changed in the reset")
    restarted_into_the_assistant(h)


def reset_through_the_panel(h, proc):
    """Tray menu, "Einstellungen", "Zurücksetzen", "Ja"; the program ends with code 0."""
    h.kd("post", HIDDEN_CLASS, "512", "0", "517")
    check(wait_until(lambda: "Einstellungen" in h.kd("menu", check=False), 5), "the tray menu did not open")
    h.kd("menu-click", "Einstellungen")
    panel = wait_until(lambda: visible_of_class(h, PANEL_CLASS), 10)
    check(panel, "the panel did not open")

    h.click(panel, "Zurücksetzen")
    question = h.wait_window(RESET_TITLE, 10)
    texts = [c["text"] for c in h.texts(question)]
    check(RESET_TEXT in texts, f"not the reset question: {texts}")
    h.click(question, "Ja")
    try:
        code = proc.wait(15)
    except subprocess.TimeoutExpired:
        raise AssertionError(f"the program still runs 15 s after the reset; visible: {visible_titles(h)}") from None
    check(code == 0, f"the program ended with exit code {code} after the reset")


def restarted_into_the_assistant(h):
    # The new instance, started silently by the old one, has no settings file any more.
    check(wait_until(lambda: visible_of_class(h, ASSISTANT_CLASS), 20), "no assistant after the reset")
    check(len(hidden_windows(h)) == 1, "not exactly the new instance's hidden window")
    check(wait_until(lambda: tray_icons(h) == 0, 5), "a tray icon is left, or the new instance shows one")
