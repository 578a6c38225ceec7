"""End-to-end tests of the way back: a Run value and a file in the system folder, each
deleted through its warning window, which writes a backup and journal lines first, and put
back by `kestrella-dat.exe restore` with the number of the answer's journal line, or from the
panel's page "Sicherungen", exactly as they were; likewise a helper object's key tree and a
start page that "Original" overwrote.

The program is stopped before the restore: it would warn of the value or file that comes
back and write its own journal line at the moment the tool writes the restore's."""

import json
import os
import time

from ausnahmen import BHO, CLASS_KEY, HKLM_BHO, SERVER, menu_items, tray_menu, warning_of_our_class
from autostart import RUN, accept_whatever_is_there, registry_row
from e2e_gemeinsam import PANEL_CLASS, WARNING_TITLE, hidden_windows, visible_of_class, visible_titles
from harness import check, test, wait_until
from ordner import TEST_NAME, remove
from startseite import NEW_PAGE, START_PAGE, put_back, reg_read, start_watching

VALUE = "Testwert"
PROGRAM = r"C:\x.exe"
DATA = PROGRAM + " /q"


def read_bytes(path):
    with open(path, "rb") as f:
        return f.read()


def journal(h):
    """The journal's entries, each line parsed; a line that is no JSON fails the test."""
    raw = read_bytes(os.path.join(h.folder, "daten", "journal.jsonl"))
    check(raw.endswith(b"\r\n"), f"the journal does not end in CR LF: {raw[-80:]!r}")
    lines = raw.decode("utf-8").split("\r\n")[:-1]
    return [json.loads(line) for line in lines]


def kestrella_dat(h, *args):
    """Runs kestrella-dat.exe on this test's program folder; gives the finished process."""
    return h.run(["wine", h.kestrella_dat, args[0], h.win_path(h.folder), *args[1:]], env=h.tool_env, check=False)


def backups(h):
    folder = os.path.join(h.folder, "daten", "Sicherung")
    return sorted(os.listdir(folder)) if os.path.isdir(folder) else []


def export(h, key, name):
    """KEY with all below it as `reg export` writes it, bytes; b"" when it is missing."""
    path = os.path.join(h.folder, name)
    if h.run(["wine", "reg", "export", key, h.win_path(path), "/y"], env=h.tool_env, check=False).returncode != 0:
        return b""
    return read_bytes(path)


def export_run(h, name):
    """The Run key as `reg export` writes it, bytes."""
    return export(h, RUN, name)


def answer_with_backup(h, target_part):
    """The one answer line of the journal whose target holds TARGET_PART and that names a
    backup, as kestrella-dat's --json prints it."""
    out = kestrella_dat(h, "journal", "--json")
    check(out.returncode == 0, f"journal --json: exit {out.returncode}: {out.stderr!r}")
    entries = [json.loads(line) for line in out.stdout.decode("utf-8").splitlines() if line.strip()]
    check(entries == journal(h), "journal --json does not give the file's lines")
    answers = [e for e in entries if e["event"] == "answer" and target_part.lower() in e["target"].lower()
               and e.get("backup")]
    check(len(answers) == 1, f"not one answer with a backup for {target_part}: {entries}")
    return answers[0], entries


