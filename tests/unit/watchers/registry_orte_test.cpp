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
const std::string kWl = kHklm + kNt + "Winlogon";
const std::string kIfeo = kHklm + kNt + "Image File Execution Options\\";
const std::string kLsa = "System\\CurrentControlSet\\Control\\Lsa";
const std::string kL = kHklm + kLsa;
const std::string kExp = kHklm + "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\";
const std::string kHooks = kExp + "ShellExecuteHooks";
const std::string kWinsock = kHklm + "System\\CurrentControlSet\\Services\\WinSock2\\Parameters\\";
const std::string kKatalog = kWinsock + "Protocol_Catalog9\\Catalog_Entries";
const std::string kToolbar = "HKEY_CURRENT_USER\\Software\\Microsoft\\Internet Explorer\\Toolbar";
const std::string kDienste = "System\\CurrentControlSet\\Services\\";
const std::string kD = kHklm + kDienste;
const std::string kPol = "Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer\\Run";
using Schritt = std::function<void(fake::FakeRegistry&)>;
using Prüfung = std::function<bool(fake::FakeRegistry&)>;

Schritt Wert(const std::string& key, const std::string& name, const std::string& daten) {
    return [=](fake::FakeRegistry& r) { r.SetString(key, name, daten); };
}
Schritt Dword(const std::string& key, const std::string& name, std::uint32_t n) {
    return [=](fake::FakeRegistry& r) { r.SetDword(key, name, n); };
}
Schritt Binär(const std::string& key, const std::string& name, const std::string& daten) {
    return [=](fake::FakeRegistry& r) { r.SetRaw(key, name, kRegBinary, daten); };
}
std::string Multi(const std::vector<std::string>& teile) {
    std::string s;
    for (const std::string& t : teile) s += t + std::string(1, '\0');
    return s + std::string(1, '\0');
}
Schritt Mehrfach(const std::string& key, const std::string& name, const std::vector<std::string>& teile) {
    return [=](fake::FakeRegistry& r) { r.SetRaw(key, name, kRegMultiSz, Multi(teile)); };
}
void Server(fake::FakeRegistry& r, const std::string& clsid, const std::string& datei) {
    r.SetString("HKEY_CLASSES_ROOT\\CLSID\\" + clsid + "\\InprocServer32", "", datei);
}
Schritt Klasse(const std::string& clsid, const std::string& datei) {
    return [=](fake::FakeRegistry& r) { Server(r, clsid, datei); };
}
// A protocol entry of the catalog: the library's path at the head of the binary item.
Schritt Katalog(const std::string& nummer, const std::string& pfad) {
    return Binär(kKatalog + "\\" + nummer, "PackedCatalogItem", pfad + std::string("\0\x02\0\xff", 4));
}
Schritt Alle(std::vector<Schritt> schritte) {
    return [=](fake::FakeRegistry& r) {
        for (const Schritt& s : schritte) s(r);
    };
}
// A full key's hive as HiveOCX numbers it, and the rest of the key.
std::pair<int, std::string> Teilen(const std::string& key) {
    const std::size_t n = key.find('\\');
    const std::string hive = key.substr(0, n);
    return {hive == "HKEY_CLASSES_ROOT" ? 0 : hive == "HKEY_CURRENT_USER" ? 1 : 2, key.substr(n + 1)};
}
std::uint32_t Typ(fake::FakeRegistry& r, const std::string& key, const std::string& name) {
    const auto [hive, rest] = Teilen(key);
    RegKey k;
    std::uint32_t typ = 0, n = 0;
    if (r.OpenKeyEx(kHkeyClassesRoot + hive, rest, kKeyRead, &k) != 0) return 0;
    r.QueryValueEx(k.Get(), name.c_str(), &typ, nullptr, &n);
    return typ;
}
// The value reads these data, and where a type is given, has that type.
Prüfung Liest(const std::string& key, const std::string& name, const std::string& daten, std::uint32_t typ = 0) {
    return [=](fake::FakeRegistry& r) {
        const auto [hive, rest] = Teilen(key);
        return HiveOCX(r).ReadValue(hive, rest, name) == daten && (typ == 0 || Typ(r, key, name) == typ);
    };
}
Prüfung WertDa(const std::string& key, const std::string& name, bool da) {
    return [=](fake::FakeRegistry& r) { return r.HasValue(key, name) == da; };
}
Prüfung KeyDa(const std::string& key, bool da) {
    return [=](fake::FakeRegistry& r) { return r.HasKey(key) == da; };
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
    {"new value", &AlarmDaten::winlogon, nullptr, Wert(kWl, "Shell", "C:\\boese.exe"), kWl + "\\Shell",
     "C:\\boese.exe"},
    {"changed data", &AlarmDaten::winlogon, Wert(kWl, "Userinit", "userinit.exe,"),
     Wert(kWl, "Userinit", "userinit.exe,boese.exe"), kWl + "\\Userinit", "userinit.exe,boese.exe"},
    {"unchanged value", &AlarmDaten::winlogon, Wert(kWl, "Shell", "e.exe"), nullptr, ""},
    {"value of another name", &AlarmDaten::winlogon, nullptr, Wert(kWl, "DefaultUserName", "x"), ""},
    {"value gone", &AlarmDaten::winlogon, Wert(kWl, "Shell", "e.exe"),
     [](auto& r) { HiveOCX(r).DeleteValue(2, kNt + "Winlogon", "Shell"); }, ""},
    {"subkey without the value", &AlarmDaten::imageFileExecution, nullptr, Dword(kIfeo + "x.exe", "GlobalFlag", 2), ""},
    {"subkey with the value", &AlarmDaten::imageFileExecution, nullptr, Wert(kIfeo + "x.exe", "Debugger", "d.exe"),
     kIfeo + "x.exe\\Debugger", "d.exe"},
    {"new part of a multi-string", &AlarmDaten::bootSicherheit, Mehrfach(kL, "Security Packages", {"kerberos"}),
     Mehrfach(kL, "Security Packages", {"kerberos", "boese"}), kL + "\\Security Packages", "boese"},
    {"parts in another order", &AlarmDaten::bootSicherheit, Mehrfach(kL, "Security Packages", {"a", "b"}),
     Mehrfach(kL, "Security Packages", {"b", "a"}), ""},
    {"all values of a key", &AlarmDaten::policiesRun, nullptr, Wert("HKEY_CURRENT_USER\\" + kPol, "1", "x.exe"),
     "HKEY_CURRENT_USER\\" + kPol + "\\1", "x.exe"},
    {"a subkey is the entry", &AlarmDaten::winlogon, nullptr, [](auto& r) { r.MakeKey(kWl + "\\Notify\\boese"); },
     kWl + "\\Notify\\boese", ""},
    // Where the value names a class, the class's server file is the entry.
    {"class with a server file", &AlarmDaten::shellErweiterungen, nullptr,
     Alle({Klasse("{E1}", "C:\\hook.dll"), Wert(kHooks, "{E1}", "")}), kHooks + "\\{E1}", "C:\\hook.dll"},
    {"class without a server file", &AlarmDaten::shellErweiterungen, nullptr, Wert(kHooks, "{E2}", ""), ""},
    {"class whose server file changed", &AlarmDaten::shellErweiterungen,
     Alle({Klasse("{E1}", "C:\\hook.dll"), Wert(kHooks, "{E1}", "")}), Klasse("{E1}", "C:\\boese.dll"),
     kHooks + "\\{E1}", "C:\\boese.dll"},
    {"overlay subkey names its class by its default value", &AlarmDaten::shellErweiterungen, nullptr,
     Alle({Klasse("{O1}", "C:\\overlay.dll"), Wert(kExp + "ShellIconOverlayIdentifiers\\ Boese", "", "{O1}")}),
     kExp + "ShellIconOverlayIdentifiers\\ Boese", "C:\\overlay.dll"},
    {"the user's toolbar layout beside the classes", &AlarmDaten::ieToolbar, nullptr,
     Binär(kToolbar + "\\ShellBrowser", "ITBar7Layout", std::string("\x11\0\0\0", 4)), ""},
    {"new toolbar of the user", &AlarmDaten::ieToolbar, nullptr,
     Alle({Klasse("{T1}", "C:\\leiste.dll"), Binär(kToolbar + "\\WebBrowser", "{T1}", "\x01")}),
     kToolbar + "\\WebBrowser\\{T1}", "C:\\leiste.dll"},
    // A catalog entry is known by the library it names, whatever its number.
    {"new library in the catalog", &AlarmDaten::winsock, Katalog("000000000001", "gut.dll"),
     Katalog("000000000002", "%SystemRoot%\\boese.dll"), kKatalog + "\\000000000002", "%SystemRoot%\\boese.dll"},
    {"catalog renumbered", &AlarmDaten::winsock,
     Alle({Katalog("000000000001", "a.dll"), Katalog("000000000002", "b.dll")}),
     Alle({Katalog("000000000001", "b.dll"), Katalog("000000000002", "a.dll")}), ""},
    {"name space by its path text", &AlarmDaten::winsock, nullptr,
     Wert(kWinsock + "NameSpace_Catalog5\\Catalog_Entries64\\000000000001", "LibraryPath",
          "%SystemRoot%\\System32\\boese.dll"),
     kWinsock + "NameSpace_Catalog5\\Catalog_Entries64\\000000000001", "%SystemRoot%\\System32\\boese.dll"},
    {"catalog item without a path", &AlarmDaten::winsock, nullptr, Katalog("000000000003", ""), ""},
    // A service of any start type is known by its key and its program.
    {"new service on demand", &AlarmDaten::dienstpfade, nullptr,
     Alle({Wert(kD + "Neu", "ImagePath", "\"C:\\neu.exe\" -k"), Dword(kD + "Neu", "Start", 3)}), kD + "Neu",
     "\"C:\\neu.exe\" -k"},
    {"service key without a program", &AlarmDaten::dienstpfade, nullptr, Dword(kD + "Leer", "Type", 1), ""},
    {"service's start type changed", &AlarmDaten::dienstpfade,
     Alle({Wert(kD + "Alt", "ImagePath", "alt.exe"), Dword(kD + "Alt", "Start", 3)}), Dword(kD + "Alt", "Start", 2),
     ""},
};

