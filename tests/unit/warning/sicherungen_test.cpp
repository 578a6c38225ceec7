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
using FP = fake::FakePlattform;
using F3 = Form3Fenster;

struct Zweig {
    const char* name;
    K kategorie;
    std::vector<Ort> orte;
    std::function<void(FP&, F3&)> einrichten;  // the machine and the window
    int knopf = 3;  // 3 delete, 8 "Original"; 0 the hosts file's first menu entry
    bool überschreibt = false;  // puts a known text in place of the found one
};

const std::string kHklm = "HKEY_LOCAL_MACHINE\\";
const std::string kBho = kHklm + "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Browser Helper Objects";
const std::string kSts = kHklm + "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\SharedTaskScheduler";
const std::string kSso = kHklm + "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\ShellServiceObjectDelayLoad";
const std::string kHooks = "HKEY_CURRENT_USER\\Software\\Microsoft\\Internet Explorer\\URLSearchHooks";
const std::string kZonen = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\ZoneMap\\Domains\\x.de";
const std::string kPolicy = "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\System";
const std::string kHosts = "C:\\WINDOWS\\system32\\drivers\\etc\\hosts";
const std::string kNt = "SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\";
const std::string kInternet = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Internet Settings";
const std::string kExplorerPolicies = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer";
const std::string kKatalog =
    "SYSTEM\\CurrentControlSet\\Services\\WinSock2\\Parameters\\Protocol_Catalog9\\Catalog_Entries";
const std::string kDienste = "SYSTEM\\CurrentControlSet\\Services\\";
const std::string kLsa = "SYSTEM\\CurrentControlSet\\Control\\Lsa";
const std::string kRun = "Software\\Microsoft\\Windows\\CurrentVersion\\Run";
const std::string kMain = "Software\\Microsoft\\Internet Explorer\\Main";
const std::string kHta = "htafile\\Shell\\Open\\Command";
const std::string kAufgaben = "C:\\WINDOWS\\system32\\Tasks\\";

void Texte(F3& f, const std::vector<std::string>& texte) {
    for (std::size_t i = 0; i < texte.size(); ++i) f.Text1[i].Text = texte[i];
}
// A warning of further registry places as its watcher fills the fields.
void OrtFelder(F3& f, const std::string& key, const std::string& name, const std::string& daten, const char* art) {
    Texte(f, {kHklm + key, "HKEY_LOCAL_MACHINE", key, name, daten, art});
}

// A place of a further watcher: one value written beside another, the warning's fields filled.
Zweig OrtWert(const char* name, K k, const std::string& key, const std::string& wert) {
    return {name, k, {{Ort::Wert, kHklm + key, wert}}, [=](FP& fp, F3& f) {
                fp.registry.SetString(kHklm + key, wert, "C:\\boese.exe");
                fp.registry.SetString(kHklm + key, "Nachbar", "bleibt");
                OrtFelder(f, key, wert, "C:\\boese.exe", "Wert");
            }};
}
// A file the warning names in the second row of its file table.
Zweig Datei(const char* name, K k, const std::string& pfad) {
    return {name, k, {{Ort::Datei, pfad}}, [=](FP& fp, F3& f) {
                fp.files.Put(pfad, std::string("MZ\0\x90 Inhalt", 10));
                f.ListView2.Add(pfad.substr(pfad.rfind('\\') + 1));
                f.ListView2.Add(pfad);
            }};
}
// The folder comes with or without its closing backslash.
Zweig Favorit(const char* name, K k, const std::string& ordner, const std::string& datei, const std::string& inhalt) {
    const std::string pfad = ordner.back() == '\\' ? ordner + datei : ordner + "\\" + datei;
    return {name, k, {{Ort::Datei, pfad}}, [=](FP& fp, F3& f) {
                fp.files.Put(pfad, inhalt);
                f.Label1[1].Caption = ordner;
                f.Label1[2].Caption = datei;
            }};
}
// A class named in a list key: the class's key goes with all below it, and the list's value.
Zweig Klasse(const char* name, K k, const std::string& clsid, const std::string& liste, const std::string& wert,
             const std::string& daten, const std::vector<std::string>& texte) {
    const std::string c = "HKEY_CLASSES_ROOT\\CLSID\\" + clsid;
    return {name, k, {{Ort::Baum, c}, {Ort::Wert, liste, wert}}, [=](FP& fp, F3& f) {
                fp.registry.SetString(c, "", "Objekt");
                fp.registry.SetString(c + "\\InprocServer32", "", "C:\\böse.dll");
                fp.registry.SetDword(c + "\\InprocServer32", "Zahl", 7);
                fp.registry.MakeKey(c + "\\Leer");
                fp.registry.SetString(liste, wert, daten);
                Texte(f, texte);
            }};
}
// A DWORD the branch deletes or, with "Original", puts back or releases.
Zweig Dword(const char* name, K k, const std::string& key, const std::string& wert, std::uint32_t zahl, int knopf,
            bool überschreibt, const std::vector<std::string>& texte = {}) {
    return {name, k, {{Ort::Wert, key, wert}}, [=](FP& fp, F3& f) {
                fp.registry.SetDword(key, wert, zahl);
                Texte(f, texte);
            }, knopf, überschreibt};
}

