"""End-to-end: the program killed from outside (TerminateProcess) at random moments of
accept actions. Each rewritten file must afterwards be the old one or the new one, whole,
and the next start must not be a first run. Blocks of rounds alternate between new run
values, with only the autostart registry watched (the autostart list, the log and the
settings file are rewritten; a run value the prefix brings along is accepted like a new
one), and a grown hosts file, with only the hosts file watched (the settings file takes
the new size). KES_ABBRUCH_RUNDEN sets the number of accept actions (200 by default)."""

import json
import os
import random
import struct
import subprocess
import time

from e2e_gemeinsam import ASSISTANT_CLASS, WARNING_TITLE, hosts_grown, visible_of_class
from harness import E2EError, check, test

RUN = r"HKCU\Software\Microsoft\Windows\CurrentVersion\Run"
CALIBRATION = 3  # the first kills come long after the action: its length sets the range
BLOCK = 10  # rounds of one kind of change: the run rows come before the hosts row
OK = "< Übernommen OK >\r\n".encode("cp1252")


def settings_values(data):
    """The entries of a settings file as {lower-case name: value}; raises on anything that
    is not one whole settings block."""
    if data[:4] != b"KPB1":
        raise ValueError("no KPB1 header")
    (count,), pos, values = struct.unpack_from("<I", data, 4), 8, {}
    for _ in range(count):
        kind = data[pos]
        (length,) = struct.unpack_from("<H", data, pos + 1)
        name = data[pos + 3:pos + 3 + length].decode("cp1252").lower()
        pos += 3 + length
        if kind in (2, 11):
            (values[name],), pos = struct.unpack_from("<h", data, pos), pos + 2
        elif kind == 3:
            (values[name],), pos = struct.unpack_from("<i", data, pos), pos + 4
        elif kind == 8:
            (n,) = struct.unpack_from("<I", data, pos)
            values[name], pos = data[pos + 4:pos + 4 + n], pos + 4 + n
        else:
            raise ValueError(f"type {kind} of {name!r}")
    if pos != len(data):
        raise ValueError(f"{len(data) - pos} bytes after the last entry")
    return values


def read(path):
    try:
        with open(path, "rb") as f:
            return f.read()
    except FileNotFoundError:
        return None


def judge(name, old, new, boxes):
    """'same' (byte for byte) or 'new' for a file after the kill; raises AssertionError for anything else."""
    if new == old:
        return "same"
    check(new is not None, f"{name} is gone after the kill")
    if name == "kestrella.dat":
        try:
            values = settings_values(new)
        except (ValueError, struct.error, IndexError) as e:
            raise AssertionError(f"kestrella.dat is damaged after the kill ({e}): {new[:80]!r}...") from None
        for key, value in dict(boxes, box2=1, aufab1=1).items():
            check(values.get(key, 0) == value, f"kestrella.dat holds {key} = {values.get(key)} after the kill")
    elif name == "AutostartREG.txt":
        old = old or b""
        added = new[len(old):]
        check(new.startswith(old) and added.endswith(b"\r\n") and added.count(b"\r\n") == 1, f"the autostart list is neither old nor new: {old!r} -> {new!r}")
    else:
        old = old or b""
        check(new.startswith(old) and new.endswith(OK) and b"Registry: " in new[len(old):],
              f"the log is neither old nor new: ...{old[-60:]!r} -> ...{new[-120:]!r}")
    return "new"


