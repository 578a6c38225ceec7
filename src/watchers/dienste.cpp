#include "watchers/dienste.h"

#include "common/fehler.h"
#include "common/text.h"
#include "platform/alledateien.h"
#include "platform/allefunktionen.h"
#include "platform/datei_ersetzen.h"
#include "platform/dienst_pfad.h"
#include "platform/hive_ocx.h"
#include "platform/icoholen.h"
#include "platform/registry.h"
#include "watchers/alarm_daten.h"
#include "watchers/bekannte_texte.h"
#include "watchers/warnung.h"

namespace kes {

namespace {
constexpr const char* kDienste = "System\\CurrentControlSet\\Services";
}  // namespace

Dienste::Dienste(WächterKontext& k, ListView& ListView11, ListBox& List10, std::array<Label, 35>& ww)
    : ListView11(ListView11),
      List10(List10),
      ww(ww),
      basis(Grundliste::Abschnitte(k, kDiensteDatei, ListView11, 14)),
      firmen(k, kDiensteFirmenDatei, List10),
      k_(k) {
    // Crossed like the file's keys: under "DisplayName" the user reads the display name.
    ListView11.Columns = {"Dienst",      "DisplayName",     "ObjectName", "ImagePath",       "Firma",
                          "Produktname", "Produkt Version", "Info",       "Datei-Version",   "Interner Name",
                          "Copyright",   "Orginal Name",    "Kommentar",  "LegalTradeMarks", "index"};
}

void Dienste::LadeDienste() {
    Plattform& p = k_.P();
    ListView11.Items.clear();
    for (int n = 1; n <= 300; ++n) {
        const std::string abschnitt = std::to_string(n);
        const std::string dienst = basis.Lesen(abschnitt, "Dienst");
        const std::string objectName = basis.Lesen(abschnitt, "ObjectName");
        const std::string displayName = basis.Lesen(abschnitt, "DisplayName");
        std::string imagePath = basis.Lesen(abschnitt, "ImagePath");
        if (dienst.empty()) continue;
        imagePath = PfadErweitern(imagePath, k_.W().Windowsordner);
        try {
            DateiInfos(p, imagePath, infos_);
        } catch (const Fehler&) {
            // A version block that overflows leaves the record as the last entry left it.
        }
        ListItem& z = ListView11.Add(dienst);
        z.SmallIcon = 13;
        const std::string spalten[] = {objectName,
                                       displayName,
                                       imagePath,
                                       infos_.CompanyName,
                                       infos_.ProductName,
                                       infos_.ProductVersion,
                                       infos_.FileDescription,
                                       infos_.FileVersion,
                                       infos_.InternalName,
                                       infos_.LegalCopyright,
                                       infos_.OriginalFileName,
                                       infos_.Comments,
                                       infos_.LegalTrademarks,
                                       abschnitt};
        for (std::size_t s = 0; s < std::size(spalten); ++s) z.SetSubItem(s + 1, spalten[s]);
    }
    ww[19].Caption = Ausnahmenzahl(ListView11.Items.size());
}

void Dienste::LadeDiensteHersteller() {
    List10.Items.clear();
    if (!firmen.Vorhanden()) return;
    const auto inhalt = firmen.Lesen();
    if (!inhalt) return;
    // Empty lines count as lines here: the reading goes on to the end.
    for (const auto& zeile : ZeilenLesen(*inhalt)) List10.Items.push_back(zeile);
}

void Dienste::TesteDienste() {
    Plattform& p = k_.P();
    Prozesswerte& w = k_.W();
    // Set at every call, found or not; the key stays for whatever runs next.
    w.Kategorieschlüssel = Kategorie::Dienste;
    // Both lists as the row starts: the walk yields, and a change meanwhile counts from the
    // next row on. The makers are kept in their order, folded as they are compared.
    const BekannteTexte bekannt(ListView11.Items, [](const ListItem& z) { return z.Text; });
    std::vector<std::string> firmen;
    for (const std::string& zeile : List10.Items) firmen.push_back(Klein(zeile));
    if (!w.Unverändert || !liste_) {
        liste_.reset();
        werte_.clear();
        try {
            liste_ = Registry(p).GetSubkeys(kHkeyLocalMachine, kDienste, w.Kategorieschlüssel);
        } catch (...) {
            return;
        }
    }
    const std::vector<std::string> liste = *liste_;
    if (liste.empty() || liste.front().empty()) return;

    std::string name, K, start, objectName, displayName, beschreibung, pfad;
    bool neu = false;
    for (const std::string& eintrag : liste) {
        name = eintrag.substr(0, eintrag.find(';'));
        if (bekannt.Enthält(name)) continue;
        K = std::string(kDienste) + "\\" + name;
        // Without an ImagePath it is nothing this watch looks at, driver or not.
        const Werte& d = Lesen(name);
        if (!d.bild || !d.start) continue;
        start = d.startwert;
        if (start != "2") continue;  // automatic start only
        objectName = d.objectName;
        displayName = d.displayName;
        beschreibung = d.beschreibung;
        pfad = DienstPfad(p, d.imagePath, d.serviceDll, w.Windowsordner, w.Systemordner);
        if (k_.Später(pfad)) continue;
        try {
            versionen_.Infos(p, pfad, infos_);
        } catch (const Fehler&) {
        }
        // Up to one beyond the last line, which reads as empty; a hit does not stop it.
        bool hersteller = false;
        const std::string firma = Klein(infos_.CompanyName);
        for (std::size_t j = 0; j <= firmen.size(); ++j)
            if (firma == (j < firmen.size() ? firmen[j] : std::string())) hersteller = true;
        if (!hersteller) {
            neu = true;
            break;
        }
    }
    if (!neu) versionen_.Aufräumen();
    if (!neu) return;

    k_.Warnen(Kategorie::Dienste, [&](Warnung& f) {
        f.Text1[0].Text = name;
        f.Text1[1].Text = displayName;
        f.Text1[2].Text = objectName;
        f.Text1[3].Text = pfad;
        f.Text1[4].Text = start;
        f.Label1[0].Caption = "Neuer Dienst wurde gefunden.(Automatischer Start)";
        f.ListView2.Add(DateiName(pfad)).SmallIcon = 4;
        f.ListView2.Add(pfad).SmallIcon = 5;
        f.ListView2.Add(displayName + " ---->> " + beschreibung).SmallIcon = 1;
        f.Picture3[4].Visible = false;
        ListItem& reihe = f.ListView4.Add("Dienst");
        reihe.SmallIcon = 1;
        reihe.SetSubItem(1, "HKEY_LOCAL_MACHINE");
        reihe.SetSubItem(2, K);
        reihe.SetSubItem(3, name);
        reihe.SetSubItem(4, pfad);
        std::string datei = pfad;
        holedaten(p, f, datei);
        IcoHolen(p, pfad, f.picProcIcon);
    });
}

const Dienste::Werte& Dienste::Lesen(const std::string& name) {
    if (const auto it = werte_.find(name); it != werte_.end()) return it->second;
    HiveOCX hive(k_.P().registry);
    const std::string K = std::string(kDienste) + "\\" + name;
    // Read in the walk's order, each value only when the one before let the service pass.
    Werte d;
    HiveOCX::Offen schlüssel(hive, 2, K);
    d.bild = schlüssel.ValueExists("ImagePath");
    d.start = d.bild && schlüssel.ValueExists("Start");
    if (d.start) d.startwert = schlüssel.ReadValue("Start");
    if (d.startwert == "2") {
        d.objectName = schlüssel.ReadValue("ObjectName");
        d.displayName = schlüssel.ReadValue("DisplayName");
        d.imagePath = schlüssel.ReadValue("ImagePath");
        d.serviceDll = hive.ReadValue(2, K + "\\Parameters", "ServiceDll");
        d.beschreibung = schlüssel.ReadValue("Description");
    }
    return werte_[name] = std::move(d);
}

Änderungsorte Dienste::Orte() {
    // No imprint: one that reaches the library below each service's Parameters costs as
    // much as the walk, which reads only the services the baseline does not know.
    return {{kHkeyLocalMachine, kDienste, true}};
}

void holedienste(WächterKontext& k) {
    Plattform& p = k.P();
    std::vector<std::string> liste;
    try {
        liste = Registry(p).GetSubkeys(kHkeyLocalMachine, kDienste, k.W().Kategorieschlüssel);
    } catch (...) {
        return;  // the error exit of the enumeration
    }
    const std::string datei = k.W().Programmordner + kDiensteDatei;
    // The sections are gathered in a scratch file that takes the old file's place at the
    // end, so that a crash in the walk leaves the old list.
    const std::string neu = ErsatzName(datei);
    Übergehen([&] { p.files.Delete(neu); });
    if (liste.empty() || liste.front().empty()) {
        Übergehen([&] { p.files.Delete(datei); });
        return;
    }

    HiveOCX hive(p.registry);
    int zähler = 0;
    for (const std::string& eintrag : liste) {
        // Errors are passed over: a service with an unreadable value still gets its section.
        try {
            const std::string name = eintrag.substr(0, eintrag.find(';'));
            k.Pumpen();
            const std::string schlüssel = std::string(kDienste) + "\\" + name;
            if (!hive.ValueExists(2, schlüssel, "Start")) continue;
            if (hive.ReadValue(2, schlüssel, "Start") != "2") continue;
            const std::string objekt = hive.ReadValue(2, schlüssel, "ObjectName");
            const std::string anzeige = hive.ReadValue(2, schlüssel, "DisplayName");
            std::string pfad = hive.ReadValue(2, schlüssel, "ImagePath");
            const std::string dll = hive.ReadValue(2, schlüssel + "\\Parameters", "ServiceDll");
            if (!dll.empty()) pfad = dll;
            pfad = PfadErweitern(pfad, k.W().Windowsordner);
            const std::string abschnitt = std::to_string(++zähler);
            // ObjectName and DisplayName cross: that is the file's layout.
            p.profiles.WriteString(abschnitt, std::string("Dienst"), name, neu);
            p.profiles.WriteString(abschnitt, std::string("ObjectName"), anzeige, neu);
            p.profiles.WriteString(abschnitt, std::string("DisplayName"), objekt, neu);
            p.profiles.WriteString(abschnitt, std::string("ImagePath"), pfad, neu);
        } catch (...) {
        }
    }
    // No service that starts by itself: no file, as before.
    Übergehen([&] {
        if (DateiVorhanden(p, neu))
            p.files.MoveReplacing(neu, datei);
        else
            p.files.Delete(datei);
    });
}

void dienst22_Click(AlarmDaten& a, ListenPanel&, int index) {
    if (index == 0) {
        a.List10.Items.clear();
        a.List10.ListIndex = -1;
        a.dienste.firmen.DateiLöschen();
        return;
    }
    ZeileEntfernen(a.List10);
    Übergehen([&] { a.dienste.firmen.Speichern(); });
    a.dienste.LadeDiensteHersteller();
}

void dienst1_Click(AlarmDaten& a, ListenPanel& panel, int index) {
    if (index == 0) {
        Übergehen([&] { a.dienste.basis.MarkierteAbschnitteEntfernen(); });
    } else {
        a.ListView11.Items.clear();
        Übergehen([&] { panel.P().files.Delete(a.dienste.basis.Pfad()); });
    }
    a.ww[19].Caption = Ausnahmenzahl(a.ListView11.Items.size());
}

}  // namespace kes
