"""End-to-end tests of the 32-bit registry view on a 64-bit prefix: a Run value and a helper
object written by reg.exe with /reg:32 (as a 32-bit installer writes them) raise their
warnings under their Wow6432Node path; an accepted value is silent at the next start, and
"Löschen" removes the entry from the 32-bit view while its 64-bit twin of the same name
stays."""

import os
import time

from autostart import accept, accept_whatever_is_there, registry_row
from e2e_gemeinsam import WARNING_TITLE, hidden_windows, visible_titles
from harness import check, test, wait_until

RUN = r"HKLM\Software\Microsoft\Windows\CurrentVersion\Run"
RUN32_LONG = r"Software\Wow6432Node\Microsoft\Windows\CurrentVersion\Run"
BHO = r"HKLM\SOFTWARE\Microsoft\Windows\CurrentVersion\Explorer\Browser Helper Objects"
BHO32_LONG = r"SOFTWARE\Wow6432Node\Microsoft\Windows\CurrentVersion\Explorer\Browser Helper Objects"
NEW_BHO = "{4B657374-7265-6C6C-6133-324248484F31}"
VALUE = "KesE2eAnsicht32"
VALUE_DELETED = "KesE2eAnsicht32b"


def reg(h, *args, view=None):
    """Runs reg.exe in the given view (None: its own, the 64-bit one); True on success."""
    extra = [f"/reg:{view}"] if view else []
    return h.run(["wine", "reg", *args, *extra], env=h.tool_env, check=False).returncode == 0


def has_value(h, key, name, view=None):
    return reg(h, "query", key, "/v", name, view=view)


def has_key(h, key, view=None):
    return reg(h, "query", key, view=view)


def started(h, name, **boxes):
    h.program_folder(name)
    h.settings(box2=1, aufab1=1, **boxes)
    h.start()
    check(wait_until(lambda: hidden_windows(h), 30), "the program did not start")


def read_text(path):
    with open(path, "rb") as f:
        return f.read().decode("cp1252")


def quiet(h, secs, why):
    time.sleep(secs)
    check(WARNING_TITLE not in visible_titles(h), why)


def warned_row(h, kind, secs=15):
    hwnd = h.wait_window(WARNING_TITLE, secs)
    row = next((r for c in h.texts(hwnd) for r in c["rows"] if r and r[0] == kind), None)
    check(row is not None, f"the warning has no {kind} row")
    return hwnd, row


def remove_run_values(h):
    for name in (VALUE, VALUE_DELETED):
        for view in ("32", "64"):
            reg(h, "delete", RUN, "/v", name, "/f", view=view)


@test
def run_value_of_the_32bit_view_warns_by_its_wow6432node_path_is_accepted_and_deleted(h):
    remove_run_values(h)
    try:
        started(h, "ansicht32", box13=1)
        accept_whatever_is_there(h)

        reg(h, "add", RUN, "/v", VALUE, "/d", r"C:\windows\notepad.exe", "/f", view="32")
        check(not has_value(h, RUN, VALUE), "reg /reg:32 wrote into the 64-bit view: not a 64-bit prefix")
        _, row = warned_row(h, "Autostart")
        check(row[1:4] == ["HKEY_LOCAL_MACHINE", RUN32_LONG, VALUE], f"the registry row: {row}")
        check("Neuer Eintrag in der Registry Autostart-Funktion gefunden." in
              [c["text"] for c in h.texts(WARNING_TITLE) if c["visible"]], "not the autostart headline")
        accept(h)
        baseline = read_text(os.path.join(h.folder, "daten", "AutostartREG.txt"))
        entry = "HKEY_LOCAL_MACHINE\\" + RUN32_LONG + "\\" + VALUE + "\\C:\\windows\\notepad.exe\r\n"
        check(entry in baseline, f"the accepted value is not in daten\\AutostartREG.txt: {baseline!r}")
        quiet(h, 2.5, "the accepted value raised a warning again")

        # The baseline holds it at the next start as well.
        h.stop_program()
        h.start()
        check(wait_until(lambda: hidden_windows(h), 30), "the program did not start again")
        quiet(h, 3, "the accepted value raised a warning after the restart")

        # The same name in both views: the 64-bit one known, the 32-bit one deleted.
        reg(h, "add", RUN, "/v", VALUE_DELETED, "/d", r"C:\windows\regedit.exe", "/f")
        _, row = warned_row(h, "Autostart")
        check(row[2] == r"Software\Microsoft\Windows\CurrentVersion\Run", f"the 64-bit value's row: {row}")
        accept(h)
        reg(h, "add", RUN, "/v", VALUE_DELETED, "/d", r"C:\windows\regedit.exe", "/f", view="32")
        hwnd, row = warned_row(h, "Autostart")
        check(row[2:4] == [RUN32_LONG, VALUE_DELETED], f"the 32-bit value's row: {row}")
        h.click(hwnd, "Registry löschen")
        h.wait_window("Achtung!", 10)
        h.click("Achtung!", "Ja löschen")
        h.gone(hwnd, 10)
        check(not has_value(h, RUN, VALUE_DELETED, view="32"), "the 32-bit value is still there")
        check(has_value(h, RUN, VALUE_DELETED), "the 64-bit twin went with it")
        check("< Gelöscht OK >" in read_text(os.path.join(h.folder, "Kestrella.log")), "no delete entry in the log")
        quiet(h, 2.5, "a warning came after the delete")
    finally:
        h.stop_program()
        remove_run_values(h)


@test
def helper_object_of_the_32bit_view_warns_and_loeschen_removes_its_32bit_class(h):
    bho, klasse = BHO + "\\" + NEW_BHO, r"HKCR\CLSID" + "\\" + NEW_BHO

    def remove():
        for view in ("32", "64"):
            reg(h, "delete", bho, "/f", view=view)
            reg(h, "delete", klasse, "/f", view=view)

    remove()
    try:
        # The 64-bit twin's class, without a helper object key of its own: it must stay.
        reg(h, "add", klasse + r"\InprocServer32", "/ve", "/d", r"C:\windows\system32\eigen64.dll", "/f")
        started(h, "bho32", box21=1)
        quiet(h, 3, "a warning came before the helper object was added")

        reg(h, "add", klasse + r"\InprocServer32", "/ve", "/d", r"C:\windows\system32\fremd32.dll", "/f",
            view="32")
        reg(h, "add", bho, "/ve", "/d", "Eindringling32", "/f", view="32")
        check(not has_key(h, bho), "reg /reg:32 wrote into the 64-bit view: not a 64-bit prefix")
        hwnd, row = warned_row(h, "BHO")
        check("Neuer Eintrag [Browser Helper Objects]" in [c["text"] for c in h.texts(hwnd) if c["visible"]],
              "not the helper object headline")
        check(row[1:4] == ["HKEY_LOCAL_MACHINE", BHO32_LONG, NEW_BHO], f"the registry row: {row}")
        h.click(hwnd, "Löschen")
        h.wait_window("Achtung!", 10)
        h.click("Achtung!", "Ja löschen")
        h.gone(hwnd, 10)
        check(wait_until(lambda: not has_key(h, klasse, view="32"), 15), "the 32-bit class is still there")
        check(has_key(h, klasse + r"\InprocServer32"), "the 64-bit class of the same CLSID went with it")
        quiet(h, 2.5, "a helper object without its class raised a warning")
    finally:
        h.stop_program()
        remove()
