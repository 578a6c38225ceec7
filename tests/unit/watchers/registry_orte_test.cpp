// The watchers of further registry places: what counts as new, what a warning shows, what
// a delete removes, the first baseline taken without a word, and every place of every
// watcher read.
#include <functional>

#include "panel/alarm.h"
#include "platform/hive_ocx.h"
#include "platform/journal.h"
#include "platform/mehrfachwert.h"
#include "programm_test_basis.h"
#include "warning/form3.h"

namespace kes::test {
namespace {

const std::string kHklm = "HKEY_LOCAL_MACHINE\\";
const std::string kNt = "Software\\Microsoft\\Windows NT\\CurrentVersion\\";
const std::string kLsa = "System\\CurrentControlSet\\Control\\Lsa";
const std::string kExplorer = "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\";
const std::string kKatalog =
    "System\\CurrentControlSet\\Services\\WinSock2\\Parameters\\Protocol_Catalog9\\Catalog_Entries";
const std::string kToolbar = "HKEY_CURRENT_USER\\Software\\Microsoft\\Internet Explorer\\Toolbar";
const std::string kDienste = "System\\CurrentControlSet\\Services\\";
using Schritt = std::function<void(fake::FakeRegistry&)>;

void Server(fake::FakeRegistry& r, const std::string& clsid, const std::string& datei) {
    r.SetString("HKEY_CLASSES_ROOT\\CLSID\\" + clsid + "\\InprocServer32", "", datei);
}
// A protocol entry of the catalog: the library's path at the head of the binary item.
void Katalogeintrag(fake::FakeRegistry& r, const std::string& nummer, const std::string& pfad) {
    r.SetRaw(kHklm + kKatalog + "\\" + nummer, "PackedCatalogItem", kRegBinary, pfad + std::string("\0\x02\0\xff", 4));
}

std::string Multi(const std::string& teile) {
    return teile + std::string(1, '\0');
}

struct Regel {
    const char* fall;
    RegistryOrte AlarmDaten::*wächter;
    Schritt vorher;    // the machine as the baseline is taken
    Schritt danach;    // what changes after it
    std::string name;  // the warning's "Name:" row; empty: no warning
    std::string pfad = "";
};

const Regel kRegeln[] = {
    {"new value", &AlarmDaten::winlogon, [](auto&) {},
     [](auto& r) { r.SetString(kHklm + kNt + "Winlogon", "Shell", "C:\\boese.exe"); },
     "Name: " + kHklm + kNt + "Winlogon\\Shell", "Pfad: C:\\boese.exe"},
    {"changed data", &AlarmDaten::winlogon,
     [](auto& r) { r.SetString(kHklm + kNt + "Winlogon", "Userinit", "userinit.exe,"); },
     [](auto& r) { r.SetString(kHklm + kNt + "Winlogon", "Userinit", "userinit.exe,boese.exe"); },
     "Name: " + kHklm + kNt + "Winlogon\\Userinit", "Pfad: userinit.exe,boese.exe"},
    {"unchanged value", &AlarmDaten::winlogon, [](auto& r) { r.SetString(kHklm + kNt + "Winlogon", "Shell", "e.exe"); },
     [](auto&) {}, ""},
    {"value of another name", &AlarmDaten::winlogon, [](auto&) {},
     [](auto& r) { r.SetString(kHklm + kNt + "Winlogon", "DefaultUserName", "x"); }, ""},
    {"value gone", &AlarmDaten::winlogon, [](auto& r) { r.SetString(kHklm + kNt + "Winlogon", "Shell", "e.exe"); },
     [](auto& r) { HiveOCX(r).DeleteValue(2, kNt + "Winlogon", "Shell"); }, ""},
    {"subkey without the value", &AlarmDaten::imageFileExecution, [](auto&) {},
     [](auto& r) { r.SetDword(kHklm + kNt + "Image File Execution Options\\x.exe", "GlobalFlag", 2); }, ""},
    {"subkey with the value", &AlarmDaten::imageFileExecution, [](auto&) {},
     [](auto& r) { r.SetString(kHklm + kNt + "Image File Execution Options\\x.exe", "Debugger", "d.exe"); },
     "Name: " + kHklm + kNt + "Image File Execution Options\\x.exe\\Debugger", "Pfad: d.exe"},
    {"new part of a multi-string", &AlarmDaten::bootSicherheit,
     [](auto& r) { r.SetRaw(kHklm + kLsa, "Security Packages", kRegMultiSz, Multi(std::string("kerberos\0", 9))); },
     [](auto& r) {
         r.SetRaw(kHklm + kLsa, "Security Packages", kRegMultiSz, Multi(std::string("kerberos\0boese\0", 15)));
     },
     "Name: " + kHklm + kLsa + "\\Security Packages", "Pfad: boese"},
    {"parts in another order", &AlarmDaten::bootSicherheit,
     [](auto& r) { r.SetRaw(kHklm + kLsa, "Security Packages", kRegMultiSz, Multi(std::string("a\0b\0", 4))); },
     [](auto& r) { r.SetRaw(kHklm + kLsa, "Security Packages", kRegMultiSz, Multi(std::string("b\0a\0", 4))); }, ""},
    {"all values of a key", &AlarmDaten::policiesRun, [](auto&) {},
     [](auto& r) {
         r.SetString("HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer\\Run", "1",
                     "x.exe");
     },
     "Name: HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer\\Run\\1",
     "Pfad: x.exe"},
    {"a subkey is the entry", &AlarmDaten::winlogon, [](auto&) {},
     [](auto& r) { r.MakeKey(kHklm + kNt + "Winlogon\\Notify\\boese"); },
     "Name: " + kHklm + kNt + "Winlogon\\Notify\\boese", "Pfad: "},
    // Where the value names a class, the class's server file is the entry.
    {"class with a server file", &AlarmDaten::shellErweiterungen, [](auto&) {},
     [](auto& r) {
         Server(r, "{E1}", "C:\\hook.dll");
         r.SetString(kHklm + kExplorer + "ShellExecuteHooks", "{E1}", "");
     },
     "Name: " + kHklm + kExplorer + "ShellExecuteHooks\\{E1}", "Pfad: C:\\hook.dll"},
    {"class without a server file", &AlarmDaten::shellErweiterungen, [](auto&) {},
     [](auto& r) { r.SetString(kHklm + kExplorer + "ShellExecuteHooks", "{E2}", ""); }, ""},
    {"class whose server file changed", &AlarmDaten::shellErweiterungen,
     [](auto& r) {
         Server(r, "{E1}", "C:\\hook.dll");
         r.SetString(kHklm + kExplorer + "ShellExecuteHooks", "{E1}", "");
     },
     [](auto& r) { Server(r, "{E1}", "C:\\boese.dll"); }, "Name: " + kHklm + kExplorer + "ShellExecuteHooks\\{E1}",
     "Pfad: C:\\boese.dll"},
    {"overlay subkey names its class by its default value", &AlarmDaten::shellErweiterungen, [](auto&) {},
     [](auto& r) {
         Server(r, "{O1}", "C:\\overlay.dll");
         r.SetString(kHklm + kExplorer + "ShellIconOverlayIdentifiers\\ Boese", "", "{O1}");
     },
     "Name: " + kHklm + kExplorer + "ShellIconOverlayIdentifiers\\ Boese", "Pfad: C:\\overlay.dll"},
    {"the user's toolbar layout beside the classes", &AlarmDaten::ieToolbar, [](auto&) {},
     [](auto& r) { r.SetRaw(kToolbar + "\\ShellBrowser", "ITBar7Layout", kRegBinary, std::string("\x11\0\0\0", 4)); },
     ""},
    {"new toolbar of the user", &AlarmDaten::ieToolbar, [](auto&) {},
     [](auto& r) {
         Server(r, "{T1}", "C:\\leiste.dll");
         r.SetRaw(kToolbar + "\\WebBrowser", "{T1}", kRegBinary, std::string("\x01", 1));
     },
     "Name: " + kToolbar + "\\WebBrowser\\{T1}", "Pfad: C:\\leiste.dll"},
    // A catalog entry is known by the library it names, whatever its number.
    {"new library in the catalog", &AlarmDaten::winsock, [](auto& r) { Katalogeintrag(r, "000000000001", "gut.dll"); },
     [](auto& r) { Katalogeintrag(r, "000000000002", "%SystemRoot%\\boese.dll"); },
     "Name: " + kHklm + kKatalog + "\\000000000002", "Pfad: %SystemRoot%\\boese.dll"},
    {"catalog renumbered", &AlarmDaten::winsock,
     [](auto& r) {
         Katalogeintrag(r, "000000000001", "a.dll");
         Katalogeintrag(r, "000000000002", "b.dll");
     },
     [](auto& r) {
         Katalogeintrag(r, "000000000001", "b.dll");
         Katalogeintrag(r, "000000000002", "a.dll");
     },
     ""},
    {"name space by its path text", &AlarmDaten::winsock, [](auto&) {},
     [](auto& r) {
         r.SetString(kHklm +
                         "System\\CurrentControlSet\\Services\\WinSock2\\Parameters\\NameSpace_Catalog5\\"
                         "Catalog_Entries64\\000000000001",
                     "LibraryPath", "%SystemRoot%\\System32\\boese.dll");
     },
     "Name: " + kHklm +
         "System\\CurrentControlSet\\Services\\WinSock2\\Parameters\\NameSpace_Catalog5\\Catalog_Entries64\\"
         "000000000001",
     "Pfad: %SystemRoot%\\System32\\boese.dll"},
    {"catalog item without a path", &AlarmDaten::winsock, [](auto&) {},
     [](auto& r) { Katalogeintrag(r, "000000000003", ""); }, ""},
    // A service of any start type is known by its key and its program.
    {"new service on demand", &AlarmDaten::dienstpfade, [](auto&) {},
     [](auto& r) {
         r.SetString(kHklm + kDienste + "Neu", "ImagePath", "\"C:\\neu.exe\" -k");
         r.SetDword(kHklm + kDienste + "Neu", "Start", 3);
     },
     "Name: " + kHklm + kDienste + "Neu", "Pfad: \"C:\\neu.exe\" -k"},
    {"service key without a program", &AlarmDaten::dienstpfade, [](auto&) {},
     [](auto& r) { r.SetDword(kHklm + kDienste + "Leer", "Type", 1); }, ""},
    {"service's start type changed", &AlarmDaten::dienstpfade,
     [](auto& r) {
         r.SetString(kHklm + kDienste + "Alt", "ImagePath", "alt.exe");
         r.SetDword(kHklm + kDienste + "Alt", "Start", 3);
     },
     [](auto& r) { r.SetDword(kHklm + kDienste + "Alt", "Start", 2); }, ""},
};

TEST(RegistryOrte, WhatWarnsAndWhatTheWarningShows) {
    for (const Regel& r : kRegeln) {
        SCOPED_TRACE(r.fall);
        Lauf l;
        r.vorher(l.fp.registry);
        (l.a().*r.wächter).Teste();
        ASSERT_FALSE(l.prg.Form3Geladen()) << "the first pass takes the machine as it stands";
        r.danach(l.fp.registry);
        (l.a().*r.wächter).Teste();
        ASSERT_EQ(l.prg.Form3Geladen(), !r.name.empty());
        if (r.name.empty()) continue;
        const Form3Fenster& f = l.prg.Form3();
        EXPECT_EQ(l.prg.Kategorieschlüssel, (l.a().*r.wächter).beschreibung.kategorie);
        EXPECT_EQ(f.Label1[0].Caption, (l.a().*r.wächter).beschreibung.überschrift);
        EXPECT_EQ(f.Label1[1].Caption, r.name);
        EXPECT_EQ(f.Label1[2].Caption, r.pfad);
    }
}

TEST(RegistryOrte, SubkeyDeletedWhileTheWalkPumps_IsPassedOver) {
    Lauf l;
    const std::string ifeo = kHklm + kNt + "Image File Execution Options\\";
    l.a().imageFileExecution.Teste();
    for (const char* n : {"a.exe", "b.exe"}) l.fp.registry.SetString(ifeo + n, "Debugger", "d.exe");
    l.fp.timers.beimPumpen.push_back(
        [&] { HiveOCX(l.fp.registry).DeleteKey(2, kNt + "Image File Execution Options\\a.exe"); });
    l.a().imageFileExecution.Teste();
    ASSERT_TRUE(l.prg.Form3Geladen());
    EXPECT_EQ(l.prg.Form3().Text1[2].Text, kNt + "Image File Execution Options\\b.exe");
    EXPECT_EQ(l.fp.registry.OpenHandles(), 0);
}

TEST(RegistryOrte, DeferredValueThatChanges_StaysDeferred) {
    Lauf l;
    RegistryOrte& w = l.a().winlogon;
    w.Teste();
    l.fp.registry.SetString(kHklm + kNt + "Winlogon", "Shell", "a.exe");
    w.Teste();
    ASSERT_TRUE(l.prg.Form3Geladen());
    l.prg.Form3().Image_Click(6);
    l.prg.Aufräumen();
    l.fp.registry.SetString(kHklm + kNt + "Winlogon", "Shell", "b.exe");
    w.Teste();
    EXPECT_FALSE(l.prg.Form3Geladen());
}

// What a delete removes: exactly the value, the part or the subkey found, after a backup.
struct Löschfall {
    const char* fall;
    RegistryOrte AlarmDaten::*wächter;
    Schritt anlegen;
    std::function<bool(fake::FakeRegistry&)> weg;
    std::function<bool(fake::FakeRegistry&)> nachbarDa;
};

const Löschfall kLöschfälle[] = {
    {"value", &AlarmDaten::appInit,
     [](auto& r) {
         r.SetString(kHklm + kNt + "Windows", "AppInit_DLLs", "C:\\boese.dll");
         r.SetString(kHklm + kNt + "Windows", "Spooler", "yes");
     },
     [](auto& r) { return !r.HasValue(kHklm + kNt + "Windows", "AppInit_DLLs"); },
     [](auto& r) { return r.HasValue(kHklm + kNt + "Windows", "Spooler"); }},
    {"value of a subkey", &AlarmDaten::imageFileExecution,
     [](auto& r) {
         r.SetString(kHklm + kNt + "Image File Execution Options\\x.exe", "Debugger", "d.exe");
         r.SetDword(kHklm + kNt + "Image File Execution Options\\x.exe", "GlobalFlag", 2);
     },
     [](auto& r) { return !r.HasValue(kHklm + kNt + "Image File Execution Options\\x.exe", "Debugger"); },
     [](auto& r) { return r.HasValue(kHklm + kNt + "Image File Execution Options\\x.exe", "GlobalFlag"); }},
    {"part of a multi-string", &AlarmDaten::bootSicherheit,
     [](auto& r) {
         r.SetRaw(kHklm + kLsa, "Notification Packages", kRegMultiSz, Multi(std::string("scecli\0boese\0", 13)));
     },
     [](auto& r) {
         return MehrfachLesen(r, kHkeyLocalMachine, kLsa, "Notification Packages") ==
                std::optional<std::vector<std::string>>({"scecli"});
     },
     [](auto& r) { return r.HasValue(kHklm + kLsa, "Notification Packages"); }},
    {"catalog entry", &AlarmDaten::winsock,
     [](auto& r) {
         Katalogeintrag(r, "000000000001", "gut.dll");
         Katalogeintrag(r, "000000000002", "boese.dll");
     },
     [](auto& r) { return !r.HasKey(kHklm + kKatalog + "\\000000000002"); },
     [](auto& r) { return r.HasKey(kHklm + kKatalog + "\\000000000001"); }},
    {"service with the keys below it", &AlarmDaten::dienstpfade,
     [](auto& r) {
         r.SetString(kHklm + kDienste + "Neu", "ImagePath", "neu.exe");
         r.SetString(kHklm + kDienste + "Neu\\Parameters", "ServiceDll", "neu.dll");
         r.SetString(kHklm + kDienste + "Gut", "ImagePath", "gut.exe");
     },
     [](auto& r) { return !r.HasKey(kHklm + kDienste + "Neu"); },
     [](auto& r) { return r.HasKey(kHklm + kDienste + "Gut"); }},
    {"subkey", &AlarmDaten::winlogon,
     [](auto& r) {
         r.SetString(kHklm + kNt + "Winlogon\\Notify\\boese", "DllName", "b.dll");
         r.SetString(kHklm + kNt + "Winlogon\\Notify\\gut", "DllName", "g.dll");
     },
     [](auto& r) { return !r.HasKey(kHklm + kNt + "Winlogon\\Notify\\boese"); },
     [](auto& r) { return r.HasKey(kHklm + kNt + "Winlogon\\Notify\\gut"); }},
};

TEST(RegistryOrte, DeleteRemovesExactlyWhatWasFound_AfterItsBackup) {
    for (const Löschfall& fall : kLöschfälle) {
        SCOPED_TRACE(fall.fall);
        Lauf l;
        l.prg.AnzeigeLöschen = true;  // no question window
        RegistryOrte& w = l.a().*fall.wächter;
        w.Teste();
        fall.anlegen(l.fp.registry);
        // The neighbour known, the entry new.
        if (std::string(fall.fall) == "subkey") w.Übernehmen(kHklm + kNt + "Winlogon\\Notify\\gut\\DllName\\g.dll");
        if (fall.wächter == &AlarmDaten::dienstpfade) w.Übernehmen(kHklm + kDienste + "Gut\\ImagePath\\gut.exe");
        if (std::string(fall.fall) == "catalog entry") w.Übernehmen(kHklm + kKatalog + "\\PackedCatalogItem\\gut.dll");
        if (std::string(fall.fall) == "part of a multi-string")
            w.Übernehmen(kHklm + kLsa + "\\Notification Packages\\scecli");
        w.Teste();
        ASSERT_TRUE(l.prg.Form3Geladen());
        l.prg.Form3().Image_Click(3);
        EXPECT_FALSE(l.prg.Form3Geladen());
        EXPECT_TRUE(fall.weg(l.fp.registry));
        EXPECT_TRUE(fall.nachbarDa(l.fp.registry));
        const auto journal = Journal(l.fp.files, l.fp.system, l.prg.Programmordner).Lesen();
        ASSERT_FALSE(journal.einträge.empty());
        EXPECT_FALSE(journal.einträge.back().sicherung.empty()) << "no backup";
    }
}

// Shell and Userinit of the machine cannot be deleted without leaving Windows without a
// shell or a logon: their warning offers "Original", which puts back the data the baseline
// knows, or else Windows' own, after a backup. The user's Shell is deleted as any value.
struct Zurücksetzfall {
    const char* fall;
    const char* wurzel;
    const char* name;
    const char* vorher;  // nullptr: not there when the baseline is taken
    std::string danach;  // the value after "Original"; empty: the warning offers the delete
};

const Zurücksetzfall kZurücksetzfälle[] = {
    {"Shell known to the baseline", "HKEY_LOCAL_MACHINE\\", "Shell", "C:\\WINDOWS\\explorer.exe",
     "C:\\WINDOWS\\explorer.exe"},
    {"Userinit unknown to the baseline", "HKEY_LOCAL_MACHINE\\", "Userinit", nullptr,
     "C:\\WINDOWS\\system32\\userinit.exe,"},
    {"Shell unknown to the baseline", "HKEY_LOCAL_MACHINE\\", "Shell", nullptr, "Explorer.exe"},
    {"the user's Shell", "HKEY_CURRENT_USER\\", "Shell", nullptr, ""},
};

TEST(RegistryOrte, ValuesWindowsNeeds_GoBackToTheKnownData_NeverDeleted) {
    for (const Zurücksetzfall& fall : kZurücksetzfälle) {
        SCOPED_TRACE(fall.fall);
        Lauf l;
        l.prg.AnzeigeLöschen = true;
        const std::string key = std::string(fall.wurzel) + kNt + "Winlogon";
        if (fall.vorher) l.fp.registry.SetString(key, fall.name, fall.vorher);
        RegistryOrte& w = l.a().winlogon;
        w.Teste();
        l.fp.registry.SetString(key, fall.name, "explorer.exe boese.exe");
        w.Teste();
        ASSERT_TRUE(l.prg.Form3Geladen());
        Form3Fenster& f = l.prg.Form3();
        const bool original = !fall.danach.empty();
        EXPECT_EQ(f.Image[3].Visible, !original);
        EXPECT_EQ(f.Image[8].Visible, original);
        if (!original) continue;
        EXPECT_EQ(f.Label3[Warnung::LabelVon(8)].Caption, "Original");
        f.Image_Click(8);
        EXPECT_FALSE(l.prg.Form3Geladen());
        const int hive = std::string(fall.wurzel) == "HKEY_LOCAL_MACHINE\\" ? 2 : 1;
        EXPECT_EQ(HiveOCX(l.fp.registry).ReadValue(hive, kNt + "Winlogon", fall.name), fall.danach);
        const auto journal = Journal(l.fp.files, l.fp.system, l.prg.Programmordner).Lesen();
        ASSERT_FALSE(journal.einträge.empty());
        EXPECT_FALSE(journal.einträge.back().sicherung.empty()) << "no backup";
        w.Teste();
        EXPECT_FALSE(l.prg.Form3Geladen()) << "the data put back are known";
    }
}

TEST(RegistryOrte, BoxSwitchedOnWithoutBaseline_TakesThePresentState_ThenWarns) {
    Lauf l;
    l.fp.registry.SetString(kHklm + kNt + "Windows", "AppInit_DLLs", "alt.dll");
    l.a().Laden();  // no baseline file yet
    l.a().Box1[34].setValue(1);
    l.a().Durchlauf();
    EXPECT_FALSE(l.prg.Form3Geladen());
    EXPECT_EQ(l.fp.files.Content(l.prg.Programmordner + "daten\\AppInit.txt"),
              kHklm + kNt + "Windows\\AppInit_DLLs\\alt.dll\r\n");
    // Emptied on the panel, the baseline stays empty: whatever stands there now is new.
    l.a().ListView15.Items.clear();
    l.a().Durchlauf();
    EXPECT_TRUE(l.prg.Form3Geladen());
}

// Each watcher finds an entry planted at each of its places.
struct Platz {
    RegistryOrte AlarmDaten::*wächter;
    std::string key;
    std::string name;
    bool multi = false;
};

const std::string kPol = "Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer\\Run";
const Platz kPlätze[] = {
    {&AlarmDaten::winlogon, kHklm + kNt + "Winlogon", "Shell"},
    {&AlarmDaten::winlogon, kHklm + kNt + "Winlogon", "Userinit"},
    {&AlarmDaten::winlogon, kHklm + kNt + "Winlogon", "Taskman"},
    {&AlarmDaten::winlogon, kHklm + kNt + "Winlogon", "System"},
    {&AlarmDaten::winlogon, kHklm + kNt + "Winlogon", "VmApplet"},
    {&AlarmDaten::winlogon, "HKEY_CURRENT_USER\\" + kNt + "Winlogon", "Shell"},
    {&AlarmDaten::winlogon, kHklm + kNt + "Winlogon\\Notify\\n", "DllName"},
    {&AlarmDaten::appInit, kHklm + kNt + "Windows", "AppInit_DLLs"},
    {&AlarmDaten::appInit, kHklm + kNt + "Windows", "LoadAppInit_DLLs"},
    {&AlarmDaten::imageFileExecution, kHklm + kNt + "Image File Execution Options\\a.exe", "Debugger"},
    {&AlarmDaten::imageFileExecution, kHklm + kNt + "SilentProcessExit\\a.exe", "MonitorProcess"},
    {&AlarmDaten::policiesRun, "HKEY_CURRENT_USER\\" + kPol, "x"},
    {&AlarmDaten::policiesRun, kHklm + kPol, "x"},
    {&AlarmDaten::activeSetup, kHklm + "Software\\Microsoft\\Active Setup\\Installed Components\\{A}", "StubPath"},
    {&AlarmDaten::bootSicherheit, kHklm + "System\\CurrentControlSet\\Control\\Session Manager", "BootExecute", true},
    {&AlarmDaten::bootSicherheit, kHklm + kLsa, "Authentication Packages", true},
    {&AlarmDaten::bootSicherheit, kHklm + kLsa, "Notification Packages", true},
    {&AlarmDaten::bootSicherheit, kHklm + kLsa, "Security Packages", true},
    {&AlarmDaten::bootSicherheit, kHklm + "System\\CurrentControlSet\\Control\\Print\\Monitors\\m", "Driver"},
};

TEST(RegistryOrte, EveryWatcherFindsAnEntryAtEachOfItsPlaces) {
    for (const Platz& p : kPlätze) {
        SCOPED_TRACE(p.key + "\\" + p.name);
        Lauf l;
        (l.a().*p.wächter).Teste();
        if (p.multi)
            l.fp.registry.SetRaw(p.key, p.name, kRegMultiSz, Multi(std::string("x.exe\0", 6)));
        else
            l.fp.registry.SetString(p.key, p.name, "x.exe");
        (l.a().*p.wächter).Teste();
        ASSERT_TRUE(l.prg.Form3Geladen());
        const Form3Fenster& f = l.prg.Form3();
        EXPECT_EQ(f.Text1[0].Text, p.key);
        EXPECT_EQ(f.Text1[3].Text, p.name);
        EXPECT_EQ(f.Text1[4].Text, "x.exe");
    }
}

// Values put back rather than deleted: a browser text goes back to the one known before it
// (with the type it had), or to Windows' own, or goes; a lock is released; an accepted text
// is the original from then on.
struct Rückfall {
    const char* fall;
    RegistryOrte AlarmDaten::*wächter;
    std::string key;
    const char* name;
    Schritt vorher, danach;
    std::string zeile2;  // the warning's detail line; empty: no warning
    const char* knopf;
    std::function<bool(fake::FakeRegistry&)> hinterher;
    bool vorherÜbernehmen = false;  // the first warning accepted, and the value changed once more
};

const std::string kInternet = "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings";
const std::string kMain = "HKEY_CURRENT_USER\\Software\\Microsoft\\Internet Explorer\\Main";
const std::string kExplorerPol = "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer";
std::uint32_t Typ(fake::FakeRegistry& r, const std::string& key, const char* name) {
    RegKey k;
    std::uint32_t typ = 0, n = 0;
    const bool cu = key.starts_with("HKEY_CURRENT_USER\\");
    const std::string rest = key.substr(key.find('\\') + 1);
    if (r.OpenKeyEx(cu ? kHkeyCurrentUser : kHkeyLocalMachine, rest, kKeyRead, &k) != 0) return 0;
    r.QueryValueEx(k.Get(), name, &typ, nullptr, &n);
    return typ;
}

const Rückfall kRückfälle[] = {
    {"known proxy switch back as a number", &AlarmDaten::browsereinstellungen, kInternet, "ProxyEnable",
     [](auto& r) { r.SetDword(kInternet, "ProxyEnable", 0); }, [](auto& r) { r.SetDword(kInternet, "ProxyEnable", 1); },
     "Neuer Wert : 1        Original war: 0", "Original",
     [](auto& r) {
         return HiveOCX(r).ReadValue(1, kInternet.substr(18), "ProxyEnable") == "0" &&
                Typ(r, kInternet, "ProxyEnable") == kRegDword;
     }},
    {"unknown proxy switch to Windows' own", &AlarmDaten::browsereinstellungen, kInternet, "ProxyEnable", [](auto&) {},
     [](auto& r) { r.SetDword(kInternet, "ProxyEnable", 1); }, "Neuer Wert : 1        Original war: ", "Original",
     [](auto& r) { return HiveOCX(r).ReadValue(1, kInternet.substr(18), "ProxyEnable") == "0"; }},
    {"unknown proxy server goes", &AlarmDaten::browsereinstellungen, kInternet, "ProxyServer", [](auto&) {},
     [](auto& r) { r.SetString(kInternet, "ProxyServer", "boese:8080"); },
     "Neuer Wert : boese:8080        Original war: ", "Original",
     [](auto& r) { return !r.HasValue(kInternet, "ProxyServer"); }},
    {"accepted title is the original then", &AlarmDaten::browsereinstellungen, kMain, "Window Title",
     [](auto& r) { r.SetString(kMain, "Window Title", "Alt"); }, [](auto& r) { r.SetString(kMain, "Window Title", "Neu"); },
     "Neuer Wert : Zuletzt        Original war: Neu", "Original",
     [](auto& r) { return HiveOCX(r).ReadValue(1, kMain.substr(18), "Window Title") == "Neu"; }, true},
    {"lock of 0 is none", &AlarmDaten::weitereSperren, kExplorerPol, "NoRun", [](auto&) {},
     [](auto& r) { r.SetDword(kExplorerPol, "NoRun", 0); }, "", "", nullptr},
    {"lock released", &AlarmDaten::weitereSperren, kExplorerPol, "NoDrives", [](auto&) {},
     [](auto& r) { r.SetDword(kExplorerPol, "NoDrives", 67108863); }, "NoDrives = 67108863", "Freigeben",
     [](auto& r) { return !r.HasValue(kExplorerPol, "NoDrives"); }},
    {"service's changed program back, still to be expanded", &AlarmDaten::dienstpfade, kHklm + kDienste + "Alt",
     "ImagePath",
     [](auto& r) {
         r.SetRaw(kHklm + kDienste + "Alt", "ImagePath", kRegExpandSz, std::string("%SystemRoot%\\alt.exe\0", 21));
     },
     [](auto& r) { r.SetString(kHklm + kDienste + "Alt", "ImagePath", "C:\\boese.exe"); },
     "Neuer Wert : C:\\boese.exe        Original war: %SystemRoot%\\alt.exe", "Original",
     [](auto& r) {
         return HiveOCX(r).ReadValue(2, kDienste + "Alt", "ImagePath") == "%SystemRoot%\\alt.exe" &&
                Typ(r, kHklm + kDienste + "Alt", "ImagePath") == kRegExpandSz;
     }},
    {"file type's class repaired", &AlarmDaten::dateitypen, "HKEY_CLASSES_ROOT\\.scr", "", [](auto&) {},
     [](auto& r) { r.SetString("HKEY_CLASSES_ROOT\\.scr", "", "boesefile"); },
     "Neuer Wert : boesefile        Original war: ", "Original",
     [](auto& r) { return HiveOCX(r).ReadValue(0, ".scr", "") == "scrfile"; }},
};

TEST(RegistryOrte, ValuesPutBackOrReleased_NeverDeleted) {
    for (const Rückfall& fall : kRückfälle) {
        SCOPED_TRACE(fall.fall);
        Lauf l;
        RegistryOrte& w = l.a().*fall.wächter;
        fall.vorher(l.fp.registry);
        w.Teste();
        fall.danach(l.fp.registry);
        w.Teste();
        ASSERT_EQ(l.prg.Form3Geladen(), !fall.zeile2.empty());
        if (fall.zeile2.empty()) continue;
        if (fall.vorherÜbernehmen) {
            l.prg.Form3().Image_Click(1);
            l.prg.Aufräumen();
            l.fp.registry.SetString(fall.key, fall.name, "Zuletzt");
            w.Teste();
            ASSERT_TRUE(l.prg.Form3Geladen());
        }
        Form3Fenster& f = l.prg.Form3();
        EXPECT_EQ(f.Label1[2].Caption, fall.zeile2);
        EXPECT_FALSE(f.Image[3].Visible) << "never deleted";
        EXPECT_EQ(f.Label3[Warnung::LabelVon(8)].Caption, fall.knopf);
        f.Image_Click(8);
        EXPECT_FALSE(l.prg.Form3Geladen());
        EXPECT_TRUE(fall.hinterher(l.fp.registry));
        const auto journal = Journal(l.fp.files, l.fp.system, l.prg.Programmordner).Lesen();
        ASSERT_FALSE(journal.einträge.empty());
        EXPECT_FALSE(journal.einträge.back().sicherung.empty()) << "no backup";
        l.prg.Aufräumen();
        w.Teste();
        EXPECT_FALSE(l.prg.Form3Geladen()) << "what was put back is known";
    }
}

// The services watcher warns of a new automatic service while its box is on: the watcher of
// every service learns it without a word, and warns of it once its program changes.
TEST(RegistryOrte, NewAutomaticServiceWhileTheServicesBoxIsOn_IsLearntSilently) {
    for (const int box : {1, 0}) {
        SCOPED_TRACE(box);
        Lauf l;
        RegistryOrte& w = l.a().dienstpfade;
        w.Teste();
        l.a().Box1[28].setValue(box);
        l.fp.registry.SetString(kHklm + kDienste + "Auto", "ImagePath", "auto.exe");
        l.fp.registry.SetDword(kHklm + kDienste + "Auto", "Start", 2);
        w.Teste();
        ASSERT_EQ(l.prg.Form3Geladen(), box == 0);
        if (box == 0) continue;
        EXPECT_EQ(l.fp.files.Content(l.prg.Programmordner + "daten\\Dienstpfade.txt"),
                  kHklm + kDienste + "Auto\\ImagePath\\auto.exe\r\n");
        l.fp.registry.SetString(kHklm + kDienste + "Auto", "ImagePath", "boese.exe");
        w.Teste();
        ASSERT_TRUE(l.prg.Form3Geladen());
        EXPECT_EQ(l.prg.Form3().Label1[2].Caption, "Neuer Wert : boese.exe        Original war: auto.exe");
    }
}

// The places that name a class or a library: the entry planted at each is found with its file.
struct Dateiplatz {
    RegistryOrte AlarmDaten::*wächter;
    std::string key;
    std::string name;  // empty: the subkey's default value names the class
};

const std::string kWinsock = kHklm + "System\\CurrentControlSet\\Services\\WinSock2\\Parameters\\";
const Dateiplatz kDateiplätze[] = {
    {&AlarmDaten::shellErweiterungen, kHklm + kExplorer + "ShellExecuteHooks", "{K}"},
    {&AlarmDaten::shellErweiterungen, kHklm + kExplorer + "ShellIconOverlayIdentifiers\\o", ""},
    {&AlarmDaten::ieToolbar, kHklm + "Software\\Microsoft\\Internet Explorer\\Toolbar", "{K}"},
    {&AlarmDaten::ieToolbar, kHklm + "Software\\Microsoft\\Internet Explorer\\Toolbar\\WebBrowser", "{K}"},
    {&AlarmDaten::ieToolbar, kHklm + "Software\\Microsoft\\Internet Explorer\\Toolbar\\ShellBrowser", "{K}"},
    {&AlarmDaten::ieToolbar, kToolbar, "{K}"},
    {&AlarmDaten::ieToolbar, kToolbar + "\\WebBrowser", "{K}"},
    {&AlarmDaten::ieToolbar, kToolbar + "\\ShellBrowser", "{K}"},
    {&AlarmDaten::winsock, kWinsock + "Protocol_Catalog9\\Catalog_Entries\\1", "PackedCatalogItem"},
    {&AlarmDaten::winsock, kWinsock + "Protocol_Catalog9\\Catalog_Entries64\\1", "PackedCatalogItem"},
    {&AlarmDaten::winsock, kWinsock + "NameSpace_Catalog5\\Catalog_Entries\\1", "LibraryPath"},
    {&AlarmDaten::winsock, kWinsock + "NameSpace_Catalog5\\Catalog_Entries64\\1", "LibraryPath"},
};

TEST(RegistryOrte, EveryPlaceThatNamesAFile_IsRead) {
    for (const Dateiplatz& p : kDateiplätze) {
        SCOPED_TRACE(p.key + "\\" + p.name);
        Lauf l;
        (l.a().*p.wächter).Teste();
        Server(l.fp.registry, "{K}", "C:\\k.dll");
        const bool katalog = p.wächter == &AlarmDaten::winsock;
        l.fp.registry.SetString(p.key, p.name, katalog ? "C:\\k.dll" : p.name.empty() ? "{K}" : "");
        (l.a().*p.wächter).Teste();
        ASSERT_TRUE(l.prg.Form3Geladen());
        const Form3Fenster& f = l.prg.Form3();
        EXPECT_EQ(f.Text1[0].Text, p.key);
        EXPECT_EQ(f.Text1[4].Text, "C:\\k.dll");
    }
}

}  // namespace
}  // namespace kes::test
