#!/usr/bin/env python3
"""Turns a Wine prefix into a machine of Windows XP scale and habits, for the end-to-end tests
and the benchmarks: the system as the watchers meet it on a machine that has been in use for
years, in both registry views.

Usage: tools/xp_machine.py [--scale N] [--seed S] PREFIX
  PREFIX  a Wine prefix; made with `wineboot -i` when it has no drive_c yet
  --scale multiplies the counts below (default 1)
  --seed  the random choices (default 1); the same seed and scale give the same machine

What it adds (counts at scale 1):
  files      system32 filled up to about 2 500 files, 300 more in the Windows folder, 800 in
             SysWOW64; three PE files with version resources (kdienst.exe of "Microsoft
             Corporation", fremd.dll of another maker, hoch.exe with a UTF-8 code page) when
             MinGW-w64 is installed
  services   300 keys: kernel and file system drivers (Start 0 and 1), automatic services
             (Start 2) with ImagePath in every form the registry holds (\\SystemRoot\\...,
             %SystemRoot%\\... as REG_EXPAND_SZ, system32\\..., quoted with arguments, unquoted
             with blanks, \\??\\C:\\..., a bare name, svchost -k with Parameters\\ServiceDll),
             manual (3) and disabled (4) ones, and a few without an ImagePath. Only a few
             drivers start at boot and a few svchost services automatically: Wine starts
             each of them at every boot, in a process of its own
  autostart  Run, RunOnce and RunServices values of HKLM and HKCU and of the other user
             below HKEY_USERS that Wine keeps (.DEFAULT); the Windows NT "run" and "load" values
  classes    five Browser Helper Objects (one without a server), four
             ShellServiceObjectDelayLoad, three SharedTaskScheduler and two URLSearchHooks
             entries, each class with CLSID\\{...}\\InprocServer32 and its server file (a
             copy of fremd.dll where MinGW-w64 built it)
  browser    start and search pages of HKLM and HKCU, URL prefixes, 30 ZoneMap domains
             under each of HKLM and HKCU
  folders    60 favourites and 5 Links, the StartUp folders of the user and of all users,
             Downloaded Program Files with its desktop.ini, a hosts file of 40 lines
  shell      open commands of exe, com, bat, cmd, pif, scr and hta, in HKCR and
             HKLM\\Software\\Classes
  further    Winlogon with its Notify DLLs, AppInit_DLLs, 15 Image File Execution Options keys
             without a debugger, 40 Active Setup components, BootExecute and the LSA packages,
             5 print monitors, the Winsock catalogs (12 protocol entries in each of the 32- and
             64-bit catalogs, 3 name spaces), a shell execute hook and 3 overlay icons, 2
             toolbars of the machine and one of the user with the user's layout value, the
             proxy switch off, and 20 scheduled tasks (XML in UTF-16) below system32\Tasks
  32-bit     the view a 32-bit program sees (Wow6432Node): its own Run and RunOnce values,
             helper objects, shell service objects, task schedulers and start page, with
             server files in SysWOW64

Every registry value goes in with two `reg import` calls, one per view; a rerun on the same
prefix adds nothing new. Nothing outside PREFIX is touched. Prints a summary line with the
counts and the time taken.
"""
import argparse, os, random, shutil, subprocess, sys, tempfile, time

HKLM, HKCU, HKU, HKCR = "HKEY_LOCAL_MACHINE", "HKEY_CURRENT_USER", "HKEY_USERS", "HKEY_CLASSES_ROOT"
CV = r"Software\Microsoft\Windows\CurrentVersion"
SERVICES = HKLM + r"\System\CurrentControlSet\Services"
DRIVER_GROUPS = ["Boot Bus Extender", "SCSI miniport", "Base", "NDIS"]
# Files of XP's system folders have dates of its service packs, not the day the prefix was made.
XP_DAY = time.mktime((2004, 8, 4, 12, 0, 0, 0, 0, -1))


