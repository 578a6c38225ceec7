// Every branch of the warning window that removes or overwrites: its backup is written
// before anything goes and puts back exactly what went, the journal names it, and a backup
// that cannot be written leaves the machine as it was. A category whose delete or "Original"
// branch is missing from the table fails the first test.
#include <functional>
#include <set>

#include "platform/journal.h"
#include "platform/reg_datei.h"
#include "platform/sicherung.h"
#include "programm_test_basis.h"
#include "warning/form3.h"
#include "warning/kategorien.h"

namespace kes::test {
namespace {

using K = Kategorie;

// A place the branch changes: a key with all below it, one value, or a file.
struct Ort {
    enum Art { Baum, Wert, Datei } art;
    std::string pfad;  // full key path or file path
    std::string name = "";  // the value's name
};

struct Zweig {
    const char* name;
    K kategorie;
    std::vector<Ort> orte;
    std::function<void(fake::FakePlattform&, Form3Fenster&)> einrichten;  // the machine and the window
    std::function<void(Form3Fenster&)> antworten;
    bool überschreibt = false;  // puts a known text in place of the found one
};

const std::string kBho = "HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Browser Helper Objects";
const std::string kSts = "HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\SharedTaskScheduler";
const std::string kSso = "HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\ShellServiceObjectDelayLoad";
const std::string kHooks = "HKEY_CURRENT_USER\\Software\\Microsoft\\Internet Explorer\\URLSearchHooks";
const std::string kZonen = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\ZoneMap\\Domains";
const std::string kPolicy = "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\System";
const std::string kHosts = "C:\\WINDOWS\\system32\\drivers\\etc\\hosts";

void Klasse(fake::FakePlattform& fp, const std::string& clsid) {
    fp.registry.SetString("HKEY_CLASSES_ROOT\\CLSID\\" + clsid, "", "Objekt");
    fp.registry.SetString("HKEY_CLASSES_ROOT\\CLSID\\" + clsid + "\\InprocServer32", "", "C:\\böse.dll");
    fp.registry.SetDword("HKEY_CLASSES_ROOT\\CLSID\\" + clsid + "\\InprocServer32", "Zahl", 7);
    fp.registry.MakeKey("HKEY_CLASSES_ROOT\\CLSID\\" + clsid + "\\Leer");
}

void Datei(fake::FakePlattform& fp, Form3Fenster& f, const std::string& pfad) {
    fp.files.Put(pfad, std::string("MZ\0\x90 Inhalt", 10));
    f.ListView2.Add(pfad.substr(pfad.rfind('\\') + 1));
    f.ListView2.Add(pfad);
}

auto Löschen = [](Form3Fenster& f) { f.Image_Click(3); };

// A warning of further registry places as its watcher fills the fields.
void OrtFelder(Form3Fenster& f, const std::string& key, const std::string& name, const std::string& daten,
               const char* art) {
    f.Text1[0].Text = "HKEY_LOCAL_MACHINE\\" + key;
    f.Text1[1].Text = "HKEY_LOCAL_MACHINE";
    f.Text1[2].Text = key;
    f.Text1[3].Text = name;
    f.Text1[4].Text = daten;
    f.Text1[5].Text = art;
}
const std::string kNt = "SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\";
const std::string kInternet = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Internet Settings";
const std::string kExplorerPolicies = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer";
const std::string kKatalog = "SYSTEM\\CurrentControlSet\\Services\\WinSock2\\Parameters\\Protocol_Catalog9\\Catalog_Entries";

// A place of a further watcher: one value written, the warning's fields filled.
Zweig OrtWert(const char* name, K k, const std::string& key, const std::string& wert) {
    return {name, k, {{Ort::Wert, "HKEY_LOCAL_MACHINE\\" + key, wert}},
            [=](auto& fp, Form3Fenster& f) {
                fp.registry.SetString("HKEY_LOCAL_MACHINE\\" + key, wert, "C:\\boese.exe");
                fp.registry.SetString("HKEY_LOCAL_MACHINE\\" + key, "Nachbar", "bleibt");
                OrtFelder(f, key, wert, "C:\\boese.exe", "Wert");
            },
            Löschen};
}
auto Original = [](Form3Fenster& f) { f.Image_Click(8); };

std::vector<Zweig> Zweige() {
    return {
        // A subkey goes with its values; the key beside it stays.
        {"Winlogon", K::Winlogon,
         {{Ort::Baum, "HKEY_LOCAL_MACHINE\\" + kNt + "Winlogon\\Notify"}},
         [](auto& fp, Form3Fenster& f) {
             fp.registry.SetString("HKEY_LOCAL_MACHINE\\" + kNt + "Winlogon\\Notify\\boese", "DllName", "b.dll");
             fp.registry.SetDword("HKEY_LOCAL_MACHINE\\" + kNt + "Winlogon\\Notify\\boese", "Asynchronous", 1);
             fp.registry.SetString("HKEY_LOCAL_MACHINE\\" + kNt + "Winlogon\\Notify\\gut", "DllName", "g.dll");
             OrtFelder(f, kNt + "Winlogon\\Notify\\boese", "DllName", "b.dll", "Schlüssel");
         },
         Löschen},
        OrtWert("AppInitDLLs", K::AppInitDLLs, kNt + "Windows", "AppInit_DLLs"),
        OrtWert("ImageFileExecution", K::ImageFileExecution, kNt + "Image File Execution Options\\x.exe", "Debugger"),
        OrtWert("PoliciesRun", K::PoliciesRun, "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer\\Run",
                "Boese"),
        OrtWert("ActiveSetup", K::ActiveSetup, "SOFTWARE\\Microsoft\\Active Setup\\Installed Components\\{A}",
                "StubPath"),
        OrtWert("ShellErweiterungen", K::ShellErweiterungen,
                "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\ShellExecuteHooks", "{E}"),
        OrtWert("IEToolbar", K::IEToolbar, "SOFTWARE\\Microsoft\\Internet Explorer\\Toolbar", "{T}"),
        // A catalog entry goes with its subkey; the entries beside it stay.
        {"Winsock", K::Winsock,
         {{Ort::Baum, "HKEY_LOCAL_MACHINE\\" + kKatalog}},
         [](auto& fp, Form3Fenster& f) {
             fp.registry.SetRaw("HKEY_LOCAL_MACHINE\\" + kKatalog + "\\000000000001", "PackedCatalogItem", kRegBinary,
                                std::string("C:\\gut.dll\0\1\2", 13));
             fp.registry.SetRaw("HKEY_LOCAL_MACHINE\\" + kKatalog + "\\000000000002", "PackedCatalogItem", kRegBinary,
                                std::string("C:\\boese.dll\0\1\2", 15));
             OrtFelder(f, kKatalog + "\\000000000002", "PackedCatalogItem", "C:\\boese.dll", "Katalog");
         },
         Löschen},
        // The proxy switch goes back to Windows' own 0; a lock is released; a file type gets
        // its class back.
        {"Browsereinstellungen", K::Browsereinstellungen,
         {{Ort::Wert, "HKEY_LOCAL_MACHINE\\" + kInternet, "ProxyEnable"}},
         [](auto& fp, Form3Fenster& f) {
             fp.registry.SetDword("HKEY_LOCAL_MACHINE\\" + kInternet, "ProxyEnable", 1);
             OrtFelder(f, kInternet, "ProxyEnable", "1", "Text");
         },
         Original, true},
        {"WeitereSperren", K::WeitereSperren,
         {{Ort::Wert, "HKEY_LOCAL_MACHINE\\" + kExplorerPolicies, "NoDrives"}},
         [](auto& fp, Form3Fenster& f) {
             fp.registry.SetDword("HKEY_LOCAL_MACHINE\\" + kExplorerPolicies, "NoDrives", 4);
             OrtFelder(f, kExplorerPolicies, "NoDrives", "4", "Sperre");
         },
         Original},
        {"Dateitypen", K::Dateitypen, {{Ort::Wert, "HKEY_CLASSES_ROOT\\.exe", ""}},
         [](auto& fp, Form3Fenster& f) {
             fp.registry.SetString("HKEY_CLASSES_ROOT\\.exe", "", "boesefile");
             OrtFelder(f, ".exe", "", "boesefile", "Text");
             f.Text1[0].Text = "HKEY_CLASSES_ROOT\\.exe";
             f.Text1[1].Text = "HKEY_CLASSES_ROOT";
         },
         Original, true},
        // A new service goes with its key; a changed one gets its known program back, with
        // the type it has.
        {"Dienstpfade", K::Dienstpfade, {{Ort::Baum, "HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Services\\Neu"}},
         [](auto& fp, Form3Fenster& f) {
             fp.registry.SetString("HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Services\\Neu", "ImagePath", "neu.exe");
             fp.registry.SetString("HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Services\\Neu\\Enum", "0", "x");
             OrtFelder(f, "SYSTEM\\CurrentControlSet\\Services\\Neu", "ImagePath", "neu.exe", "Schlüssel");
         },
         Löschen},
        {"Dienstpfade", K::Dienstpfade,
         {{Ort::Wert, "HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Services\\Alt", "ImagePath"}},
         [](auto& fp, Form3Fenster& f) {
             const std::string d = "SYSTEM\\CurrentControlSet\\Services\\Alt";
             fp.registry.SetRaw("HKEY_LOCAL_MACHINE\\" + d, "ImagePath", kRegExpandSz,
                                std::string("%TEMP%\\b.exe\0", 14));
             f.K().Alarm().dienstpfade.liste.Add("HKEY_LOCAL_MACHINE\\" + d + "\\ImagePath\\%SystemRoot%\\alt.exe");
             OrtFelder(f, d, "ImagePath", "%TEMP%\\b.exe", "Text");
         },
         Original, true},
        // One part of a multi-string goes; the value keeps the others.
        {"BootSicherheit", K::BootSicherheit,
         {{Ort::Wert, "HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control\\Lsa", "Notification Packages"}},
         [](auto& fp, Form3Fenster& f) {
             fp.registry.SetRaw("HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control\\Lsa", "Notification Packages",
                                kRegMultiSz, std::string("scecli\0boese\0\0", 14));
             OrtFelder(f, "SYSTEM\\CurrentControlSet\\Control\\Lsa", "Notification Packages", "boese", "Teil");
         },
         Löschen, true},
        {"AutostartRegistry", K::AutostartRegistry,
         {{Ort::Wert, "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Run", "Tool"}},
         [](auto& fp, Form3Fenster& f) {
             fp.registry.SetString("HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Run", "Tool",
                                   "\"C:\\tool.exe\" /q");
             f.Text1[1].Text = "HKEY_CURRENT_USER";
             f.Text1[2].Text = "Software\\Microsoft\\Windows\\CurrentVersion\\Run";
             f.Text1[3].Text = "Tool";
         },
         Löschen},
        // The task file alone; the task beside it stays.
        {"GeplanteAufgaben", K::GeplanteAufgaben,
         {{Ort::Datei, "C:\\WINDOWS\\system32\\Tasks\\Neu"}, {Ort::Datei, "C:\\WINDOWS\\system32\\Tasks\\Alt"}},
         [](auto& fp, Form3Fenster& f) {
             fp.files.Put("C:\\WINDOWS\\system32\\Tasks\\Neu", std::string("\xFF\xFE<\0T\0", 6));
             fp.files.Put("C:\\WINDOWS\\system32\\Tasks\\Alt", "<Task/>");
             f.Text1[0].Text = "C:\\WINDOWS\\system32\\Tasks\\Neu";
             f.Text1[1].Text = "C:\\boese.exe /x";
         },
         Löschen},
        {"AutostartOrdner", K::AutostartOrdner, {{Ort::Datei, "C:\\Start\\a.lnk"}},
         [](auto& fp, Form3Fenster& f) { Datei(fp, f, "C:\\Start\\a.lnk"); }, Löschen},
        {"WindowsDatei", K::WindowsDatei, {{Ort::Datei, "C:\\WINDOWS\\neu.exe"}},
         [](auto& fp, Form3Fenster& f) { Datei(fp, f, "C:\\WINDOWS\\neu.exe"); }, Löschen},
        {"ActiveX", K::ActiveX, {{Ort::Datei, "C:\\WINDOWS\\Downloaded Program Files\\x.ocx"}},
         [](auto& fp, Form3Fenster& f) { Datei(fp, f, "C:\\WINDOWS\\Downloaded Program Files\\x.ocx"); }, Löschen},
        {"Favorit1", K::Favorit1, {{Ort::Datei, "C:\\Fav\\x.url"}},
         [](auto& fp, Form3Fenster& f) {
             fp.files.Put("C:\\Fav\\x.url", "[InternetShortcut]\r\nURL=http://x/\r\n");
             f.Label1[1].Caption = "C:\\Fav\\";
             f.Label1[2].Caption = "x.url";
         },
         Löschen},
        {"Favorit2", K::Favorit2, {{Ort::Datei, "C:\\Fav\\y.url"}},
         [](auto& fp, Form3Fenster& f) {
             fp.files.Put("C:\\Fav\\y.url", "[InternetShortcut]\r\nURL=http://y/\r\n");
             f.Label1[1].Caption = "C:\\Fav";
             f.Label1[2].Caption = "y.url";
         },
         Löschen},
        {"Favoriten", K::Favoriten, {{Ort::Datei, "C:\\Links\\z.url"}},
         [](auto& fp, Form3Fenster& f) {
             fp.files.Put("C:\\Links\\z.url", "[InternetShortcut]\r\n");
             f.Label1[1].Caption = "C:\\Links\\";
             f.Label1[2].Caption = "z.url";
         },
         Löschen},
        {"BHO", K::BHO, {{Ort::Baum, "HKEY_CLASSES_ROOT\\CLSID\\{B}"}, {Ort::Wert, kBho, "{B}"}},
         [](auto& fp, Form3Fenster& f) {
             Klasse(fp, "{B}");
             fp.registry.SetString(kBho, "{B}", "");
             f.Text1[0].Text = "{B}";
         },
         Löschen},
        {"URLSearchHooks", K::URLSearchHooks, {{Ort::Baum, "HKEY_CLASSES_ROOT\\CLSID\\{U}"}, {Ort::Wert, kHooks, "{U}"}},
         [](auto& fp, Form3Fenster& f) {
             Klasse(fp, "{U}");
             fp.registry.SetString(kHooks, "{U}", "");
             f.Text1[0].Text = "{U}";
         },
         Löschen},
        {"TaskScheduler", K::TaskScheduler, {{Ort::Baum, "HKEY_CLASSES_ROOT\\CLSID\\{T}"}, {Ort::Wert, kSts, "{T}"}},
         [](auto& fp, Form3Fenster& f) {
             Klasse(fp, "{T}");
             fp.registry.SetString(kSts, "{T}", "Planer");
             f.Text1[0].Text = "{T}";
         },
         Löschen},
        {"ShellService", K::ShellService, {{Ort::Baum, "HKEY_CLASSES_ROOT\\CLSID\\{S}"}, {Ort::Wert, kSso, "Dienst"}},
         [](auto& fp, Form3Fenster& f) {
             Klasse(fp, "{S}");
             fp.registry.SetString(kSso, "Dienst", "{S}");
             f.Text1[0].Text = "Dienst";
             f.Text1[1].Text = "{S}";
         },
         Löschen},
        {"Dienste", K::Dienste, {{Ort::Baum, "HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Services\\Neu"}},
         [](auto& fp, Form3Fenster& f) {
             const std::string d = "HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Services\\Neu";
             fp.registry.SetDword(d, "Start", 2);
             fp.registry.SetRaw(d, "ImagePath", kRegExpandSz, std::string("%SystemRoot%\\neu.exe\0", 21));
             fp.registry.SetString(d + "\\Parameters", "x", "y");
             fp.dialogs.antworten.push_back(kIdYes);
             f.Text1[0].Text = "Neu";
         },
         Löschen},
        {"ToolBar", K::ToolBar, {{Ort::Baum, "HKEY_LOCAL_MACHINE\\" + kZonen + "\\x.de"}},
         [](auto& fp, Form3Fenster& f) {
             fp.registry.SetDword("HKEY_LOCAL_MACHINE\\" + kZonen + "\\x.de", "http", 2);
             fp.registry.SetDword("HKEY_LOCAL_MACHINE\\" + kZonen + "\\x.de\\www", "*", 2);
             f.Text1[0].Text = "x.de";
         },
         Löschen},
        {"ToolBar1", K::ToolBar1, {{Ort::Baum, "HKEY_CURRENT_USER\\" + kZonen + "\\x.de"}},
         [](auto& fp, Form3Fenster& f) {
             fp.registry.SetDword("HKEY_CURRENT_USER\\" + kZonen + "\\x.de", "http", 2);
             f.Text1[0].Text = "x.de";
         },
         Löschen},
        {"StartPage", K::StartPage,
         {{Ort::Wert, "HKEY_CURRENT_USER\\Software\\Microsoft\\Internet Explorer\\Main", "Start Page"}},
         [](auto& fp, Form3Fenster& f) {
             fp.registry.SetString("HKEY_CURRENT_USER\\Software\\Microsoft\\Internet Explorer\\Main", "Start Page",
                                   "http://böse.example/");
             f.Text1[0].Text = "HKEY_CURRENT_USER";
             f.Text1[1].Text = "Software\\Microsoft\\Internet Explorer\\Main";
             f.Text1[2].Text = "Start Page";
             f.Text1[5].Text = "3";
             f.K().W().StartSeiten[3] = "about:blank";
         },
         Original, true},
        {"HtaFile", K::HtaFile, {{Ort::Wert, "HKEY_CLASSES_ROOT\\htafile\\Shell\\Open\\Command", ""}},
         [](auto& fp, Form3Fenster& f) {
             fp.registry.SetString("HKEY_CLASSES_ROOT\\htafile\\Shell\\Open\\Command", "", "C:\\böse.exe %1");
             f.Text1[0].Text = "HKEY_CLASSES_ROOT";
             f.Text1[1].Text = "htafile\\Shell\\Open\\Command";
             f.Text1[2].Text = "C:\\WINDOWS\\system32\\mshta.exe \"%1\" %*";
         },
         Original, true},
        {"RegeditDeaktiviert", K::RegeditDeaktiviert, {{Ort::Wert, kPolicy, "DisableRegistryTools"}},
         [](auto& fp, Form3Fenster&) { fp.registry.SetDword(kPolicy, "DisableRegistryTools", 1); }, Original},
        {"TaskmanagerDeaktiviert", K::TaskmanagerDeaktiviert, {{Ort::Wert, kPolicy, "DisableTaskMgr"}},
         [](auto& fp, Form3Fenster&) { fp.registry.SetDword(kPolicy, "DisableTaskMgr", 1); }, Original},
        {"HostsDatei", K::HostsDatei, {{Ort::Datei, kHosts}},
         [](auto& fp, Form3Fenster&) { fp.files.Put(kHosts, "127.0.0.1 localhost\r\n1.2.3.4 bank.example\r\n"); },
         [](Form3Fenster& f) { f.host1_Click(0); }, true},
    };
}

// Branches that remove nothing a backup could hold: a phone-book entry is no registry data
// or file of the seam's, and the hosts file's "Original" only opens the menu tested above.
const std::set<K> kOhneSicherung = {K::DFÜ};

class Sicherungen : public WarnungsTest, public ::testing::WithParamInterface<Zweig> {
protected:
    std::string Zustand(const std::vector<Ort>& orte) {
        std::string z;
        for (const Ort& o : orte) {
            if (o.art == Ort::Datei) {
                z += o.pfad + "=" + (fp.files.Exists(o.pfad) ? fp.files.Content(o.pfad) : "<fehlt>") + "\n";
                continue;
            }
            const auto teile = RegPfadTeilen(o.pfad);
            z += RegDateiText(o.art == Ort::Baum ? RegBaumLesen(fp.registry, teile->first, teile->second)
                                                 : RegWertLesen(fp.registry, teile->first, teile->second, o.name));
        }
        return z;
    }
    Form3Fenster& Bereit(const Zweig& zw) {
        prg.AnzeigeLöschen = true;  // no question window
        Form3Fenster& f = Warnung(zw.kategorie);
        zw.einrichten(fp, f);
        return f;
    }
};

TEST(SicherungenTabelle, EveryBranchThatRemovesOrOverwritesIsInTheTable) {
    std::set<K> inTabelle;
    for (const Zweig& z : Zweige()) inTabelle.insert(z.kategorie);
    for (int i = 0; i < kKategorieAnzahl; ++i) {
        const K k = static_cast<K>(i);
        const KategorieZeile& z = Zeile(k);
        const bool ändert = z.löschen || (z.original && k != K::HostsDatei);
        if (ändert && !kOhneSicherung.count(k)) {
            EXPECT_TRUE(inTabelle.count(k)) << KategorieName(k) << " removes or overwrites without a row here";
        }
    }
}

TEST_P(Sicherungen, TheBackupComesFirstAndPutsBackExactlyWhatWent) {
    const Zweig& zw = GetParam();
    Form3Fenster& f = Bereit(zw);
    const std::string vorher = Zustand(zw.orte);
    zw.antworten(f);
    ASSERT_NE(Zustand(zw.orte), vorher) << "the branch changed nothing";
    EXPECT_FALSE(prg.Form3Geladen());

    const auto journal = Journal(fp.files, fp.system, ordner).Lesen();
    ASSERT_FALSE(journal.einträge.empty());
    const JournalEintrag& antwort = journal.einträge.back();
    EXPECT_EQ(antwort.ereignis, "answer");
    EXPECT_EQ(antwort.kategorie, zw.name);
    ASSERT_FALSE(antwort.sicherung.empty());
    EXPECT_EQ(Wiederherstellen(fp.plattform, ordner, antwort.sicherung, antwort.ziel, zw.überschreibt), "");
    EXPECT_EQ(Zustand(zw.orte), vorher);
}

TEST_P(Sicherungen, ABackupThatCannotBeWrittenRemovesNothing) {
    const Zweig& zw = GetParam();
    Form3Fenster& f = Bereit(zw);
    fp.files.Put(ordner + "daten\\Sicherung", "eine Datei, wo der Ordner sein soll");
    const std::string vorher = Zustand(zw.orte);
    zw.antworten(f);
    EXPECT_EQ(Zustand(zw.orte), vorher);
    int gesagt = 0;
    for (const auto& m : fp.dialogs.meldungen) gesagt += m.text.find("Sicherung konnte nicht geschrieben werden") != std::string::npos;
    EXPECT_EQ(gesagt, 1);
    EXPECT_TRUE(prg.Form3Geladen()) << "the window stays for another answer";
    for (const JournalEintrag& e : Journal(fp.files, fp.system, ordner).Lesen().einträge)
        EXPECT_NE(e.ereignis, "answer") << "no answer was carried out";
}

INSTANTIATE_TEST_SUITE_P(Zweige, Sicherungen, ::testing::ValuesIn(Zweige()),
                         [](const auto& info) { return std::string(info.param.name) + std::to_string(info.index); });

}  // namespace
}  // namespace kes::test
