// The window Alarm: the control panel as the user sees it, on top of its part as the owner
// of every watcher. Its load handler runs every loader in a fixed order; the tick of its
// Timer1 is one watch cycle. The sidebar Label1 switches between the pages Frame1,
// directly or through one of three drop-out menus; a click on an option box saves the
// settings or does what that option needs at once.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "common/fenster.h"
#include "common/steuerelemente.h"
#include "common/version.h"
#include "panel/aufab.h"
#include "panel/ausnahmelisten.h"
#include "panel/panel_kontext.h"
#include "watchers/alarm_daten.h"

namespace kes {

// Colours of the sidebar: an entry at rest, and the chosen one.
inline constexpr long kLeisteRuhe = 12648384;
inline constexpr long kLeisteGewählt = 255;
inline constexpr long kLeisteGewähltText = 16777215;

// The headings of the pages, as they stand; the last three, the backups, the further
// autostart places and the further places of browser and shell, came later.
inline constexpr const char* kSeitenTitel[23] = {"Aktuelle Einstellungen",
                                                 "Prozesse",
                                                 "IExplorer Favoriten",
                                                 "IExplorer Startpage",
                                                 "DFÜ-Verbindung",
                                                 "Autostart-Funktion Ordner",
                                                 "Autostart-Funktion Registry",
                                                 "Nachrichtendienst überwachen",
                                                 "Hosts Datei überwachen",
                                                 "Ordner überwachen",
                                                 "Alle zurückgestellten Einträge (Später)",
                                                 "Browser Helper Objects",
                                                 "ActiveX-Objekte",
                                                 " ShellServiceObjectDelayLoad",
                                                 " SharedTaskScheduler",
                                                 "Sonstiges",
                                                 "Sonstige Registry Einträge",
                                                 "Windows Dienste",
                                                 "IExploere Vertauenswürdige Seiten",
                                                 "Autostart Registry [Sonstiges]",
                                                 "Sicherungen",
                                                 "Weitere Autostart-Orte",
                                                 "Weitere Browser- und Shell-Einträge"};
inline constexpr int kSeiteSicherungen = 20;

// A menu the view is asked to open: by name ("Internet", "autostart", "hijacker",
// "PageÄndern"), at the right edge of sidebar entry Label (or at the pointer when -1).
struct MenüWunsch {
    std::string Name;
    int Label = -1;
};

class AlarmFenster : public Fenster, public AlarmDaten {
public:
    explicit AlarmFenster(PanelKontext& k);

    AufAb AufAb1;
    std::array<Label, 12> Label1;       // the sidebar entries
    std::array<PictureBox, 23> Frame1;  // the pages
    std::array<MenuItem, 6> Internet1;
    std::array<MenuItem, 4> autostart1;
    std::array<MenuItem, 6> hijacker1;
    std::array<MenuItem, 1> PageÄndern1;
    CommandButton Command1;  // "Ändern" of the start-page edit
    TextBox Text1;           // the start-page edit
    // Asks the view to put the focus into Text1 (which then selects its whole text).
    bool Text1Fokus = false;
    // The row of ListView3 the user selected, 0-based; -1 none. The view keeps it current.
    int ListView3Auswahl = -1;
    MenüWunsch Menü;
    // On the page "Aktuelle Einstellungen": a fired change source brings the next tick at once.
    Box Sofort;
    // The context menus of the lists that show baselines and exception lists.
    Ausnahmelisten Ausnahmen;
    // The page "Sicherungen": what was saved before a removal, newest first, and the size of
    // all backups together.
    ListView Sicherungen;
    Label SicherungenGrösse;
    int SicherungenAuswahl = -1;  // 0-based; the view keeps it current
    std::array<MenuItem, 2> sicherung1{MenuItem{"Wiederherstellen"}, MenuItem{"Löschen"}};

    void Form_Load();
    void Timer1_Timer();
    void AufAb1_TextValue(std::int32_t& zahl);
    // The log buttons of the page "Aktuelle Einstellungen": 0 "Log-löschen", 1 "Log-öffnen".
    void Command2_Click(int index);
    void Box1_Click(int index);

    void Label1_MouseDown(int index);
    void Label1_MouseUp(int index);
    void Internet1_Click(int index);
    void autostart1_Click(int index);
    void hijacker1_Click(int index);
    void ListView3_MouseUp();
    void PageÄndern1_Click(int index);
    void Command1_Click();
    // "Sicherheitszone öffnen".
    void Command3_Click();
    // The link pictures: 0 the web site, 1 a mail to the support address.
    void Image1_Click(int index);
    // A click on a column head of the dial-up list; spalte counts from 1.
    void ListView2_ColumnClick(int spalte);

    // The backups as the journal names them, the ones still on disk.
    void SicherungenLaden();
    void NachWiederherstellen(const std::string& datei);
    void Sicherungen_MouseUp();
    // 0 puts the selected backup back, 1 deletes it.
    void sicherung1_Click(int index);

    // The page that shows, or -1 when none does.
    int SichtbareSeite() const;

private:
    void SeitenleisteAnlegen();
    void SeiteZeigen(int seite);
    PanelKontext& k_;
};

inline constexpr const char* kHerstellerWeb = "http://www.halvenik-software.de";
inline constexpr const char* kHerstellerMail = "support@halvenik-software.de";

}  // namespace kes