std::vector<Zweig> Zweige() {
    return {
        // A subkey goes with its values; the key beside it stays.
        {"Winlogon", K::Winlogon, {{Ort::Baum, kHklm + kNt + "Winlogon\\Notify"}}, [](FP& fp, F3& f) {
             fp.registry.SetString(kHklm + kNt + "Winlogon\\Notify\\boese", "DllName", "b.dll");
             fp.registry.SetDword(kHklm + kNt + "Winlogon\\Notify\\boese", "Asynchronous", 1);
             fp.registry.SetString(kHklm + kNt + "Winlogon\\Notify\\gut", "DllName", "g.dll");
             OrtFelder(f, kNt + "Winlogon\\Notify\\boese", "DllName", "b.dll", "Schlüssel");
         }},
        OrtWert("AppInitDLLs", K::AppInitDLLs, kNt + "Windows", "AppInit_DLLs"),
        OrtWert("ImageFileExecution", K::ImageFileExecution, kNt + "Image File Execution Options\\x.exe", "Debugger"),
        OrtWert("PoliciesRun", K::PoliciesRun, kExplorerPolicies + "\\Run", "Boese"),
        OrtWert("ActiveSetup", K::ActiveSetup, "SOFTWARE\\Microsoft\\Active Setup\\Installed Components\\{A}",
                "StubPath"),
        OrtWert("ShellErweiterungen", K::ShellErweiterungen,
                "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\ShellExecuteHooks", "{E}"),
        OrtWert("IEToolbar", K::IEToolbar, "SOFTWARE\\Microsoft\\Internet Explorer\\Toolbar", "{T}"),
        // A catalog entry goes with its subkey; the entries beside it stay.
        {"Winsock", K::Winsock, {{Ort::Baum, kHklm + kKatalog}}, [](FP& fp, F3& f) {
             fp.registry.SetRaw(kHklm + kKatalog + "\\000000000001", "PackedCatalogItem", kRegBinary,
                                std::string("C:\\gut.dll\0\1\2", 13));
             fp.registry.SetRaw(kHklm + kKatalog + "\\000000000002", "PackedCatalogItem", kRegBinary,
                                std::string("C:\\boese.dll\0\1\2", 15));
             OrtFelder(f, kKatalog + "\\000000000002", "PackedCatalogItem", "C:\\boese.dll", "Katalog");
         }},
        // The proxy switch goes back to Windows' own 0; a lock is released; a file type gets
        // its class back.
        Dword("Browsereinstellungen", K::Browsereinstellungen, kHklm + kInternet, "ProxyEnable", 1, 8, true,
              {kHklm + kInternet, "HKEY_LOCAL_MACHINE", kInternet, "ProxyEnable", "1", "Text"}),
        Dword("WeitereSperren", K::WeitereSperren, kHklm + kExplorerPolicies, "NoDrives", 4, 8, false,
              {kHklm + kExplorerPolicies, "HKEY_LOCAL_MACHINE", kExplorerPolicies, "NoDrives", "4", "Sperre"}),
        {"Dateitypen", K::Dateitypen, {{Ort::Wert, "HKEY_CLASSES_ROOT\\.exe", ""}}, [](FP& fp, F3& f) {
             fp.registry.SetString("HKEY_CLASSES_ROOT\\.exe", "", "boesefile");
             Texte(f, {"HKEY_CLASSES_ROOT\\.exe", "HKEY_CLASSES_ROOT", ".exe", "", "boesefile", "Text"});
         }, 8, true},
        // A new service goes with its key; a changed one gets its known program back, with
        // the type it has.
        {"Dienstpfade", K::Dienstpfade, {{Ort::Baum, kHklm + kDienste + "Neu"}}, [](FP& fp, F3& f) {
             fp.registry.SetString(kHklm + kDienste + "Neu", "ImagePath", "neu.exe");
             fp.registry.SetString(kHklm + kDienste + "Neu\\Enum", "0", "x");
             OrtFelder(f, kDienste + "Neu", "ImagePath", "neu.exe", "Schlüssel");
         }},
        {"Dienstpfade", K::Dienstpfade, {{Ort::Wert, kHklm + kDienste + "Alt", "ImagePath"}}, [](FP& fp, F3& f) {
             fp.registry.SetRaw(kHklm + kDienste + "Alt", "ImagePath", kRegExpandSz,
                                std::string("%TEMP%\\b.exe\0", 14));
             f.K().Alarm().dienstpfade.liste.Add(kHklm + kDienste + "Alt\\ImagePath\\%SystemRoot%\\alt.exe");
             OrtFelder(f, kDienste + "Alt", "ImagePath", "%TEMP%\\b.exe", "Text");
         }, 8, true},
        // One part of a multi-string goes; the value keeps the others.
        {"BootSicherheit", K::BootSicherheit, {{Ort::Wert, kHklm + kLsa, "Notification Packages"}}, [](FP& fp, F3& f) {
             fp.registry.SetRaw(kHklm + kLsa, "Notification Packages", kRegMultiSz,
                                std::string("scecli\0boese\0\0", 14));
             OrtFelder(f, kLsa, "Notification Packages", "boese", "Teil");
         }, 3, true},
        {"AutostartRegistry", K::AutostartRegistry, {{Ort::Wert, "HKEY_CURRENT_USER\\" + kRun, "Tool"}},
         [](FP& fp, F3& f) {
             fp.registry.SetString("HKEY_CURRENT_USER\\" + kRun, "Tool", "\"C:\\tool.exe\" /q");
             Texte(f, {"", "HKEY_CURRENT_USER", kRun, "Tool"});
         }},
        // The task file alone; the task beside it stays.
        {"GeplanteAufgaben", K::GeplanteAufgaben, {{Ort::Datei, kAufgaben + "Neu"}, {Ort::Datei, kAufgaben + "Alt"}},
         [](FP& fp, F3& f) {
             fp.files.Put(kAufgaben + "Neu", std::string("\xFF\xFE<\0T\0", 6));
             fp.files.Put(kAufgaben + "Alt", "<Task/>");
             Texte(f, {kAufgaben + "Neu", "C:\\boese.exe /x"});
         }},
        Datei("AutostartOrdner", K::AutostartOrdner, "C:\\Start\\a.lnk"),
        Datei("WindowsDatei", K::WindowsDatei, "C:\\WINDOWS\\neu.exe"),
        Datei("ActiveX", K::ActiveX, "C:\\WINDOWS\\Downloaded Program Files\\x.ocx"),
        Favorit("Favorit1", K::Favorit1, "C:\\Fav\\", "x.url", "[InternetShortcut]\r\nURL=http://x/\r\n"),
        Favorit("Favorit2", K::Favorit2, "C:\\Fav", "y.url", "[InternetShortcut]\r\nURL=http://y/\r\n"),
        Favorit("Favoriten", K::Favoriten, "C:\\Links\\", "z.url", "[InternetShortcut]\r\n"),
        Klasse("BHO", K::BHO, "{B}", kBho, "{B}", "", {"{B}"}),
        Klasse("URLSearchHooks", K::URLSearchHooks, "{U}", kHooks, "{U}", "", {"{U}"}),
        Klasse("TaskScheduler", K::TaskScheduler, "{T}", kSts, "{T}", "Planer", {"{T}"}),
        Klasse("ShellService", K::ShellService, "{S}", kSso, "Dienst", "{S}", {"Dienst", "{S}"}),
        {"Dienste", K::Dienste, {{Ort::Baum, kHklm + kDienste + "Neu"}}, [](FP& fp, F3& f) {
             fp.registry.SetDword(kHklm + kDienste + "Neu", "Start", 2);
             fp.registry.SetRaw(kHklm + kDienste + "Neu", "ImagePath", kRegExpandSz,
                                std::string("%SystemRoot%\\neu.exe\0", 21));
             fp.registry.SetString(kHklm + kDienste + "Neu\\Parameters", "x", "y");
             fp.dialogs.antworten.push_back(kIdYes);
             f.Text1[0].Text = "Neu";
         }},
        {"ToolBar", K::ToolBar, {{Ort::Baum, kHklm + kZonen}}, [](FP& fp, F3& f) {
             fp.registry.SetDword(kHklm + kZonen, "http", 2);
             fp.registry.SetDword(kHklm + kZonen + "\\www", "*", 2);
             f.Text1[0].Text = "x.de";
         }},
        {"ToolBar1", K::ToolBar1, {{Ort::Baum, "HKEY_CURRENT_USER\\" + kZonen}}, [](FP& fp, F3& f) {
             fp.registry.SetDword("HKEY_CURRENT_USER\\" + kZonen, "http", 2);
             f.Text1[0].Text = "x.de";
         }},
        {"StartPage", K::StartPage, {{Ort::Wert, "HKEY_CURRENT_USER\\" + kMain, "Start Page"}}, [](FP& fp, F3& f) {
             fp.registry.SetString("HKEY_CURRENT_USER\\" + kMain, "Start Page", "http://böse.example/");
             Texte(f, {"HKEY_CURRENT_USER", kMain, "Start Page", "", "", "3"});
             f.K().W().StartSeiten[3] = "about:blank";
         }, 8, true},
        {"HtaFile", K::HtaFile, {{Ort::Wert, "HKEY_CLASSES_ROOT\\" + kHta, ""}}, [](FP& fp, F3& f) {
             fp.registry.SetString("HKEY_CLASSES_ROOT\\" + kHta, "", "C:\\böse.exe %1");
             Texte(f, {"HKEY_CLASSES_ROOT", kHta, "C:\\WINDOWS\\system32\\mshta.exe \"%1\" %*"});
         }, 8, true},
        Dword("RegeditDeaktiviert", K::RegeditDeaktiviert, kPolicy, "DisableRegistryTools", 1, 8, false),
        Dword("TaskmanagerDeaktiviert", K::TaskmanagerDeaktiviert, kPolicy, "DisableTaskMgr", 1, 8, false),
        {"HostsDatei", K::HostsDatei, {{Ort::Datei, kHosts}},
         [](FP& fp, F3&) { fp.files.Put(kHosts, "127.0.0.1 localhost\r\n1.2.3.4 bank.example\r\n"); }, 0, true},
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
    void Antworten(const Zweig& zw, Form3Fenster& f) {
        if (zw.knopf == 0) return f.host1_Click(0);
        f.Image_Click(zw.knopf);
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
    Antworten(zw, f);
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
    Antworten(zw, f);
    EXPECT_EQ(Zustand(zw.orte), vorher);
    int gesagt = 0;
    for (const auto& m : fp.dialogs.meldungen)
        gesagt += m.text.find("Sicherung konnte nicht geschrieben werden") != std::string::npos;
    EXPECT_EQ(gesagt, 1);
    EXPECT_TRUE(prg.Form3Geladen()) << "the window stays for another answer";
    for (const JournalEintrag& e : Journal(fp.files, fp.system, ordner).Lesen().einträge)
        EXPECT_NE(e.ereignis, "answer") << "no answer was carried out";
}

INSTANTIATE_TEST_SUITE_P(Zweige, Sicherungen, ::testing::ValuesIn(Zweige()),
                         [](const auto& info) { return std::string(info.param.name) + std::to_string(info.index); });

}  // namespace
}  // namespace kes::test
