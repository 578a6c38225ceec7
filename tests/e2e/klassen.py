"""End-to-end tests of the class lists, the ActiveX folder and the services, on a Wine
prefix of XP scale: BUILD_DIR/e2e-xp-prefix, made once by tools/xp_machine.py
(five helper objects, one of them without a server file, four shell service objects,
three task schedulers, two search hooks, about 90 automatic services) and kept for later
runs. Every test removes what it added to that prefix."""

import configparser
import contextlib
import os
import shutil
import time

from e2e_gemeinsam import WARNING_TITLE, hidden_windows, visible_titles
from harness import check, test, wait_until

HKLM_BHO = r"HKLM\SOFTWARE\Microsoft\Windows\CurrentVersion\Explorer\Browser Helper Objects"
HKLM_SSODL = r"HKLM\Software\Microsoft\Windows\CurrentVersion\ShellServiceObjectDelayLoad"
HKLM_STS = r"HKLM\SOFTWARE\Microsoft\Windows\CurrentVersion\Explorer\SharedTaskScheduler"
HKCU_HOOKS = r"HKCU\Software\Microsoft\Internet Explorer\URLSearchHooks"
SERVICES = r"HKLM\System\CurrentControlSet\Services"
HEADLINES = {
    "Neuer Eintrag [Browser Helper Objects]": "bho",
    "Neuer Autostarteintrag [ShellServiceObjectDelayLoad]": "ssodl",
    "Neuer Autostarteintrag [SharedTaskScheduler]": "sts",
    "Registry Eintrag geändert [IExplorer URLSearchHooks]": "hooks",
}
NEW_BHO = "{4B657374-7265-6C6C-6145-324542484F31}"
NEW_SERVICE = "KesE2eDienst"
MARKER = ".kestrella-xp-machine"


def fixture_script():
    """The repository's own machine maker."""
    here = os.path.dirname(os.path.abspath(__file__))
    return os.path.normpath(os.path.join(here, "..", "..", "tools", "xp_machine.py"))


@contextlib.contextmanager
def xp_machine(h):
    """Switches the harness to the XP prefix for the test, made on first use, with its own
    wineserver; switches back afterwards with every program of that prefix ended."""
    h.stop_program()
    # One Wine session on the display at a time: two desktops would both claim the one tray.
    h.end_server()
    saved = (h.prefix, h.env["WINEPREFIX"], h.tool_env["WINEPREFIX"], h.hosts_backup)
    prefix = os.path.join(h.build, "e2e-xp-prefix")
    h.prefix = h.env["WINEPREFIX"] = h.tool_env["WINEPREFIX"] = prefix
    try:
        os.makedirs(prefix, exist_ok=True)
        # The fixture waits for the prefix's wineserver to end: it runs before ours starts.
        if not os.path.exists(os.path.join(prefix, MARKER)):
            h.run(["python3", fixture_script(), prefix], timeout=300)
            open(os.path.join(prefix, MARKER), "w").close()
        h.new_server()
        # Without a window manager Wine waits for one at every hide of a managed window.
        h.reg_add(r"HKCU\Software\Wine\X11 Driver", "Managed", "N")
        with open(h.hosts_path(), "rb") as f:
            h.hosts_backup = f.read()
        yield prefix
    finally:
        try:
            h.stop_program()
            h.restore_hosts()
        finally:
            h.end_server()
            h.prefix, h.env["WINEPREFIX"], h.tool_env["WINEPREFIX"], h.hosts_backup = saved
            h.new_server()


def reg_query(h, key, view=None):
    """(subkey names, {value name: data}) of a key in the view ("32", or None for the
    64-bit one); both empty when it is missing."""
    out = h.run(["wine", "reg", "query", key, *([f"/reg:{view}"] if view else [])], env=h.tool_env, check=False)
    subkeys, values = [], {}
    for line in out.stdout.decode("cp1252", "replace").splitlines():
        if line.startswith("HKEY_") and "\\" in line:
            name = line.rsplit("\\", 1)[1]
            if line.lower() != expand_root(key).lower():
                subkeys.append(name)
        elif line.startswith("    "):
            parts = line.strip("\r\n").split("    ")
            if len(parts) >= 3:
                values[parts[1]] = parts[3] if len(parts) > 3 else ""
    return subkeys, values


def expand_root(key):
    root, rest = key.split("\\", 1)
    return {"HKLM": "HKEY_LOCAL_MACHINE", "HKCU": "HKEY_CURRENT_USER", "HKCR": "HKEY_CLASSES_ROOT"}[root] + "\\" + rest