TEST(RegistryOrte, WhatWarnsAndWhatTheWarningShows) {
    for (const Regel& r : kRegeln) {
        SCOPED_TRACE(r.fall);
        Lauf l;
        if (r.vorher) r.vorher(l.fp.registry);
        (l.a().*r.wächter).Teste();
        ASSERT_FALSE(l.prg.Form3Geladen()) << "the first pass takes the machine as it stands";
        if (r.danach) r.danach(l.fp.registry);
        (l.a().*r.wächter).Teste();
        ASSERT_EQ(l.prg.Form3Geladen(), !r.name.empty());
        if (r.name.empty()) continue;
        const Form3Fenster& f = l.prg.Form3();
        EXPECT_EQ(l.prg.Kategorieschlüssel, (l.a().*r.wächter).beschreibung.kategorie);
        EXPECT_EQ(f.Label1[0].Caption, (l.a().*r.wächter).beschreibung.überschrift);
        EXPECT_EQ(f.Label1[1].Caption, "Name: " + r.name);
        EXPECT_EQ(f.Label1[2].Caption, "Pfad: " + r.pfad);
    }
}

TEST(RegistryOrte, SubkeyDeletedWhileTheWalkPumps_IsPassedOver) {
    Lauf l;
    const std::string ifeo = kIfeo;
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
    l.fp.registry.SetString(kWl, "Shell", "a.exe");
    w.Teste();
    ASSERT_TRUE(l.prg.Form3Geladen());
    l.prg.Form3().Image_Click(6);
    l.prg.Aufräumen();
    l.fp.registry.SetString(kWl, "Shell", "b.exe");
    w.Teste();
    EXPECT_FALSE(l.prg.Form3Geladen());
}

