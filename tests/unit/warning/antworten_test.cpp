// Every answer of the warning window holds: each row raises its warning through the watch
// cycle on the fakes, answers it, and runs the next cycles. Accepted stays quiet for good
// (also once the lists are read back from their files), deferred stays quiet for the run,
// deleted is gone and quiet, excepted is quiet; an entry removed on the panel is warned of
// again. Every category key and every list of the panel must have its rows here.
#include <cctype>
#include <functional>
#include <map>
#include <optional>
#include <set>

#include "panel/ausnahmelisten.h"
#include "platform/hive_ocx.h"
#include "platform/mehrfachwert.h"
#include "programm_test_basis.h"
#include "warning/kategorien.h"
#include "watchers/waechter.h"

namespace kes::test {
namespace {

using K = Kategorie;
using L = Ausnahmeliste;

const std::string kAutostart = "C:\\Dokumente und Einstellungen\\Benutzer\\Startmenü\\Programme\\Autostart";
const std::string kAlleAutostart = "C:\\Dokumente und Einstellungen\\All Users\\Startmenü\\Programme\\Autostart";
const std::string kFavoriten = "C:\\Dokumente und Einstellungen\\Benutzer\\Favoriten";
// The machine's run key: the user's is seen a second time below HKEY_USERS, as its own row.
const std::string kRun = "HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Windows\\CurrentVersion\\Run";
const std::string kMainCu = "HKEY_CURRENT_USER\\Software\\Microsoft\\Internet Explorer\\Main";
const std::string kKlassen = "HKEY_CLASSES_ROOT\\CLSID\\";
const std::string kHklm = "HKEY_LOCAL_MACHINE\\";
const std::string kBho = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Browser Helper Objects";
const std::string kSsodl = "Software\\Microsoft\\Windows\\CurrentVersion\\ShellServiceObjectDelayLoad";
const std::string kSts = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\SharedTaskScheduler";
const std::string kHooks = "HKEY_CURRENT_USER\\Software\\Microsoft\\Internet Explorer\\URLSearchHooks";
const std::string kSvc = "HKEY_LOCAL_MACHINE\\System\\CurrentControlSet\\Services\\";
const std::string kPolicies = "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\System";
const std::string kDomains = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\ZoneMap\\Domains\\";
const std::string kBefehl = "\"%1\" %*";
const std::string kWinlogon = kHklm + "Software\\Microsoft\\Windows NT\\CurrentVersion\\Winlogon";
const std::string kAppInit = kHklm + "Software\\Microsoft\\Windows NT\\CurrentVersion\\Windows";
const std::string kIfeo = kHklm + "Software\\Microsoft\\Windows NT\\CurrentVersion\\Image File Execution Options";
const std::string kPoliciesRun =
    "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer\\Run";
const std::string kActiveSetup = kHklm + "Software\\Microsoft\\Active Setup\\Installed Components\\{A1}";
const std::string kPoliciesExplorer =
    "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer";
const std::string kSessionManager = "System\\CurrentControlSet\\Control\\Session Manager";
const std::string kNamensraum =
    kHklm +
    "System\\CurrentControlSet\\Services\\WinSock2\\Parameters\\NameSpace_Catalog5\\Catalog_Entries\\000000000009";
const std::string kOverlay =
    kHklm + "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\ShellIconOverlayIdentifiers\\ Boese";
const std::string kToolbar = "HKEY_CURRENT_USER\\Software\\Microsoft\\Internet Explorer\\Toolbar\\WebBrowser";
const std::string kAufgabe = "C:\\WINDOWS\\system32\\Tasks\\Microsoft\\Neu";

enum class Antwort { Übernehmen, Löschen, Später, Töten, Ausnahme, NaGut, Original };
enum class Erwartet {
    FürImmer,     // quiet, and still quiet with the lists read back from their files
    FürDenLauf,   // quiet until a new run empties the lists of this run
    Weg,          // the thing is gone, and quiet
    WarntWieder,  // kept so on purpose: the next cycle warns again
};

class AntwortTest;
using Schritt = std::function<void(AntwortTest&)>;

// How a category's warning comes about on the fakes.
struct Szenario {
    std::vector<int> boxen;                // the rows of the cycle that must run
    Schritt auslösen;                      // makes the new or changed thing
    Schritt laden;                         // reads the lists back as a new start does; may be empty
    std::function<bool(AntwortTest&)> da;  // the thing still exists
};

struct Fall {
    K kategorie;  // the key the watcher runs under (for two keys the pass, not the warning)
    Antwort antwort;
    int menü = -1;  // the entry of the menu the answer opens
    Erwartet erwartet = Erwartet::FürImmer;
    std::optional<L> entfernen{};  // then removed again on this list of the panel
    int panelEintrag = 0;
};

// The key under which a pass warns.
K Warnschlüssel(K k) {
    if (k == K::Favorit1 || k == K::Favorit2) return K::Favoriten;
    if (k == K::Ordnermeister || k == K::OrdnerAllUser) return K::AutostartOrdner;
    return k;
}

class AntwortTest : public ProgrammTest, public ::testing::WithParamInterface<Fall> {
public:
    AlarmDaten& a() { return prg.Alarm(); }
    void Prozess(const std::string& name, std::uint32_t pid, const std::string& pfad) {
        fake::FakeProzess p;
        p.name = name;
        p.pid = pid;
        p.pfad = pfad;
        fp.processes.prozesse.push_back(p);
        fp.files.Put(pfad, "MZ");
        fake::FakeVersion v;
        v.übersetzungen.push_back({});
        v.übersetzungen[0].texte["CompanyName"] = "Fremdfirma";
        fp.details.SetVersion(pfad, v);
    }
    void Klasse(const std::string& clsid, const std::string& server) {
        fp.registry.SetString(kKlassen + clsid + "\\InprocServer32", "", server);
        fp.files.Put(server, "MZ");
    }
    void Befehl(const std::string& klasse, const std::string& befehl) {
        fp.registry.SetString(kHklm + "Software\\Classes\\" + klasse + "\\shell\\open\\command", "", befehl);
    }
    bool Wert(const std::string& key, const std::string& name) {
        const auto p = key.find('\\');
        const std::string root = key.substr(0, p);
        const int hive = root == "HKEY_CLASSES_ROOT" ? 0 : root == "HKEY_CURRENT_USER" ? 1 : 2;
        return HiveOCX(fp.registry).ValueExists(hive, key.substr(p + 1), name);
    }
    bool Schlüssel(int hive, const std::string& key) { return HiveOCX(fp.registry).KeyExists(hive, key); }

protected:
    void SetUp() override {
        Pfade();
        fp.files.MakeDirs(kAutostart);
        fp.files.MakeDirs(kAlleAutostart);
        fp.files.MakeDirs(kFavoriten + "\\Links");
        fp.files.MakeDirs("C:\\WINDOWS\\Downloaded Program Files");
        fp.files.Put(hostsPfad, "abc");
        fp.files.Put(ordner + "daten\\hosts", "127.0.0.1  localhost\r\n");
        prg.Hostsgrösse = 3;
        for (const char* k : {"exefile", "comfile", "batfile", "piffile"}) Befehl(k, kBefehl);
        Befehl("htafile", "mshta.exe \"%1\" %*");
        a().Box1[2].setValue(1);
        prg.AnzeigeLöschen = true;  // no confirmation window in between
    }
    bool Gewarnt() { return prg.Form3Geladen(); }
    void Zyklus() { a().Durchlauf(); }
    void Antworten(const Fall& fall) {
        Form3Fenster& f = prg.Form3();
        switch (fall.antwort) {
            case Antwort::Übernehmen:
                f.Image1_Click();
                if (f.Popup.Menü == "killprozess")
                    f.killprozess1_Click(fall.menü);
                else if (f.Popup.Menü == "dienst")
                    f.dienst1_Click(fall.menü);
                break;
            case Antwort::Löschen:
                fp.dialogs.antworten = {kIdYes};  // the question of the services branch
                f.Image3_Click();
                break;
            case Antwort::Später:
                f.Image6_Click();
                break;
            case Antwort::Töten:
                f.Image2_Click();
                break;
            case Antwort::Ausnahme:
                f.Image4_Click();
                break;
            case Antwort::NaGut:
                f.Image5_Click();
                break;
            case Antwort::Original:
                f.Image8_Click();
                if (f.Popup.Menü == "host") f.host1_Click(fall.menü);
                break;
        }
    }
    // The last entry of a list selected, as the user does before the menu.
    void Markieren(L liste) {
        const Listensteuerelement l = SteuerelementVon(a(), liste);
        if (l.kasten) l.kasten->ListIndex = static_cast<int>(l.kasten->Items.size()) - 1;
        if (l.ansicht && !l.ansicht->Items.empty()) l.ansicht->Items.back().Selected = true;
    }
    static const Szenario& Von(K k);
};

const Szenario& AntwortTest::Von(K k) {
    using T = AntwortTest;
    static const auto autostart = [](const std::string& ordner) {
        return Szenario{{11},
                        [=](T& t) { t.fp.files.Put(ordner + "\\Tool.lnk", "L"); },
                        [](T& t) { t.a().autostartOrdner.LadeAutostart(); },
                        [=](T& t) { return t.fp.files.Exists(ordner + "\\Tool.lnk"); }};
    };
    static const auto favorit = [](const std::string& ordner) {
        return Szenario{{5},
                        [=](T& t) { t.fp.files.Put(ordner + "\\Neu.url", "[InternetShortcut]"); },
                        [](T& t) { t.a().favoriten.LadeFavoriten(); },
                        [=](T& t) { return t.fp.files.Exists(ordner + "\\Neu.url"); }};
    };
    static const auto klasse = [](int box, std::function<void(T&)> eintrag, std::function<void(T&)> laden,
                                  std::string clsid) {
        return Szenario{{box}, std::move(eintrag), std::move(laden), [=](T& t) {
                            return t.Schlüssel(0, "CLSID\\" + clsid + "\\InprocServer32");
                        }};
    };
    // The first pass takes the machine as its baseline; the entry comes after it.
    static const auto ort = [](int box, RegistryOrte AlarmDaten::*w, std::function<void(T&)> eintrag,
                               std::function<bool(T&)> da) {
        return Szenario{{box},
                        [=](T& t) {
                            (t.a().*w).Teste();
                            eintrag(t);
                        },
                        [=](T& t) { (t.a().*w).Laden(); },
                        std::move(da)};
    };
    static const auto bootTeile = [](T& t) {
        return MehrfachLesen(t.fp.registry, kHkeyLocalMachine, kSessionManager, "BootExecute")
            .value_or(std::vector<std::string>{});
    };
    static const auto server = [](T& t, const std::string& clsid) {
        t.fp.registry.SetString(kKlassen + clsid + "\\InprocServer32", "", "C:\\boese.dll");
    };
    static const std::map<K, Szenario> kSzenarien = {
        {K::Winsock, ort(
                         39, &AlarmDaten::winsock,
                         [](T& t) { t.fp.registry.SetString(kNamensraum, "LibraryPath", "C:\\boese.dll"); },
                         [](T& t) { return t.Schlüssel(2, kNamensraum.substr(kHklm.size())); })},
        {K::ShellErweiterungen, ort(
                                    40, &AlarmDaten::shellErweiterungen,
                                    [](T& t) {
                                        server(t, "{B0}");
                                        t.fp.registry.SetString(kOverlay, "", "{B0}");
                                    },
                                    [](T& t) { return t.Schlüssel(2, kOverlay.substr(kHklm.size())); })},
        {K::IEToolbar, ort(
                           41, &AlarmDaten::ieToolbar,
                           [](T& t) {
                               server(t, "{B1}");
                               t.fp.registry.SetString(kToolbar, "{B1}", "");
                           },
                           [](T& t) { return t.Wert(kToolbar, "{B1}"); })},
        // Put back, released or repaired, the entry is gone: "Original" leaves no changed value.
        {K::Browsereinstellungen, ort(
                                      43, &AlarmDaten::browsereinstellungen,
                                      [](T& t) { t.fp.registry.SetString(kMainCu, "Window Title", "Gekapert"); },
                                      [](T& t) { return t.Wert(kMainCu, "Window Title"); })},
        {K::WeitereSperren, ort(
                                44, &AlarmDaten::weitereSperren,
                                [](T& t) { t.fp.registry.SetDword(kPoliciesExplorer, "NoRun", 1); },
                                [](T& t) { return t.Wert(kPoliciesExplorer, "NoRun"); })},
        {K::Dateitypen, ort(
                            45, &AlarmDaten::dateitypen,
                            [](T& t) { t.fp.registry.SetString("HKEY_CLASSES_ROOT\\.exe", "", "boesefile"); },
                            [](T& t) { return HiveOCX(t.fp.registry).ReadValue(0, ".exe", "") == "boesefile"; })},
        // A new service on demand: its key goes with it.
        {K::Dienstpfade, ort(
                             46, &AlarmDaten::dienstpfade,
                             [](T& t) {
                                 t.fp.registry.SetString(kSvc + "Boese", "ImagePath", "C:\\boese.exe");
                                 t.fp.registry.SetDword(kSvc + "Boese", "Start", 3);
                             },
                             [](T& t) { return t.Schlüssel(2, (kSvc + "Boese").substr(kHklm.size())); })},
        {K::Winlogon,
         ort(
             33, &AlarmDaten::winlogon, [](T& t) { t.fp.registry.SetString(kWinlogon, "Taskman", "C:\\boese.exe"); },
             [](T& t) { return t.Wert(kWinlogon, "Taskman"); })},
        {K::AppInitDLLs,
         ort(
             34, &AlarmDaten::appInit, [](T& t) { t.fp.registry.SetString(kAppInit, "AppInit_DLLs", "C:\\boese.dll"); },
             [](T& t) { return t.Wert(kAppInit, "AppInit_DLLs"); })},
        {K::ImageFileExecution,
         ort(
             35, &AlarmDaten::imageFileExecution,
             [](T& t) { t.fp.registry.SetString(kIfeo + "\\notepad.exe", "Debugger", "C:\\boese.exe"); },
             [](T& t) { return t.Wert(kIfeo + "\\notepad.exe", "Debugger"); })},
        {K::PoliciesRun, ort(
                             36, &AlarmDaten::policiesRun,
                             [](T& t) { t.fp.registry.SetString(kPoliciesRun, "Boese", "C:\\boese.exe"); },
                             [](T& t) { return t.Wert(kPoliciesRun, "Boese"); })},
        {K::ActiveSetup, ort(
                             37, &AlarmDaten::activeSetup,
                             [](T& t) { t.fp.registry.SetString(kActiveSetup, "StubPath", "C:\\boese.exe"); },
                             [](T& t) { return t.Wert(kActiveSetup, "StubPath"); })},
        // One part more in a multi-string: the delete takes that part and keeps the other.
        {K::BootSicherheit,
         {{38},
          [](T& t) {
              const std::string key = kHklm + kSessionManager;
              t.fp.registry.SetRaw(key, "BootExecute", kRegMultiSz, std::string("autocheck autochk *\0\0", 21));
              t.a().bootSicherheit.Teste();
              t.fp.registry.SetRaw(key, "BootExecute", kRegMultiSz, std::string("autocheck autochk *\0boese\0\0", 27));
          },
          [](T& t) { t.a().bootSicherheit.Laden(); },
          [=](T& t) {
              // A delete that took the other part too has not removed just the one.
              const auto teile = bootTeile(t);
              return teile.size() != 1 || teile.front() != "autocheck autochk *";
          }}},
        // The first pass takes the tasks as they stand; the task comes after it.
        {K::GeplanteAufgaben,
         {{42},
          [](T& t) {
              t.a().geplanteAufgaben.Teste();
              t.fp.files.Put(kAufgabe, "<Task><Actions><Exec><Command>C:\\boese.exe</Command></Exec></Actions></Task>");
          },
          [](T& t) { t.a().geplanteAufgaben.Laden(); },
          [](T& t) { return t.fp.files.Exists(kAufgabe); }}},
        {K::Prozesse,
         {{4},
          [](T& t) { t.Prozess("neu.exe", 4711, "C:\\Neu\\neu.exe"); },
          [](T& t) {
              t.a().prozesse.LadeProzesse();
              t.a().prozesse.LadeProzessFirmen();
          },
          [](T& t) { return t.fp.processes.beendet.empty(); }}},
        {K::HostsDatei,
         {{15},
          [](T& t) { t.fp.files.Put(t.hostsPfad, "abcd"); },
          nullptr,
          [](T& t) { return t.fp.files.Content(t.hostsPfad) == "abcd"; }}},
        {K::Favorit1, favorit(kFavoriten)},
        {K::Favorit2, favorit(kFavoriten + "\\Links")},
        {K::StartPage,
         {{8},
          [](T& t) {
              t.prg.StartSeiten[1] = "http://start.example/";
              t.fp.registry.SetString(kMainCu, "Start Page", "http://fremd.example/");
          },
          nullptr,
          nullptr}},
        {K::DFÜ,
         {{10},
          [](T& t) {
              t.fp.dialup.einträge.push_back({"Anbieter", DfuEintrag{49, "", "0190123"}});
          },
          [](T& t) { t.a().dfü.LadeDFÜ(); },
          [](T& t) { return !t.fp.dialup.einträge.empty(); }}},
        {K::Ordnermeister, autostart(kAutostart)},
        {K::OrdnerAllUser, autostart(kAlleAutostart)},
        {K::AutostartRegistry,
         {{13},
          [](T& t) {
              t.fp.files.Put("C:\\Tool\\tool.exe", "MZ");
              t.fp.registry.SetString(kRun, "Tool", "C:\\Tool\\tool.exe /min");
          },
          [](T& t) { t.a().autostartRegistry.LadeAutostartregistry(); },
          [](T& t) { return t.Wert(kRun, "Tool"); }}},
        {K::WindowsDatei,
         {{19},
          [](T& t) { t.fp.files.Put("C:\\WINDOWS\\neu.exe", "MZ"); },
          [](T& t) { t.a().windowsDateien.LadeWindowsausnahme(); },
          [](T& t) { return t.fp.files.Exists("C:\\WINDOWS\\neu.exe"); }}},
        {K::BHO, klasse(
                     21,
                     [](T& t) {
                         t.fp.registry.SetString(kHklm + kBho + "\\{B1}", "", "Helfer");
                         t.Klasse("{B1}", "C:\\Neu\\bho.dll");
                     },
                     [](T& t) { t.a().klassenlisten.LadeBHO(); }, "{B1}")},
        {K::ShellService, klasse(
                              23,
                              [](T& t) {
                                  t.fp.registry.SetString(kHklm + kSsodl, "Brenner", "{S1}");
                                  t.Klasse("{S1}", "C:\\Neu\\sso.dll");
                              },
                              [](T& t) { t.a().klassenlisten.LadeShellService(); }, "{S1}")},
        {K::TaskScheduler, klasse(
                               24,
                               [](T& t) {
                                   t.fp.registry.SetString(kHklm + kSts, "{T1}", "Planer");
                                   t.Klasse("{T1}", "C:\\Neu\\sts.dll");
                               },
                               [](T& t) { t.a().klassenlisten.LadeSharedTaskScheduler(); }, "{T1}")},
        {K::URLSearchHooks, klasse(
                                27,
                                [](T& t) {
                                    t.fp.registry.SetString(kHooks, "{U1}", "");
                                    t.Klasse("{U1}", "C:\\Neu\\hook.dll");
                                },
                                [](T& t) { t.a().klassenlisten.LadeURLSearchHook(); }, "{U1}")},
        {K::ActiveX,
         {{22},
          [](T& t) { t.fp.files.Put("C:\\WINDOWS\\Downloaded Program Files\\neu.ocx", "MZ"); },
          [](T& t) { t.a().activeX.LadeActiveX(); },
          [](T& t) { return t.fp.files.Exists("C:\\WINDOWS\\Downloaded Program Files\\neu.ocx"); }}},
        {K::Dienste,
         {{28},
          [](T& t) {
              t.fp.registry.SetDword(kSvc + "Neu", "Start", 2);
              t.fp.registry.SetString(kSvc + "Neu", "ImagePath", "C:\\Neu\\dienst.exe");
          },
          [](T& t) {
              t.a().dienste.LadeDienste();
              t.a().dienste.LadeDiensteHersteller();
          },
          [](T& t) { return t.Schlüssel(2, "System\\CurrentControlSet\\Services\\Neu"); }}},
        {K::RegeditDeaktiviert,
         {{25},
          [](T& t) { t.fp.registry.SetDword(kPolicies, "DisableRegistryTools", 1); },
          nullptr,
          [](T& t) { return t.Wert(kPolicies, "DisableRegistryTools"); }}},
        {K::TaskmanagerDeaktiviert,
         {{26},
          [](T& t) { t.fp.registry.SetDword(kPolicies, "DisableTaskMgr", 1); },
          nullptr,
          [](T& t) { return t.Wert(kPolicies, "DisableTaskMgr"); }}},
        {K::HtaFile, {{30}, [](T& t) { t.Befehl("exefile", "fremd.exe %1"); }, nullptr, nullptr}},
        {K::ToolBar,
         {{29},
          [](T& t) { t.fp.registry.SetDword(kHklm + kDomains + "fremd.example", "http", 2); },
          [](T& t) { t.a().vertrauenswürdigeSeiten.LadeToolbar(); },
          [](T& t) { return t.Schlüssel(2, kDomains + "fremd.example"); }}},
        {K::ToolBar1,
         {{29},
          [](T& t) { t.fp.registry.SetDword("HKEY_CURRENT_USER\\" + kDomains + "fremd.example", "http", 2); },
          [](T& t) { t.a().vertrauenswürdigeSeiten.LadeToolbar(); },
          [](T& t) { return t.Schlüssel(1, kDomains + "fremd.example"); }}},
    };
    return kSzenarien.at(k);
}

using A = Antwort;
using E = Erwartet;

const std::vector<Fall> kFälle = {
    {K::Prozesse, A::Übernehmen, 0},
    {K::Prozesse, A::Übernehmen, 1},
    {K::Prozesse, A::Übernehmen, 2, E::FürDenLauf},
    {K::Prozesse, A::Später, -1, E::FürDenLauf},
    {K::Prozesse, A::Töten, -1, E::Weg},
    {K::Prozesse, A::Übernehmen, 0, E::FürImmer, L::ListView6},
    {K::Prozesse, A::Übernehmen, 1, E::FürImmer, L::List1},
    {K::HostsDatei, A::Übernehmen},
    {K::HostsDatei, A::Original, 0, E::Weg},
    {K::HostsDatei, A::Original, 1, E::Weg},
    // The hosts watcher does not ask the deferred list.
    {K::HostsDatei, A::Später, -1, E::WarntWieder},
    {K::Favorit1, A::Übernehmen},
    {K::Favorit1, A::Später, -1, E::FürDenLauf},
    {K::Favorit1, A::Löschen, -1, E::Weg},
    {K::Favorit2, A::Übernehmen},
    {K::Favorit2, A::Später, -1, E::FürDenLauf},
    {K::Favorit2, A::Löschen, -1, E::Weg},
    {K::Favorit1, A::Übernehmen, -1, E::FürImmer, L::List4},
    {K::StartPage, A::Übernehmen},
    {K::StartPage, A::Original},
    {K::StartPage, A::Später, -1, E::FürDenLauf},
    {K::DFÜ, A::Übernehmen},
    {K::DFÜ, A::Löschen, -1, E::Weg},
    {K::DFÜ, A::Später, -1, E::FürDenLauf},
    {K::DFÜ, A::Übernehmen, -1, E::FürImmer, L::ListView2, 1},
    {K::Ordnermeister, A::Übernehmen},
    {K::Ordnermeister, A::Später, -1, E::FürDenLauf},
    {K::Ordnermeister, A::Löschen, -1, E::Weg},
    {K::OrdnerAllUser, A::Übernehmen},
    {K::OrdnerAllUser, A::Später, -1, E::FürDenLauf},
    {K::OrdnerAllUser, A::Löschen, -1, E::Weg},
    {K::Ordnermeister, A::Übernehmen, -1, E::FürImmer, L::List3},
    {K::Ordnermeister, A::Später, -1, E::FürDenLauf, L::List8},
    {K::AutostartRegistry, A::Übernehmen},
    {K::AutostartRegistry, A::Später, -1, E::FürDenLauf},
    {K::AutostartRegistry, A::Löschen, -1, E::Weg},
    {K::AutostartRegistry, A::Übernehmen, -1, E::FürImmer, L::ListView1},
    {K::WindowsDatei, A::Übernehmen},
    {K::WindowsDatei, A::Ausnahme},
    {K::WindowsDatei, A::Später, -1, E::FürDenLauf},
    {K::WindowsDatei, A::Löschen, -1, E::Weg},
    {K::WindowsDatei, A::NaGut},
    {K::WindowsDatei, A::Ausnahme, -1, E::FürImmer, L::List5},
    {K::BHO, A::Übernehmen},
    {K::BHO, A::Später, -1, E::FürDenLauf},
    {K::BHO, A::Löschen, -1, E::Weg},
    {K::BHO, A::Übernehmen, -1, E::FürImmer, L::ListView8},
    {K::ShellService, A::Übernehmen},
    {K::ShellService, A::Später, -1, E::FürDenLauf},
    {K::ShellService, A::Löschen, -1, E::Weg},
    {K::ShellService, A::Übernehmen, -1, E::FürImmer, L::ListView9},
    {K::TaskScheduler, A::Übernehmen},
    {K::TaskScheduler, A::Später, -1, E::FürDenLauf},
    {K::TaskScheduler, A::Löschen, -1, E::Weg},
    {K::TaskScheduler, A::Übernehmen, -1, E::FürImmer, L::ListView10},
    {K::URLSearchHooks, A::Übernehmen},
    {K::URLSearchHooks, A::Später, -1, E::FürDenLauf},
    {K::URLSearchHooks, A::Löschen, -1, E::Weg},
    {K::URLSearchHooks, A::Übernehmen, -1, E::FürImmer, L::List9},
    // Nothing stores an accepted ActiveX object: it holds for this run.
    {K::ActiveX, A::Übernehmen, -1, E::FürDenLauf},
    {K::ActiveX, A::Später, -1, E::FürDenLauf},
    {K::ActiveX, A::Löschen, -1, E::Weg},
    {K::ActiveX, A::Übernehmen, -1, E::FürDenLauf, L::List6},
    {K::Dienste, A::Übernehmen, 0},
    {K::Dienste, A::Übernehmen, 1},
    {K::Dienste, A::Später, -1, E::FürDenLauf},
    {K::Dienste, A::Löschen, -1, E::Weg},
    {K::Dienste, A::Übernehmen, 0, E::FürImmer, L::List10, 1},
    {K::Dienste, A::Übernehmen, 1, E::FürImmer, L::ListView11},
    {K::RegeditDeaktiviert, A::Original, -1, E::Weg},
    {K::TaskmanagerDeaktiviert, A::Original, -1, E::Weg},
    {K::HtaFile, A::Original},
    // The classes are watched through both of their keys, and each is deferred on its own:
    // the same change comes once more through the other key.
    {K::HtaFile, A::Später, -1, E::WarntWieder},
    {K::ToolBar, A::Übernehmen},
    {K::ToolBar, A::Später, -1, E::FürDenLauf},
    {K::ToolBar, A::Löschen, -1, E::Weg},
    {K::ToolBar, A::Übernehmen, -1, E::FürImmer, L::ListView12},
    {K::ToolBar1, A::Übernehmen},
    {K::ToolBar1, A::Löschen, -1, E::Weg},
    // No deferral for this key: the same warning comes at the next cycle.
    {K::ToolBar1, A::Später, -1, E::WarntWieder},
    {K::Winlogon, A::Übernehmen},
    {K::Winlogon, A::Später, -1, E::FürDenLauf},
    {K::Winlogon, A::Löschen, -1, E::Weg},
    {K::Winlogon, A::Übernehmen, -1, E::FürImmer, L::ListView14},
    // "Original" is for Shell and Userinit of the machine; for any other value it only
    // closes the window.
    {K::Winlogon, A::Original, -1, E::WarntWieder},
    {K::AppInitDLLs, A::Übernehmen},
    {K::AppInitDLLs, A::Später, -1, E::FürDenLauf},
    {K::AppInitDLLs, A::Löschen, -1, E::Weg},
    {K::AppInitDLLs, A::Übernehmen, -1, E::FürImmer, L::ListView15},
    {K::ImageFileExecution, A::Übernehmen},
    {K::ImageFileExecution, A::Später, -1, E::FürDenLauf},
    {K::ImageFileExecution, A::Löschen, -1, E::Weg},
    {K::ImageFileExecution, A::Übernehmen, -1, E::FürImmer, L::ListView16},
    {K::PoliciesRun, A::Übernehmen},
    {K::PoliciesRun, A::Später, -1, E::FürDenLauf},
    {K::PoliciesRun, A::Löschen, -1, E::Weg},
    {K::PoliciesRun, A::Übernehmen, -1, E::FürImmer, L::ListView17},
    {K::ActiveSetup, A::Übernehmen},
    {K::ActiveSetup, A::Später, -1, E::FürDenLauf},
    {K::ActiveSetup, A::Löschen, -1, E::Weg},
    {K::ActiveSetup, A::Übernehmen, -1, E::FürImmer, L::ListView18},
    {K::BootSicherheit, A::Übernehmen},
    {K::BootSicherheit, A::Später, -1, E::FürDenLauf},
    {K::BootSicherheit, A::Löschen, -1, E::Weg},
    {K::BootSicherheit, A::Übernehmen, -1, E::FürImmer, L::ListView19},
    {K::Winsock, A::Übernehmen},
    {K::Winsock, A::Später, -1, E::FürDenLauf},
    {K::Winsock, A::Löschen, -1, E::Weg},
    {K::Winsock, A::Übernehmen, -1, E::FürImmer, L::ListView20},
    {K::ShellErweiterungen, A::Übernehmen},
    {K::ShellErweiterungen, A::Später, -1, E::FürDenLauf},
    {K::ShellErweiterungen, A::Löschen, -1, E::Weg},
    {K::ShellErweiterungen, A::Übernehmen, -1, E::FürImmer, L::ListView21},
    {K::IEToolbar, A::Übernehmen},
    {K::IEToolbar, A::Später, -1, E::FürDenLauf},
    {K::IEToolbar, A::Löschen, -1, E::Weg},
    {K::IEToolbar, A::Übernehmen, -1, E::FürImmer, L::ListView22},
    {K::Browsereinstellungen, A::Übernehmen},
    {K::Browsereinstellungen, A::Später, -1, E::FürDenLauf},
    {K::Browsereinstellungen, A::Original, -1, E::Weg},
    {K::Browsereinstellungen, A::Übernehmen, -1, E::FürImmer, L::ListView24},
    {K::WeitereSperren, A::Übernehmen},
    {K::WeitereSperren, A::Später, -1, E::FürDenLauf},
    {K::WeitereSperren, A::Original, -1, E::Weg},
    {K::WeitereSperren, A::Übernehmen, -1, E::FürImmer, L::ListView25},
    {K::Dateitypen, A::Übernehmen},
    {K::Dateitypen, A::Später, -1, E::FürDenLauf},
    {K::Dateitypen, A::Original, -1, E::Weg},
    {K::Dateitypen, A::Übernehmen, -1, E::FürImmer, L::ListView26},
    {K::GeplanteAufgaben, A::Übernehmen},
    {K::GeplanteAufgaben, A::Später, -1, E::FürDenLauf},
    {K::GeplanteAufgaben, A::Löschen, -1, E::Weg},
    {K::GeplanteAufgaben, A::Übernehmen, -1, E::FürImmer, L::ListView23},
    {K::Dienstpfade, A::Übernehmen},
    {K::Dienstpfade, A::Später, -1, E::FürDenLauf},
    {K::Dienstpfade, A::Löschen, -1, E::Weg},
    {K::Dienstpfade, A::Übernehmen, -1, E::FürImmer, L::ListView27},
    // "Original" is for a service whose program changed; a new one it only closes.
    {K::Dienstpfade, A::Original, -1, E::WarntWieder},
};

TEST_P(AntwortTest, TheAnswerHoldsInTheNextCycles) {
    const Fall& fall = GetParam();
    const Szenario& s = Von(fall.kategorie);
    a().Timer1.SetEnabled(true);
    for (int b : s.boxen) a().Box1[b].setValue(1);
    if (fall.antwort == A::NaGut) {
        // A file of the baseline that has gone.
        fp.files.Put("C:\\WINDOWS\\alt.exe", "MZ");
        a().windowsDateien.LadeWindows();
        a().Box1[17].setValue(1);
        fp.files.Delete("C:\\WINDOWS\\alt.exe");
    } else {
        if (fall.kategorie == K::WindowsDatei) a().Box1[16].setValue(1);
        s.auslösen(*this);
    }
    Zyklus();
    ASSERT_TRUE(Gewarnt());
    // The second pass of the favourites sets its key even after the first one warned.
    if (IstFavorit(fall.kategorie))
        ASSERT_TRUE(IstFavorit(prg.Kategorieschlüssel));
    else
        ASSERT_EQ(prg.Kategorieschlüssel, Warnschlüssel(fall.kategorie));
    Antworten(fall);
    ASSERT_FALSE(Gewarnt()) << "the answer closes the window";
    prg.Aufräumen();

    if (fall.erwartet == E::WarntWieder) {
        Zyklus();
        EXPECT_TRUE(Gewarnt());
        return;
    }
    for (int i = 0; i < 10; ++i) {
        Zyklus();
        ASSERT_FALSE(Gewarnt()) << "cycle " << i + 1 << " after the answer";
    }
    if (fall.erwartet == E::Weg) {
        EXPECT_FALSE(s.da(*this));
    } else if (s.da && fall.antwort != A::NaGut) {
        EXPECT_TRUE(s.da(*this)) << "only a delete removes the thing";
    }

    if (fall.entfernen) {
        Ausnahmelisten panel(prg, prg.Alarm(), prg.Alarm());
        Markieren(*fall.entfernen);
        panel.MenüKlick(*fall.entfernen, fall.panelEintrag);
        Zyklus();
        EXPECT_TRUE(Gewarnt()) << "removed on the panel, the thing is unknown again";
        return;
    }
    // A new run: what lives in memory for this run is gone, the files are read back.
    a().List8.Items.clear();
    a().List2.Items.clear();
    if (s.laden) s.laden(*this);
    Zyklus();
    EXPECT_EQ(Gewarnt(), fall.erwartet == E::FürDenLauf) << "in a new run";
}

std::string Name(const ::testing::TestParamInfo<Fall>& info) {
    static const char* antworten[] = {"Accept", "Delete", "Defer", "Kill", "Except", "NaGut", "Original"};
    std::string n = KategorieName(info.param.kategorie);
    for (char& c : n)
        if (!std::isalnum(static_cast<unsigned char>(c))) c = '_';
    n += std::string("_") + antworten[static_cast<int>(info.param.antwort)];
    if (info.param.menü >= 0) n += std::to_string(info.param.menü);
    if (info.param.entfernen) n += "_PanelRemoval";
    return n + "_" + std::to_string(info.index);
}

INSTANTIATE_TEST_SUITE_P(Alle, AntwortTest, ::testing::ValuesIn(kFälle), Name);

// A new category key, a new button of the table or a new list of the panel must come with
// its rows above.
TEST(AntwortTabelle, CoversEveryKeyEveryActionOfItsRowAndEveryPanelList) {
    std::set<K> schlüssel;
    std::set<std::pair<K, A>> antworten;
    std::set<L> listen;
    for (const Fall& f : kFälle) {
        schlüssel.insert(f.kategorie);
        schlüssel.insert(Warnschlüssel(f.kategorie));
        antworten.insert({Warnschlüssel(f.kategorie), f.antwort});
        if (f.entfernen) listen.insert(*f.entfernen);
    }
    for (int i = 0; i < kKategorieAnzahl; ++i) {
        const K k = static_cast<K>(i);
        if (k == K::Keine) continue;  // never the key of a warning
        EXPECT_TRUE(schlüssel.count(k)) << KategorieName(k) << " has no row";
        // The pass keys of the favourites warn as "Favoriten", whose row is checked.
        if (k != Warnschlüssel(k) || k == K::Favorit1 || k == K::Favorit2) continue;
        const KategorieZeile& z = Zeile(k);
        const std::pair<bool, A> knöpfe[] = {
            {z.übernehmen != nullptr, A::Übernehmen}, {z.löschen != nullptr, A::Löschen},
            {z.später != nullptr, A::Später},         {z.töten != nullptr, A::Töten},
            {z.ausnahme != nullptr, A::Ausnahme},     {z.nagut != nullptr, A::NaGut},
            {z.original != nullptr, A::Original},
        };
        for (const auto& [gibt, antwort] : knöpfe)
            if (gibt) {
                EXPECT_TRUE(antworten.count({k, antwort})) << KategorieName(k) << " answer " << int(antwort);
            }
    }
    for (int i = 0; i < kAusnahmelistenAnzahl; ++i)
        EXPECT_TRUE(listen.count(static_cast<L>(i))) << "panel list " << i << " has no removal row";
}

}  // namespace
}  // namespace kes::test
