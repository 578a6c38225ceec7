#!/usr/bin/env python3
"""Long run under Wine, not part of the suite: the real Kestrella.exe at stage 1 with every
watcher on, for MINUTES (10 by default) on an XP-scale prefix of its own, while this script
changes the registry and the files and answers every warning as a person would, mostly
with "Übernehmen". At the end the program must still run, its working set must not have
grown by 2 MB or more since the second minute, and every change it accepted must stand in
its file.

The working set is weighed without the window images that Wine shares with the X server
(System V shared memory): Wine keeps the image of a window for a while after the window
has gone, so that part is as large as the last warnings shown happen to be (0.5 to 1.8 MB
each, up to 5 MB in all) and says nothing about what the program holds. Both figures are
printed.

    python3 tests/e2e/dauerlauf_xp.py --build build-win [--minutes 10] [--seed 16]

The prefix is BUILD/soak-xp-prefix, made by tools/xp_machine.py on first use (about 2 minutes) and
kept; delete it to have it made anew. Run it alone: it keeps one core busy."""

import argparse
import getpass
import os
import random
import signal
import sys
import time

from e2e_gemeinsam import WARNING_TITLE, hidden_windows
from harness import E2EError, Harness, unescape, wait_until, with_fixed_address_layout
from klassen import MARKER, fixture_script

LIMIT = 2 * 1024 * 1024
RUN = r"HKCU\Software\Microsoft\Windows\CurrentVersion\Run"
DOMAINS = r"HKCU\Software\Microsoft\Windows\CurrentVersion\Internet Settings\ZoneMap\Domains"
SERVICES = r"HKLM\System\CurrentControlSet\Services"
POLICIES = r"HKCU\Software\Microsoft\Windows\CurrentVersion\Policies\System"
AUTOSTART_FOLDER = "Neuer Eintrag in der Autostart Ordner gefunden."
BOXES = [2, 4, 5, 8, 10, 11, 13, 14, 15, 16, 17, 19, 20, 21, 22, 23, 24, 25, 26, 27, 28, 29, 30]


def window_images(folder):
    """Bytes of Kestrella's resident System V shared memory: Wine's window images for the
    X server (Linux only; 0 where it cannot be read)."""
    exe = os.path.join(folder, "Kestrella.exe")
    total = 0
    for pid in filter(str.isdigit, os.listdir("/proc")):
        try:
            if os.readlink(f"/proc/{pid}/exe").startswith("/usr/lib/wine") and exe in open(
                    f"/proc/{pid}/cmdline", "rb").read().decode(errors="replace"):
                shared = False
                for line in open(f"/proc/{pid}/smaps"):
                    fields = line.split()
                    if "-" in fields[0] and not fields[0].endswith(":"):
                        shared = len(fields) >= 6 and fields[5].startswith("/SYSV")
                    elif shared and fields[0] == "Rss:":
                        total += int(fields[1]) * 1024
        except OSError:
            continue
    return total


