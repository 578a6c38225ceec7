#!/usr/bin/env python3
"""The end-to-end harness: runs the real Kestrella.exe under Wine (on Xvfb when there is no
display), changes the system for real (registry, files in the Wine prefix) and drives the
windows from outside with kdriver.exe, never through anything the program offers for tests.

One Wine prefix, BUILD_DIR/e2e-prefix, serves every run (a shard of the suite has its own,
e2e-prefix-I, and its own Xvfb); each test gets a program folder of its own in it and ends
with every Kestrella stopped. Before each test the harness makes
sure that no Kestrella process or window is left from an earlier one, and says so when it
had to end one. A failed test leaves a picture of the screen, the window and process lists
and the files of its program folder in BUILD_DIR/e2e-shots/FAILED-name/.

A test is a function registered with @test that takes the Harness and fails by raising.
main() prints "PASS name" or "FAIL name: reason" per test and ends with the line
"N passed, M failed". The tests themselves and the entry point are in e2e.py.
"""

import argparse
import ctypes
import os
import select
import shutil
import signal
import socket
import subprocess
import sys
import tempfile
import time
import traceback

# Windows that belong to the program: its own classes, and its message boxes.
OWN_CLASS_PREFIX = "Kestrella"
MESSAGE_TITLE = "Kestrella"


# Debian's Wine has no preloader: its loader sits at 0x7d000000 and the kernel places the C
# heap anywhere in the gigabyte above it, now and then across 0x7ffe0000, where every Wine
# process must map its shared user data. Such a process ends at once with exit 1 ("failed to
# map the shared user data", 1 of 4 000 starts here). With address randomisation off
# the heap follows the loader and never gets there. Inherited by every process we start.
ADDR_NO_RANDOMIZE = 0x0040000


def with_fixed_address_layout():
    """Starts this script anew under `setarch -R` unless it already runs that way, or the
    personality cannot be set here (a container's seccomp filter may refuse it)."""
    with open("/proc/self/personality") as f:
        if int(f.read(), 16) & ADDR_NO_RANDOMIZE:
            return
    if subprocess.run(["setarch", "-R", "true"], stderr=subprocess.DEVNULL).returncode != 0:
        print("setarch -R refused: Wine starts with a randomised address layout", flush=True)
        return
    sys.stdout.flush()
    os.execvp("setarch", ["setarch", "-R", sys.executable, *sys.argv])


class E2EError(Exception):
    """A step of the harness itself went wrong (a tool failed or timed out)."""


def end_with_parent():
    """In a child before it starts: it ends when the harness ends, even when the harness is
    killed before it can end it (Linux)."""
    try:
        ctypes.CDLL(None, use_errno=True).prctl(1, signal.SIGTERM)  # PR_SET_PDEATHSIG
    except (OSError, AttributeError):
        pass


def german_locale_installed():
    try:
        out = subprocess.run(["locale", "-a"], capture_output=True, text=True).stdout.lower()
    except OSError:
        return False
    return "de_de.utf8" in out.split() or "de_de.utf-8" in out.split()


def find_file(root, name, skip):
    """The shallowest file called NAME below ROOT, ignoring the folders in SKIP."""
    best = None
    for folder, dirs, files in os.walk(root):
        dirs[:] = [d for d in dirs if d not in skip and not d.endswith("-prefix") and "-prefix-" not in d]
        if name in files:
            path = os.path.join(folder, name)
            if best is None or path.count(os.sep) < best.count(os.sep):
                best = path
    if best is None:
        raise E2EError(f"{name} not found below {root}")
    return best


def shown(cmd):
    """A command line for messages, with program paths cut to their names."""
    return " ".join(os.path.basename(c) if os.path.isabs(c) else repr(c) if " " in c else c for c in cmd)


def unescape(text):
    """Undoes kdriver's escaping of backslash, tab, CR and LF."""
    out, i = [], 0
    while i < len(text):
        if text[i] == "\\" and i + 1 < len(text):
            out.append({"t": "\t", "r": "\r", "n": "\n"}.get(text[i + 1], text[i + 1]))
            i += 2
        else:
            out.append(text[i])
            i += 1
    return "".join(out)