// What a delete removes: exactly the value, the part or the subkey found, after a backup.
struct Löschfall {
    const char* fall;
    RegistryOrte AlarmDaten::*wächter;
    Schritt anlegen;
    std::string bekannt;  // the neighbour's baseline line: the neighbour known, the entry new
    Prüfung weg, nachbarDa;
};

const Löschfall kLöschfälle[] = {
    {"value", &AlarmDaten::appInit,
     Alle({Wert(kHklm + kNt + "Windows", "AppInit_DLLs", "C:\\boese.dll"),
           Wert(kHklm + kNt + "Windows", "Spooler", "yes")}),
     "", WertDa(kHklm + kNt + "Windows", "AppInit_DLLs", false), WertDa(kHklm + kNt + "Windows", "Spooler", true)},
    {"value of a subkey", &AlarmDaten::imageFileExecution,
     Alle({Wert(kIfeo + "x.exe", "Debugger", "d.exe"), Dword(kIfeo + "x.exe", "GlobalFlag", 2)}), "",
     WertDa(kIfeo + "x.exe", "Debugger", false), WertDa(kIfeo + "x.exe", "GlobalFlag", true)},
    {"part of a multi-string", &AlarmDaten::bootSicherheit, Mehrfach(kL, "Notification Packages", {"scecli", "boese"}),
     kL + "\\Notification Packages\\scecli",
     [](auto& r) {
         return MehrfachLesen(r, kHkeyLocalMachine, kLsa, "Notification Packages") ==
                std::optional<std::vector<std::string>>({"scecli"});
     },
     WertDa(kL, "Notification Packages", true)},
    {"catalog entry", &AlarmDaten::winsock,
     Alle({Katalog("000000000001", "gut.dll"), Katalog("000000000002", "boese.dll")}),
     kKatalog + "\\PackedCatalogItem\\gut.dll", KeyDa(kKatalog + "\\000000000002", false),
     KeyDa(kKatalog + "\\000000000001", true)},
    {"service with the keys below it", &AlarmDaten::dienstpfade,
     Alle({Wert(kD + "Neu", "ImagePath", "neu.exe"), Wert(kD + "Neu\\Parameters", "ServiceDll", "neu.dll"),
           Wert(kD + "Gut", "ImagePath", "gut.exe")}),
     kD + "Gut\\ImagePath\\gut.exe", KeyDa(kD + "Neu", false), KeyDa(kD + "Gut", true)},
    {"subkey", &AlarmDaten::winlogon,
     Alle({Wert(kWl + "\\Notify\\boese", "DllName", "b.dll"), Wert(kWl + "\\Notify\\gut", "DllName", "g.dll")}),
     kWl + "\\Notify\\gut\\DllName\\g.dll", KeyDa(kWl + "\\Notify\\boese", false), KeyDa(kWl + "\\Notify\\gut", true)},
};