def restored(h, answer):
    """Runs the restore of ANSWER and checks what it says and the journal's new line."""
    before = journal(h)
    out = kestrella_dat(h, "restore", str(answer["id"]))
    said = out.stdout.decode("cp1252") + out.stderr.decode("cp1252")
    check(out.returncode == 0, f"restore {answer['id']}: exit {out.returncode}: {said!r}")
    names = answer["backup"].split(";")
    for name in names:
        check(f"Sicherung {name} wiederhergestellt." in said, f"restore does not name {name}: {said!r}")
    after = journal(h)
    check(after[:len(before)] == before and len(after) == len(before) + 1,
          f"restore changed the journal otherwise than by one line: {after[len(before) - 1:]}")
    line = after[-1]
    check(line["event"] == "restore" and line["action"] == "Wiederherstellen", f"the new line: {line}")
    check(line["category"] == answer["category"] and line["target"] == answer["target"],
          f"the restore line names another place than the answer {answer}: {line}")
    check(line["backup"] == answer["backup"], f"the restore line's backup: {line}")
    check(line["id"] > before[-1]["id"], f"the restore line's number {line['id']} does not follow {before[-1]['id']}")
    # Asked again, the restore refuses: what it would write stands there now.
    again = kestrella_dat(h, "restore", str(answer["id"]))
    check(again.returncode == 1 and b"Schon vorhanden" in again.stderr,
          f"a second restore did not refuse: exit {again.returncode}, {again.stderr!r}")
    check(journal(h) == after, "a refused restore wrote to the journal")
    text = kestrella_dat(h, "journal", "--since", line["time"][:19]).stdout.decode("cp1252")
    check(f"Nr. {line['id']} | " in text and "| Wiederherstellung |" in text, f"journal shows no restore: {text!r}")
    return line


def delete_through_the_window(h, hwnd, caption):
    h.click(hwnd, caption)
    h.wait_window("Achtung!", 10)
    h.click("Achtung!", "Ja löschen")
    h.gone(hwnd, 10)


def run_value_deleted_through_the_window(h, folder):
    """Starts the program on FOLDER, adds the Run value, deletes it through its warning;
    gives the Run key's export from before the delete."""
    h.program_folder(folder)
    h.settings(box13=1, box2=1, aufab1=1)
    h.start()
    check(wait_until(lambda: hidden_windows(h), 30), "the program did not start")
    accept_whatever_is_there(h)
    h.reg_add(RUN, VALUE, DATA)
    original = export_run(h, "vorher.reg")
    hwnd = h.wait_window(WARNING_TITLE, 15)
    row = registry_row(h)
    check(row is not None and row[3] == VALUE and row[4] == DATA, f"the warning is not about {VALUE}: {row}")
    delete_through_the_window(h, hwnd, "Registry löschen")
    check(h.run(["wine", "reg", "query", RUN, "/v", VALUE], env=h.tool_env, check=False).returncode != 0,
          f"{VALUE} is still in the registry after Ja löschen")
    return original


def restore_from_the_page(h, matches):
    """Opens the panel's page of backups, finds the row MATCHES accepts, and chooses
    "Wiederherstellen" in its menu; gives the row."""
    tray_menu(h, "Einstellungen")
    panel = wait_until(lambda: visible_of_class(h, PANEL_CLASS), 10)
    check(panel, "the panel did not open")
    h.click(panel, "Sicherungen")

    def our_row():
        rows = [r for c in h.texts(panel) if c["visible"] for r in c["rows"]]
        return next((r for r in rows if len(r) > 3 and matches(r)), None)

    row = wait_until(our_row, 5)
    check(row, f"the page of backups has no such row: {[c['rows'] for c in h.texts(panel) if c['rows']]}")
    h.screenshot(os.path.join(h.shots, "panel-sicherungen.png"))
    h.kd("row-click", panel, row[0])
    check(wait_until(lambda: "Wiederherstellen" in menu_items(h), 5), f"no menu: {menu_items(h)}")
    h.kd("menu-click", "Wiederherstellen")
    return row


def info_says(h, start):
    """Waits for the message box "Kestrella-Info" to say a text that begins with START."""
    check(wait_until(lambda: "Kestrella-Info" in visible_titles(h) and any(
        c["text"].startswith(start) for c in h.texts("Kestrella-Info") if c["visible"]), 10),
          f"no message that begins {start!r}")
    h.click("Kestrella-Info", "OK")
    h.gone("Kestrella-Info", 10)


