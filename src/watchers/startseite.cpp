#include "watchers/startseite.h"

#include <algorithm>

#include "platform/allefunktionen.h"
#include "platform/hive_ocx.h"
#include "watchers/startseiten_tabelle.h"
#include "watchers/warnung.h"
#include "watchers/selbsttaetig.h"

namespace kes {

namespace {
constexpr const char* kHkcu = "HKEY_CURRENT_USER";
constexpr const char* kHklm = "HKEY_LOCAL_MACHINE";

constexpr int kBild = 26;

std::string Registrypfad(const ListItem& z) {
    return z.Text + "\\" + z.SubItem(1) + "\\" + z.SubItem(2);
}
}  // namespace

int StartSeitenHive(const std::string& root) {
    if (root == kHklm) return 2;
    if (root == kHkcu) return 1;
    return -1;
}

void StartSeiteSchreiben(Plattform& p, int hive, const std::string& key, const std::string& name,
                         const std::string& gespeichert) {
    HiveOCX(p.registry).WriteValue(hive, key, name, gespeichert.empty() ? std::string(1, '\0') : gespeichert);
}

void StartSeite::LadeStartPage() {
    ListView3.Columns = {"HKEY", "Subkey", "ValueKey", "Wert"};
    ListView3.Items.clear();
    const std::size_t zeilen = k_.P().registry.ZweiAnsichten() ? kStartSeitenZeilen : kStartSeitenTabelle.size();
    for (std::size_t n = 1; n <= zeilen; ++n) {
        const StartSeitenZeile& w = StartSeitenZeileNr(n);
        ListItem& z = ListView3.Add(w.Wurzel);
        z.SubItems = {w.Schlüssel, w.Wert, k_.W().StartSeiten[SlotVonZeile(n)]};
        z.SmallIcon = kBild;
    }
}

Änderungsorte StartSeite::Orte() {
    // From the table the list is filled from, so that the places stand before the list does.
    Änderungsorte orte;
    const std::size_t zeilen = k_.P().registry.ZweiAnsichten() ? kStartSeitenZeilen : kStartSeitenTabelle.size();
    for (std::size_t n = 1; n <= zeilen; ++n) {
        const StartSeitenZeile& w = StartSeitenZeileNr(n);
        const Änderungsort ort{HandleVonHive(w.Hive), w.Schlüssel, false};
        const bool schon = std::any_of(orte.begin(), orte.end(),
                                       [&](const Änderungsort& o) { return o.root == ort.root && o.pfad == ort.pfad; });
        if (!schon) orte.push_back(ort);
    }
    return orte;
}

void StartSeite::TesteStartPage() {
    try {
        HiveOCX hive(k_.P().registry);
        if (!k_.W().Unverändert) gelesen_.clear();
        // A read that fails leaves the text of the row before.
        std::string aktuell;
        for (std::size_t i = 1; i <= ListView3.Items.size(); ++i) {
            const ListItem z = ListView3.Items[i - 1];
            const int code = StartSeitenHive(z.Text);
            if (code > 0) {
                const std::string ort = std::to_string(code) + "\\" + z.SubItem(1) + "\\" + z.SubItem(2);
                if (const auto it = gelesen_.find(ort); it != gelesen_.end()) {
                    aktuell = it->second;
                } else {
                    try {
                        aktuell = hive.ReadValue(code, z.SubItem(1), z.SubItem(2));
                        gelesen_[ort] = aktuell;
                    } catch (...) {
                    }
                }
            }
            const std::string gespeichert = k_.W().StartSeiten.at(SlotVonZeile(i));
            if (gespeichert == aktuell) continue;
            if (k_.Box(9) != 1) {
                // A deferred value hides the rows after it for as long as it stays different.
                if (k_.Später(Registrypfad(z))) return;
                Warnen(static_cast<int>(SlotVonZeile(i)), z, aktuell, gespeichert);
                return;
            }
            Zurücksetzen(z, aktuell, gespeichert);
        }
    } catch (...) {
        // The error trap ends the routine without a message.
    }
}

// Neither the busy flag nor the timer changes: several rows may be put back in one pass.
// A write that fails is not noticed; the next pass finds the difference again.
void StartSeite::Zurücksetzen(const ListItem& z, const std::string& aktuell, const std::string& gespeichert) {
    if (k_.W().Soundflag == 1) SoundSpielen(k_.P(), "AUTO");
    const int code = StartSeitenHive(z.Text);
    if (code > 0) {
        Sicherung s = SelbstSicherung(k_);
        s.Wert(HandleVonHive(code), z.SubItem(1), z.SubItem(2));
        const std::optional<std::string> name = SelbstSichern(k_, s);
        if (!name) return;  // the next pass finds the difference again
        StartSeiteSchreiben(k_.P(), code, z.SubItem(1), z.SubItem(2), gespeichert);
        SelbstJournal(k_, Kategorie::StartPage, Registrypfad(z), "Original", *name,
                      {"IExplorer " + z.SubItem(2) + " wurde geändert.", "Wert: " + aktuell, "Original: " + gespeichert});
    }
    k_.Log("IExplorer " + z.SubItem(2) + " wurde geändert.", {"Registry: " + Registrypfad(z), "Wert: " + aktuell},
           "< Zurückgesetzt auf " + gespeichert + " >");
    if (k_.Box(7) == 1)
        k_.Sprechblase("IExplorer " + z.SubItem(2) + " geändert!",
                       "URL: " + aktuell + " wurde auf Original gesetzt: " + gespeichert,
                       "IExplorer Startpage wurde geändert", "BLINKTRAY");
}

void StartSeite::Warnen(int i, const ListItem& z, const std::string& aktuell, const std::string& gespeichert) {
    k_.Warnen(Kategorie::StartPage, [&](Warnung& f) {
        for (int pane : {3, 1, 4, 2}) f.Picture3[pane].Visible = false;
        f.Label1[0].Caption = "Registrierungsschlüssel des IExplorers wurde geändert.";
        f.Label1[1].Caption = Registrypfad(z);
        f.Text1[0].Text = z.Text;
        f.Text1[1].Text = z.SubItem(1);
        f.Text1[2].Text = z.SubItem(2);
        f.Text1[3].Text = aktuell;
        f.Text1[4].Text = gespeichert;
        f.Text1[5].Text = std::to_string(i);
        f.Label1[2].Caption = "Neuer Wert : " + aktuell + "        Original war: " + gespeichert;
        f.picProcIcon.Bild = 1;
    });
}

namespace {
void StartSeitenHolen(Plattform& p, std::size_t von, std::size_t bis, Prozesswerte& w) {
    HiveOCX hive(p.registry);
    for (std::size_t n = von; n <= bis; ++n) {
        const StartSeitenZeile& z = StartSeitenZeileNr(n);
        // The assistant names the default value by one NUL character.
        const std::string wert = *z.Wert ? std::string(z.Wert) : std::string(1, '\0');
        w.StartSeiten[SlotVonZeile(n)] = hive.ReadValue(z.Hive, z.Schlüssel, wert);
    }
}
}  // namespace

void Holestartpage(WächterKontext& k) {
    StartSeitenHolen(k.P(), 1, kStartSeitenTabelle.size(), k.W());
    Holestartpage32(k.P(), k.W());
}

void Holestartpage32(Plattform& p, Prozesswerte& w) {
    if (p.registry.ZweiAnsichten()) StartSeitenHolen(p, kStartSeitenTabelle.size() + 1, kStartSeitenZeilen, w);
}

}  // namespace kes