def wait_until(condition, secs, step=0.2):
    """Calls CONDITION until it gives a true value or SECS have passed; returns that value."""
    end = time.monotonic() + secs
    while True:
        value = condition()
        if value or time.monotonic() >= end:
            return value
        time.sleep(step)


class Harness:
    def __init__(self, build, shard=None):
        self.build = os.path.abspath(build)
        # Shards run side by side, each in a prefix and on a display of its own.
        self.shard = shard
        self.prefix = os.path.join(self.build, "e2e-prefix" + (f"-{shard}" if shard else ""))
        skip = {"CMakeFiles", "googletest", "e2e-shots"}
        self.kestrella = find_file(self.build, "Kestrella.exe", skip)
        self.kestrella_dat = find_file(self.build, "kestrella-dat.exe", skip)
        self.kdriver = find_file(self.build, "kdriver.exe", skip)
        self.shots = os.path.join(self.build, "e2e-shots")
        base = dict(os.environ, WINEDEBUG="-all", WINEPREFIX=self.prefix,
                    WINEDLLOVERRIDES="mscoree,mshtml=d")
        # Program and tools all run in one German locale. Wine writes the locale's number
        # formats into the prefix's registry at each start, so a tool in another locale
        # would switch the running program's separators under it. With de_DE.UTF-8 not
        # installed (test.sh installs it), Wine cannot convert a command line such as
        # "Später" to the ANSI code page; then the tools fall back to C.UTF-8.
        self.env = dict(base, LC_ALL="de_DE.UTF-8")
        tools = self.env if german_locale_installed() else dict(base, LC_ALL="C.UTF-8")
        # A tool that dies before its own code runs says why only through Wine's errors.
        self.tool_env = dict(tools, WINEDEBUG="err+all,fixme-all")
        self.xvfb = None
        self.xvfb_pipe = None
        self.procs = []
        self.folder = None
        self.hosts_backup = None

    # --- the session: display, prefix, wineserver -----------------------------------

    def new_server(self):
        """Ends the prefix's wineserver, waits until it has gone, and starts one that stays.
        A server left by an earlier run serves the display that run had, which may be gone:
        its desktop and tray would swallow every window of this run."""
        for flag in ("-k", "-w", "-p"):
            subprocess.run(["wineserver", flag], env=self.env, timeout=30,
                           stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)

    def end_server(self):
        """Ends the prefix's wineserver and waits until it and its programs have gone."""
        for flag in ("-k", "-w"):
            subprocess.run(["wineserver", flag], env=self.env, timeout=30,
                           stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)

    def open(self):
        if self.shard or not os.environ.get("DISPLAY"):
            self.start_xvfb()
        # One server for the whole run, started first and apart: it would otherwise stop
        # and start between tests, and the first wine call would hand it its output pipes.
        os.makedirs(self.prefix, exist_ok=True)
        self.new_server()
        if not os.path.exists(os.path.join(self.prefix, "system.reg")):
            self.run(["wineboot", "-i"], timeout=180)
        # Xvfb has no window manager. For a window that it leaves to the manager, Wine waits
        # up to 2 s at each hide for the manager's answer, which never comes: every closed
        # window would cost 2 s, and the next window timer could fire inside that wait.
        self.reg_add(r"HKCU\Software\Wine\X11 Driver", "Managed", "N")
        with open(self.hosts_path(), "rb") as f:
            self.hosts_backup = f.read()

    def start_xvfb(self):
        # Given no number, Xvfb takes the first free display and writes its number to the
        # descriptor once it takes connections: no display is shared with another run. It
        # writes again at each server reset and dies if nobody listens, hence -noreset and
        # a pipe kept open until the end.
        self.xvfb_pipe, write_end = os.pipe()
        self.xvfb = subprocess.Popen(["Xvfb", "-screen", "0", "1280x1024x24", "-nolisten", "tcp",
                                      "-noreset", "-displayfd", str(write_end)], pass_fds=(write_end,),
                                     stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                                     preexec_fn=end_with_parent)
        os.close(write_end)
        ready, _, _ = select.select([self.xvfb_pipe], [], [], 15)
        number = os.read(self.xvfb_pipe, 16).strip().decode() if ready else ""
        if not number:
            raise E2EError(f"Xvfb did not start (exit code {self.xvfb.poll()})")
        for env in (self.env, self.tool_env):
            env["DISPLAY"] = ":" + number

    def display_alive(self):
        """Whether the X server of DISPLAY still takes connections: a server that ends
        under a running suite takes every later window with it."""
        number = self.env.get("DISPLAY", "").split(":")[-1].split(".")[0]
        if not number.isdigit():
            return True  # a remote display: not ours to check
        with socket.socket(socket.AF_UNIX, socket.SOCK_STREAM) as s:
            try:
                s.connect(f"/tmp/.X11-unix/X{number}")
                return True
            except OSError:
                return False

    def close(self):
        try:
            self.stop_program()
            self.restore_hosts()
        except (E2EError, OSError):
            pass
        subprocess.run(["wineserver", "-k"], env=self.env, timeout=30,
                       stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        if self.xvfb:
            self.xvfb.terminate()
            self.xvfb.wait(10)
            os.close(self.xvfb_pipe)

    def run(self, cmd, timeout=60, env=None, check=True):
        """Runs a command to its end. Output goes through files, not pipes: Wine hands the
        pipes on to the services and the desktop process it starts, which outlive the call."""
        with tempfile.TemporaryFile() as out, tempfile.TemporaryFile() as err:
            try:
                res = subprocess.run(cmd, env=env or self.env, timeout=timeout, stdout=out, stderr=err)
            except subprocess.TimeoutExpired:
                raise E2EError(f"{shown(cmd)}: no end within {timeout} s") from None
            out.seek(0)
            err.seek(0)
            res.stdout, res.stderr = out.read(), err.read()
        if res.returncode != 0 and not res.stdout and not res.stderr:
            # No tool used here fails without a word; a caller that allows failure would
            # read this as "not there" and test the wrong thing.
            raise E2EError(f"{shown(cmd)}: exit {res.returncode} without any output")
        if check and res.returncode != 0:
            said = res.stderr.decode("cp1252", "replace").strip()
            if not said:
                # Wine's own errors are silenced (WINEDEBUG=-all): show what the tool printed.
                said = "no message; output: " + repr(res.stdout.decode("cp1252", "replace")[-300:])
            raise E2EError(f"{shown(cmd)}: exit {res.returncode}: {said}")
        return res

    # --- the program folder and the program --------------------------------------------

    def program_folder(self, name):
        """A fresh folder drive_c/Kestrella-NAME with the program and its daten folder."""
        self.folder = os.path.join(self.prefix, "drive_c", "Kestrella-" + name)
        shutil.rmtree(self.folder, ignore_errors=True)
        if os.path.exists(self.folder + ".stderr"):
            os.remove(self.folder + ".stderr")
        os.makedirs(self.folder)
        shutil.copy2(self.kestrella, self.folder)
        daten = os.path.join(os.path.dirname(self.kestrella), "daten")
        if os.path.isdir(daten):
            shutil.copytree(daten, os.path.join(self.folder, "daten"))
        return self.folder

    def win_path(self, path):
        """The Windows form of a path inside the prefix's drive C."""
        rel = os.path.relpath(path, os.path.join(self.prefix, "drive_c"))
        return "C:\\" + rel.replace("/", "\\")

    def settings(self, **values):
        """Writes kestrella.dat with kestrella-dat.exe, one key at a time."""
        dat = self.win_path(os.path.join(self.folder, "kestrella.dat"))
        for key, value in values.items():
            self.run(["wine", self.kestrella_dat, "set", dat, key, str(value)], env=self.tool_env)

    def program_said(self):
        """What the program of this test wrote to its error output, beside its folder."""
        try:
            with open(self.folder + ".stderr", encoding="cp1252", errors="replace") as f:
                return f.read().strip()
        except (OSError, TypeError):
            return ""

    def start(self, *args):
        # The error output goes beside the program folder, so that a failure can quote it.
        with open(self.folder + ".stderr", "ab") as err:
            proc = subprocess.Popen(["wine", os.path.join(self.folder, "Kestrella.exe"), *args], cwd=self.folder,
                                    env=self.env, stdout=subprocess.DEVNULL, stderr=err)
        self.procs.append(proc)
        return proc

    def stop_program(self):
        """Ends every Kestrella of this test, also one the program started itself, and
        waits until the prefix knows none of its processes and windows any more."""
        for proc in self.procs:
            if proc.poll() is None:
                proc.kill()
            proc.wait(15)
        self.procs = []
        for p in self.own_processes():
            self.kd("kill", str(p["pid"]), check=False)
        left = wait_until(lambda: not self.leftovers(), 10) is not True
        if left:
            raise E2EError("left after ending Kestrella: " + self.describe(*self.leftovers()))

    def own_windows(self):
        return [w for w in self.windows() if w["class"].startswith(OWN_CLASS_PREFIX)
                or (w["class"] == "#32770" and w["title"] == MESSAGE_TITLE)]

    def own_processes(self):
        return [p for p in self.processes() if p["exe"].lower() == "kestrella.exe"]

    def leftovers(self):
        """The Kestrella processes and windows this prefix still knows, or None."""
        procs, wins = self.own_processes(), self.own_windows()
        return (procs, wins) if procs or wins else None

    @staticmethod
    def describe(procs, wins):
        return ", ".join([f"process {p['pid']}" for p in procs]
                         + [f"window {w['title']!r} ({w['class']}, process {w['pid']})" for w in wins])

    def make_clean(self):
        """Before a test: ends whatever an earlier test left, the wineserver with it, so
        that no window of another test can answer for this one. Gives a note on what was
        ended, or None when nothing was left; raises when the prefix stays unclean."""
        left = self.leftovers()
        if not left:
            return None
        note = "left from an earlier test: " + self.describe(*left) + "; ended them and the wineserver"
        self.procs = []
        subprocess.run(["wineserver", "-k"], env=self.env, timeout=30,
                       stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        subprocess.run(["wineserver", "-w"], env=self.env, timeout=30,
                       stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        subprocess.run(["wineserver", "-p"], env=self.env, timeout=30,
                       stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        left = self.leftovers()
        if left:
            raise E2EError("still there after the wineserver ended: " + self.describe(*left))
        return note

    # --- kdriver -----------------------------------------------------------------------

    def kd(self, *args, check=True, timeout=40):
        """Runs kdriver.exe; gives its output decoded from code page 1252."""
        res = self.run(["wine", self.kdriver, *args], timeout=timeout, env=self.tool_env, check=check)
        return res.stdout.decode("cp1252", "replace").replace("\r\n", "\n")

    def kd_background(self, *args, first_line, secs=30):
        """Starts kdriver.exe in a process of its own and waits for the line FIRST_LINE; gives
        the process, whose further output the caller reads with read_line."""
        proc = subprocess.Popen(["wine", self.kdriver, *args], env=self.tool_env, stdout=subprocess.PIPE,
                                stderr=subprocess.DEVNULL)
        self.procs.append(proc)
        line = self.read_line(proc, secs)
        if line != first_line:
            raise E2EError(f"kdriver {shown(list(args))}: said {line!r} in place of {first_line!r} "
                           f"(exit {proc.poll()})")
        return proc

    @staticmethod
    def read_line(proc, secs):
        """The next line of a process's output, or "" when none comes within SECS."""
        ready, _, _ = select.select([proc.stdout], [], [], secs)
        return proc.stdout.readline().decode("cp1252", "replace").strip() if ready else ""

    def hold_locked(self, win_path, secs=60):
        """Holds a file open without sharing in a process of its own, as another program
        can; gives that process once the file is locked. Killing it releases the file."""
        return self.kd_background("lock", win_path, str(secs), first_line="locked")

    def processes(self):
        """All processes of the prefix: dicts with pid, exe."""
        result = []
        for line in self.kd("procs").splitlines():
            pid, exe = line.split("\t")
            result.append({"pid": int(pid), "exe": unescape(exe)})
        return result

    def working_set(self, pid):
        """The working set of process PID in bytes, as GetProcessMemoryInfo gives it."""
        return int(self.kd("memory", str(pid)).split("\t")[0])

    def windows(self):
        """All top-level windows: dicts with hwnd, class, title, visible, pid."""
        result = []
        for line in self.kd("list").splitlines():
            hwnd, cls, title, visible, pid = line.split("\t")
            result.append({"hwnd": hwnd, "class": unescape(cls), "title": unescape(title),
                           "visible": visible == "1", "pid": int(pid)})
        return result

    def wait_window(self, title, secs=20):
        return self.kd("wait", title, str(secs), timeout=secs + 20).strip()

    def gone(self, title, secs=20):
        self.kd("gone", title, str(secs), timeout=secs + 20)

    def texts(self, title):
        """The controls of a window: dicts with class, visible, id, text, rows (lists of texts)."""
        controls = []
        for line in self.kd("texts", title).splitlines():
            fields = [unescape(f) for f in line.split("\t")]
            if fields[0] == "ROW" and controls:
                controls[-1]["rows"].append(fields[2:])
            else:
                controls.append({"class": fields[0], "visible": fields[1] == "1", "id": int(fields[2]),
                                 "text": fields[3], "rows": []})
        return controls

    def click(self, title, caption):
        self.kd("click", title, caption)

    def reg_add(self, key, name, data, kind="REG_SZ"):
        """Sets a registry value in the prefix, as any program could; the name "" is the key's
        default value."""
        value = ["/ve"] if name == "" else ["/v", name]
        self.run(["wine", "reg", "add", key, *value, "/t", kind, "/d", data, "/f"], env=self.tool_env)

    def reg_delete(self, key, name=None):
        """Removes a value, or the whole key when NAME is None; a missing one is no error.
        The prefix serves every run, so a test removes what it added."""
        value = ["/v", name] if name is not None else []
        self.run(["wine", "reg", "delete", key, *value, "/f"], env=self.tool_env, check=False)

    def restore_hosts(self):
        if self.hosts_backup is not None:
            with open(self.hosts_path(), "wb") as f:
                f.write(self.hosts_backup)

    def hosts_path(self):
        return os.path.join(self.prefix, "drive_c", "windows", "system32", "drivers", "etc", "hosts")

    def screenshot(self, path):
        if shutil.which("import"):
            os.makedirs(os.path.dirname(path), exist_ok=True)
            env = dict(os.environ, DISPLAY=self.env.get("DISPLAY", ""))
            subprocess.run(["import", "-window", "root", path], env=env, timeout=30,
                           stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)


# --- the test framework ------------------------------------------------------------------

TESTS = []


def test(func):
    TESTS.append(func)
    return func


def check(condition, message):
    if not condition:
        raise AssertionError(message)


# --- the runner --------------------------------------------------------------------------

def run_one(h, t):
    """Runs one test and cleans up after it; gives (None or the reason of the failure,
    None or a note on what an earlier test had left)."""
    reason = None
    note = None
    kept = os.path.join(h.shots, "FAILED-" + t.__name__)
    shutil.rmtree(kept, ignore_errors=True)
    h.folder = None
    try:
        note = h.make_clean()
        t(h)
    except Exception as e:
        reason = str(e) if isinstance(e, (AssertionError, E2EError)) else traceback.format_exc().strip()
        # Kept before the program is stopped, so that it shows what the test saw.
        reason += keep_failure(h, kept)
    try:
        h.stop_program()
    except E2EError as e:
        reason = reason or str(e)
    finally:
        h.restore_hosts()
    return reason, note


def keep_failure(h, kept):
    """Keeps the screen, the window and process lists and the program folder's files in
    KEPT; gives further lines for the reason: where they are, what was visible."""
    lines = ""
    if h.xvfb and h.xvfb.poll() is not None:
        lines += f"\n    Xvfb has ended (exit code {h.xvfb.poll()})"
    if not h.display_alive():
        lines += f"\n    the display {h.env.get('DISPLAY')} takes no connections any more"
    os.makedirs(kept, exist_ok=True)
    h.screenshot(os.path.join(kept, "screen.png"))
    for name, command in (("windows.txt", "list"), ("processes.txt", "procs")):
        try:
            listing = h.kd(command)
        except E2EError as e:
            listing = f"kdriver {command} failed: {e}\n"
        with open(os.path.join(kept, name), "w", encoding="utf-8") as f:
            f.write(listing)
    if h.folder and os.path.isdir(h.folder):
        shutil.copytree(h.folder, os.path.join(kept, "program"), ignore=shutil.ignore_patterns("*.exe"),
                        dirs_exist_ok=True)
    said = h.program_said()
    if said:
        lines += "\n    the program said: " + said[-500:]
    try:
        shown = [f"{w['title']!r} ({w['class']})" for w in h.windows() if w["visible"]]
        lines += "\n    visible windows: " + (", ".join(shown) or "none")
    except E2EError:
        pass
    return lines + f"\n    kept in {os.path.relpath(kept)}"


def in_shard(tests, shards, wanted):
    """The tests of the modules that SHARDS (module -> shard number) gives to shard WANTED
    ("I/N"); raises for a module in no shard, so that no test is left out unseen."""
    number, count = (int(x) for x in wanted.split("/"))
    missing = sorted({t.__module__ for t in tests} - set(shards))
    if missing:
        raise SystemExit(f"e2e: no shard for the tests of {', '.join(missing)}")
    if not 1 <= number <= count or any(not 1 <= n <= count for n in shards.values()):
        raise SystemExit(f"e2e: shard {wanted} does not fit the table of {count} shards")
    return [t for t in tests if shards[t.__module__] == number]


def main(shards=None):
    """Runs the registered tests; gives the exit code (0 only when all chosen tests pass)."""
    with_fixed_address_layout()
    parser = argparse.ArgumentParser(description="End-to-end tests of Kestrella.exe under Wine")
    parser.add_argument("--build", required=True, help="the cross build folder")
    parser.add_argument("-k", dest="pick", default="", help="run only tests whose name holds this text")
    parser.add_argument("--shard", default="", help="I/N: only the tests of shard I of N, in a prefix of its own")
    args = parser.parse_args()

    # A run that is stopped (ctest's time limit) still ends its program, wineserver and Xvfb.
    signal.signal(signal.SIGTERM, lambda *_: sys.exit("e2e: stopped by SIGTERM"))
    chosen = in_shard(TESTS, shards or {}, args.shard) if args.shard else TESTS
    chosen = [t for t in chosen if args.pick in t.__name__]
    passed = failed = 0
    began = time.monotonic()
    h = None
    try:
        h = Harness(args.build, args.shard.split("/")[0] if args.shard else None)
        h.open()
        for t in chosen:
            t0 = time.monotonic()
            reason, note = run_one(h, t)
            took = f"({time.monotonic() - t0:.1f} s)"
            if note:
                print(f"NOTE {t.__name__}: {note}", flush=True)
            if reason is None:
                passed += 1
                print(f"PASS {t.__name__} {took}", flush=True)
            else:
                failed += 1
                print(f"FAIL {t.__name__} {took}: {reason}", flush=True)
    except Exception as e:
        print(f"FAIL harness: {e}", flush=True)
        failed = len(chosen) - passed
    finally:
        if h:
            h.close()
    print(f"e2e{' shard ' + args.shard if args.shard else ''}: {len(chosen)} tests in {time.monotonic() - began:.0f} s",
          file=sys.stderr)
    print(f"{passed} passed, {failed} failed")
    return 0 if failed == 0 and passed > 0 else 1