def key_exists(h, key, view=None):
    view_args = [f"/reg:{view}"] if view else []
    return h.run(["wine", "reg", "query", key, *view_args], env=h.tool_env, check=False).returncode == 0


def set_default(h, key, data):
    h.run(["wine", "reg", "add", key, "/ve", "/d", data, "/f"], env=h.tool_env)


def ini(h, name):
    parser = configparser.RawConfigParser()
    path = os.path.join(h.folder, "daten", name)
    if os.path.exists(path):
        parser.read(path, encoding="cp1252")
    return parser


def read_text(path):
    with open(path, "rb") as f:
        return f.read().decode("cp1252")


def visible_texts(h, hwnd):
    return [c["text"] for c in h.texts(hwnd) if c["visible"]]


def rows(h, hwnd):
    return [row for c in h.texts(hwnd) for row in c["rows"]]


def next_warning(h, secs):
    """The handle of the next warning window, or None when none comes within SECS."""
    if not wait_until(lambda: WARNING_TITLE in visible_titles(h), secs, 0.3):
        return None
    return h.wait_window(WARNING_TITLE, 5)


def start(h, **settings):
    h.settings(box2=1, aufab1=1, **settings)
    h.start()
    check(wait_until(lambda: hidden_windows(h), 30), "the program did not start")


def quiet(h, secs, why):
    time.sleep(secs)
    check(WARNING_TITLE not in visible_titles(h), why)


@test
def class_lists_come_up_one_by_one_and_a_new_helper_object_is_deleted(h):
    with xp_machine(h):
        h.reg_delete(HKLM_BHO + "\\" + NEW_BHO)
        h.reg_delete(r"HKCR\CLSID" + "\\" + NEW_BHO)
        h.program_folder("klassen")
        start(h, box21=1, box23=1, box24=1, box27=1)

        # From empty baselines every entry with a server file comes up in turn, in the
        # order of the cycle: a warning stops the rest of it until it is settled.
        seen = []
        for _ in range(20):
            hwnd = next_warning(h, 5)
            if hwnd is None:
                break
            texts = visible_texts(h, hwnd)
            kinds = [kind for headline, kind in HEADLINES.items() if headline in texts]
            check(len(kinds) == 1, f"no class-list headline in the warning: {texts}")
            seen.append(kinds[0])
            h.click(hwnd, "Übernehmen")
            h.gone(hwnd, 10)
        # The fixture's 32-bit view adds three helper objects, a shell service object and a
        # task scheduler; each place's 32-bit form is read after the place itself.
        check(seen == ["bho"] * 7 + ["ssodl"] * 5 + ["sts"] * 4 + ["hooks"] * 2,
              f"warnings came as {seen}")

        def both_views(key, entries):
            """The entries of both views as the baseline files name them."""
            names = dict(entries(key))
            names.update({"Wow6432Node\\" + n: v for n, v in entries(key, "32")})
            return names

        def bho_entries(key, view=None):
            subkeys = reg_query(h, key, view)[0]
            # One of the fixture's classes has no server file: it passes in silence.
            return [(c, c) for c in subkeys if key_exists(h, r"HKCR\CLSID" + "\\" + c + r"\InprocServer32", view)]

        bho_ini = ini(h, "bho.ini")
        accepted = sorted(bho_ini.get(s, "Clisd") for s in bho_ini.sections())
        check(sorted(bho_ini.sections(), key=int) == [str(n) for n in range(1, 8)],
              f"bho.ini sections {bho_ini.sections()}")
        expected = sorted(both_views(HKLM_BHO, bho_entries))
        check(accepted == expected, f"bho.ini holds {accepted}, registry {expected}")
        check(all(bho_ini.get(s, "Pfad").lower().startswith(("c:\\windows\\system32\\xp", "c:\\windows\\syswow64\\"))
                  for s in bho_ini.sections()), "a Pfad of bho.ini is not the expanded server path")

        def values(key, view=None):
            return reg_query(h, key, view)[1].items()

        ssodl = both_views(HKLM_SSODL, values)
        shell_ini = ini(h, "shellservice.ini")
        check({shell_ini.get(s, "name"): shell_ini.get(s, "wert") for s in shell_ini.sections()} == ssodl,
              f"shellservice.ini does not hold the values {ssodl}")
        sts = both_views(HKLM_STS, values)
        task_ini = ini(h, "taskscheduler.ini")
        # Name and data change places in this file: the value's name is the class.
        check({task_ini.get(s, "wert"): task_ini.get(s, "name") for s in task_ini.sections()} == sts,
              f"taskscheduler.ini does not hold the values {sts} crossed")
        _, hooks = reg_query(h, HKCU_HOOKS)
        lines = read_text(os.path.join(h.folder, "daten", "URLSearchHook.txt")).split("\r\n")
        check(sorted(filter(None, lines)) == sorted(hooks), f"URLSearchHook.txt holds {lines}, registry {hooks}")
        log = read_text(os.path.join(h.folder, "Kestrella.log"))
        check(log.count("Neuer BHO Eintrag erstellt.") == 7, "not seven accept entries for the helper objects")

        # A program adds a helper object with its class; "Löschen" removes the class.
        set_default(h, r"HKCR\CLSID" + "\\" + NEW_BHO + r"\InprocServer32", r"C:\windows\system32\fremd.dll")
        set_default(h, HKLM_BHO + "\\" + NEW_BHO, "Eindringling")
        hwnd = next_warning(h, 15)
        check(hwnd is not None, "no warning for the new helper object")
        check("Neuer Eintrag [Browser Helper Objects]" in visible_texts(h, hwnd), "not the helper object headline")
        row = next((r for r in rows(h, hwnd) if r and r[0] == "BHO"), None)
        check(row is not None and row[3] == NEW_BHO, f"the registry row is not the new class: {row}")
        h.click(hwnd, "Löschen")
        h.wait_window("Achtung!", 10)
        h.click("Achtung!", "Ja löschen")
        h.gone(hwnd, 10)
        check(wait_until(lambda: not key_exists(h, r"HKCR\CLSID" + "\\" + NEW_BHO), 15),
              "the class of the helper object is still in the registry")
        check("< Gelöscht OK >" in read_text(os.path.join(h.folder, "Kestrella.log")), "no delete entry in the log")
        quiet(h, 2.5, "a helper object without its class raised a warning")
        h.reg_delete(HKLM_BHO + "\\" + NEW_BHO)