@test
def killed_during_accept_actions_leaves_each_file_old_or_new_and_no_first_run(h):
    rounds = int(os.environ.get("KES_ABBRUCH_RUNDEN", "200"))
    rng = random.Random(16)
    folder = h.program_folder("abbruch")
    h.settings(box2=1, aufab1=1, hostsgrösse=os.path.getsize(h.hosts_path()))
    files = {"kestrella.dat": os.path.join(folder, "kestrella.dat"),
             "AutostartREG.txt": os.path.join(folder, "daten", "AutostartREG.txt"),
             "Kestrella.log": os.path.join(folder, "Kestrella.log")}
    added, outcomes, longest, began = [], {}, 0, time.monotonic()
    try:
        for r in range(rounds):
            registry = r // BLOCK % 2 == 0
            boxes = {"box13": int(registry), "box15": int(not registry)}
            if r % BLOCK == 0:
                h.settings(**boxes)
            if registry:
                h.reg_add(RUN, f"KesAbbruch{r}", f"C:\\kes-abbruch-{r}.exe")
                added.append(f"KesAbbruch{r}")
            else:
                hosts_grown(h)
            program = h.start()
            driver = subprocess.Popen(["wine", h.kdriver, "click-kill", WARNING_TITLE, "Übernehmen", "30"],
                                      env=h.tool_env, stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                                      stderr=subprocess.DEVNULL)
            h.procs.append(driver)
            seen = h.read_line(driver, 60)
            if not seen.startswith("seen"):
                check(not visible_of_class(h, ASSISTANT_CLASS), f"round {r}: the start after a kill was a first run")
                raise E2EError(f"round {r}: no warning came (driver said {seen!r}, program exit {program.poll()})")
            before = {name: read(path) for name, path in files.items()}
            delay = 2_000_000 if r < CALIBRATION else rng.randrange(0, longest * 13 // 10 + 1)
            driver.stdin.write(f"{delay}\n".encode())
            driver.stdin.flush()
            said = h.read_line(driver, 30).split("\t")
            check(said[0] == "killed", f"round {r}: the driver did not kill the program: {said}")
            gone = int(said[2])
            longest = max(longest, gone)
            driver.wait(15)
            program.wait(15)
            state = tuple(judge(name, before[name], read(path), boxes) for name, path in files.items())
            state += ("scratch left",) if any(n.endswith(".neu") for n in os.listdir(folder)
                                              + os.listdir(os.path.join(folder, "daten"))) else ()
            kind = "before" if gone < 0 and all(s == "same" for s in state[:3]) else "after" if gone >= 0 else "during"
            outcomes[(kind,) + state] = outcomes.get((kind,) + state, 0) + 1
    finally:
        for name in added:
            h.reg_delete(RUN, name)
    secs = time.monotonic() - began
    print(f"     {rounds} accept actions killed in {secs:.0f} s ({secs / rounds:.2f} s each); "
          f"longest action {longest / 1000:.1f} ms; outcomes (kill, dat, list, log):", flush=True)
    for key, n in sorted(outcomes.items()):
        print(f"       {n:4d}  {' '.join(key)}", flush=True)


def journal_lines(folder):
    """The journal's lines; a line that is no whole JSON object fails the test."""
    path = os.path.join(folder, "daten", "journal.jsonl")
    if not os.path.exists(path):
        return []
    with open(path, "rb") as f:
        raw = f.read()
    lines = [line for line in raw.split(b"\r\n") if line]
    for line in lines:
        try:
            json.loads(line.decode("utf-8"))
        except (UnicodeDecodeError, json.JSONDecodeError):
            raise E2EError(f"a journal line is not whole: {line[:120]!r}")
    return lines


def saved_values(folder):
    """The Run values that some whole backup of daten\\Sicherung holds."""
    backup = os.path.join(folder, "daten", "Sicherung")
    names = set()
    for n in os.listdir(backup) if os.path.isdir(backup) else []:
        if n.endswith(".reg"):
            with open(os.path.join(backup, n), "rb") as f:
                names.update(line.split(b'"')[1].decode("cp1252") for line in f.read().split(b"\r\n")
                             if line.startswith(b'"KesWeg'))
    return names


@test
def killed_during_delete_actions_leaves_every_journal_line_whole_and_nothing_removed_unsaved(h):
    rounds = max(10, int(os.environ.get("KES_ABBRUCH_RUNDEN", "200")) // 2)
    rng = random.Random(26)
    folder = h.program_folder("abbruch-weg")
    h.settings(box2=1, aufab1=1, box13=1, anzeigelöschen=1)
    added, outcomes, longest, began = [], {}, 0, time.monotonic()
    try:
        for r in range(rounds):
            h.reg_add(RUN, f"KesWeg{r}", f"C:\\kes-weg-{r}.exe")
            added.append(f"KesWeg{r}")
            program = h.start()
            driver = subprocess.Popen(["wine", h.kdriver, "click-kill", WARNING_TITLE, "Registry löschen", "30"],
                                      env=h.tool_env, stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                                      stderr=subprocess.DEVNULL)
            h.procs.append(driver)
            seen = h.read_line(driver, 60)
            check(seen.startswith("seen"), f"round {r}: no warning came (driver said {seen!r})")
            delay = 2_000_000 if r < CALIBRATION else rng.randrange(0, longest * 13 // 10 + 1)
            driver.stdin.write(f"{delay}\n".encode())
            driver.stdin.flush()
            said = h.read_line(driver, 30).split("\t")
            check(said[0] == "killed", f"round {r}: the driver did not kill the program: {said}")
            longest = max(longest, int(said[2]))
            driver.wait(15)
            program.wait(15)
            journal_lines(folder)
            query = h.run(["wine", "reg", "query", RUN], env=h.tool_env).stdout.decode("cp1252")
            gone = {n for n in added if n not in query.split()}
            unsaved = gone - saved_values(folder)
            check(not unsaved, f"round {r}: removed without a backup: {sorted(unsaved)}")
            backup = os.path.join(folder, "daten", "Sicherung")
            halves = {n for n in os.listdir(backup) if n.endswith(".tmp")} if os.path.isdir(backup) else set()
            kind = ("removed" if len(gone) > outcomes.get("gone", 0) else "kept") + (
                " backup cut" if halves - outcomes.get("halves", set()) else "")
            outcomes["halves"] = halves
            outcomes["gone"] = len(gone)
            outcomes[kind] = outcomes.get(kind, 0) + 1
    finally:
        for name in added:
            h.reg_delete(RUN, name)
    secs = time.monotonic() - began
    gone = outcomes.pop("gone", 0)
    outcomes.pop("halves", None)
    print(f"     {rounds} delete actions killed in {secs:.0f} s; longest action {longest / 1000:.1f} ms; "
          f"{gone} values removed, each with its backup; journal lines whole; rounds: {outcomes}", flush=True)