@test
def restore_of_a_deleted_run_value_brings_it_back_exactly(h):
    h.reg_delete(RUN, VALUE)
    try:
        original = run_value_deleted_through_the_window(h, "wiederher-registry")
        h.stop_program()

        # The line's target is the value: its key path with the value's name.
        answer, entries = answer_with_backup(h, "\\Run\\" + VALUE)
        check(answer["action"] == "Registry löschen" and answer["category"] == "AutostartRegistry",
              f"the answer line: {answer}")
        warnings = [e for e in entries if e["event"] == "warning" and e["target"].lower().endswith(("\\Run\\" + VALUE).lower())]
        check(warnings and warnings[0]["id"] < answer["id"], f"no warning line before the answer: {entries}")
        names = answer["backup"].split(";")
        check(names and all(n.endswith(".reg") and n in backups(h) for n in names),
              f"the answer's backups {names} are not .reg files of daten\\Sicherung: {backups(h)}")
        saved = b"".join(read_bytes(os.path.join(h.folder, "daten", "Sicherung", n)) for n in names)
        check(f'"{VALUE}"="{DATA}"'.replace("\\", "\\\\").encode("cp1252") in saved,
              f"the backup does not hold {VALUE}: {saved!r}")

        restored(h, answer)
        query = h.run(["wine", "reg", "query", RUN, "/v", VALUE], env=h.tool_env).stdout.decode("cp1252")
        check(any(line.split() == [VALUE, "REG_SZ", *DATA.split()] for line in query.splitlines()),
              f"{VALUE} is not back as REG_SZ {DATA!r}: {query!r}")
        check(export_run(h, "nachher.reg") == original, "the Run key's export differs from the one before the delete")
    finally:
        h.reg_delete(RUN, VALUE)


@test
def restore_of_a_deleted_system_file_brings_its_bytes_back(h):
    system32 = os.path.join(h.prefix, "drive_c", "windows", "system32")
    path = os.path.join(system32, TEST_NAME + "-wiederher.dll")
    # Every byte value, and the line ends a text copy would change.
    data = b"MZ\0\r\n\n\r" + bytes(range(256)) + "Grüße €".encode("cp1252")
    remove(path)
    try:
        h.program_folder("wiederher-datei")
        h.settings(box2=1, aufab1=1, box20=1, box16=1, box17=1)
        h.start()
        check(wait_until(lambda: hidden_windows(h), 30), "the program did not start")
        # The system folder's baseline is taken at the first cycles, before the file exists.
        time.sleep(2)
        with open(path, "wb") as f:
            f.write(data)
        hwnd = h.wait_window(WARNING_TITLE, 15)
        texts = [c["text"] for c in h.texts(hwnd) if c["visible"]]
        check("Datei wurde erstellt!" in texts, f"not the system file warning: {texts}")
        delete_through_the_window(h, hwnd, "Datei löschen")
        check(not os.path.exists(path), "the file is still in system32 after Ja löschen")
        h.stop_program()

        answer, _ = answer_with_backup(h, os.path.basename(path))
        check(answer["target"].lower() == h.win_path(path).lower(), f"the answer's target: {answer}")
        check(answer["backup"] in backups(h) and answer["backup"].endswith("-" + os.path.basename(path)),
              f"the answer's backup {answer['backup']!r} is no copy in daten\\Sicherung: {backups(h)}")
        check(read_bytes(os.path.join(h.folder, "daten", "Sicherung", answer["backup"])) == data,
              "the backup's bytes differ from the file's")

        restored(h, answer)
        check(read_bytes(path) == data, "the restored file's bytes differ from the deleted file's")
    finally:
        remove(path)