def automatic_services(h):
    """The services that the watcher looks at: Start 2 with an ImagePath, from one export."""
    path = os.path.join(h.prefix, "drive_c", "kes-dienste.reg")
    h.run(["wine", "reg", "export", SERVICES, "C:\\kes-dienste.reg", "/y"], env=h.tool_env)
    with open(path, "rb") as f:
        data = f.read()
    os.unlink(path)
    text = data.decode("utf-16") if data[:2] in (b"\xff\xfe", b"\xfe\xff") else data.decode("cp1252")
    prefix = "[" + expand_root(SERVICES).lower() + "\\"
    found, name, auto, image = [], None, False, False
    for line in text.splitlines() + ["["]:
        if line.startswith("["):
            if name and auto and image:
                found.append(name)
            rest = line[len(prefix):-1] if line.lower().startswith(prefix) else None
            name = rest if rest and "\\" not in rest else None
            auto = image = False
        elif name:
            low = line.lower()
            auto = auto or low.startswith('"start"=dword:00000002')
            image = image or low.startswith('"imagepath"=')
    return found


@test
def new_automatic_services_are_accepted_by_name_and_by_maker(h):
    with xp_machine(h):
        key = SERVICES + "\\" + NEW_SERVICE
        h.reg_delete(key)
        h.reg_delete(key + "2")
        h.program_folder("dienste")
        known = automatic_services(h)
        check(len(known) >= 74, f"only {len(known)} automatic services in the prefix")
        with open(os.path.join(h.folder, "daten", "dienste.ini"), "wb") as f:
            f.write("".join(f"[{i}]\r\nDienst={n}\r\n" for i, n in enumerate(known, 1)).encode("cp1252"))
        start(h, box28=1)
        quiet(h, 3, "a known service raised a warning")

        # The values before Start: the watcher needs Start 2 and an ImagePath at once.
        h.reg_add(key, "DisplayName", "Kestrella Testdienst")
        h.reg_add(key, "Description", "Nur für den Test.")
        h.reg_add(key, "ObjectName", "LocalSystem")
        h.reg_add(key, "ImagePath", r"%SystemRoot%\System32\notepad.exe", kind="REG_EXPAND_SZ")
        h.reg_add(key, "Start", "2", kind="REG_DWORD")
        hwnd = next_warning(h, 15)
        check(hwnd is not None, "no warning for the new service")
        texts = visible_texts(h, hwnd)
        check("Neuer Dienst wurde gefunden.(Automatischer Start)" in texts, f"not the service headline: {texts}")
        shown = [r[0] for r in rows(h, hwnd) if r]
        check("Kestrella Testdienst ---->> Nur für den Test." in shown, f"no DisplayName row: {shown}")
        check(r"C:\windows\system32\notepad.exe" in shown, f"no path row: {shown}")
        h.click(hwnd, "Übernehmen")
        entry = f'Dienst: "{NEW_SERVICE}" immer zulassen'
        check(wait_until(lambda: entry in h.kd("menu", check=False), 5), "the menu of Übernehmen did not open")
        h.kd("menu-click", entry)
        h.gone(hwnd, 10)
        services = ini(h, "dienste.ini")
        new = [s for s in services.sections() if services.get(s, "Dienst") == NEW_SERVICE]
        check(new == [str(len(known) + 1)], f"the service is not in the first free section: {new}")
        check(services.get(new[0], "ObjectName") == "Kestrella Testdienst", "ObjectName holds no display name")
        check(services.get(new[0], "DisplayName") == "LocalSystem", "DisplayName holds no account")
        quiet(h, 2.5, "the accepted service raised a warning again")

        # A second service: its maker is trusted from now on, through the menu's default.
        second = SERVICES + "\\" + NEW_SERVICE + "2"
        h.reg_add(second, "ImagePath", r"system32\kdienst.exe", kind="REG_EXPAND_SZ")
        h.reg_add(second, "Start", "2", kind="REG_DWORD")
        hwnd = next_warning(h, 15)
        check(hwnd is not None, "no warning for the second service")
        maker = next((r[1] for r in rows(h, hwnd) if len(r) > 1 and r[0] == "Hersteller:"), None)
        check(maker and maker != "Unbekannt", f"no maker for kdienst.exe: {maker}")
        h.click(hwnd, "Übernehmen")
        entry = f'Hersteller: "{maker}" immer zulassen'
        check(wait_until(lambda: entry in h.kd("menu", check=False), 5), f"no menu entry {entry!r}")
        h.kd("menu-click", entry)
        h.gone(hwnd, 10)
        makers = read_text(os.path.join(h.folder, "daten", "dienstefirmen.txt"))
        check(makers == maker + "\r\n", f"dienstefirmen.txt holds {makers!r}")
        quiet(h, 2.5, "a service of a trusted maker raised a warning")
        h.reg_delete(key)
        h.reg_delete(second)


