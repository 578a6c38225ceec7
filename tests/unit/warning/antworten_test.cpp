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
using Tun = std::function<void(AntwortTest&)>;
using Frage = std::function<bool(AntwortTest&)>;

// How a category's warning comes about on the fakes.
struct Szenario {
    int box;       // the row of the cycle that must run
    Tun auslösen;  // makes the new or changed thing
    Tun laden;     // reads the lists back as a new start does; may be empty
    Frage da;      // the thing still exists
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
        fake::FakeProzess& p = fp.processes.prozesse.emplace_back();
        p.name = name;
        p.pid = pid;
        p.pfad = pfad;
        fp.files.Put(pfad, "MZ");
        fp.details.SetVersion(pfad, {.übersetzungen = {{.texte = {{"CompanyName", "Fremdfirma"}}}}});
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
        for (const std::string& o :
             {kAutostart, kAlleAutostart, kFavoriten + "\\Links", std::string("C:\\WINDOWS\\Downloaded Program Files")})
            fp.files.MakeDirs(o);
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
        using F = Form3Fenster;
        static constexpr void (F::*kKnopf[])() = {&F::Image1_Click, &F::Image3_Click, &F::Image6_Click,
                                                  &F::Image2_Click, &F::Image4_Click, &F::Image5_Click,
                                                  &F::Image8_Click};
        Form3Fenster& f = prg.Form3();
        if (fall.antwort == Antwort::Löschen) fp.dialogs.antworten = {kIdYes};  // the services branch asks
        (f.*kKnopf[static_cast<int>(fall.antwort)])();
        // Accept and "Original" may open a menu for the rest.
        if (f.Popup.Menü == "killprozess") f.killprozess1_Click(fall.menü);
        if (f.Popup.Menü == "dienst") f.dienst1_Click(fall.menü);
        if (f.Popup.Menü == "host") f.host1_Click(fall.menü);
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
    // Builders of the steps: a string value (after the class it names, if any), a DWORD, a
    // file, two steps in turn; and the questions whether a value, a key or a file is there.
    static const auto setze = [](const std::string& key, const std::string& name, const std::string& daten,
                                 const std::string& server = "") -> Tun {
        return [=](T& t) {
            if (!server.empty()) t.fp.registry.SetString(kKlassen + server + "\\InprocServer32", "", "C:\\boese.dll");
            t.fp.registry.SetString(key, name, daten);
        };
    };
    static const auto dword = [](const std::string& key, const std::string& name, std::uint32_t zahl) -> Tun {
        return [=](T& t) { t.fp.registry.SetDword(key, name, zahl); };
    };
    static const auto lege = [](const std::string& pfad, const std::string& inhalt) -> Tun {
        return [=](T& t) { t.fp.files.Put(pfad, inhalt); };
    };
    static const auto und = [](Tun a, Tun b) -> Tun {
        return [=](T& t) {
            a(t);
            b(t);
        };
    };
    static const auto wert = [](const std::string& key, const std::string& name) -> Frage {
        return [=](T& t) { return t.Wert(key, name); };
    };
    static const auto schlüssel = [](int hive, const std::string& key) -> Frage {
        return [=](T& t) {
            return t.Schlüssel(hive, (hive == 2 && key.starts_with(kHklm)) ? key.substr(kHklm.size()) : key);
        };
    };
    static const auto gibt = [](const std::string& pfad) -> Frage {
        return [=](T& t) { return t.fp.files.Exists(pfad); };
    };
    static const auto datei = [](int box, const std::string& pfad, const std::string& inhalt, Tun laden) {
        return Szenario{box, lege(pfad, inhalt), laden, gibt(pfad)};
    };
    // A class named in a list: the class's server is there while its key is.
    static const auto klasse = [](int box, Tun eintrag, const std::string& clsid, const std::string& dll, Tun laden) {
        return Szenario{box, und(eintrag, [=](T& t) { t.Klasse(clsid, dll); }), laden,
                        schlüssel(0, "CLSID\\" + clsid + "\\InprocServer32")};
    };
    // The first pass takes the machine as its baseline; the entry comes after it.
    static const auto ort = [](int box, RegistryOrte AlarmDaten::*w, Tun eintrag, Frage da) {
        return Szenario{box, und([=](T& t) { (t.a().*w).Teste(); }, eintrag), [=](T& t) { (t.a().*w).Laden(); }, da};
    };
    static const auto nurWert = [](int box, RegistryOrte AlarmDaten::*w, const std::string& key,
                                   const std::string& name, const std::string& daten) {
        return ort(box, w, setze(key, name, daten), wert(key, name));
    };
    static const Tun kFavoritenLaden = [](T& t) { t.a().favoriten.LadeFavoriten(); };
    static const Tun kAutostartLaden = [](T& t) { t.a().autostartOrdner.LadeAutostart(); };
    static const Tun kToolbarLaden = [](T& t) { t.a().vertrauenswürdigeSeiten.LadeToolbar(); };
    using AD = AlarmDaten;
    const std::string kBoese = "C:\\boese.exe", kUrl = "[InternetShortcut]", kNeu = kSvc + "Neu";
    const std::string kBoot = kHklm + kSessionManager, kOcx = "C:\\WINDOWS\\Downloaded Program Files\\neu.ocx";
    // clang-format off
    static const std::map<K, Szenario> kSzenarien = {
        {K::Winsock, ort(39, &AD::winsock, setze(kNamensraum, "LibraryPath", "C:\\boese.dll"),
                         schlüssel(2, kNamensraum))},
        {K::ShellErweiterungen, ort(40, &AD::shellErweiterungen, setze(kOverlay, "", "{B0}", "{B0}"),
                                    schlüssel(2, kOverlay))},
        {K::IEToolbar, ort(41, &AD::ieToolbar, setze(kToolbar, "{B1}", "", "{B1}"), wert(kToolbar, "{B1}"))},
        // Put back, released or repaired, the entry is gone: "Original" leaves no changed value.
        {K::Browsereinstellungen, nurWert(43, &AD::browsereinstellungen, kMainCu, "Window Title", "Gekapert")},
        {K::WeitereSperren, ort(44, &AD::weitereSperren, dword(kPoliciesExplorer, "NoRun", 1),
                                wert(kPoliciesExplorer, "NoRun"))},
        {K::Dateitypen, ort(45, &AD::dateitypen, setze("HKEY_CLASSES_ROOT\\.exe", "", "boesefile"),
                            [](T& t) { return HiveOCX(t.fp.registry).ReadValue(0, ".exe", "") == "boesefile"; })},
        // A new service on demand: its key goes with it.
        {K::Dienstpfade, ort(46, &AD::dienstpfade,
                             und(setze(kSvc + "Boese", "ImagePath", kBoese), dword(kSvc + "Boese", "Start", 3)),
                             schlüssel(2, kSvc + "Boese"))},
        {K::Winlogon, nurWert(33, &AD::winlogon, kWinlogon, "Taskman", kBoese)},
        {K::AppInitDLLs, nurWert(34, &AD::appInit, kAppInit, "AppInit_DLLs", "C:\\boese.dll")},
        {K::ImageFileExecution, nurWert(35, &AD::imageFileExecution, kIfeo + "\\notepad.exe", "Debugger", kBoese)},
        {K::PoliciesRun, nurWert(36, &AD::policiesRun, kPoliciesRun, "Boese", kBoese)},
        {K::ActiveSetup, nurWert(37, &AD::activeSetup, kActiveSetup, "StubPath", kBoese)},
        // One part more in a multi-string: the delete takes that part and keeps the other. A
        // delete that took the other part too has not removed just the one.
        {K::BootSicherheit, {38,
            [=](T& t) {
                t.fp.registry.SetRaw(kBoot, "BootExecute", kRegMultiSz, std::string("autocheck autochk *\0\0", 21));
                t.a().bootSicherheit.Teste();
                t.fp.registry.SetRaw(kBoot, "BootExecute", kRegMultiSz,
                                     std::string("autocheck autochk *\0boese\0\0", 27));
            },
            [](T& t) { t.a().bootSicherheit.Laden(); },
            [](T& t) {
                const auto teile = MehrfachLesen(t.fp.registry, kHkeyLocalMachine, kSessionManager, "BootExecute")
                                       .value_or(std::vector<std::string>{});
                return teile.size() != 1 || teile.front() != "autocheck autochk *";
            }}},
        // The first pass takes the tasks as they stand; the task comes after it.
        {K::GeplanteAufgaben, {42, und([](T& t) { t.a().geplanteAufgaben.Teste(); },
                                       lege(kAufgabe, "<Task><Actions><Exec><Command>C:\\boese.exe</Command>"
                                                      "</Exec></Actions></Task>")),
                               [](T& t) { t.a().geplanteAufgaben.Laden(); }, gibt(kAufgabe)}},
        {K::Prozesse, {4, [](T& t) { t.Prozess("neu.exe", 4711, "C:\\Neu\\neu.exe"); },
                       [](T& t) { t.a().prozesse.LadeProzesse(); t.a().prozesse.LadeProzessFirmen(); },
                       [](T& t) { return t.fp.processes.beendet.empty(); }}},
        {K::HostsDatei, {15, [](T& t) { t.fp.files.Put(t.hostsPfad, "abcd"); }, nullptr,
                         [](T& t) { return t.fp.files.Content(t.hostsPfad) == "abcd"; }}},
        {K::Favorit1, datei(5, kFavoriten + "\\Neu.url", kUrl, kFavoritenLaden)},
        {K::Favorit2, datei(5, kFavoriten + "\\Links\\Neu.url", kUrl, kFavoritenLaden)},
        {K::StartPage, {8, und([](T& t) { t.prg.StartSeiten[1] = "http://start.example/"; },
                               setze(kMainCu, "Start Page", "http://fremd.example/")), nullptr, nullptr}},
        {K::DFÜ, {10, [](T& t) { t.fp.dialup.einträge.push_back({"Anbieter", DfuEintrag{49, "", "0190123"}}); },
                  [](T& t) { t.a().dfü.LadeDFÜ(); }, [](T& t) { return !t.fp.dialup.einträge.empty(); }}},
        {K::Ordnermeister, datei(11, kAutostart + "\\Tool.lnk", "L", kAutostartLaden)},
        {K::OrdnerAllUser, datei(11, kAlleAutostart + "\\Tool.lnk", "L", kAutostartLaden)},
        {K::AutostartRegistry, {13, und(lege("C:\\Tool\\tool.exe", "MZ"),
                                        setze(kRun, "Tool", "C:\\Tool\\tool.exe /min")),
                                [](T& t) { t.a().autostartRegistry.LadeAutostartregistry(); }, wert(kRun, "Tool")}},
        {K::WindowsDatei, datei(19, "C:\\WINDOWS\\neu.exe", "MZ",
                                [](T& t) { t.a().windowsDateien.LadeWindowsausnahme(); })},
        {K::BHO, klasse(21, setze(kHklm + kBho + "\\{B1}", "", "Helfer"), "{B1}", "C:\\Neu\\bho.dll",
                        [](T& t) { t.a().klassenlisten.LadeBHO(); })},
        {K::ShellService, klasse(23, setze(kHklm + kSsodl, "Brenner", "{S1}"), "{S1}", "C:\\Neu\\sso.dll",
                                 [](T& t) { t.a().klassenlisten.LadeShellService(); })},
        {K::TaskScheduler, klasse(24, setze(kHklm + kSts, "{T1}", "Planer"), "{T1}", "C:\\Neu\\sts.dll",
                                  [](T& t) { t.a().klassenlisten.LadeSharedTaskScheduler(); })},
        {K::URLSearchHooks, klasse(27, setze(kHooks, "{U1}", ""), "{U1}", "C:\\Neu\\hook.dll",
                                   [](T& t) { t.a().klassenlisten.LadeURLSearchHook(); })},
        {K::ActiveX, datei(22, kOcx, "MZ", [](T& t) { t.a().activeX.LadeActiveX(); })},
        {K::Dienste, {28, und(dword(kNeu, "Start", 2), setze(kNeu, "ImagePath", "C:\\Neu\\dienst.exe")),
                      [](T& t) { t.a().dienste.LadeDienste(); t.a().dienste.LadeDiensteHersteller(); },
                      schlüssel(2, kNeu)}},
        {K::RegeditDeaktiviert, {25, dword(kPolicies, "DisableRegistryTools", 1), nullptr,
                                 wert(kPolicies, "DisableRegistryTools")}},
        {K::TaskmanagerDeaktiviert, {26, dword(kPolicies, "DisableTaskMgr", 1), nullptr,
                                     wert(kPolicies, "DisableTaskMgr")}},
        {K::HtaFile, {30, [](T& t) { t.Befehl("exefile", "fremd.exe %1"); }, nullptr, nullptr}},
        {K::ToolBar, {29, dword(kHklm + kDomains + "fremd.example", "http", 2), kToolbarLaden,
                      schlüssel(2, kDomains + "fremd.example")}},
        {K::ToolBar1, {29, dword("HKEY_CURRENT_USER\\" + kDomains + "fremd.example", "http", 2), kToolbarLaden,
                       schlüssel(1, kDomains + "fremd.example")}},
    };
    // clang-format on
    return kSzenarien.at(k);
}

