#include "watchers/klassenlisten.h"

#include "common/fehler.h"
#include "platform/alledateien.h"
#include "platform/allefunktionen.h"
#include "platform/hive_ocx.h"
#include "platform/icoholen.h"
#include "platform/registry.h"
#include "watchers/alarm_daten.h"
#include "watchers/bekannte_texte.h"
#include "watchers/warnung.h"

namespace kes {

namespace {
using Art = Klassenlisten::Art;

constexpr const char* kBHO = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Browser Helper Objects";
constexpr const char* kSSODL = "Software\\Microsoft\\Windows\\CurrentVersion\\ShellServiceObjectDelayLoad";
constexpr const char* kSTS = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\SharedTaskScheduler";
constexpr const char* kHooks = "Software\\Microsoft\\Internet Explorer\\URLSearchHooks";
const std::string kStandardwert(1, '\0');  // the default value of a key, as HiveOCX names it

// What the four shapes share in kind but not in value. The rest differs in steps and is
// told where it happens.
struct Mitglied {
    Kategorie kategorie;
    RegHandle root;
    const char* schlüssel;
    bool unterschlüssel;  // the entries are subkeys (else value names)
    const char* überschrift;
};

const Mitglied& Von(Art art) {
    static const Mitglied kMitglieder[] = {
        {Kategorie::BHO, kHkeyLocalMachine, kBHO, true, "Neuer Eintrag [Browser Helper Objects]"},
        {Kategorie::ShellService, kHkeyLocalMachine, kSSODL, false,
         "Neuer Autostarteintrag [ShellServiceObjectDelayLoad]"},
        {Kategorie::TaskScheduler, kHkeyLocalMachine, kSTS, false, "Neuer Autostarteintrag [SharedTaskScheduler]"},
        {Kategorie::URLSearchHooks, kHkeyCurrentUser, kHooks, false,
         "Registry Eintrag geändert [IExplorer URLSearchHooks]"},
    };
    return kMitglieder[static_cast<int>(art)];
}
}  // namespace

Klassenlisten::Klassenlisten(WächterKontext& k, ListView& ListView8, ListView& ListView9, ListView& ListView10,
                             ListBox& List9, std::array<Label, 35>& ww)
    : ListView8(ListView8),
      ListView9(ListView9),
      ListView10(ListView10),
      List9(List9),
      ww(ww),
      bho(Grundliste::Abschnitte(k, "daten\\bho.ini", ListView8, 12)),
      shellService(Grundliste::Abschnitte(k, kShellServiceDatei, ListView9, 12)),
      taskScheduler(Grundliste::Abschnitte(k, kTaskSchedulerDatei, ListView10, 12)),
      urlSearchHooks(k, kURLSearchHookDatei, List9),
      k_(k) {
    const std::vector<std::string> spalten = {"Name",          "Wert",        "Info",    "CLISD", "Wert",
                                              "Firma",         "Produktname", "Version", "Info",  "Dateiversion",
                                              "Interner Name", "Copyright",   "index"};
    for (ListView* l : {&ListView8, &ListView9, &ListView10}) l->Columns = spalten;
}

void Klassenlisten::Dateifelder(ListItem& zeile, const std::string& pfad, int abschnitt) {
    // A version block that overflows leaves the record as the last entry left it.
    try {
        DateiInfos(k_.P(), pfad, infos_);
    } catch (const Fehler&) {
    }
    zeile.SetSubItem(5, infos_.CompanyName);
    zeile.SetSubItem(6, infos_.ProductName);
    zeile.SetSubItem(7, infos_.ProductVersion);
    zeile.SetSubItem(8, infos_.FileDescription);
    zeile.SetSubItem(9, infos_.FileVersion);
    zeile.SetSubItem(10, infos_.InternalName);
    zeile.SetSubItem(11, infos_.LegalCopyright);
    zeile.SetSubItem(12, std::to_string(abschnitt));
}

void Klassenlisten::LadeBHO() {
    ListView8.Items.clear();
    // Removing an exception removes its section: the numbers have gaps, and all are read.
    for (int n = 1; n <= 300; ++n) {
        const std::string abschnitt = std::to_string(n);
        std::string pfad = bho.Lesen(abschnitt, "Pfad");
        const std::string clisd = bho.Lesen(abschnitt, "Clisd");
        const std::string name = bho.Lesen(abschnitt, "Name");
        if (pfad.empty()) continue;
        pfad = PfadErweitern(pfad, k_.W().Windowsordner);
        ListItem& zeile = ListView8.Add(pfad);
        zeile.SmallIcon = 14;
        zeile.SetSubItem(1, clisd);
        zeile.SetSubItem(2, name);
        zeile.SetSubItem(3, "");
        zeile.SetSubItem(4, "");
        Dateifelder(zeile, pfad, n);
    }
    ww[14].Caption = Ausnahmenzahl(ListView8.Items.size());
}

void Klassenlisten::LadeVierSchlüssel(const Grundliste& datei, ListView& liste) {
    liste.Items.clear();
    for (int n = 1; n <= 50; ++n) {
        const std::string abschnitt = std::to_string(n);
        const std::string name = datei.Lesen(abschnitt, "Name");
        const std::string wert = datei.Lesen(abschnitt, "Wert");
        const std::string clisd = datei.Lesen(abschnitt, "Clisd");
        std::string clisdwert = datei.Lesen(abschnitt, "Clisdwert");
        if (name.empty()) continue;
        clisdwert = PfadErweitern(clisdwert, k_.W().Windowsordner);
        ListItem& zeile = liste.Add(name);
        zeile.SmallIcon = 13;
        zeile.SetSubItem(1, wert);
        zeile.SetSubItem(2, clisd);
        zeile.SetSubItem(3, clisdwert);
        zeile.SetSubItem(4, "");
        Dateifelder(zeile, clisdwert, n);
    }
}

void Klassenlisten::LadeShellService() {
    LadeVierSchlüssel(shellService, ListView9);
}

void Klassenlisten::LadeSharedTaskScheduler() {
    LadeVierSchlüssel(taskScheduler, ListView10);
}

void Klassenlisten::LadeURLSearchHook() {
    if (!urlSearchHooks.Vorhanden()) return;  // the list keeps what it had
    const auto inhalt = urlSearchHooks.Lesen();
    List9.Items.clear();
    if (!inhalt) return;
    for (const auto& zeile : ZeilenBisLeer(*inhalt)) List9.Items.push_back(zeile);
}

namespace {
// The baseline of one shape as its row starts. The walks of the row let messages run, and a
// list the panel changes meanwhile counts from the next row on.
struct Stand {
    std::vector<std::string> hooks;  // the search hooks, in their order: the search yields between lines
    BekannteTexte namen;             // the others: by the class, the shell services by the name