@test
def new_activex_file_is_reported_without_desktop_ini(h):
    with xp_machine(h) as prefix:
        folder = os.path.join(prefix, "drive_c", "windows", "Downloaded Program Files")
        added = os.path.join(folder, "neu.ocx")
        if os.path.exists(added):
            os.unlink(added)
        desktop_ini = os.path.join(folder, "desktop.ini")
        with open(desktop_ini, "wb") as f:
            f.write(b"[.ShellClassInfo]\r\n")
        os.chmod(desktop_ini, 0o444)
        h.program_folder("activex")
        # Known in another case than the folder's: the compare ignores it.
        known = [("C:\\WINDOWS\\DOWNLOADED PROGRAM FILES\\" + n.upper()) for n in sorted(os.listdir(folder))
                 if n != "desktop.ini"]
        with open(os.path.join(h.folder, "daten", "Activex.txt"), "wb") as f:
            f.write("".join(k + "\r\n" for k in known).encode("cp1252"))
        start(h, box22=1)
        check(wait_until(lambda: not os.path.exists(desktop_ini), 10), "desktop.ini was not removed")
        quiet(h, 2, "a known ActiveX file raised a warning")

        shutil.copy(h.kdriver, added)
        hwnd = next_warning(h, 15)
        check(hwnd is not None, "no warning for the new ActiveX file")
        texts = visible_texts(h, hwnd)
        check("Es wurde eine neue ActiveX gefunden." in texts, f"not the ActiveX headline: {texts}")
        shown = [r[0] for r in rows(h, hwnd) if r]
        check(r"C:\windows\Downloaded Program Files\neu.ocx" in shown, f"no path row: {shown}")
        h.click(hwnd, "Übernehmen")
        h.gone(hwnd, 10)
        quiet(h, 2.5, "the accepted ActiveX file raised a warning again")
        baseline = read_text(os.path.join(h.folder, "daten", "Activex.txt"))
        check("neu.ocx" not in baseline.lower(), "the accept wrote daten\\Activex.txt")
        os.unlink(added)