class Soak:
    def __init__(self, h, rng):
        self.h, self.rng = h, rng
        self.made = {}      # unique name -> the data file it must reach once accepted
        self.accepted = {}  # unique name -> that file
        self.answers = {}
        self.counter = 0
        self.startup = None

    def change(self):
        """One change of a kind the script can recognise in a warning by its unique name."""
        h = self.h
        self.counter += 1
        n = self.counter
        kind = self.rng.choice(["run", "hosts", "startup", "domain", "service", "system32", "policy"])
        if kind == "run":
            h.reg_add(RUN, f"KesSoakLauf{n}", f"C:\\windows\\system32\\kessoak{n}.exe /min")
            self.made[f"KesSoakLauf{n}"] = "AutostartREG.txt"
        elif kind == "hosts":
            with open(h.hosts_path(), "ab") as f:
                f.write(f"127.0.0.1 kessoak{n}.invalid\r\n".encode())
        elif kind == "startup":
            with open(os.path.join(self.startup, f"KesSoakStart{n}.lnk"), "wb") as f:
                f.write(b"L" * 80)
        elif kind == "domain":
            h.reg_add(DOMAINS + f"\\kessoak{n}.example", "http", "2", "REG_DWORD")
            self.made[f"kessoak{n}.example"] = "V_seiten.txt"
        elif kind == "service":
            key = SERVICES + f"\\KesSoakDienst{n}"
            h.reg_add(key, "ImagePath", f"C:\\windows\\system32\\kessoakdienst{n}.exe")
            h.reg_add(key, "Start", "2", "REG_DWORD")
            self.made[f"KesSoakDienst{n}"] = "dienste.ini"
        elif kind == "system32":
            with open(os.path.join(h.prefix, "drive_c", "windows", "system32", f"kessoak{n}.dll"), "wb") as f:
                f.write(b"MZ" + b"\0" * 500)
        else:
            h.reg_add(POLICIES, "DisableTaskMgr", "1", "REG_DWORD")

    def answer(self):
        """Answers the warning that is up, if any; gives whether there was one."""
        h = self.h
        hwnd = next((w["hwnd"] for w in h.windows() if w["visible"] and w["title"] == WARNING_TITLE), None)
        if not hwnd:
            return False
        try:
            controls = h.texts(hwnd)
        except E2EError:
            return True  # gone in the meantime
        text = " ".join([c["text"] for c in controls if c["visible"]]
                        + [" ".join(r) for c in controls for r in c["rows"]])
        buttons = [c["text"] for c in controls if c["class"].lower() == "button" and c["visible"]]
        # An accepted file of an autostart folder goes into the list by its path while the
        # folder is compared by name, so it would come back at every cycle and hold up
        # every row behind it: such a warning is put off for the run.
        wanted = ("Später",) if AUTOSTART_FOLDER in text else ("Übernehmen", "Freigeben", "Original")
        caption = next((c for c in wanted if c in buttons), None)
        if caption is None:
            h.kd("close", hwnd, check=False)
        else:
            h.kd("click", hwnd, caption, check=False)
            # The window goes, or a menu behind the button opens.
            menu = wait_until(lambda: self.gone_or_menu(hwnd), 15)
            if isinstance(menu, str):
                pick = choose(menu)
                if pick:
                    h.kd("menu-click", pick, check=False)
                    caption += " / " + pick.split(" ")[0]
            if caption.startswith("Übernehmen"):
                for name, file in self.made.items():
                    if name.lower() in text.lower() and (file != "dienste.ini" or "Dienst:" in caption):
                        self.accepted[name] = file
        self.answers[caption or "close"] = self.answers.get(caption or "close", 0) + 1
        wait_until(lambda: hwnd not in [w["hwnd"] for w in self.h.windows() if w["visible"]], 15)
        return True

    def gone_or_menu(self, hwnd):
        if hwnd not in [w["hwnd"] for w in self.h.windows() if w["visible"]]:
            return True
        return self.h.kd("menu", check=False) or False


def choose(menu):
    """The entry of a menu behind a button that a person taking the change would pick: the
    service itself where offered, else the first one that is not greyed."""
    entries = []
    for line in menu.splitlines():
        fields = line.split("\t")
        if len(fields) >= 5 and fields[1] != "-" and fields[4] == "0":
            entries.append(unescape(fields[1]))
    return next((e for e in entries if e.startswith("Dienst:")), entries[0] if entries else None)


def make_prefix(h, prefix):
    h.prefix = h.env["WINEPREFIX"] = h.tool_env["WINEPREFIX"] = prefix
    os.makedirs(prefix, exist_ok=True)
    if not os.path.exists(os.path.join(prefix, MARKER)):
        h.run(["python3", fixture_script(), prefix], timeout=300)
        open(os.path.join(prefix, MARKER), "w").close()


def main():
    with_fixed_address_layout()
    parser = argparse.ArgumentParser(description=__doc__.split("\n\n")[0])
    parser.add_argument("--build", required=True)
    parser.add_argument("--minutes", type=float, default=10)
    parser.add_argument("--seed", type=int, default=16)
    args = parser.parse_args()
    signal.signal(signal.SIGTERM, lambda *_: sys.exit("soak: stopped by SIGTERM"))
    h = Harness(args.build)
    make_prefix(h, os.path.join(h.build, "soak-xp-prefix"))
    h.open()
    failures = []
    try:
        failures = soak(h, args)
    finally:
        h.close()
    for f in failures:
        print("FAIL " + f)
    print("soak: " + ("passed" if not failures else f"{len(failures)} failures"))
    return 1 if failures else 0