@test
def restore_from_the_panel_page_brings_a_deleted_run_value_back_exactly(h):
    h.reg_delete(RUN, VALUE)
    try:
        original = run_value_deleted_through_the_window(h, "wiederher-seite")
        row = restore_from_the_page(h, lambda r: r[3].lower().endswith(("\\Run\\" + VALUE).lower()))
        check(row[2] == "Registry löschen" and row[1] == "AutostartRegistry", f"the row: {row}")
        info_says(h, "Wiederhergestellt:")
        check(export_run(h, "nachher.reg") == original, "the Run key's export differs from the one before the delete")
        lines = journal(h)
        check(lines[-1]["event"] == "restore" and lines[-1]["target"].lower().endswith(("\\Run\\" + VALUE).lower()),
              f"the journal's last line is not the restore: {lines[-1]}")
    finally:
        h.reg_delete(RUN, VALUE)


@test
def restore_of_a_deleted_helper_object_brings_its_key_tree_back_exactly(h):
    h.reg_delete(HKLM_BHO + "\\" + BHO)
    h.reg_delete(CLASS_KEY)
    h.program_folder("wiederher-bho")
    try:
        h.run(["wine", "reg", "add", CLASS_KEY, "/ve", "/d", "Kestrella Wiederher", "/f"], env=h.tool_env)
        h.run(["wine", "reg", "add", CLASS_KEY + r"\InprocServer32", "/ve", "/d", SERVER, "/f"], env=h.tool_env)
        h.run(["wine", "reg", "add", CLASS_KEY + r"\InprocServer32", "/v", "ThreadingModel", "/d", "Apartment", "/f"],
              env=h.tool_env)
        h.run(["wine", "reg", "add", HKLM_BHO + "\\" + BHO, "/ve", "/d", "Kestrella Wiederher", "/f"], env=h.tool_env)
        klasse, liste = export(h, CLASS_KEY, "klasse-vorher.reg"), export(h, HKLM_BHO, "bho-vorher.reg")
        h.settings(box21=1, box2=1, aufab1=1)
        h.start()
        check(wait_until(lambda: hidden_windows(h), 30), "the program did not start")
        hwnd = warning_of_our_class(h)
        delete_through_the_window(h, hwnd, "Löschen")
        check(wait_until(lambda: export(h, CLASS_KEY, "klasse-weg.reg") == b"", 10), "the class key is still there")
        h.stop_program()

        answer, _ = answer_with_backup(h, BHO)
        check(answer["category"] == "BHO", f"the answer line: {answer}")
        restored(h, answer)
        check(export(h, CLASS_KEY, "klasse-nachher.reg") == klasse, "the class key's tree differs from before")
        check(export(h, HKLM_BHO, "bho-nachher.reg") == liste, "the helper objects' key differs from before")
    finally:
        h.reg_delete(HKLM_BHO + "\\" + BHO)
        h.reg_delete(CLASS_KEY)


@test
def restore_from_the_panel_page_brings_back_the_start_page_that_original_overwrote(h):
    original = reg_read(h, START_PAGE, "Start Page")
    try:
        start_watching(h, "wiederher-startseite")
        h.reg_add(START_PAGE, "Start Page", NEW_PAGE)
        hwnd = h.wait_window(WARNING_TITLE, 15)
        geändert = export(h, START_PAGE, "geaendert.reg")
        h.click(hwnd, "Original")
        h.gone(hwnd, 10)
        check(reg_read(h, START_PAGE, "Start Page") == original, "Original did not put the saved page back")

        row = restore_from_the_page(h, lambda r: r[3].endswith("\\Start Page"))
        check(row[1] == "StartPage" and row[2] == "Original", f"not the start page's row: {row}")
        # The page Original put back stands there now: the restore asks before it overwrites.
        h.wait_window("Kestrella-Info", 10)
        said = " ".join(c["text"] for c in h.texts("Kestrella-Info") if c["visible"])
        check("Schon vorhanden" in said and "Überschreiben?" in said, f"no question before overwriting: {said!r}")
        h.click("Kestrella-Info", "Ja")
        info_says(h, "Wiederhergestellt:")
        check(export(h, START_PAGE, "nachher.reg") == geändert, "the key differs from the one Original overwrote")
    finally:
        put_back(h, original)
