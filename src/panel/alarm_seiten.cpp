// The visible side of the control panel: the sidebar and its menus, which page shows, the
// edit of a saved start page, the hosts page, the links and the sorting of the dial-up list.
#include "panel/alarm.h"

#include "common/eigene_orte.h"
#include "platform/allefunktionen.h"
#include "platform/hive_ocx.h"
#include "watchers/hosts.h"
#include "watchers/startseiten_tabelle.h"

namespace kes {

namespace {
constexpr const char* kLeiste[12] = {"Option",    "Prozesse",   "Internet", "Autostart", "Datei System", "Hijacker",
                                     "Sonstiges", "Überwachen", "Dienste",  "Später",    "Zurücksetzen", "Sicherungen"};
constexpr const char* kInternet[6] = {"IExplorer Favoriten", "IExplorer Startpage",
                                      "DFÜ-Verbindung",      "Nachrichtendienst",
                                      "Hosts-Datei",         "IExplorer Vertrauenswürtige Seiten"};
constexpr int kInternetSeite[6] = {2, 3, 4, 7, 8, 18};
constexpr const char* kAutostart[4] = {"Autostart Ordner", "Autostart Registry [RUN]", "Autostart Registry [Sonstige]",
                                       "Weitere Autostart-Orte"};
constexpr int kAutostartSeite[4] = {5, 6, 19, 21};
constexpr const char* kHijacker[6] = {"Browser Helper Objects",      "ActiveX-Objekte",
                                      "ShellServiceObjectDelayLoad", "SharedTaskScheduler",
                                      "Sonstige Registry Einträge",  "Weitere Browser-Einträge"};
constexpr int kHijackerSeite[6] = {11, 12, 13, 14, 16, 22};

}  // namespace

void AlarmFenster::SeitenleisteAnlegen() {
    for (std::size_t i = 0; i < Label1.size(); ++i) {
        Label1[i].Caption = kLeiste[i];
        Label1[i].BackColor = kLeisteRuhe;
        Label1[i].ForeColor = kSystemFensterText;
    }
    for (std::size_t i = 0; i < Internet1.size(); ++i) Internet1[i].Caption = kInternet[i];
    for (std::size_t i = 0; i < autostart1.size(); ++i) autostart1[i].Caption = kAutostart[i];
    for (std::size_t i = 0; i < hijacker1.size(); ++i) hijacker1[i].Caption = kHijacker[i];
    // The panel opens on page 0.
    for (std::size_t i = 0; i < Frame1.size(); ++i) Frame1[i].Visible = i == 0;
    Command1.Caption = "Ändern";
    Command1.Enabled = false;

    ListView1.Columns = {"Wert"};
    ListView2.Columns = {"Name", "Nummer"};
    ListView3.Columns = {"HKEY", "Subkey", "ValueKey", "Wert"};
    ListView6.Columns = {"Datei", "Verzeichnis"};
    ListView11.Columns = {"Dienst",      "DisplayName",     "ObjectName", "ImagePath",       "Firma",
                          "Produktname", "Produkt Version", "Info",       "Datei-Version",   "Interner Name",
                          "Copyright",   "Orginal Name",    "Kommentar",  "LegalTradeMarks", "index"};
    ListView12.Columns = {"Name"};
    Sicherungen.Columns = {"Zeit", "Kategorie", "Aktion", "Was", "Sicherung", "Nr."};
    Sicherungen.ColumnWidths = {130, 100, 90, 200, 150, 40};
    const std::vector<std::string> klassen = {"Name",          "Wert",        "Info",    "CLISD", "Wert",
                                              "Firma",         "Produktname", "Version", "Info",  "Dateiversion",
                                              "Interner Name", "Copyright",   "index"};
    ListView8.Columns = ListView9.Columns = ListView10.Columns = klassen;
    // The wide lists scroll sideways rather than squeeze their columns.
    ListView8.ColumnWidths = ListView9.ColumnWidths = ListView10.ColumnWidths = std::vector<int>(13, 90);
    ListView11.ColumnWidths = std::vector<int>(15, 90);

    // The watched places of pages 6 and 19, as their watchers walk them.
    for (std::size_t i = 0; i < 12; ++i) Label2[4 + i].Caption = kAutostartOrte[i];
    const auto shellOrte = ShellBefehle::Orte();
    for (std::size_t i = 0; i < shellOrte.size(); ++i) ww[22 + i].Caption = shellOrte[i];
    ww[32].Caption = "Zuletzt geprüft:";
    ww[33].Caption = "exe, com, bat, pif:";
    ww[34].Caption = "hta:";
    // The services watcher adds the count when it loads.
    ww[19].Caption = "Ausnahmen:";
}

int AlarmFenster::SichtbareSeite() const {
    for (std::size_t i = 0; i < Frame1.size(); ++i)
        if (Frame1[i].Visible) return static_cast<int>(i);
    return -1;
}

void AlarmFenster::SeiteZeigen(int seite) {
    Frame1.at(static_cast<std::size_t>(seite)).Visible = true;
}

void AlarmFenster::Label1_MouseDown(int) {
    // "Zurücksetzen" has no resting colour of its own and is left as it is.
    for (int i = 0; i < static_cast<int>(Label1.size()); ++i) {
        if (i == 10) continue;
        Label1[i].BackColor = kLeisteRuhe;
        Label1[i].ForeColor = kSystemFensterText;
    }
}

void AlarmFenster::Label1_MouseUp(int index) {
    Label1.at(static_cast<std::size_t>(index)).BackColor = kLeisteGewählt;
    Label1[index].ForeColor = kLeisteGewähltText;
    // A page stays hidden until its menu entry is chosen.
    for (PictureBox& f : Frame1) f.Visible = false;
    switch (index) {
        case 0: {
            HiveOCX hive(k_.P().registry);
            Box1[0].setValue(hive.ValueExists(1, kRunSchlüssel, kRunWert) ? 1 : 0);
            SeiteZeigen(0);
            break;
        }
        case 1:
            SeiteZeigen(1);
            break;
        case 2:
            Command1.Enabled = false;
            Menü = {"Internet", index};
            break;
        case 3:
            Menü = {"autostart", index};
            break;
        case 4:
            SeiteZeigen(9);
            break;
        case 5:
            Menü = {"hijacker", index};
            break;
        case 6:
            SeiteZeigen(15);
            break;
        case 7:
            k_.Aktiviert();
            k_.W().Beschäftigt = false;
            Timer1.SetEnabled(true);
            Hide();
            break;
        case 8:
            SeiteZeigen(17);
            break;
        case 9:
            SeiteZeigen(10);
            break;
        case 10:
            k_.W().Zurücksetzen = true;
            k_.AlarmSchliessen();
            break;
        case 11:
            SicherungenLaden();
            SeiteZeigen(kSeiteSicherungen);
            break;
        default:
            break;
    }
}

void AlarmFenster::Internet1_Click(int index) {
    if (index == 4) {
        // The labels of the hosts page are filled at this moment only.
        Prozesswerte& w = k_.W();
        ww[6].Caption = "Grösse: " + GrösseFormat(w.Hostsgrösse, false, k_.P().system.NumberFormat());
        ww[7].Caption = HostsPfad(w);
    }
    SeiteZeigen(kInternetSeite[index]);
}

void AlarmFenster::autostart1_Click(int index) {
    SeiteZeigen(kAutostartSeite[index]);
}

void AlarmFenster::hijacker1_Click(int index) {
    SeiteZeigen(kHijackerSeite[index]);
}

void AlarmFenster::ListView3_MouseUp() {
    Command1.Enabled = false;
    if (ListView3.Items.empty()) return;
    if (ListView3Auswahl < 0 || ListView3Auswahl >= static_cast<int>(ListView3.Items.size())) return;
    const ListItem& zeile = ListView3.Items[static_cast<std::size_t>(ListView3Auswahl)];
    Text1.Text = zeile.SubItem(3);
    PageÄndern1[0].Caption = "\"" + Text1.Text + "\" --> Eintrag ändern";
    Menü = {"PageÄndern", -1};
}

void AlarmFenster::PageÄndern1_Click(int) {
    Command1.Enabled = true;
    Text1Fokus = true;
}

void AlarmFenster::Command1_Click() {
    if (ListView3Auswahl < 0 || ListView3Auswahl >= static_cast<int>(ListView3.Items.size())) return;
    const std::size_t zeile = static_cast<std::size_t>(ListView3Auswahl) + 1;
    const std::size_t slot = SlotVonZeile(zeile);
    if (slot >= k_.W().StartSeiten.size()) return;
    ListView3.Items[zeile - 1].SetSubItem(3, Text1.Text);
    k_.W().StartSeiten[slot] = Text1.Text;
    Command1.Enabled = false;
    Text1.Text.clear();
    k_.EinstellungenSpeichern();
}

void AlarmFenster::Command3_Click() {
    // Minimised with the focus: the shell brings up the security zones.
    k_.P().shell.RunCommand("rundll32.exe shell32.dll,Control_RunDLL inetcpl.cpl,,1", 2);
}

void AlarmFenster::Image1_Click(int index) {
    Plattform& p = k_.P();
    if (index == 0) {
        SeiteÖffnen(p, kHerstellerWeb);
    } else {
        MailSchreiben(p, kHerstellerMail, "Frage zum Kestrella",
                      "Hallo ich habe den Kestrella Version " + std::to_string(kVersionMajor) + "." +
                          std::to_string(kVersionMinor) + "." + std::to_string(kVersionRevision) +
                          " und folgende Frage, Hinweis oder Vorschlag.");
    }
}

void AlarmFenster::ListView2_ColumnClick(int spalte) {
    // Always ascending. Sorting stays on: the reload and the accepted entries keep the order.
    ListView2.SortKey = spalte - 1;
    ListView2.Sorted = true;
    ListView2.Sortieren();
}

}  // namespace kes