using A = Antwort;
using E = Erwartet;

const std::vector<Fall> kFälle = [] {
    std::vector<Fall> v = {
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
        {K::StartPage, A::Übernehmen},
        {K::StartPage, A::Original},
        {K::StartPage, A::Später, -1, E::FürDenLauf},
        {K::DFÜ, A::Übernehmen, -1, E::FürImmer, L::ListView2, 1},
        {K::Ordnermeister, A::Später, -1, E::FürDenLauf, L::List8},
        {K::WindowsDatei, A::Ausnahme},
        {K::WindowsDatei, A::NaGut},
        {K::WindowsDatei, A::Ausnahme, -1, E::FürImmer, L::List5},
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
        // No deferral for this key: the same warning comes at the next cycle.
        {K::ToolBar1, A::Später, -1, E::WarntWieder},
        {K::ToolBar1, A::Übernehmen},
        {K::ToolBar1, A::Löschen, -1, E::Weg},
        // "Original" is for Shell and Userinit of the machine; for any other value it only
        // closes the window.
        {K::Winlogon, A::Original, -1, E::WarntWieder},
        // "Original" is for a service whose program changed; a new one it only closes.
        {K::Dienstpfade, A::Original, -1, E::WarntWieder},
    };
    // The rows most keys have: accepted for good, deferred for the run, deleted (or put
    // back), and accepted then removed on the panel's list.
    // clang-format off
    const std::pair<K, std::optional<L>> kRegel[] = {
        {K::Favorit1, L::List4},          {K::Favorit2, {}},
        {K::DFÜ, {}},                     {K::Ordnermeister, L::List3},
        {K::OrdnerAllUser, {}},           {K::AutostartRegistry, L::ListView1},
        {K::WindowsDatei, {}},            {K::BHO, L::ListView8},
        {K::ShellService, L::ListView9},  {K::TaskScheduler, L::ListView10},
        {K::URLSearchHooks, L::List9},    {K::ToolBar, L::ListView12},
        {K::Winlogon, L::ListView14},     {K::AppInitDLLs, L::ListView15},
        {K::ImageFileExecution, L::ListView16}, {K::PoliciesRun, L::ListView17},
        {K::ActiveSetup, L::ListView18},  {K::BootSicherheit, L::ListView19},
        {K::Winsock, L::ListView20},      {K::ShellErweiterungen, L::ListView21},
        {K::IEToolbar, L::ListView22},    {K::GeplanteAufgaben, L::ListView23},
        {K::Dienstpfade, L::ListView27},  {K::Browsereinstellungen, L::ListView24},
        {K::WeitereSperren, L::ListView25}, {K::Dateitypen, L::ListView26},
    };
    // clang-format on
    for (const auto& [k, liste] : kRegel) {
        const bool zurück = k == K::Browsereinstellungen || k == K::WeitereSperren || k == K::Dateitypen;
        v.push_back({k, A::Übernehmen});
        v.push_back({k, A::Später, -1, E::FürDenLauf});
        v.push_back({k, zurück ? A::Original : A::Löschen, -1, E::Weg});
        if (liste) v.push_back({k, A::Übernehmen, -1, E::FürImmer, liste});
    }
    return v;
}();

TEST_P(AntwortTest, TheAnswerHoldsInTheNextCycles) {
    const Fall& fall = GetParam();
    const Szenario& s = Von(fall.kategorie);
    a().Timer1.SetEnabled(true);
    a().Box1[s.box].setValue(1);
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
