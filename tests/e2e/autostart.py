"""End-to-end test of one whole event: a program adds a Run value, the warning comes, the
user accepts it (baseline file and log written, no warning after that), and a second value
is deleted from the registry through the question window."""

import os
import subprocess
import threading
import time

from e2e_gemeinsam import WARNING_TITLE, hidden_windows, visible_titles
from harness import check, test, wait_until

RUN = r"HKCU\Software\Microsoft\Windows\CurrentVersion\Run"
RUN_LONG = r"Software\Microsoft\Windows\CurrentVersion\Run"


def registry_row(h):
    """The registry row of the open warning: [text, root, key, value name, data]."""
    for control in h.texts(WARNING_TITLE):
        for row in control["rows"]:
            if row and row[0] == "Autostart":
                return row
    return None


def warning_or_none(h, secs):
    return wait_until(lambda: WARNING_TITLE in visible_titles(h), secs, 0.3)


def accept(h):
    """Clicks "Übernehmen" and waits until this window has gone. By handle: at stage 1 the
    next warning, with the same title, may be up before the first is seen to go."""
    hwnd = h.wait_window(WARNING_TITLE, 5)
    h.click(hwnd, "Übernehmen")
    h.gone(hwnd, 10)


def accept_whatever_is_there(h):
    """The prefix has Run values of its own: make them known first, as a user would."""
    for _ in range(12):
        if not warning_or_none(h, 3):
            return
        accept(h)
    raise AssertionError("warnings keep coming for the prefix's own Run values")


def accept_until_quiet(h, name):
    """Accepts the warnings for value NAME: it stands below HKEY_USERS and HKEY_CURRENT_USER."""
    seen = []
    for _ in range(4):
        if not warning_or_none(h, 4):
            break
        row = registry_row(h)
        check(row is not None and row[3] == name, f"a warning for another value: {row}")
        seen.append(row[1])
        accept(h)
    return seen


@test
def new_run_value_accepted_then_another_deleted(h):
    h.reg_delete(RUN, "Tool")
    h.reg_delete(RUN, "Tool2")
    h.program_folder("autostart")
    h.settings(box13=1, box2=1, aufab1=1)
    h.start()
    check(wait_until(lambda: hidden_windows(h), 30), "the program did not start")
    accept_whatever_is_there(h)

    h.reg_add(RUN, "Tool", r"C:\windows\notepad.exe /min")
    hwnd = h.wait_window(WARNING_TITLE, 15)
    texts = [c["text"] for c in h.texts(WARNING_TITLE) if c["visible"]]
    check("Neuer Eintrag in der Registry Autostart-Funktion gefunden." in texts, f"headline missing: {texts}")
    h.kd("redraw", hwnd)
    h.screenshot(os.path.join(h.shots, "warnung-autostart.png"))
    roots = accept_until_quiet(h, "Tool")
    check("HKEY_CURRENT_USER" in roots, f"no warning for the value below HKEY_CURRENT_USER: {roots}")

    with open(os.path.join(h.folder, "daten", "AutostartREG.txt"), "rb") as f:
        baseline = f.read().decode("cp1252")
    entry = "HKEY_CURRENT_USER\\" + RUN_LONG + "\\Tool\\C:\\windows\\notepad.exe /min\r\n"
    check(entry in baseline, f"the accepted value is not in daten\\AutostartREG.txt: {baseline!r}")
    with open(os.path.join(h.folder, "Kestrella.log"), "rb") as f:
        log = f.read().decode("cp1252")
    check("Neuer Eintrag in der Registry Autostart.\r\nRegistry: " in log and "< Übernommen OK >" in log,
          f"no accept entry in Kestrella.log: {log!r}")
    time.sleep(2.5)
    check(WARNING_TITLE not in visible_titles(h), "the accepted value raised a warning again")

    h.reg_add(RUN, "Tool2", r"C:\windows\regedit.exe")
    hwnd = h.wait_window(WARNING_TITLE, 15)
    row = registry_row(h)
    check(row is not None and row[3] == "Tool2", f"the warning is not about Tool2: {row}")
    h.click(hwnd, "Registry löschen")
    h.wait_window("Achtung!", 10)
    h.click("Achtung!", "Ja löschen")
    h.gone(hwnd, 10)
    out = h.run(["wine", "reg", "query", RUN, "/v", "Tool2"], env=h.tool_env, check=False)
    check(out.returncode != 0, "Tool2 is still in the registry after Ja löschen")
    with open(os.path.join(h.folder, "Kestrella.log"), "rb") as f:
        check("< Gelöscht OK >" in f.read().decode("cp1252"), "no delete entry in Kestrella.log")
    h.reg_delete(RUN, "Tool")


@test
def run_value_warns_at_once_at_stage_30(h):
    """At the slowest stage the change source of the Run key brings the tick at once: the
    warning stands within a second of the value, not up to 30 s later."""
    h.reg_delete(RUN, "Schnell")
    h.program_folder("sofort")
    # The prefix's own Run values are made known at stage 1 first; then the slowest stage.
    h.settings(box13=1, aufab1=1)
    h.start()
    check(wait_until(lambda: hidden_windows(h), 30), "the program did not start")
    accept_whatever_is_there(h)
    h.stop_program()
    h.settings(aufab1=30)
    h.start()
    check(wait_until(lambda: hidden_windows(h), 30), "the program did not start again")

    waiter = subprocess.Popen(["wine", h.kdriver, "wait", WARNING_TITLE, "20"], env=h.tool_env,
                              stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
    h.procs.append(waiter)
    seen = {}
    reader = threading.Thread(target=lambda: (waiter.stdout.readline(), seen.setdefault("t", time.monotonic())))
    reader.start()
    time.sleep(3)  # the waiting driver is up and looking
    start = time.monotonic()
    h.reg_add(RUN, "Schnell", r"C:\windows\notepad.exe")
    written = time.monotonic()
    reader.join(25)
    check("t" in seen and waiter.wait(5) == 0, "no warning window within 20 s")
    print(f"    reg add took {written - start:.2f} s; warning {seen['t'] - written:.2f} s after it returned, "
          f"{seen['t'] - start:.2f} s after it started")
    check(seen["t"] - written <= 1.0, f"the warning came {seen['t'] - written:.2f} s after the value")
    row = registry_row(h)
    check(row is not None and row[3] == "Schnell", f"the warning is not about the new value: {row}")
    h.reg_delete(RUN, "Schnell")