    Stand(Art art, const ListView& bho, const ListView& ssodl, const ListView& sts, const ListBox& hookListe)
        : hooks(art == Art::URLSearchHooks ? hookListe.Items : std::vector<std::string>()),
          namen(Zeilen(art, bho, ssodl, sts),
                [art](const ListItem& z) { return art == Art::ShellService ? z.Text : z.SubItem(1); }) {}

    static const std::vector<ListItem>& Zeilen(Art art, const ListView& bho, const ListView& ssodl,
                                               const ListView& sts) {
        static const std::vector<ListItem> keine;
        return art == Art::BHO             ? bho.Items
               : art == Art::ShellService  ? ssodl.Items
               : art == Art::TaskScheduler ? sts.Items
                                           : keine;
    }
};

// The baseline is searched by the live name, whole and with case.
bool Bekannt(WächterKontext& k, Art art, const Stand& stand, const std::string& name) {
    if (art != Art::URLSearchHooks) return stand.namen.Enthält(name);
    for (const auto& zeile : stand.hooks) {
        if (zeile == name) return true;
        k.Pumpen();
    }
    return false;
}
}  // namespace

// The user's hooks are one in both views; the machine's places are read in each.
std::vector<std::string> Klassenlisten::Pfade(Art art) {
    const Mitglied& m = Von(art);
    return m.root == kHkeyLocalMachine ? BeideAnsichten(k_.P(), m.root, m.schlüssel)
                                       : std::vector<std::string>{m.schlüssel};
}

Änderungsorte Klassenlisten::Orte(Art art) {
    Änderungsorte orte;
    for (const std::string& pfad : Pfade(art)) orte.push_back({Von(art).root, pfad, false});
    return orte;
}

std::string KlassenKennung(const std::string& name, bool bit32) {
    return bit32 ? "Wow6432Node\\" + name : name;
}

void Klassenlisten::TesteBHO() {
    Teste(Art::BHO);
}
void Klassenlisten::TesteShellService() {
    Teste(Art::ShellService);
}
void Klassenlisten::TesteSharedTaskScheduler() {
    Teste(Art::TaskScheduler);
}
void Klassenlisten::TesteSonstiges2() {
    Teste(Art::URLSearchHooks);
}

void Klassenlisten::Teste(Art art) {
    const Mitglied& m = Von(art);
    Plattform& p = k_.P();
    const Stand stand(art, ListView8, ListView9, ListView10, List9);
    const std::vector<std::string> orte = Pfade(art);
    // N the entry name, D what is read before the server, C the class, S its server file;
    // ORT the place and KLASSE the class key in the view the entry came from.
    std::string N, D, C, S, ort, klasse;
    bool gefunden = false;
    for (std::size_t o = 0; o < orte.size() && !gefunden; ++o) {
        ort = orte[o];
        const bool bit32 = o > 0;
        std::optional<Listung>& kept = listungen_[static_cast<std::size_t>(art)][o];
        const Kategorie kategorie = k_.W().Kategorieschlüssel;
        try {
            if (!k_.W().Unverändert || !kept || kept->kategorie != kategorie || kept->ort != ort) {
                kept.reset();
                Registry reg(p);
                kept = Listung{kategorie, ort,
                               m.unterschlüssel ? reg.GetSubkeys(m.root, ort, k_.W().Kategorieschlüssel)
                                                : reg.GetValueNames(m.root, ort)};
            }
        } catch (const Fehler& f) {
            // Only the helper objects say so; the others end without a word.
            if (art == Art::BHO)
                p.dialogs.ShowMessage(
                    "Fehler beim lesen [Browser Helper Objects] FehlerNr: " + std::to_string(f.Nummer()), "", kMbOk);
            return;
        } catch (const std::exception&) {
            if (art == Art::BHO)
                p.dialogs.ShowMessage("Fehler beim lesen [Browser Helper Objects] FehlerNr: 5", "", kMbOk);
            return;
        }
        // A copy: the loop lets messages run, and another pass may renew the kept one.
        const std::vector<std::string> liste = kept->namen;
        if (liste.empty() || liste.front().empty()) continue;

        HiveOCX hive(p.registry);
        for (const std::string& eintrag : liste) {
            // Only what stands before a ";" is compared and shown.
            N = eintrag.substr(0, eintrag.find(';'));
            // The walk's surplus entry is no name. Its server read would ask for the default
            // value of CLSID itself, which some systems fill.
            if (N.empty() || N.front() == '\0') continue;
            if (art == Art::ShellService || art == Art::TaskScheduler) k_.Pumpen();
            // An entry of the 32-bit view has a baseline line of its own.
            if (Bekannt(k_, art, stand, KlassenKennung(N, bit32))) continue;
            switch (art) {
                case Art::BHO:
                    D = hive.ReadValue(2, ort + "\\" + N, kStandardwert);
                    break;
                case Art::ShellService:
                case Art::TaskScheduler:
                    D = hive.ReadValue(2, ort, N);
                    break;
                case Art::URLSearchHooks:
                    k_.Pumpen();
                    break;
            }
            C = art == Art::ShellService ? D : N;
            // A 32-bit program's class is registered in the 32-bit classes.
            klasse = bit32 ? Pfad32(kHkeyClassesRoot, "CLSID\\" + C) : "CLSID\\" + C;
            S = hive.ReadValue(0, klasse + "\\InprocServer32", kStandardwert);
            // A class without a server file is passed over.
            if (S.empty()) continue;
            if (art == Art::BHO) k_.W().Kategorieschlüssel = Kategorie::BHO;
            // The scheduler is deferred by its description, so equal descriptions go together.
            if (k_.Später(KlassenKennung(art == Art::TaskScheduler ? D : N, bit32))) continue;
            gefunden = true;
            break;
        }
    }
    if (!gefunden) return;

    k_.Warnen(m.kategorie, [&](Warnung& f) {
        std::string unerweitert = S;
        std::string E = PfadErweitern(unerweitert, k_.W().Windowsordner);
        f.ListView2.Add(DateiName(E)).SmallIcon = 4;
        f.ListView2.Add(E).SmallIcon = 5;
        f.Picture3[4].Visible = false;

        const bool erweitertImRegister = art == Art::BHO || art == Art::URLSearchHooks;
        ListItem& reihe = f.ListView4.Add(art == Art::BHO             ? std::string("BHO")
                                          : art == Art::ShellService  ? N
                                          : art == Art::TaskScheduler ? D
                                                                      : std::string("URLSearchHooks"));
        reihe.SmallIcon = 1;
        reihe.SetSubItem(1, RootName(m.root));
        reihe.SetSubItem(2, ort);
        reihe.SetSubItem(3, N);
        reihe.SetSubItem(4, art == Art::URLSearchHooks ? "" : D);
        reihe.SetSubItem(5, art == Art::ShellService ? D : art == Art::URLSearchHooks ? E : N);
        reihe.SetSubItem(6, "HKEY_CLASSES_ROOT");
        reihe.SetSubItem(7, klasse);
        reihe.SetSubItem(8, "InprocServer32");
        reihe.SetSubItem(9, erweitertImRegister ? E : S);

        f.Text1[0].Text = N;
        switch (art) {
            case Art::BHO:
                f.Text1[1].Text = E;
                f.Text1[2].Text = D;
                break;
            case Art::ShellService:
            case Art::TaskScheduler:
                f.Text1[1].Text = D;
                f.Text1[2].Text = D;
                f.Text1[3].Text = E;
                break;
            case Art::URLSearchHooks:
                f.Text1[1].Text = E;
                break;
        }
        f.Label1[0].Caption = m.überschrift;
        holedaten(p, f, E);
        IcoHolen(p, E, f.picProcIcon);
    });
}

void bho1_Click(AlarmDaten& a, ListenPanel&, int) {
    Übergehen([&] { a.klassenlisten.bho.MarkierteAbschnitteEntfernen(); });
}

void shellservice1_Click(AlarmDaten& a, ListenPanel&, int) {
    Übergehen([&] { a.klassenlisten.shellService.MarkierteAbschnitteEntfernen(); });
}

void taskscheduler1_Click(AlarmDaten& a, ListenPanel&, int) {
    Übergehen([&] { a.klassenlisten.taskScheduler.MarkierteAbschnitteEntfernen(); });
}

void searchhook1_Click(AlarmDaten& a, ListenPanel&, int) {
    a.List9.Items.clear();
    a.List9.ListIndex = -1;
    a.klassenlisten.urlSearchHooks.DateiLöschen();
}

}  // namespace kes