def soak(h, args):
    rng = random.Random(args.seed)
    folder = h.program_folder("soak")
    h.settings(aufab1=1, anzeigelöschen=1, hostsgrösse=os.path.getsize(h.hosts_path()),
               **{f"box{b}": 1 for b in BOXES})
    s = Soak(h, rng)
    programs = os.path.join(h.prefix, "drive_c", "users", getpass.getuser(), "AppData", "Roaming", "Microsoft",
                            "Windows", "Start Menu", "Programs")
    s.startup = os.path.join(programs, next((d for d in os.listdir(programs) if d.lower() == "startup"), "StartUp"))
    os.makedirs(s.startup, exist_ok=True)
    proc = h.start()
    if not wait_until(lambda: hidden_windows(h), 60):
        return ["the program did not start"]
    pid = hidden_windows(h)[0]["pid"]
    began = time.monotonic()
    end = began + args.minutes * 60
    samples, next_sample, next_change, warnings = [], began + 60, began, 0
    while time.monotonic() < end:
        if proc.poll() is not None:
            return [f"the program ended after {time.monotonic() - began:.0f} s with exit code {proc.poll()}"]
        if time.monotonic() >= next_change:
            s.change()
            next_change = time.monotonic() + rng.uniform(1, 4)
        if s.answer():
            warnings += 1
        else:
            wait_until(lambda: WARNING_TITLE in [w["title"] for w in h.windows() if w["visible"]],
                       max(0.0, next_change - time.monotonic()), 0.3)
        if time.monotonic() >= next_sample:
            whole, images = h.working_set(pid), window_images(folder)
            samples.append((round(time.monotonic() - began), whole - images))
            print(f"  {samples[-1][0]:4d} s: working set {whole / 1024:.0f} KB, without window images "
                  f"{samples[-1][1] / 1024:.0f} KB, {warnings} warnings, "
                  f"{s.counter} changes, {len(s.accepted)} of them accepted", flush=True)
            next_sample += 60
    whole, images = h.working_set(pid), window_images(folder)
    final = whole - images
    failures = []
    if proc.poll() is not None or not hidden_windows(h):
        failures.append("the program did not survive the run")
    # The first start takes the whole machine into its lists: the figure is taken from the
    # second minute on, when the flood of warnings about what was there before has passed.
    base = samples[min(1, len(samples) - 1)][1] if samples else final
    grown = final - base
    print(f"  working set without window images after {samples[min(1, len(samples) - 1)][0] if samples else 0} s: {base / 1024:.0f} KB, "
          f"at the end: {final / 1024:.0f} KB (with them {whole / 1024:.0f} KB) "
          f"({grown / 1024:+.0f} KB); {warnings} warnings answered {s.answers}; {s.counter} changes, "
          f"{len(s.accepted)} accepted", flush=True)
    if grown >= LIMIT:
        failures.append(f"the working set grew by {grown / 1024:.0f} KB")
    h.stop_program()
    for name, file in sorted(s.accepted.items()):
        path = os.path.join(folder, "daten", file)
        content = open(path, "rb").read().decode("cp1252").lower() if os.path.exists(path) else ""
        if name.lower() not in content:
            failures.append(f"accepted {name} is not in daten\\{file}")
    cleanup(h, s)
    return failures


def cleanup(h, s):
    """The prefix is kept for later runs: what the run added goes again."""
    for name in s.made:
        if name.startswith("KesSoakLauf"):
            h.reg_delete(RUN, name)
        elif name.startswith("KesSoakDienst"):
            h.reg_delete(SERVICES + "\\" + name)
        elif name.endswith(".example"):
            h.reg_delete(DOMAINS + "\\" + name)
    h.reg_delete(POLICIES, "DisableTaskMgr")
    for name in os.listdir(s.startup):
        if name.startswith("KesSoakStart"):
            os.remove(os.path.join(s.startup, name))
    system32 = os.path.join(h.prefix, "drive_c", "windows", "system32")
    for name in os.listdir(system32):
        if name.startswith("kessoak"):
            os.remove(os.path.join(system32, name))


if __name__ == "__main__":
    sys.exit(main())