// The newest journal entry holds a backup.
void Gesichert(Lauf& l) {
    const auto journal = Journal(l.fp.files, l.fp.system, l.prg.Programmordner).Lesen();
    ASSERT_FALSE(journal.einträge.empty());
    EXPECT_FALSE(journal.einträge.back().sicherung.empty()) << "no backup";
}

TEST(RegistryOrte, DeleteRemovesExactlyWhatWasFound_AfterItsBackup) {
    for (const Löschfall& fall : kLöschfälle) {
        SCOPED_TRACE(fall.fall);
        Lauf l;
        l.prg.AnzeigeLöschen = true;  // no question window
        RegistryOrte& w = l.a().*fall.wächter;
        w.Teste();
        fall.anlegen(l.fp.registry);
        if (!fall.bekannt.empty()) w.Übernehmen(fall.bekannt);
        w.Teste();
        ASSERT_TRUE(l.prg.Form3Geladen());
        l.prg.Form3().Image_Click(3);
        EXPECT_FALSE(l.prg.Form3Geladen());
        EXPECT_TRUE(fall.weg(l.fp.registry));
        EXPECT_TRUE(fall.nachbarDa(l.fp.registry));
        Gesichert(l);
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
        EXPECT_TRUE(Liest(key, fall.name, fall.danach)(l.fp.registry));
        Gesichert(l);
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

const Platz kPlätze[] = {
    {&AlarmDaten::winlogon, kWl, "Shell"},
    {&AlarmDaten::winlogon, kWl, "Userinit"},
    {&AlarmDaten::winlogon, kWl, "Taskman"},
    {&AlarmDaten::winlogon, kWl, "System"},
    {&AlarmDaten::winlogon, kWl, "VmApplet"},
    {&AlarmDaten::winlogon, "HKEY_CURRENT_USER\\" + kNt + "Winlogon", "Shell"},
    {&AlarmDaten::winlogon, kHklm + kNt + "Winlogon\\Notify\\n", "DllName"},
    {&AlarmDaten::appInit, kHklm + kNt + "Windows", "AppInit_DLLs"},
    {&AlarmDaten::appInit, kHklm + kNt + "Windows", "LoadAppInit_DLLs"},
    {&AlarmDaten::imageFileExecution, kIfeo + "a.exe", "Debugger"},
    {&AlarmDaten::imageFileExecution, kHklm + kNt + "SilentProcessExit\\a.exe", "MonitorProcess"},
    {&AlarmDaten::policiesRun, "HKEY_CURRENT_USER\\" + kPol, "x"},
    {&AlarmDaten::policiesRun, kHklm + kPol, "x"},
    {&AlarmDaten::activeSetup, kHklm + "Software\\Microsoft\\Active Setup\\Installed Components\\{A}", "StubPath"},
    {&AlarmDaten::bootSicherheit, kHklm + "System\\CurrentControlSet\\Control\\Session Manager", "BootExecute", true},
    {&AlarmDaten::bootSicherheit, kL, "Authentication Packages", true},
    {&AlarmDaten::bootSicherheit, kL, "Notification Packages", true},
    {&AlarmDaten::bootSicherheit, kL, "Security Packages", true},
    {&AlarmDaten::bootSicherheit, kHklm + "System\\CurrentControlSet\\Control\\Print\\Monitors\\m", "Driver"},
};

TEST(RegistryOrte, EveryWatcherFindsAnEntryAtEachOfItsPlaces) {
    for (const Platz& p : kPlätze) {
        SCOPED_TRACE(p.key + "\\" + p.name);
        Lauf l;
        (l.a().*p.wächter).Teste();
        if (p.multi)
            l.fp.registry.SetRaw(p.key, p.name, kRegMultiSz, Multi({"x.exe"}));
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
    Prüfung hinterher;
    bool vorherÜbernehmen = false;  // the first warning accepted, and the value changed once more
};

const std::string kInternet = "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings";
const std::string kMain = "HKEY_CURRENT_USER\\Software\\Microsoft\\Internet Explorer\\Main";
const std::string kExplorerPol = "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer";

const Rückfall kRückfälle[] = {
    {"known proxy switch back as a number", &AlarmDaten::browsereinstellungen, kInternet, "ProxyEnable",
     Dword(kInternet, "ProxyEnable", 0), Dword(kInternet, "ProxyEnable", 1), "Neuer Wert : 1        Original war: 0",
     "Original", Liest(kInternet, "ProxyEnable", "0", kRegDword)},
    {"unknown proxy switch to Windows' own", &AlarmDaten::browsereinstellungen, kInternet, "ProxyEnable", nullptr,
     Dword(kInternet, "ProxyEnable", 1), "Neuer Wert : 1        Original war: ", "Original",
     Liest(kInternet, "ProxyEnable", "0")},
    {"unknown proxy server goes", &AlarmDaten::browsereinstellungen, kInternet, "ProxyServer", nullptr,
     Wert(kInternet, "ProxyServer", "boese:8080"), "Neuer Wert : boese:8080        Original war: ", "Original",
     WertDa(kInternet, "ProxyServer", false)},
    {"accepted title is the original then", &AlarmDaten::browsereinstellungen, kMain, "Window Title",
     Wert(kMain, "Window Title", "Alt"), Wert(kMain, "Window Title", "Neu"),
     "Neuer Wert : Zuletzt        Original war: Neu", "Original", Liest(kMain, "Window Title", "Neu"), true},
    {"lock of 0 is none", &AlarmDaten::weitereSperren, kExplorerPol, "NoRun", nullptr, Dword(kExplorerPol, "NoRun", 0),
     "", "", nullptr},
    {"lock released", &AlarmDaten::weitereSperren, kExplorerPol, "NoDrives", nullptr,
     Dword(kExplorerPol, "NoDrives", 67108863), "NoDrives = 67108863", "Freigeben",
     WertDa(kExplorerPol, "NoDrives", false)},
    {"service's changed program back, still to be expanded", &AlarmDaten::dienstpfade, kD + "Alt", "ImagePath",
     [](auto& r) { r.SetRaw(kD + "Alt", "ImagePath", kRegExpandSz, std::string("%SystemRoot%\\alt.exe\0", 21)); },
     Wert(kD + "Alt", "ImagePath", "C:\\boese.exe"),
     "Neuer Wert : C:\\boese.exe        Original war: %SystemRoot%\\alt.exe", "Original",
     Liest(kD + "Alt", "ImagePath", "%SystemRoot%\\alt.exe", kRegExpandSz)},
    {"file type's class repaired", &AlarmDaten::dateitypen, "HKEY_CLASSES_ROOT\\.scr", "", nullptr,
     Wert("HKEY_CLASSES_ROOT\\.scr", "", "boesefile"), "Neuer Wert : boesefile        Original war: ", "Original",
     Liest("HKEY_CLASSES_ROOT\\.scr", "", "scrfile")},
};

TEST(RegistryOrte, ValuesPutBackOrReleased_NeverDeleted) {
    for (const Rückfall& fall : kRückfälle) {
        SCOPED_TRACE(fall.fall);
        Lauf l;
        RegistryOrte& w = l.a().*fall.wächter;
        if (fall.vorher) fall.vorher(l.fp.registry);
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
        Gesichert(l);
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
        l.fp.registry.SetString(kD + "Auto", "ImagePath", "auto.exe");
        l.fp.registry.SetDword(kD + "Auto", "Start", 2);
        w.Teste();
        ASSERT_EQ(l.prg.Form3Geladen(), box == 0);
        if (box == 0) continue;
        EXPECT_EQ(l.fp.files.Content(l.prg.Programmordner + "daten\\Dienstpfade.txt"),
                  kD + "Auto\\ImagePath\\auto.exe\r\n");
        l.fp.registry.SetString(kD + "Auto", "ImagePath", "boese.exe");
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

const Dateiplatz kDateiplätze[] = {
    {&AlarmDaten::shellErweiterungen, kExp + "ShellExecuteHooks", "{K}"},
    {&AlarmDaten::shellErweiterungen, kExp + "ShellIconOverlayIdentifiers\\o", ""},
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
