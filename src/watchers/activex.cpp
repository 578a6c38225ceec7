#include "watchers/activex.h"

#include "common/text.h"
#include "platform/alledateien.h"
#include "platform/allefunktionen.h"
#include "platform/icoholen.h"
#include "watchers/alarm_daten.h"
#include "watchers/bekannte_texte.h"
#include "watchers/warnung.h"

namespace kes {

namespace {
std::string Ordner(const Prozesswerte& w) {
    return w.Windowsordner + "\\Downloaded Program Files";
}
}  // namespace

void ActiveX::LadeActiveX() {
    List6.Items.clear();
    if (!basis.Vorhanden()) return;
    const auto inhalt = basis.Lesen();
    if (!inhalt) return;
    for (const auto& zeile : ZeilenBisLeer(*inhalt)) List6.Items.push_back(zeile);
}

void ActiveX::Testeactivx() {
    Plattform& p = k_.P();
    const std::string ordner = Ordner(k_.W());
    // The baseline as the row starts: the walk yields, and a change meanwhile counts from the
    // next row on.
    const BekannteTexte bekannt(List6.Items, [](const std::string& b) { return Klein(b); });
    // Each step of the removal is passed over when it fails.
    const std::string desktopIni = ordner + "\\desktop.ini";
    if (DateiVorhanden(p, desktopIni)) {
        try {
            p.files.SetAttributes(desktopIni, kAttrNormal);
        } catch (...) {
        }
        try {
            p.files.Delete(desktopIni);
        } catch (...) {
        }
    }
    try {
        std::vector<DateiEintrag> dateien;
        DateienSuchen(p, ordner, false, "*.*", dateien);
        k_.Pumpen();
        List7.Items.clear();
        for (const auto& d : dateien) List7.Items.push_back(d.Ordner + d.Name);
    } catch (...) {
        return;  // an error in the walk ends the call without a word
    }

    const std::string* neu = nullptr;
    for (const std::string& datei : List7.Items) {
        const std::string klein = Klein(datei);
        bool gefunden = bekannt.Enthält(klein);
        // A full path never equals the bare name; the test stays as it always was.
        if (klein == "desktop.ini") gefunden = true;
        if (!gefunden && !k_.Später(datei)) {
            neu = &datei;
            break;
        }
    }
    if (!neu) return;

    const std::string pfad = *neu;
    k_.Warnen(
        Kategorie::ActiveX,
        [&](Warnung& f) {
            f.Label1[0].Caption = "Es wurde eine neue ActiveX gefunden.";
            f.ListView2.Add(DateiName(pfad)).SmallIcon = 4;
            f.ListView2.Add(pfad).SmallIcon = 5;
            f.Picture3[4].Visible = false;
            f.Picture3[3].Visible = false;
            std::string p2 = pfad;
            holedaten(p, f, p2);
            IcoHolen(p, pfad, f.picProcIcon);
        },
        Ton::Keiner);
}

void löscheactivex1_Click(AlarmDaten& a, ListenPanel&, int) {
    ZeileEntfernen(a.List6);
    Übergehen([&] { a.activeX.basis.Speichern(); });
}

}  // namespace kes