class Reg:
    """A REGEDIT4 file: keys in the order first named. A value is a str (REG_SZ), an int
    (REG_DWORD) or Expand(str) (REG_EXPAND_SZ)."""

    def __init__(self):
        self.keys = {}

    def key(self, key):
        self.keys.setdefault(key, [])

    def val(self, key, name, data):
        self.keys.setdefault(key, []).append((name, data))

    def text(self):
        out = ["REGEDIT4", ""]
        for k, values in self.keys.items():
            out.append(f"[{k}]")
            for name, data in values:
                n = "@" if name is None else '"%s"' % escape(name)
                if isinstance(data, Binary):
                    out.append(n + "=hex:" + ",".join("%02x" % b for b in data))
                elif isinstance(data, Multi):
                    raw = b"".join(s.encode("cp1252") + b"\0" for s in data) + b"\0"
                    out.append(n + "=hex(7):" + ",".join("%02x" % b for b in raw))
                elif isinstance(data, Expand):
                    out.append(n + "=hex(2):" + ",".join("%02x" % b for b in data.encode("cp1252") + b"\0"))
                elif isinstance(data, int):
                    out.append(f"{n}=dword:{data:08x}")
                else:
                    out.append(f'{n}="{escape(data)}"')
            out.append("")
        return "\r\n".join(out) + "\r\n"


class Expand(str):
    pass


class Binary(bytes):
    pass


class Multi(tuple):
    pass


def escape(s):
    return s.replace("\\", "\\\\").replace('"', '\\"')


def clsid(rng):
    h = lambda n: "".join(rng.choice("0123456789ABCDEF") for _ in range(n))
    return "{%s-%s-%s-%s-%s}" % (h(8), h(4), h(4), h(4), h(12))


VERSION_RC = r"""
1 VERSIONINFO
FILEVERSION 5,1,0,2600
PRODUCTVERSION 5,1,0,2600
FILETYPE {ftype}
BEGIN
  BLOCK "StringFileInfo"
  BEGIN
    BLOCK "{lang}"
    BEGIN
      VALUE "CompanyName", "{company}"
      VALUE "FileDescription", "{desc}"
      VALUE "FileVersion", "5.1.0.2600"
      VALUE "InternalName", "{name}"
      VALUE "LegalCopyright", "(C) {company}"
      VALUE "OriginalFilename", "{name}"
      VALUE "ProductName", "{product}"
      VALUE "ProductVersion", "5.1"
    END
  END
  BLOCK "VarFileInfo"
  BEGIN
    VALUE "Translation", 0x{langid}, {cp}
  END
END
"""


def build_pe(path, company, desc, product, lang="040704E4", dll=False):
    """A PE file that holds nothing but a version resource; False without MinGW-w64."""
    cc, rc = shutil.which("x86_64-w64-mingw32-gcc"), shutil.which("x86_64-w64-mingw32-windres")
    if not (cc and rc):
        return False
    if os.path.exists(path):
        return True
    name = os.path.basename(path)
    with tempfile.TemporaryDirectory() as d:
        with open(os.path.join(d, "v.rc"), "w", encoding="cp1252") as f:
            f.write(VERSION_RC.format(ftype=2 if dll else 1, lang=lang, company=company, desc=desc, name=name,
                                      product=product, langid=lang[:4], cp=int(lang[4:], 16)))
        with open(os.path.join(d, "m.c"), "w") as f:
            f.write("int __stdcall DllMain(void*a,unsigned long b,void*c){return 1;}\n" if dll
                    else "int main(void){return 0;}\n")
        if subprocess.call([rc, "v.rc", "-O", "coff", "-o", "v.o"], cwd=d) != 0:
            return False
        args = [cc, "-s"] + (["-shared"] if dll else []) + ["-o", path, "m.c", "v.o"]
        return subprocess.call(args, cwd=d) == 0


class Machine:
    def __init__(self, prefix, scale, seed):
        self.seed = seed
        self.scale = scale
        self.prefix = prefix
        self.env = dict(os.environ, WINEPREFIX=prefix, WINEDEBUG="-all")
        c = os.path.join(prefix, "drive_c")
        self.drive_c = c
        self.win = os.path.join(c, "windows")
        self.sys32 = os.path.join(self.win, "system32")
        self.wow64 = os.path.join(self.win, "syswow64")
        users = os.path.join(c, "users")
        user = next((u for u in sorted(os.listdir(users)) if u.lower() != "public"), "root")
        self.home = os.path.join(users, user)
        self.reg64, self.reg32 = Reg(), Reg()
        self.new_files = 0
        self.services = self.automatic = 0

    def n(self, count):
        return max(1, int(count * self.scale))

    def write(self, path, data=b""):
        """A file with a fixed date; one that is there already stays as it is."""
        day = XP_DAY + self.rng.randrange(0, 3 * 365) * 86400
        if os.path.exists(path):
            return
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, "wb") as f:
            f.write(data)
        os.utime(path, (day, day))
        self.new_files += 1

    def pe_bytes(self, most):
        return b"MZ" + bytes(self.rng.randrange(0, most))

    # -- files -----------------------------------------------------------------------------
    def files(self):
        exts = [".dll", ".dll", ".dll", ".exe", ".sys", ".nls", ".ini", ".inf", ".cpl", ".drv", ".tlb", ".ocx"]
        # Wine's own files, not those of an earlier run: a rerun then draws the same names.
        wine_own = [f for f in os.listdir(self.sys32) if not f.startswith("xp") and f not in ("kdienst.exe", "fremd.dll")]
        # The classes add their server files.
        for i in range(max(self.n(2500) - 20 - len(wine_own), 0)):
            self.write(os.path.join(self.sys32, f"xp{i:04d}{self.rng.choice(exts)}"), self.pe_bytes(4000))
        for i in range(self.n(300)):
            self.write(os.path.join(self.win, f"xpw{i:03d}{self.rng.choice(exts)}"), bytes(self.rng.randrange(0, 2000)))
        for i in range(self.n(800)):
            self.write(os.path.join(self.wow64, f"xp32_{i:04d}{self.rng.choice(exts)}"), self.pe_bytes(3000))
        made = [build_pe(os.path.join(self.sys32, "kdienst.exe"), "Microsoft Corporation", "Dienst-Host",
                         "Betriebssystem Microsoft Windows"),
                build_pe(os.path.join(self.sys32, "fremd.dll"), "Fremdfirma GmbH", "Erweiterung", "Fremdprodukt",
                         dll=True),
                build_pe(os.path.join(self.win, "hoch.exe"), "Codepage AG", "Hohe Codepage", "Test", lang="0407FDE9")]
        self.version_resources = all(made)
        self.server_dll = os.path.join(self.sys32, "fremd.dll") if made[1] else None

    # -- services --------------------------------------------------------------------------
    def service_list(self):
        # (ImagePath, REG_EXPAND_SZ?, Type). No image file is made: Wine starts every
        # automatic service at each boot, and a made-up image would only slow that down.
        forms = [
            lambda n: (r"\SystemRoot\System32\drivers\%s.sys" % n, True, 1),
            lambda n: (r"System32\DRIVERS\%s.sys" % n, True, 2),
            lambda n: (r"%%SystemRoot%%\System32\%s.exe" % n, True, 16),
            lambda n: (r"system32\%s.exe" % n, False, 16),
            lambda n: (r'"C:\Programme\%s\%s.exe" /service' % (n, n), False, 16),
            lambda n: (r"C:\Programme\Gemeinsame Dateien\%s\%s.exe" % (n, n), False, 272),
            lambda n: (r"\??\C:\WINDOWS\system32\%s.sys" % n, False, 1),
            lambda n: (r"%SystemRoot%\System32\svchost.exe -k netsvcs", True, 32),
            lambda n: (r"C:\WINDOWS\system32\svchost.exe -k LocalService", False, 32),
            lambda n: (r"%s.exe" % n, False, 16),
            lambda n: (r"C:\WINDOWS\system32\%s.exe" % n, False, 16),
        ]
        for i in range(self.n(300)):
            name = f"XpSvc{i:03d}"
            # i % len(forms) picks the form; the first two rounds hold the drivers and
            # svchost services that start.
            image, expand, kind = forms[i % len(forms)](name.lower())
            # Wine starts every boot, system and automatic service at each boot, a process
            # for each driver and svchost service (2 s apiece, more on a busy machine, and a
            # test's first Wine call waits for all of them): two of each kind start.
            if kind in (1, 2):
                start = [0, 1][i // len(forms)] if i < 2 * len(forms) else self.rng.choice([3, 3, 4])
            elif kind == 32:
                start = 2 if i < 2 * len(forms) else self.rng.choice([3, 3, 4])
            else:
                start = self.rng.choice([2, 2, 2, 2, 3, 3, 4])
            yield name, image if i % 23 != 7 else None, expand, kind, start, i

    def services_(self):
        for name, image, expand, kind, start, i in self.service_list():
            k = SERVICES + "\\" + name
            self.reg64.val(k, "Type", kind)
            self.reg64.val(k, "Start", start)
            self.reg64.val(k, "ErrorControl", 1)
            if image is not None:
                self.reg64.val(k, "ImagePath", Expand(image) if expand else image)
            if kind in (1, 2):
                self.reg64.val(k, "Group", self.rng.choice(DRIVER_GROUPS))
            self.reg64.val(k, "DisplayName", f"Beispieldienst {i}")
            if kind not in (1, 2):
                self.reg64.val(k, "ObjectName", r"NT AUTHORITY\LocalService" if i % 3 == 0 else "LocalSystem")
            self.reg64.val(k, "Description", f"Stellt Funktion {i} bereit.")
            if "svchost" in (image or ""):
                self.reg64.val(k + r"\Parameters", "ServiceDll", Expand(r"%%SystemRoot%%\System32\%s.dll" % name.lower()))
            self.services += 1
            self.automatic += start == 2 and image is not None

    # -- autostart -------------------------------------------------------------------------
    def autostart(self):
        run, once, services = CV + r"\Run", CV + r"\RunOnce", CV + r"\RunServices"
        r = self.reg64
        r.val(HKCU + "\\" + run, "ctfmon.exe", r"C:\WINDOWS\system32\ctfmon.exe")
        r.val(HKCU + "\\" + run, "Messenger", r'"C:\Programme\Messenger\msmsgs.exe" /background')
        r.val(HKCU + "\\" + once, "Einrichten", r"C:\WINDOWS\system32\rundll32.exe setupapi,InstallHinfSection")
        r.val(HKLM + "\\" + run, "SoundMan", "SOUNDMAN.EXE")
        r.val(HKLM + "\\" + run, "Virenschutz", r'"C:\Programme\Schutz\guard.exe" -tray')
        r.val(HKLM + "\\" + run, "Langer Pfad", "C:\\" + "\\".join(["Ordner"] * 30) + "\\lang.exe")
        r.val(HKLM + "\\" + once, "Nachinstallation", r"C:\WINDOWS\system32\runonce.exe -q")
        r.val(HKLM + "\\" + services, "Alt", r"C:\WINDOWS\alt.exe")
        r.val(HKCU + r"\Software\Microsoft\Windows NT\CurrentVersion\Windows", "run", "")
        r.val(HKCU + r"\Software\Microsoft\Windows NT\CurrentVersion\Windows", "load", "")
        # Wine keeps two users below HKEY_USERS, the current one (HKCU) and .DEFAULT; a key
        # of any other SID is gone when the server ends.
        r.val(HKU + r"\.DEFAULT" + "\\" + run, "Benutzerprogramm", r"C:\WINDOWS\system32\standard.exe")
        r.val(HKU + r"\.DEFAULT" + "\\" + once, "Einmal", r"C:\WINDOWS\einmal.exe")
        # What 32-bit programs put in their own view.
        self.reg32.val(HKLM + "\\" + run, "Drucker32", r'"C:\Programme\Drucker\drucker32.exe" /tray')
        self.reg32.val(HKLM + "\\" + run, "Aktualisierung", r"C:\Programme\Aktualisierung\update32.exe")
        self.reg32.val(HKLM + "\\" + once, "Einrichtung32", r"C:\WINDOWS\syswow64\runonce.exe -q")

    # -- class lists -----------------------------------------------------------------------
    def server(self, reg, cid, folder, name, expand=False):
        """A class and its server, a real DLL with a version resource where MinGW-w64 is
        there: the watchers read the maker of every server they report."""
        path = ("%SystemRoot%\\" if expand else "C:\\WINDOWS\\") + folder + "\\" + name
        reg.val(HKCR + r"\CLSID" + "\\" + cid + r"\InprocServer32", None, path)
        reg.val(HKCR + r"\CLSID" + "\\" + cid + r"\InprocServer32", "ThreadingModel", "Apartment")
        target = os.path.join(self.win, folder.lower(), name)
        if self.server_dll and not os.path.exists(target):
            os.makedirs(os.path.dirname(target), exist_ok=True)
            shutil.copyfile(self.server_dll, target)
        self.write(target, self.pe_bytes(3000))

    def classes(self):
        rng, r = self.rng, self.reg64
        bho = HKLM + "\\" + CV + r"\Explorer\Browser Helper Objects"
        ssodl = HKLM + "\\" + CV + r"\ShellServiceObjectDelayLoad"
        sts = HKLM + "\\" + CV + r"\Explorer\SharedTaskScheduler"
        hooks = HKCU + r"\Software\Microsoft\Internet Explorer\URLSearchHooks"
        for i in range(5):
            cid = clsid(rng)
            r.val(bho + "\\" + cid, None, f"Hilfsobjekt {i}")
            if i != 4:  # the last class has no server
                self.server(r, cid, "system32", f"xpbho{i}.dll")
        for i, name in enumerate(["PostBootReminder", "CDBurn", "WebCheck", "SysTray"]):
            cid = clsid(rng)
            r.val(ssodl, name, cid)
            self.server(r, cid, "system32", f"xpssodl{i}.dll", expand=True)
        for i in range(3):
            cid = clsid(rng)
            r.val(sts, cid, f"Browseable Shell Extensions {i}")
            self.server(r, cid, "system32", f"xpsts{i}.dll")
        for i in range(2):
            cid = clsid(rng)
            r.val(hooks, cid, "")
            self.server(r, cid, "system32", f"xphook{i}.dll")
        # The 32-bit view has classes of its own, served from SysWOW64.
        r32 = self.reg32
        for i in range(3):
            cid = clsid(rng)
            r32.val(bho + "\\" + cid, None, f"Hilfsobjekt 32 Bit {i}")
            self.server(r32, cid, "syswow64", f"xpbho32_{i}.dll")
        cid = clsid(rng)
        r32.val(ssodl, "Lautstaerke32", cid)
        self.server(r32, cid, "syswow64", "xpssodl32.dll", expand=True)
        cid = clsid(rng)
        r32.val(sts, cid, "Planer 32 Bit")
        self.server(r32, cid, "syswow64", "xpsts32.dll")

    # -- further autostart places ----------------------------------------------------------
    def further(self):
        rng, r = self.rng, self.reg64
        nt = HKLM + r"\Software\Microsoft\Windows NT\CurrentVersion"
        r.val(nt + r"\Winlogon", "Shell", "Explorer.exe")
        r.val(nt + r"\Winlogon", "Userinit", "C:\\WINDOWS\\system32\\userinit.exe,")
        for name in ("crypt32chain", "cryptnet", "cscdll", "sclgntfy", "WgaLogon"):
            r.val(nt + r"\Winlogon\Notify" + "\\" + name, "DllName", name + ".dll")
        r.val(nt + r"\Windows", "AppInit_DLLs", "")
        r.val(nt + r"\Windows", "LoadAppInit_DLLs", 0)
        for i in range(15):
            r.val(nt + r"\Image File Execution Options" + f"\\xpprog{i}.exe", "DisableHeapLookaside", 1)
        for i in range(self.n(40)):
            key = HKLM + r"\Software\Microsoft\Active Setup\Installed Components" + "\\" + clsid(rng)
            r.val(key, None, f"Komponente {i}")
            if i % 4:
                r.val(key, "StubPath", f"C:\\WINDOWS\\system32\\rundll32.exe setup{i}.dll,Install")
        control = HKLM + r"\System\CurrentControlSet\Control"
        r.val(control + r"\Session Manager", "BootExecute", Multi(["autocheck autochk *"]))
        r.val(control + r"\Lsa", "Authentication Packages", Multi(["msv1_0"]))
        r.val(control + r"\Lsa", "Notification Packages", Multi(["scecli"]))
        r.val(control + r"\Lsa", "Security Packages", Multi(["kerberos", "msv1_0", "schannel", "wdigest"]))
        for name in ("Local Port", "Standard TCP/IP Port", "USB Monitor", "BJ Language Monitor", "PJL Language Monitor"):
            r.val(control + r"\Print\Monitors" + "\\" + name, "Driver", name.split()[0].lower() + "mon.dll")
        winsock = HKLM + r"\System\CurrentControlSet\Services\WinSock2\Parameters"
        for catalog, folder in (("Catalog_Entries", "syswow64"), ("Catalog_Entries64", "system32")):
            for i in range(12):
                path = "%SystemRoot%\\" + folder + "\\" + ("mswsock.dll" if i < 9 else "rsvpsp.dll")
                item = path.encode("cp1252").ljust(260, b"\0") + bytes(rng.randrange(256) for _ in range(114))
                r.val(winsock + r"\Protocol_Catalog9" + "\\" + catalog + f"\\{i + 1:012d}", "PackedCatalogItem",
                      Binary(item))
        for i, dll in enumerate(("mswsock.dll", "winrnr.dll", "mswsock.dll")):
            r.val(winsock + r"\NameSpace_Catalog5\Catalog_Entries" + f"\\{i + 1:012d}", "LibraryPath",
                  Expand("%SystemRoot%\\System32\\" + dll))
        explorer = HKLM + "\\" + CV + r"\Explorer"
        cid = clsid(rng)
        r.val(explorer + r"\ShellExecuteHooks", cid, "")
        self.server(r, cid, "system32", "xphook.dll")
        for name in (" Offline", " Freigabe", " Verknuepfung"):
            cid = clsid(rng)
            r.val(explorer + r"\ShellIconOverlayIdentifiers" + "\\" + name, None, cid)
            self.server(r, cid, "system32", "xpov" + name.strip().lower() + ".dll")
        toolbar = r"\Software\Microsoft\Internet Explorer\Toolbar"
        for i in range(2):
            cid = clsid(rng)
            r.val(HKLM + toolbar, cid, "")
            self.server(r, cid, "system32", f"xpleiste{i}.dll")
        cid = clsid(rng)
        r.val(HKCU + toolbar + r"\WebBrowser", cid, Binary(b"\x01"))
        self.server(r, cid, "system32", "xpleiste_user.dll")
        r.val(HKCU + toolbar + r"\ShellBrowser", "ITBarLayout", Binary(bytes(rng.randrange(256) for _ in range(200))))
        r.val(HKCU + "\\" + CV + r"\Internet Settings", "ProxyEnable", 0)
        # Tasks as Windows writes them: XML in UTF-16 with its mark, in folders by maker.
        for i in range(self.n(20)):
            folder = os.path.join(self.sys32, "Tasks", "Microsoft", "Windows", f"Bereich{i % 5}")
            xml = ('<?xml version="1.0" encoding="UTF-16"?>\r\n<Task version="1.2" '
                   'xmlns="http://schemas.microsoft.com/windows/2004/02/mit/task"><Actions Context="Author">'
                   f"<Exec><Command>%windir%\\system32\\xptask{i}.exe</Command>"
                   f"<Arguments>/lauf {i}</Arguments></Exec></Actions></Task>\r\n")
            self.write(os.path.join(folder, f"Aufgabe {i}"), b"\xff\xfe" + xml.encode("utf-16-le"))

    # -- browser, shell --------------------------------------------------------------------
    def browser(self):
        r = self.reg64
        main = r"\Software\Microsoft\Internet Explorer\Main"
        search = r"\Software\Microsoft\Internet Explorer\Search"
        r.val(HKCU + main, "Start Page", "http://www.example.de/")
        r.val(HKCU + main, "Search Page", "http://suche.example.de/")
        r.val(HKCU + main, "Search Bar", "http://suche.example.de/leiste.htm")
        r.val(HKLM + main, "Start Page", "http://www.example.de/")
        r.val(HKLM + main, "Default_Page_URL", "http://www.example.de/")
        r.val(HKLM + main, "Default_Search_URL", "http://suche.example.de/")
        r.val(HKLM + search, "SearchAssistant", "http://suche.example.de/assistent.htm")
        r.val(HKLM + "\\" + CV + r"\URL\Prefixes", "www", "http://")
        r.val(HKLM + "\\" + CV + r"\URL\Prefixes", "ftp", "ftp://")
        r.val(HKLM + "\\" + CV + r"\URL\DefaultPrefix", None, "http://")
        for hive in (HKLM, HKCU):
            for i in range(self.n(30)):
                r.val(hive + "\\" + CV + r"\Internet Settings\ZoneMap\Domains\beispiel%d.de" % i,
                      self.rng.choice(["http", "https", "*"]), self.rng.choice([1, 2, 2, 4]))
        self.reg32.val(HKLM + main, "Start Page", "http://www.example.de/32/")
        for cls, command in (("exefile", '"%1" %*'), ("comfile", '"%1" %*'), ("batfile", '"%1" %*'),
                             ("cmdfile", '"%1" %*'), ("piffile", '"%1" %*'), ("scrfile", '"%1" /S'),
                             ("htafile", 'C:\\WINDOWS\\system32\\mshta.exe "%1" %*')):
            r.val(HKCR + "\\" + cls + r"\shell\open\command", None, command)
            r.val(HKLM + r"\Software\Classes" + "\\" + cls + r"\shell\open\command", None, command)

    # -- folders ---------------------------------------------------------------------------
    def folders(self):
        fav = os.path.join(self.home, "Favorites")
        for i in range(self.n(60)):
            self.write(os.path.join(fav, f"Seite {i}.url"), b"[InternetShortcut]\r\nURL=http://www.example.de/%d\r\n" % i)
        for i in range(5):
            self.write(os.path.join(fav, "Links", f"Link {i}.url"), b"[InternetShortcut]\r\nURL=http://links.example.de/\r\n")
        programs = ("Microsoft", "Windows", "Start Menu", "Programs", "StartUp")
        for d in (os.path.join(self.home, "AppData", "Roaming", *programs),
                  os.path.join(self.drive_c, "ProgramData", *programs)):
            self.write(os.path.join(d, "desktop.ini"), b"[.ShellClassInfo]\r\n")
            for n in ("Tool.lnk", "Kalender.lnk"):
                self.write(os.path.join(d, n), b"L\0\0\0")
        dpf = os.path.join(self.win, "Downloaded Program Files")
        self.write(os.path.join(dpf, "desktop.ini"), b"[.ShellClassInfo]\r\n")
        for n in ("flashctl.ocx", "update.inf"):
            self.write(os.path.join(dpf, n), b"MZ")
        lines = ["# Beispiel-HOSTS-Datei", "127.0.0.1       localhost"] + \
                ["127.0.0.1       werbung%d.example" % i for i in range(38)]
        hosts = os.path.join(self.sys32, "drivers", "etc", "hosts")
        if os.path.exists(hosts) and os.path.getsize(hosts) < 200:  # Wine's own, of one line
            os.unlink(hosts)
        self.write(hosts, ("\r\n".join(lines) + "\r\n").encode("cp1252"))

    # -- registry --------------------------------------------------------------------------
    def import_registry(self):
        with tempfile.TemporaryDirectory(dir=self.drive_c) as d:
            for reg, view in ((self.reg64, "/reg:64"), (self.reg32, "/reg:32")):
                path = os.path.join(d, "xp" + view[5:] + ".reg")
                with open(path, "wb") as f:
                    f.write(reg.text().encode("cp1252"))
                windows = "C:\\" + os.path.relpath(path, self.drive_c).replace("/", "\\")
                r = subprocess.run(["wine", "reg", "import", windows, view], env=self.env,
                                   stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
                if r.returncode != 0:
                    sys.exit(f"xp_machine: reg import {view} failed: {r.stdout.decode(errors='replace')}")
        # The registry is on disk only once the server has ended.
        subprocess.call(["wineserver", "-w"], env=self.env)


def main():
    ap = argparse.ArgumentParser(description=__doc__.split("\n\n")[0])
    ap.add_argument("prefix")
    ap.add_argument("--scale", type=float, default=1.0)
    ap.add_argument("--seed", type=int, default=1)
    a = ap.parse_args()
    began = time.monotonic()
    prefix = os.path.abspath(a.prefix)
    env = dict(os.environ, WINEPREFIX=prefix, WINEDEBUG="-all")
    if not os.path.isdir(os.path.join(prefix, "drive_c")):
        subprocess.call(["wineboot", "-i"], env=env, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        subprocess.call(["wineserver", "-w"], env=env)
    m = Machine(prefix, a.scale, a.seed)
    # Each step draws from a sequence of its own: a change to one leaves the others as they were.
    for step in (m.files, m.services_, m.autostart, m.classes, m.further, m.browser, m.folders):
        m.rng = random.Random(f"{a.seed}/{step.__name__}")
        step()
    m.import_registry()
    count = lambda d: len(os.listdir(d)) if os.path.isdir(d) else 0
    print(f"xp_machine: {count(m.sys32)} files in system32, {count(m.wow64)} in syswow64, {m.new_files} new; "
          f"{m.services} services ({m.automatic} automatic with ImagePath); "
          f"{sum(len(v) for v in m.reg64.keys.values())} + {sum(len(v) for v in m.reg32.keys.values())} values "
          f"(64-bit + 32-bit view); version resources {'built' if m.version_resources else 'skipped (no MinGW)'}; "
          f"{time.monotonic() - began:.0f} s; prefix {prefix}")


if __name__ == "__main__":
    main()
